#include "ui/menus/menu_commands.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QWindow>
#include <vector>

#include "ui/controls/text_commands.h"

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

MenuEntry item(const char16_t* text, const char16_t* shortcut, Command command,
               Reach reach = Reach::application) {
    return {.text = QString::fromUtf16(text),
            .shortcut = QString::fromUtf16(shortcut),
            .command = command,
            .reach = reach};
}

QVariant applicationMenu() {
    return menu(QStringLiteral("Velmora"),
                {item(u"About Velmora", u"", Command::about),
                 {},
                 item(u"Settings\u2026", u"Ctrl+,", Command::settings, Reach::agreed),
                 {},
                 item(u"Quit Velmora", u"Ctrl+Q", Command::quit)},
                Owner::application);
}

QVariant peopleMenu() {
    return menu(QStringLiteral("People"),
                {item(u"Select All", u"Ctrl+Shift+A", Command::selectShown, Reach::content),
                 item(u"Clear Selection", u"Ctrl+Shift+D", Command::clearShown, Reach::content),
                 {},
                 item(u"Reload from Contacts", u"Ctrl+R", Command::reload, Reach::content),
                 {},
                 item(u"Send\u2026", u"Ctrl+Return", Command::send, Reach::content)});
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
        all.append(shortcut.chopped(mainReturn.size()) + QLatin1String("Enter"));
    return all;
}

MenuCommands::MenuCommands(AppModel& model) : model_(model) {}

QVariantList MenuCommands::menus() const {
    return {
        applicationMenu(),
        menu(QStringLiteral("File"), {item(u"Close", u"Ctrl+W", Command::close)}),
        menu(QStringLiteral("Edit"), TextCommands::editMenu()),
        peopleMenu(),
        menu(QStringLiteral("Window"),
             {item(u"Minimize", u"Ctrl+M", Command::minimize), item(u"Zoom", u"", Command::zoom)}),
        menu(QStringLiteral("Help"), {item(u"Terms of Use", u"", Command::terms),
                                      item(u"Pacing and Safeguards", u"", Command::safeguards)})};
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
