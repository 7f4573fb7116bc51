#pragma once

#include <QObject>
#include <QString>
#include <QStringList>
#include <QVariantList>
#include <QtQmlIntegration>

#include "app/app_model.h"

namespace velmora {

/// The application's menus: what they hold and what each item does.
class MenuCommands final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(QVariantList menus READ menus CONSTANT)

  public:
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
        selectShown,
        clearShown,
        reload,
        send,
        minimize,
        zoom,
        terms,
        safeguards
    };
    Q_ENUM(Command)

    /// Where an item is offered and its shortcut heard: everywhere, everywhere once the terms are
    /// accepted, in the main window while nothing covers its content, or in the text field that has
    /// the keyboard.
    enum class Reach { application, agreed, content, text };
    Q_ENUM(Reach)

    explicit MenuCommands(AppModel& model);

    /// The menus in their order, each a `Menu`.
    [[nodiscard]] QVariantList menus() const;
    /// Does what the item says, at once.
    Q_INVOKABLE void run(velmora::MenuCommands::Command command);

  Q_SIGNALS:
    void aboutRequested();

  private:
    AppModel& model_;
};

/// One item of a menu.
struct MenuEntry {
    Q_GADGET
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString shortcut MEMBER shortcut)
    Q_PROPERTY(QString keys READ keys)
    Q_PROPERTY(QStringList sequences READ sequences)
    Q_PROPERTY(bool enabled MEMBER enabled)
    Q_PROPERTY(bool separator READ separator)
    Q_PROPERTY(velmora::MenuCommands::Command command MEMBER command)
    Q_PROPERTY(velmora::MenuCommands::Reach reach MEMBER reach)

  public:
    /// The shortcut as the desktop writes it.
    [[nodiscard]] QString keys() const;
    /// All that press the shortcut, Return on the keypad included.
    [[nodiscard]] QStringList sequences() const;
    [[nodiscard]] bool separator() const { return command == MenuCommands::Command::none; }

    QString text;
    QString shortcut;  ///< in portable form, where Ctrl is the Mac's Command; may be empty
    MenuCommands::Command command = MenuCommands::Command::none;
    MenuCommands::Reach reach = MenuCommands::Reach::application;
    bool enabled = true;  ///< whether it can be chosen, wherever it is offered
};

/// One menu of the bar.
struct Menu {
    Q_GADGET
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(bool application MEMBER application)
    Q_PROPERTY(QVariantList entries MEMBER entries)

  public:
    QString title;
    bool application = false;  ///< the application's own, which a Mac makes from the items' roles
    QVariantList entries;      ///< each a `MenuEntry`
};

}  // namespace velmora
