#include "ui/window/main_window_model.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

struct EmptyStateContent {
    QString icon;
    QString title;
    QString message;
    QString button;
};

EmptyStateContent emptyStateContent(const AppModel& model) {
    if (!model.contactsAllowed) {
        return {.icon = u"person.crop.circle.badge.exclamationmark"_s,
                .title = u"Velmora can't read your Contacts"_s,
                .message = u"Allow Contacts in System Settings, then reopen the app."_s,
                .button = u"Open System Settings"_s};
    }
    return {.icon = u"sidebar.left"_s,
            .title = u"Choose a list"_s,
            .message =
                u"Pick a Contacts group, or All Contacts to choose anyone with a phone number."_s,
            .button = {}};
}

}  // namespace

MainWindowModel::MainWindowModel(AppModel& model)
    : model_(model), alertText_(model.alert.value().value_or(QString())) {
    const auto announce = [this](auto signal) {
        connect(&model_, signal, this, &MainWindowModel::changed);
    };
    announce(&AppModel::configChanged);
    announce(&AppModel::groupsChanged);
    announce(&AppModel::allContactsCountChanged);
    announce(&AppModel::recipientsReplaced);
    announce(&AppModel::selectionChanged);
    announce(&AppModel::contactsAllowedChanged);
    announce(&AppModel::dbOKChanged);
    announce(&AppModel::bootstrappedChanged);
    announce(&AppModel::confirmingRunChanged);
    announce(&AppModel::showingFDAHelpChanged);
    announce(&AppModel::skippedFDAHelpChanged);
    announce(&AppModel::skippedSenderSetupChanged);
    connect(&model_, &AppModel::alertChanged, this, &MainWindowModel::followAlert);
    connect(&model_.runner(), &Runner::stateChanged, this, &MainWindowModel::changed);
    connect(&model_, &AppModel::settingsRequested, this, &MainWindowModel::settingsRequested);
}

QString MainWindowModel::title() const {
    const auto group = model_.currentGroup();
    return group ? group->name : u"Velmora"_s;
}

QString MainWindowModel::subtitle() const {
    if (!model_.config().selectedGroupID || model_.recipients().empty())
        return {};
    QString text =
        u"%1 of %2 selected"_s.arg(model_.selection().size()).arg(model_.recipients().size());
    if (const qsizetype attention = model_.attentionCount(); attention >= 1)
        text += u" \u00B7 %1 need attention"_s.arg(attention);
    return text;
}

bool MainWindowModel::showsList() const {
    return model_.contactsAllowed && model_.config().selectedGroupID.has_value();
}

QString MainWindowModel::emptyIcon() const {
    return emptyStateContent(model_).icon;
}

QString MainWindowModel::emptyTitle() const {
    return emptyStateContent(model_).title;
}

QString MainWindowModel::emptyMessage() const {
    return emptyStateContent(model_).message;
}

QString MainWindowModel::emptyButton() const {
    return emptyStateContent(model_).button;
}

void MainWindowModel::openContactsSettings() {
    model_.openContactsSettings();
}

MainWindowModel::Banner MainWindowModel::banner() const {
    if (!model_.contactsAllowed)
        return Banner::none;
    if (!model_.dbOK)
        return Banner::fullDiskAccess;
    return model_.config().senderNumber.isEmpty() ? Banner::sendingNumber : Banner::none;
}

QString MainWindowModel::bannerSymbol() const {
    return banner() == Banner::fullDiskAccess ? u"lock.trianglebadge.exclamationmark"_s
                                              : u"iphone"_s;
}

QString MainWindowModel::bannerColor() const {
    return banner() == Banner::fullDiskAccess ? u"red"_s : u"orange"_s;
}

QString MainWindowModel::bannerText() const {
    return banner() == Banner::fullDiskAccess
               ? u"Velmora needs Full Disk Access to check which line each text goes out on."_s
               : u"Choose the number you send from."_s;
}

QString MainWindowModel::bannerButton() const {
    return banner() == Banner::fullDiskAccess ? u"Show Me How"_s : u"Open Settings"_s;
}

void MainWindowModel::followBanner() {
    if (banner() == Banner::fullDiskAccess)
        model_.showingFDAHelp = true;
    else if (banner() == Banner::sendingNumber)
        model_.openSettings();
}

bool MainWindowModel::alertShown() const {
    return model_.alert.value().has_value();
}

QString MainWindowModel::alertText() const {
    return alertText_;
}

void MainWindowModel::followAlert() {
    alertText_ = model_.alert.value().value_or(alertText_);
    Q_EMIT changed();
}

void MainWindowModel::dismissAlert() {
    model_.alert = std::nullopt;
}

MainWindowModel::Sheet MainWindowModel::sheet() const {
    if (!model_.termsAccepted())
        return Sheet::terms;
    if (model_.confirmingRun)
        return Sheet::confirm;
    if (model_.needsFDAHelp())
        return Sheet::fullDiskAccessHelp;
    return model_.needsSenderSetup() ? Sheet::senderSetup : Sheet::none;
}

bool MainWindowModel::commandsEnabled() const {
    return sheet() == Sheet::none && !alertShown();
}

bool MainWindowModel::settingsEnabled() const {
    return sheet() != Sheet::terms;
}

bool MainWindowModel::mayClose() {
    if (!model_.runner().isActive() || model_.sessionEnds())
        return true;
    model_.alert = u"A run is still going. Stop it and let it end, then close Velmora."_s;
    return false;
}

bool MainWindowModel::paused() const {
    return model_.runner().state == Runner::State::paused;
}

void MainWindowModel::windowShown() {
    if (!startUp_)
        startUp_ = model_.bootstrap();
}

void MainWindowModel::applicationActivated() {
    if (!model_.dbOK)
        model_.refreshNumbers();
}

}  // namespace velmora
