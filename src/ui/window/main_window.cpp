#include "ui/window/main_window.h"

#include <QFontDatabase>
#include <QGuiApplication>

#include "ui/look/drawn_look.h"
#include "ui/look/symbol_image_provider.h"
#include "ui/look/system_appearance.h"

using namespace Qt::StringLiterals;

// The module's types register themselves from here: in a static library without a plugin nothing
// else refers to them, and the linker would leave them out.
void qml_register_types_Velmora();  // NOLINT(readability-identifier-naming): the toolkit's name

namespace velmora {

namespace {

constexpr int bodyPixels = 13;
/// Milliseconds that the toolkit waits for more changes before it draws, where the system does not
/// tell it when to; it would wait for 5.
constexpr auto updatePause = "0";

/// The views read the family from the application's font.
void useFont(const QString& family) {
    if (QFontDatabase::hasFamily(family)) {
        QFont font(family);
        font.setPixelSize(bodyPixels);
        QGuiApplication::setFont(font);
    }
}

}  // namespace

MainWindow::MainWindow(AppModel& model, std::unique_ptr<NativeLook> look, Motion motion)
    : presentation_(model) {
    if (!look)
        look = std::make_unique<DrawnLook>();
    if (!qEnvironmentVariableIsSet("QT_QPA_UPDATE_IDLE_TIME"))
        qputenv("QT_QPA_UPDATE_IDLE_TIME", updatePause);
    qml_register_types_Velmora();
    useFont(look->fontFamily());
    engine_.addImportPath(u"qrc:/qt/qml"_s);
    auto* appearance = engine_.singletonInstance<SystemAppearance*>(
        qmlTypeId("Velmora", 1, 0, "SystemAppearance"));
    // The look is given to the engine below, and lives as long as what follows it.
    const auto followMotion = [appearance, motion, asked = look.get()] {
        appearance->setMotion(motion == Motion::animated, asked->reducesMotion());
    };
    followMotion();
    engine_.setInitialProperties({{u"presentation"_s, QVariant::fromValue(&presentation_)},
                                  {u"nativeMenus"_s, look->nativeMenuBar()}});
    engine_.addImageProvider(u"symbol"_s, new SymbolImageProvider(std::move(look)));
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
                     [this, followMotion](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive) {
                             followMotion();
                             presentation_.window()->applicationActivated();
                         }
                     });
}

void MainWindow::show() {
    window_->show();
}

}  // namespace velmora
