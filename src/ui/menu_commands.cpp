#include "ui/menu_commands.h"

#include <QGuiApplication>
#include <QKeySequence>
#include <QWindow>
#include <vector>

namespace velmora {

namespace {

using Command = MenuCommands::Command;
using Reach = MenuCommands::Reach;

QVariant menu(const QString& title, const std::vector<MenuEntry>& entries) {
    Menu made{.title = title, .application = title == QLatin1String("Velmora"), .entries = {}};
    for (const MenuEntry& entry : entries) {
        made.entries.append(QVariant::fromValue(entry));
    }
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
    return menu(QStringLiteral("Velmora"), {item(u"About Velmora", u"", Command::about),
                                            {},
                                            item(u"Settings\u2026", u"Ctrl+,", Command::settings),
                                            {},
                                            item(u"Quit Velmora", u"Ctrl+Q", Command::quit)});
}

QVariant editMenu() {
    return menu(QStringLiteral("Edit"),
                {item(u"Undo", u"Ctrl+Z", Command::undo, Reach::text),
                 item(u"Redo", u"Ctrl+Shift+Z", Command::redo, Reach::text),
                 {},
                 item(u"Cut", u"Ctrl+X", Command::cut, Reach::text),
                 item(u"Copy", u"Ctrl+C", Command::copy, Reach::text),
                 item(u"Paste", u"Ctrl+V", Command::paste, Reach::text),
                 item(u"Select All", u"Ctrl+A", Command::selectAllText, Reach::text)});
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

const char* textOperation(Command command) {
    switch (command) {
        case Command::undo:
            return "undo";
        case Command::redo:
            return "redo";
        case Command::cut:
            return "cut";
        case Command::copy:
            return "copy";
        case Command::paste:
            return "paste";
        default:
            return "selectAll";
    }
}

/// What has the keyboard does it, when it is a text field; anything else has no such operation.
void runOnText(Command command) {
    QObject* target = QGuiApplication::focusObject();
    const QByteArray operation = textOperation(command);
    if (target != nullptr && target->metaObject()->indexOfMethod(operation + "()") >= 0) {
        QMetaObject::invokeMethod(target, operation.constData());
    }
}

void runOnWindow(Command command) {
    QWindow* window = QGuiApplication::focusWindow();
    if (window == nullptr) {
        return;
    }
    if (command == Command::close) {
        window->close();
    } else if (command == Command::minimize) {
        window->showMinimized();
    } else if (window->visibility() == QWindow::Maximized) {
        window->showNormal();
    } else {
        window->showMaximized();
    }
}

}  // namespace

QString MenuEntry::keys() const {
    return QKeySequence(shortcut, QKeySequence::PortableText).toString(QKeySequence::NativeText);
}

MenuCommands::MenuCommands(AppModel& model) : model_(model) {}

QVariantList MenuCommands::menus() const {
    return {
        applicationMenu(),
        menu(QStringLiteral("File"), {item(u"Close", u"Ctrl+W", Command::close)}),
        editMenu(),
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
            return runOnText(command);
    }
}

}  // namespace velmora
