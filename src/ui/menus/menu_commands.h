#pragma once

#include <QObject>
#include <QPointer>
#include <QString>
#include <QVariantList>
#include <QtQmlIntegration>

#include "app/app_model.h"
#include "ui/controls/menu_entry.h"

namespace velmora {

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

/// The application's menus: what they hold, what each item does, and when it is offered.
class MenuCommands final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(QVariantList menus READ menus CONSTANT)
    Q_PROPERTY(QVariantList shortcuts READ shortcuts CONSTANT)
    Q_PROPERTY(QVariantList offers READ offers NOTIFY offersChanged)

  public:
    /// `model` outlives it.
    explicit MenuCommands(AppModel& model);

    /// The menus in their order, each a `Menu`.
    [[nodiscard]] QVariantList menus() const;
    /// The items whose keys are to be listened for where the menus are drawn: those with a shortcut
    /// but for the Edit menu's, which a text field answers itself. Each a `MenuEntry`.
    [[nodiscard]] QVariantList shortcuts() const;
    /// Every item as it stands now, each a `MenuEntry` at the place of its command's value:
    /// disabled where it is not offered, and without a shortcut while its keys are another's. What
    /// the Edit menu offers is that of the text field that has the keyboard at the last look.
    [[nodiscard]] QVariantList offers() const;
    /// The items of the menu at that place as they stand now, its texts' for `field`.
    Q_INVOKABLE QVariantList entriesFor(int place, const QObject* field) const;
    /// Looks at the text field that has the keyboard.
    Q_INVOKABLE void lookAtField();
    /// Whether the command means the window in front, and its keys are heard there alone.
    Q_INVOKABLE static bool meansWindow(velmora::menus::Command command);

    /// Tells whether something covers the main window's content; at first nothing does.
    void setContentCovered(bool covered);
    /// Does what the item says, at once; nothing where the window's content is covered and the item
    /// acts on it.
    Q_INVOKABLE void run(velmora::menus::Command command);

  Q_SIGNALS:
    void offersChanged();
    void aboutRequested();
    /// The keyboard is wanted in the search for people.
    void findRequested();

  private:
    /// What the offers hang on.
    struct Circumstances {
        bool covered = false;
        bool searchable = false;  ///< there is a list, which no run holds
        bool paused = false;      ///< then Command-Return belongs to the Resume button
        bool operator==(const Circumstances&) const = default;
    };

    void follow();
    void become(Circumstances circumstances);
    [[nodiscard]] MenuEntry asOffered(MenuEntry item, const QObject* field) const;
    [[nodiscard]] bool isOffered(menus::Command command, const QObject* field) const;

    AppModel& model_;
    Circumstances now_;
    QPointer<QObject> field_;
};

}  // namespace velmora
