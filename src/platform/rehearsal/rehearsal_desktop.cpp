#include "platform/rehearsal/rehearsal_desktop.h"

#include <QGuiApplication>
#include <cstdio>

#include "app/product_pages.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

void wouldOpen(const QString& what) {
    std::fputs(qPrintable(u"Rehearsal: would open %1\n"_s.arg(what)), stderr);
}

}  // namespace

RehearsalDesktop::RehearsalDesktop() {
    // A program without windows is in no session.
    if (auto* application = qobject_cast<QGuiApplication*>(QCoreApplication::instance()))
        QObject::connect(application, &QGuiApplication::commitDataRequest, &following_,
                         [this] { sessionEnds_ = true; });
}

std::unique_ptr<Activity> RehearsalDesktop::beginActivity(const QString&) {
    return nullptr;
}

void RehearsalDesktop::openPrivacyPane(PrivacyPane pane) {
    wouldOpen(pane == PrivacyPane::fullDiskAccess ? u"Privacy & Security at Full Disk Access"_s
                                                  : u"Privacy & Security at Contacts"_s);
}

void RehearsalDesktop::openMessages() {
    wouldOpen(u"Messages"_s);
}

void RehearsalDesktop::openPage(ProductPage page) {
    wouldOpen(productPageAddress(QStringLiteral(VELMORA_WEBSITE_HOST), page));
}

}  // namespace velmora
