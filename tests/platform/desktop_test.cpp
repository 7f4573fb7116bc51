#include <gtest/gtest.h>

#include "app/product_pages.h"
#include "platform/rehearsal/rehearsal_desktop.h"

using namespace Qt::Literals::StringLiterals;

namespace velmora {
namespace {

TEST(ProductPages, StandUnderTheProductsHost) {
    EXPECT_EQ(productPageAddress(u"velmora.example"_s, ProductPage::terms),
              u"https://velmora.example/terms"_s);
    EXPECT_EQ(productPageAddress(u"www.example.org:8443"_s, ProductPage::safeguards),
              u"https://www.example.org:8443/safeguards"_s);
}

// Catches two requests that are taken for each other, and a page's address made some other way.
TEST(RehearsalDesktop, RemembersWhatItWouldOpen) {
    RehearsalDesktop desktop;
    testing::internal::CaptureStderr();
    desktop.openPrivacyPane(PrivacyPane::fullDiskAccess);
    desktop.openPrivacyPane(PrivacyPane::contacts);
    desktop.openMessages();
    desktop.openPage(ProductPage::safeguards);
    const std::string printed = testing::internal::GetCapturedStderr();
    ASSERT_EQ(desktop.requests().size(), 4);
    EXPECT_TRUE(desktop.requests()[0].contains(u"Full Disk Access"_s));
    EXPECT_TRUE(desktop.requests()[1].contains(u"Contacts"_s));
    EXPECT_EQ(desktop.requests()[2], u"Messages"_s);
    EXPECT_TRUE(desktop.requests()[3].startsWith(u"https://"_s));
    EXPECT_TRUE(desktop.requests()[3].endsWith(u"/safeguards"_s));
    EXPECT_EQ(std::ranges::count(printed, '\n'), 4);
}

// Catches an activity that is never counted off, or that ends in a desktop that is gone.
TEST(RehearsalDesktop, CountsTheActivitiesThatAreHeld) {
    auto desktop = std::make_unique<RehearsalDesktop>();
    auto first = desktop->beginActivity(u"Sending"_s);
    const auto second = desktop->beginActivity(u"Sending"_s);
    EXPECT_EQ(desktop->activeActivities(), 2);
    first.reset();
    EXPECT_EQ(desktop->activeActivities(), 1);
    desktop.reset();
}

}  // namespace
}  // namespace velmora
