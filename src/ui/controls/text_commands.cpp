#include "ui/controls/text_commands.h"

#include <QEvent>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using menus::Command;

MenuEntry item(const QString& text, const QString& shortcut, Command command) {
    return {.text = text, .shortcut = shortcut, .command = command};
}

const char* operationOf(Command command) {
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

bool canRun(Command command, const QObject& field) {
    switch (command) {
        case Command::undo:
            return field.property("canUndo").toBool();
        case Command::paste:
            return field.property("canPaste").toBool();
        case Command::cut:
        case Command::copy:
            return !field.property("selectedText").toString().isEmpty();
        default:
            return field.property("length").toInt() > 0;
    }
}

}  // namespace

std::vector<MenuEntry> TextCommands::editMenu() {
    return {item(u"Undo"_s, u"Ctrl+Z"_s, Command::undo),
            item(u"Redo"_s, u"Ctrl+Shift+Z"_s, Command::redo),
            {},
            item(u"Cut"_s, u"Ctrl+X"_s, Command::cut),
            item(u"Copy"_s, u"Ctrl+C"_s, Command::copy),
            item(u"Paste"_s, u"Ctrl+V"_s, Command::paste),
            item(u"Select All"_s, u"Ctrl+A"_s, Command::selectAllText)};
}

QVariantList TextCommands::entriesFor(const QObject* field) {
    const bool fixed = field->property("readOnly").toBool();
    QVariantList entries;
    for (MenuEntry& entry : editMenu()) {
        const bool reads =
            entry.command == Command::copy || entry.command == Command::selectAllText;
        if (entry.command == Command::redo || (fixed && !reads))
            continue;
        entry.shortcut.clear();
        entry.enabled = canRun(entry.command, *field);
        entries.append(QVariant::fromValue(entry));
    }
    return entries;
}

void TextCommands::run(Command command, QObject* field) {
    const QByteArray operation = operationOf(command);
    if (field != nullptr && field->metaObject()->indexOfMethod(operation + "()") >= 0)
        QMetaObject::invokeMethod(field, operation.constData());
}

void TextCommands::passShortcuts(QObject* field) {
    field->installEventFilter(this);
}

bool TextCommands::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride)
        event->ignore();
    return QObject::eventFilter(watched, event);
}

}  // namespace velmora
