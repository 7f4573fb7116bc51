#include "platform/rehearsal/rehearsal_desktop.h"

#include <cstdio>

#include "app/product_pages.h"

namespace velmora {

namespace {

class CountedActivity final : public Activity {
  public:
    explicit CountedActivity(std::shared_ptr<int> count) : count_(std::move(count)) { ++*count_; }
    ~CountedActivity() override { --*count_; }

  private:
    std::shared_ptr<int> count_;
};

}  // namespace

std::unique_ptr<Activity> RehearsalDesktop::beginActivity(const QString&) {
    return std::make_unique<CountedActivity>(activities_);
}

void RehearsalDesktop::openPrivacyPane(PrivacyPane pane) {
    wouldOpen(pane == PrivacyPane::fullDiskAccess
                  ? QStringLiteral("Privacy & Security at Full Disk Access")
                  : QStringLiteral("Privacy & Security at Contacts"));
}

void RehearsalDesktop::openMessages() {
    wouldOpen(QStringLiteral("Messages"));
}

void RehearsalDesktop::openPage(ProductPage page) {
    wouldOpen(productPageAddress(QStringLiteral(VELMORA_WEBSITE_HOST), page));
}

void RehearsalDesktop::wouldOpen(const QString& what) {
    std::fputs(qPrintable(QStringLiteral("Rehearsal: would open %1\n").arg(what)), stderr);
    requests_.append(what);
}

}  // namespace velmora
