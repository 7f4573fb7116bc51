#include <QGuiApplication>
#include <QIcon>

#include "app/app_model.h"
#include "core/end_signals.h"
#include "core/system_surroundings.h"
#include "platform/platform.h"
#include "ui/window/main_window.h"

using namespace Qt::StringLiterals;

using namespace velmora;

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
        QGuiApplication::setWindowIcon(QIcon(u":/velmora/icon/velmora.svg"_s));
    AppModel model({.contacts = *platform.contacts,
                    .scripts = *platform.scripts,
                    .accountPreferences = *platform.accountPreferences,
                    .desktop = *platform.desktop},
                   {.clock = clock, .random = random, .background = background},
                   {.home = platform.home, .applicationSupport = platform.applicationSupport});
    MainWindow window(model, std::move(platform.look));
    window.show();
    return QGuiApplication::exec();
}
