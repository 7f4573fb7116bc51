#include "ui/window/main_window.h"

#include <QGuiApplication>

#include "ui/look/drawn_look.h"
#include "ui/look/system_appearance.h"
#include "ui/window/views.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

/// Milliseconds that the toolkit waits for more changes before it draws, where the system does not
/// tell it when to; it would wait for 5.
constexpr auto updatePause = "0";

}  // namespace

MainWindow::MainWindow(AppModel& model, std::unique_ptr<NativeLook> look, Motion motion)
    : presentation_(model) {
    if (!look)
        look = std::make_unique<DrawnLook>();
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME"))
        qputenv("QT_QPA_UPDATE_IDLE_TIME", updatePause);
    NativeLook* asked = look.get();
    prepareViews(engine_, std::move(look));
    auto* appearance = engine_.singletonInstance<SystemAppearance*>(
        qmlTypeId("Velmora", 1, 0, "SystemAppearance"));
    // The engine has the look, which lives as long as what follows it.
    const auto followLook = [appearance, motion, asked] {
        appearance->setMotion(motion == Motion::animated, asked->reducesMotion());
        appearance->setAccent(asked->accent());
    };
    followLook();
    asked->whenChanged(followLook);
    engine_.setInitialProperties({{u"presentation"_s, QVariant::fromValue(&presentation_)},
                                  {u"nativeMenus"_s, asked->nativeMenuBar()},
                                  {u"nativeTitle"_s, asked->nativeTitle()}});
    engine_.load(QUrl(u"qrc:/qt/qml/Velmora/MainWindowRoot.qml"_s));
    if (!engine_.rootObjects().isEmpty())
        window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
    if (window_ == nullptr)
        qFatal("The main window cannot be loaded.");
    // The start-up reads for a while: the window is on the screen first.
    QObject::connect(
        window_, &QQuickWindow::frameSwapped, &presentation_,
        [this] { presentation_.window()->windowShown(); },
        static_cast<Qt::ConnectionType>(Qt::QueuedConnection | Qt::SingleShotConnection));
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, appearance,
                     [this, followLook](Qt::ApplicationState state) {
                         if (state != Qt::ApplicationActive)
                             return;
                         followLook();
                         presentation_.window()->applicationActivated();
                         if (!window_->isVisible() && !QGuiApplication::quitOnLastWindowClosed())
                             show();
                     });
    followWindow(*asked);
}

void MainWindow::followWindow(const NativeLook& look) {
    MainWindowModel* model = presentation_.window();
    QGuiApplication::setQuitOnLastWindowClosed(!look.staysWithoutWindow());
    QObject::connect(model, &MainWindowModel::changed, window_, [this, &look, model] {
        if (window_->isVisible())
            look.showSubtitle(*window_, model->subtitle());
    });
    QObject::connect(model, &MainWindowModel::attentionWanted, window_, [this] {
        if (QGuiApplication::applicationState() != Qt::ApplicationActive)
            window_->alert(0);
    });
}

void MainWindow::show() {
    window_->show();
}

void MainWindow::bringToFront() {
    window_->setWindowStates(window_->windowStates() & ~Qt::WindowMinimized);
    window_->raise();
    window_->requestActivate();
}

}  // namespace velmora
