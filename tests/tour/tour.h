#pragma once

#include <QDir>
#include <functional>
#include <memory>

#include "app/app_model.h"
#include "core/system_surroundings.h"
#include "platform/platform.h"
#include "ui/window_driver.h"

namespace velmora {

/// A person's evening with Velmora: from the first start over a run with its troubles to the
/// summary, by mouse and keyboard in the real window, in real time. Ends the program with a
/// sentence when something is not as it should be.
class Tour {
  public:
    /// Pictures and the home go to `folder`, which is made anew.
    explicit Tour(const QString& folder);

    void play();

  private:
    void firstStart();
    void chooseList();
    void writeMessage();
    void confirmRun();
    void watchRun();
    void fixLine();
    void seeSummary();
    void sendAgain();
    void printLog() const;

    void expect(bool holds, const QString& what);
    void waitFor(const QString& what, double seconds, const std::function<bool()>& condition);
    void click(const QString& name);
    void picture(const QString& name);
    [[nodiscard]] const LogEntry* entryOf(const QString& name) const;

    QDir folder_;
    int pictures_ = 0;
    SystemClock clock_;
    SystemRandomSource random_;
    ThreadBackground background_;
    Platform platform_;
    std::unique_ptr<AppModel> model_;
    std::unique_ptr<WindowDriver> user_;
};

}  // namespace velmora
