#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QtQmlIntegration>

namespace velmora {

namespace menus {

Q_NAMESPACE
QML_NAMED_ELEMENT(Menus)

/// What an item of a menu does.
enum class Command {
    none,  ///< a divider
    about,
    settings,
    quit,
    close,
    undo,
    redo,
    cut,
    copy,
    paste,
    selectAllText,
    find,
    selectShown,
    clearShown,
    reload,
    send,
    minimize,
    zoom,
    terms,
    safeguards
};
Q_ENUM_NS(Command)

}  // namespace menus

/// One item of a menu.
struct MenuEntry {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString shortcut MEMBER shortcut)
    Q_PROPERTY(QString keys READ keys)
    Q_PROPERTY(QStringList sequences READ sequences)
    Q_PROPERTY(bool enabled MEMBER enabled)
    Q_PROPERTY(bool separator READ separator)
    Q_PROPERTY(velmora::menus::Command command MEMBER command)

  public:
    /// The shortcut as the desktop writes it.
    [[nodiscard]] QString keys() const;
    /// All that press the shortcut, Return on the keypad included; none without a shortcut.
    [[nodiscard]] QStringList sequences() const;
    [[nodiscard]] bool separator() const { return command == menus::Command::none; }

    QString text;
    QString shortcut;  ///< in portable form, where Ctrl is the Mac's Command; may be empty
    menus::Command command = menus::Command::none;
    bool enabled = true;  ///< whether it can be chosen
};

}  // namespace velmora
