#include "ui/menus/menu_commands.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QWindow>
#include <vector>

#include "ui/controls/text_commands.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using Command = MenuCommands::Command;
using Reach = MenuCommands::Reach;

enum class Owner { application, window };

QVariant menu(const QString& title, const std::vector<MenuEntry>& entries,
              Owner owner = Owner::window) {
    Menu made{.title = title, .application = owner == Owner::application, .entries = {}};
    for (const MenuEntry& entry : entries)
        made.entries.append(QVariant::fromValue(entry));
    return QVariant::fromValue(made);
}

MenuEntry item(const QString& text, const QString& shortcut, Command command,
               Reach reach = Reach::application) {
    return {.text = text, .shortcut = shortcut, .command = command, .reach = reach};
}

QVariant applicationMenu() {
    return menu(u"Velmora"_s,
                {item(u"About Velmora"_s, u""_s, Command::about),
                 {},
                 item(u"Settings\u2026"_s, u"Ctrl+,"_s, Command::settings, Reach::agreed),
                 {},
                 item(u"Quit Velmora"_s, u"Ctrl+Q"_s, Command::quit)},
                Owner::application);
}

QVariant peopleMenu() {
    return menu(u"People"_s,
                {item(u"Select All"_s, u"Ctrl+Shift+A"_s, Command::selectShown, Reach::content),
                 item(u"Clear Selection"_s, u"Ctrl+Shift+D"_s, Command::clearShown, Reach::content),
                 {},
                 item(u"Reload from Contacts"_s, u"Ctrl+R"_s, Command::reload, Reach::content),
                 {},
                 item(u"Send\u2026"_s, u"Ctrl+Return"_s, Command::send, Reach::content)});
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

QString MenuEntry::keys() const {
    return QKeySequence(shortcut, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

QStringList MenuEntry::sequences() const {
    const QLatin1String mainReturn("Return");
    QStringList all(shortcut);
    if (shortcut.endsWith(mainReturn))
        all.append(shortcut.chopped(mainReturn.size()) + "Enter"_L1);
    return all;
}

MenuCommands::MenuCommands(AppModel& model) : model_(model) {}

QVariantList MenuCommands::menus() const {
    return {applicationMenu(),
            menu(u"File"_s, {item(u"Close"_s, u"Ctrl+W"_s, Command::close)}),
            menu(u"Edit"_s, TextCommands::editMenu()),
            peopleMenu(),
            menu(u"Window"_s, {item(u"Minimize"_s, u"Ctrl+M"_s, Command::minimize),
                               item(u"Zoom"_s, u""_s, Command::zoom)}),
            menu(u"Help"_s, {item(u"Terms of Use"_s, u""_s, Command::terms),
                             item(u"Pacing and Safeguards"_s, u""_s, Command::safeguards)})};
}

void MenuCommands::run(Command command) {
    switch (command) {
        case Command::none:
            return;
        case Command::about:
            return Q_EMIT aboutRequested();
        case Command::settings:
            return model_.openSettings();
        case Command::quit:
            return QCoreApplication::quit();
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
