#include "ui/window/main_window_model.h"

#include <QCoreApplication>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

MainWindowModel::MainWindowModel(AppModel& model) : model_(model) {
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
    connect(&model_.runner(), &Runner::stateChanged, this, &MainWindowModel::followRun);
    // With each person in hand, one fewer is left.
    connect(&model_.runner(), &Runner::currentChanged, this, [this] {
        if (asksToQuit_)
            followAlert();
    });
    connect(&model_, &AppModel::settingsRequested, this, &MainWindowModel::settingsRequested);
    followAlert();
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

EmptyStateContent MainWindowModel::emptyState() const {
    if (!model_.contactsAllowed) {
        return {.icon = u"person.crop.circle.badge.exclamationmark"_s,
                .title = u"Velmora can't read your Contacts"_s,
                .message = u"Allow Contacts in System Settings, then reopen the app."_s,
                .button = u"Open System Settings"_s};
    }
    return {.icon = u"sidebar.left"_s,
            .title = u"Choose a list"_s,
            .message =
                u"Pick a Contacts group, or All Contacts to choose anyone with a phone number."_s};
}

void MainWindowModel::openContactsSettings() {
    model_.openContactsSettings();
}

MainWindowModel::Todo MainWindowModel::todo() const {
    if (!model_.contactsAllowed)
        return Todo::none;
    if (!model_.dbOK)
        return Todo::fullDiskAccess;
    return model_.config().senderNumber.isEmpty() ? Todo::sendingNumber : Todo::none;
}

Banner MainWindowModel::banner() const {
    switch (todo()) {
        case Todo::fullDiskAccess:
            return {
                .symbol = u"lock.trianglebadge.exclamationmark"_s,
                .tone = Tone::red,
                .text =
                    u"Velmora needs Full Disk Access to check which line each text goes out on."_s,
                .button = u"Show Me How"_s};
        case Todo::sendingNumber:
            return {.symbol = u"iphone"_s,
                    .tone = Tone::orange,
                    .text = u"Choose the number you send from."_s,
                    .button = u"Open Settings"_s};
        case Todo::none:
            break;
    }
    return {};
}

void MainWindowModel::followBanner() {
    if (todo() == Todo::fullDiskAccess)
        model_.showingFDAHelp = true;
    else if (todo() == Todo::sendingNumber)
        model_.openSettings();
}

bool MainWindowModel::alertShown() const {
    return asksToQuit_ || model_.alert.value().has_value();
}

void MainWindowModel::followAlert() {
    if (asksToQuit_)
        alert_ = question();
    else if (const auto& sentence = model_.alert.value())
        alert_ = AlertContent::saying(*sentence);
    Q_EMIT changed();
}

void MainWindowModel::followRun() {
    const Runner& run = model_.runner();
    asksToQuit_ = asksToQuit_ && run.isActive();
    followAlert();
    if (run.state == Runner::State::paused || run.state == Runner::State::done)
        Q_EMIT attentionWanted();
}

AlertContent MainWindowModel::question() const {
    const Runner& run = model_.runner();
    const qint64 left = run.total - run.done - (run.current.value() ? 1 : 0);
    const QString people = left == 1 ? u"1 person"_s : u"%1 people"_s.arg(left);
    const QString rest =
        u"%1 would not be texted. Send again under the same run name, and it goes on with them."_s;
    return {
        .title = u"A run is still going."_s,
        .message =
            left > 0
                ? rest.arg(people)
                : u"Every text has gone out, but what became of the last would not be checked."_s,
        .action = u"Stop and Quit"_s,
        .dismissal = u"Cancel"_s};
}

void MainWindowModel::dismissAlert() {
    if (!std::exchange(asksToQuit_, false))
        model_.alert = std::nullopt;
    followAlert();
}

void MainWindowModel::stopAndQuit() {
    model_.runner().stop();
    QCoreApplication::exit();
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

bool MainWindowModel::mayClose() {
    if (!model_.runner().isActive() || model_.sessionEnds())
        return true;
    asksToQuit_ = true;
    followAlert();
    return false;
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
