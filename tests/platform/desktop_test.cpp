#include <gtest/gtest.h>

#include "app/product_pages.h"
#include "platform/rehearsal/rehearsal_desktop.h"

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

// Catches two requests that are taken for each other, a page's address made some other way, and an
// activity that is never counted off or ends in a desktop that is gone.
TEST(RehearsalDesktop, RemembersWhatItWouldOpenAndHolds) {
    EXPECT_EQ(productPageAddress(u"www.example.org:8443"_s, ProductPage::safeguards),
              u"https://www.example.org:8443/safeguards"_s);
    auto desktop = std::make_unique<RehearsalDesktop>();
    desktop->openPrivacyPane(PrivacyPane::fullDiskAccess);
    desktop->openPrivacyPane(PrivacyPane::contacts);
    desktop->openMessages();
    desktop->openPage(ProductPage::terms);
    const QString requests = desktop->requests().join(u'|');
    EXPECT_TRUE(requests.contains(u"at Full Disk Access|Privacy & Security at Contacts|Messages|"));
    EXPECT_TRUE(requests.endsWith(u"/terms"));
    auto first = desktop->beginActivity(u"Sending"_s);
    const auto second = desktop->beginActivity(u"Sending"_s);
    EXPECT_EQ(desktop->activeActivities(), 2);
    first.reset();
    EXPECT_EQ(desktop->activeActivities(), 1);
    desktop.reset();
}

}  // namespace
}  // namespace velmora
