#include "ui/controls/text_commands.h"

#include <QEvent>
#include <QTextCursor>
#include <QTextDocument>

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

// Whether a text that cannot be edited takes the command.
bool reads(Command command) {
    return command == Command::copy || command == Command::selectAllText;
}

bool has(const QObject* field, const QByteArray& operation) {
    return field != nullptr && field->metaObject()->indexOfMethod(operation + "()") >= 0;
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
        if (entry.command == Command::redo || (fixed && !reads(entry.command)))
            continue;
        entry.shortcut.clear();
        entry.enabled = canRun(entry.command, field);
        entries.append(QVariant::fromValue(entry));
    }
    return entries;
}

void TextCommands::run(Command command, QObject* field) {
    const QByteArray operation = operationOf(command);
    if (has(field, operation))
        QMetaObject::invokeMethod(field, operation.constData());
}

bool TextCommands::canRun(Command command, const QObject* field) {
    if (!has(field, operationOf(command)) ||
        (field->property("readOnly").toBool() && !reads(command)))
        return false;
    switch (command) {
        case Command::undo:
            return field->property("canUndo").toBool();
        case Command::redo:
            return field->property("canRedo").toBool();
        case Command::paste:
            return field->property("canPaste").toBool();
        case Command::cut:
        case Command::copy:
            return !field->property("selectedText").toString().isEmpty();
        default:
            return field->property("length").toInt() > 0;
    }
}

void TextCommands::append(QQuickTextDocument* document, const QString& suffix) {
    QTextCursor end(document->textDocument());
    end.movePosition(QTextCursor::End);
    end.beginEditBlock();
    // The toolkit joins an insertion with the next one, but never a removal.
    end.insertText(suffix + u' ');
    end.deletePreviousChar();
    end.endEditBlock();
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
