#pragma once

#include <QtQml/qqmlregistration.h>
#include <QObject>
#include <QQuickTextDocument>
#include <QVariantList>
#include <vector>

#include "ui/controls/menu_entry.h"

namespace velmora {

/// What can be done with the words of a text field, in the Edit menu and in a field's own menu.
class TextCommands final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON

  public:
    using QObject::QObject;

    /// The items of the Edit menu.
    [[nodiscard]] static std::vector<MenuEntry> editMenu();
    /// The items of `field`'s own menu, each a `MenuEntry` that is enabled when it would do
    /// something now. A text that cannot be edited is copied and selected alone.
    Q_INVOKABLE static QVariantList entriesFor(const QObject* field);
    /// Does what `command` says to `field`; nothing when that is no text field.
    Q_INVOKABLE static void run(velmora::menus::Command command, QObject* field);
    /// Whether `command` would do something to `field` now; never when that is no text field.
    [[nodiscard]] static bool canRun(menus::Command command, const QObject* field);
    /// Adds `suffix` at the end of the document, as one step to undo: what is typed before and
    /// after is no part of it.
    Q_INVOKABLE static void append(QQuickTextDocument* document, const QString& suffix);
    /// From now on shortcuts are heard while `field`, a text that cannot be edited, has the
    /// keyboard. The toolkit's own swallows them all.
    Q_INVOKABLE void passShortcuts(QObject* field);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

}  // namespace velmora
