#include <QGuiApplication>
#include <cstdio>
#include <utility>

#include "app/app_model.h"
#include "core/end_signals.h"
#include "core/system_surroundings.h"
#include "platform/platform.h"
#include "storage/home_lock.h"
#include "storage/support_folder.h"
#include "ui/look/application_icon.h"
#include "ui/window/main_window.h"
#include "ui/window/notice.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

/// What a second start on one home does, and the program's exit code.
int leaveToTheFirst(Platform platform, const QString& folder) {
    if (platform.doorbell->ring(folder))
        return 0;
    const QString sentence = u"Velmora is open already: please go on in its window."_s;
    std::fputs(qPrintable(sentence + u'\n'), stderr);
    showNotice(sentence, std::move(platform.look));
    return 1;
}

}  // namespace

/// Makes the world, the model and the window, and lets them live until the user quits.
int main(int argc, char** argv) {
    QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationName(u"Velmora"_s);
    QGuiApplication::setOrganizationName(u"Velmora"_s);
    QGuiApplication::setApplicationVersion(QStringLiteral(VELMORA_VERSION));
    QGuiApplication::setDesktopFileName(u"velmora"_s);
    endAtSignals(application);

    SystemClock clock;
    SystemRandomSource random;
    ThreadBackground background;
    Platform platform = makePlatform(clock);
    // A platform with a look of its own takes the icon from the bundle, which this would replace.
    if (!platform.look)
        QGuiApplication::setWindowIcon(applicationIcon());
    const QString folder = SupportFolder(platform.applicationSupport).path();
    const HomeLock lock(folder);
    if (lock.isTaken())
        return leaveToTheFirst(std::move(platform), folder);
    AppModel model({.contacts = *platform.contacts,
                    .scripts = *platform.scripts,
                    .accountPreferences = *platform.accountPreferences,
                    .desktop = *platform.desktop},
                   {.clock = clock, .random = random, .background = background},
                   {.home = platform.home, .applicationSupport = platform.applicationSupport});
    MainWindow window(model, std::move(platform.look));
    platform.doorbell->answer(folder, [&window] { window.bringToFront(); });
    window.show();
    return QGuiApplication::exec();
}
