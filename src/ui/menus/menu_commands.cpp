#include "ui/menus/menu_commands.h"

#include <QGuiApplication>
#include <QWindow>
#include <algorithm>
#include <vector>

#include "ui/controls/text_commands.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using menus::Command;

/// What an item acts on: the application; the main window's content, while nothing covers it; or
/// the text field that has the keyboard.
enum class Reach { application, content, text };

Reach reachOf(Command command) {
    switch (command) {
        case Command::find:
        case Command::selectShown:
        case Command::clearShown:
        case Command::send:
            return Reach::content;
        case Command::undo:
        case Command::redo:
        case Command::cut:
        case Command::copy:
        case Command::paste:
        case Command::selectAllText:
            return Reach::text;
        default:
            return Reach::application;
    }
}

enum class Owner { application, window };

QVariant menu(const QString& title, const std::vector<MenuEntry>& entries,
              Owner owner = Owner::window) {
    Menu made{.title = title, .application = owner == Owner::application, .entries = {}};
    for (const MenuEntry& entry : entries)
        made.entries.append(QVariant::fromValue(entry));
    return QVariant::fromValue(made);
}

MenuEntry item(const QString& text, const QString& shortcut, Command command) {
    return {.text = text, .shortcut = shortcut, .command = command};
}

QVariant applicationMenu() {
    return menu(u"Velmora"_s,
                {item(u"About Velmora"_s, u""_s, Command::about),
                 {},
                 item(u"Settings\u2026"_s, u"Ctrl+,"_s, Command::settings),
                 {},
                 item(u"Quit Velmora"_s, u"Ctrl+Q"_s, Command::quit)},
                Owner::application);
}

std::vector<MenuEntry> editMenu() {
    std::vector<MenuEntry> entries = TextCommands::editMenu();
    entries.emplace_back();
    entries.push_back(item(u"Find"_s, u"Ctrl+F"_s, Command::find));
    return entries;
}

QVariant peopleMenu() {
    return menu(u"People"_s, {item(u"Select All"_s, u"Ctrl+Shift+A"_s, Command::selectShown),
                              item(u"Clear Selection"_s, u"Ctrl+Shift+D"_s, Command::clearShown),
                              {},
                              item(u"Reload from Contacts"_s, u"Ctrl+R"_s, Command::reload),
                              {},
                              item(u"Send\u2026"_s, u"Ctrl+Return"_s, Command::send)});
}

std::vector<MenuEntry> itemsOf(const QVariantList& menus) {
    std::vector<MenuEntry> items;
    for (const QVariant& each : menus)
        for (const QVariant& entry : each.value<Menu>().entries)
            if (auto item = entry.value<MenuEntry>(); !item.separator())
                items.push_back(std::move(item));
    return items;
}

void runOnWindow(Command command) {
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr)
        return;
    if (command == Command::close)
        window->close();
    else if (command == Command::minimize)
        window->showMinimized();
    else if (window->visibility() == QWindow::Maximized)
        window->showNormal();
    else
        window->showMaximized();
}

}  // namespace

MenuCommands::MenuCommands(AppModel& model) : model_(model) {
    connect(&model_, &AppModel::configChanged, this, &MenuCommands::follow);
    connect(&model_, &AppModel::contactsAllowedChanged, this, &MenuCommands::follow);
    connect(&model_.runner(), &Runner::stateChanged, this, &MenuCommands::follow);
    follow();
}

void MenuCommands::follow() {
    const bool hasList = model_.contactsAllowed && model_.config().selectedGroupID;
    become({.covered = now_.covered,
            .searchable = hasList && !model_.runner().isActive(),
            .paused = model_.runner().state == Runner::State::paused});
}

void MenuCommands::setContentCovered(bool covered) {
    Circumstances then = now_;
    then.covered = covered;
    become(then);
}

void MenuCommands::become(Circumstances circumstances) {
    if (circumstances == now_)
        return;
    now_ = circumstances;
    Q_EMIT offersChanged();
}

QVariantList MenuCommands::menus() const {
    return {applicationMenu(),
            menu(u"File"_s, {item(u"Close"_s, u"Ctrl+W"_s, Command::close)}),
            menu(u"Edit"_s, editMenu()),
            peopleMenu(),
            menu(u"Window"_s, {item(u"Minimize"_s, u"Ctrl+M"_s, Command::minimize),
                               item(u"Zoom"_s, u""_s, Command::zoom)}),
            menu(u"Help"_s, {item(u"Terms of Use"_s, u""_s, Command::terms),
                             item(u"Pacing and Safeguards"_s, u""_s, Command::safeguards)})};
}

QVariantList MenuCommands::shortcuts() const {
    QVariantList heard;
    for (const MenuEntry& item : itemsOf(menus()))
        if (!item.shortcut.isEmpty() && reachOf(item.command) != Reach::text)
            heard.append(QVariant::fromValue(item));
    return heard;
}

QVariantList MenuCommands::offers() const {
    QVariantList offered;
    for (const MenuEntry& item : itemsOf(menus())) {
        const auto place = static_cast<qsizetype>(item.command);
        offered.resize(std::max(offered.size(), place + 1));
        offered[place] = QVariant::fromValue(asOffered(item, field_));
    }
    return offered;
}

QVariantList MenuCommands::entriesFor(int place, const QObject* field) const {
    QVariantList entries = menus().value(place).value<Menu>().entries;
    for (QVariant& each : entries)
        each = QVariant::fromValue(asOffered(each.value<MenuEntry>(), field));
    return entries;
}

void MenuCommands::lookAtField() {
    field_ = QGuiApplication::focusObject();
    Q_EMIT offersChanged();
}

MenuEntry MenuCommands::asOffered(MenuEntry item, const QObject* field) const {
    item.enabled = isOffered(item.command, field);
    if (item.command == Command::send && now_.paused)
        item.shortcut.clear();
    return item;
}

bool MenuCommands::isOffered(Command command, const QObject* field) const {
    if (command == Command::find)
        return now_.searchable && !now_.covered;
    return reachOf(command) != Reach::text || TextCommands::canRun(command, field);
}

bool MenuCommands::meansWindow(Command command) {
    return command == Command::close || reachOf(command) == Reach::content;
}

void MenuCommands::run(Command command) {
    if (now_.covered && reachOf(command) == Reach::content)
        return;
    switch (command) {
        case Command::none:
            return;
        case Command::about:
            return Q_EMIT aboutRequested();
        case Command::settings:
            return model_.openSettings();
        case Command::quit:
            return QCoreApplication::quit();
        case Command::find:
            return Q_EMIT findRequested();
        case Command::selectShown:
            return model_.selectShown();
        case Command::clearShown:
            return model_.clearShown();
        case Command::reload:
            return model_.loadList();
        case Command::send:
            return model_.requestRun();
        case Command::terms:
            return model_.openPage(ProductPage::terms);
        case Command::safeguards:
            return model_.openPage(ProductPage::safeguards);
        case Command::close:
        case Command::minimize:
        case Command::zoom:
            return runOnWindow(command);
        default:
            return TextCommands::run(command, QGuiApplication::focusObject());
    }
}

}  // namespace velmora
