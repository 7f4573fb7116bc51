#include "platform/rehearsal/rehearsal_desktop.h"

#include <cstdio>

#include "app/product_pages.h"

namespace velmora {

namespace {

void wouldOpen(const QString& what) {
    std::fputs(qPrintable(QStringLiteral("Rehearsal: would open %1\n").arg(what)), stderr);
}

}  // namespace

std::unique_ptr<Activity> RehearsalDesktop::beginActivity(const QString&) {
    return nullptr;
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

}  // namespace velmora
