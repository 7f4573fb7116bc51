#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <memory>
#include <optional>

#include "app/app_model.h"
#include "platform/platform.h"
#include "support/virtual_surroundings.h"
#include "ui/window_driver.h"

namespace velmora {

/// Where one scene of the gallery plays: the sample home, in virtual time, and the real window over
/// it. Ends the program with a sentence when something is not there, or the views complain.
class Stage {
  public:
    /// Pictures go to folders under `folder`, named after how they look.
    explicit Stage(const QDir& folder);
    ~Stage();

    /// Replaces a file of the home, as a path under it.
    void place(const QString& path, const QByteArray& bytes) const;
    [[nodiscard]] QByteArray contentOf(const QString& path) const;
    void remove(const QString& path) const;
    void emptyHistory() const;
    void editSettings(const std::function<void(AppConfig&)>& edit) const;

    /// Opens Velmora and waits for its start-up; the calls below need it.
    void open();
    /// With the terms accepted and a number chosen, and the dinner's eight people and message.
    void openDinner();
    /// The same with everyone but Farid checked, in a run.
    void startDinner();

    /// Lets time go by to the next moment that is `place` seconds into a loop of `length`.
    void passTo(double place, double length);
    void until(const QString& what, const std::function<bool()>& condition);
    void click(const QString& name, QAccessible::Role role = QAccessible::NoRole);

    /// The open window of that title, other than the main window.
    [[nodiscard]] QWindow* window(const QString& title);
    void closeWindow(const QString& title);
    /// Takes the pictures of what the main window shows, or another, in light and dark.
    void show(const QString& name, QWindow* other = nullptr);

    [[nodiscard]] AppModel& model() { return *model_; }
    [[nodiscard]] WindowDriver& user() { return *user_; }

  private:
    [[noreturn]] void fail(const QString& sentence) const;
    void picture(const QString& look, const QString& name, QQuickWindow& window);

    QDir folder_;
    QTemporaryDir home_;
    VirtualSurroundings world_;
    std::optional<Platform> platform_;
    std::unique_ptr<AppModel> model_;
    std::unique_ptr<WindowDriver> user_;
};

}  // namespace velmora
