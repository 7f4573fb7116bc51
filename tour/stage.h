#pragma once

#include <QDir>
#include <QTemporaryDir>
#include <memory>
#include <optional>

#include "app/app_model.h"
#include "core/system_surroundings.h"
#include "platform/platform.h"
#include "support/virtual_surroundings.h"
#include "ui/window_driver.h"

namespace velmora {

enum class Pace { asFastAsPossible, asInLife };

// Files of the home.
inline const QString addressBookPath = QStringLiteral("Library/Contacts/contacts.json");
inline const QString messagesPath = QStringLiteral("Library/Messages/messages.json");
inline const QString historyPath = QStringLiteral("Library/Messages/chat.db");

/// Where a scene plays: the sample home and the real window over it. Ends the program with a
/// sentence and a last picture when something is not there, or the views complain.
class Stage {
  public:
    /// In virtual time, with a home that goes with the stage; pictures go to folders under `folder`
    /// named after how they look. As in life, the home stays in `folder`, which is made anew, and
    /// pictures are numbered.
    explicit Stage(const QDir& folder, Pace pace = Pace::asFastAsPossible);
    ~Stage();

    /// The folder that the program's one argument names; anything else ends the program.
    [[nodiscard]] static QDir folderForPictures();

    /// Replaces a file of the home, as a path under it.
    void place(const QString& path, const QByteArray& bytes);
    [[nodiscard]] QByteArray contentOf(const QString& path);
    void remove(const QString& path);
    void emptyHistory();
    void editSettings(const std::function<void(AppConfig&)>& edit);

    /// Opens Velmora and waits for its start-up; the calls below need it.
    void open();
    /// With the terms accepted and a number chosen, and the dinner's eight people and message.
    void openDinner();
    /// The same with everyone but Farid checked, in a run.
    void startDinner();

    /// Lets time go by to the next moment that is `place` seconds into a loop of `length`.
    void passTo(double place, double length);
    void expect(bool holds, const QString& what);
    /// Fails when it takes more than `seconds` of the computer's own time.
    void until(const QString& what, const std::function<bool()>& condition, int seconds = 10);
    void untilShown(const QString& name);
    void click(const QString& name, QAccessible::Role role = QAccessible::NoRole);

    /// The open window of that title, other than the main window.
    [[nodiscard]] QWindow* window(const QString& title);
    void closeWindow(const QString& title);
    /// Takes pictures of what the main window shows, or another: in light and dark, and as in life,
    /// the one on the screen.
    void show(const QString& name, QWindow* other = nullptr);
    /// Takes one of the main window at 2200 points, in light; none where the display is dense.
    void showWide(const QString& name);

    [[nodiscard]] const QDir& home() const { return home_; }
    [[nodiscard]] AppModel& model() { return *model_; }
    [[nodiscard]] WindowDriver& user() { return *user_; }

  private:
    void forgetTheLastTime();
    [[noreturn]] void fail(const QString& sentence);
    void picture(const QString& name, QQuickWindow& window);
    /// Lets highlights and sheets finish moving, takes a picture and returns whether it was
    /// written.
    bool numberedPicture(const QString& name);

    QDir folder_;
    Pace pace_;
    int pictures_ = 0;
    QTemporaryDir temporary_;
    QDir home_;
    VirtualSurroundings virtual_;
    SystemClock clock_;
    SystemRandomSource random_;
    ThreadBackground background_;
    Surroundings world_;
    std::optional<Platform> platform_;
    std::unique_ptr<AppModel> model_;
    std::unique_ptr<WindowDriver> user_;
};

}  // namespace velmora
