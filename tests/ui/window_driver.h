#pragma once

#include <QAccessible>
#include <QStringList>
#include <functional>
#include <memory>

#include "app/app_model.h"
#include "support/virtual_surroundings.h"
#include "ui/window/main_window.h"

namespace velmora {

/// Uses the real main window as a person does: looks for things by what they are called, clicks
/// and types. Whatever the views complain about meanwhile is kept.
class WindowDriver {
  public:
    /// In virtual time, where nothing moves.
    WindowDriver(AppModel& model, VirtualClock& clock);
    /// In whatever time `passTime` lets go by.
    WindowDriver(AppModel& model, std::function<void()> passTime, Motion motion);
    ~WindowDriver();

    [[nodiscard]] QQuickWindow& window() { return main_->window(); }
    [[nodiscard]] QStringList complaints() const;

    /// Lets everything happen that is due.
    void settle();
    /// Lets things happen until `condition` holds; false when it does not in `seconds` of the
    /// computer's own time.
    bool until(const std::function<bool()>& condition, int seconds = 10);
    /// Lets things happen until something of that name is on the screen, or nothing is any more.
    bool appears(const QString& name);
    bool vanishes(const QString& name);

    /// Whether something of that name is on the screen, in the main window or `in` another.
    [[nodiscard]] bool shows(const QString& name, QWindow* in = nullptr);
    /// All that a screen reader finds from the thing of that name on, in its order: role, name and
    /// state of each. An empty name means the whole window.
    [[nodiscard]] QStringList spoken(const QString& name = {}, QWindow* in = nullptr);
    /// Every element that a screen reader finds in the window, in its order.
    [[nodiscard]] QList<QAccessibleInterface*> elements(QWindow* in = nullptr);
    /// Clicks on what is called that, where `role` can tell it from another of its name; false when
    /// there is no such thing.
    bool click(const QString& name, QAccessible::Role role = QAccessible::NoRole,
               QWindow* in = nullptr);
    /// Where the thing of that name is, in its window; null when there is none.
    [[nodiscard]] QRect area(const QString& name, QAccessible::Role role = QAccessible::NoRole,
                             QWindow* in = nullptr);
    /// Its middle.
    [[nodiscard]] QPoint place(const QString& name, QAccessible::Role role = QAccessible::NoRole,
                               QWindow* in = nullptr) {
        return area(name, role, in).center();
    }
    void clickAt(QPoint place, QWindow* in = nullptr);
    /// Types ASCII characters.
    void type(const QString& text);
    void key(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier);
    /// Presses one key after the other.
    void keys(std::initializer_list<QKeyCombination> keys);
    /// The name of what has the keyboard in the focused window, or of the nearest thing around it
    /// that has a name.
    [[nodiscard]] QString focused() const;
    /// The open window of that title, or none.
    [[nodiscard]] static QWindow* windowTitled(const QString& title);

  private:
    [[nodiscard]] QWindow* orMain(QWindow* other) { return other ? other : &window(); }

    std::function<void()> passTime_;
    QtMessageHandler handlerBefore_;
    std::unique_ptr<MainWindow> main_;
};

}  // namespace velmora
