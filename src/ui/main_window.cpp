#include "ui/main_window.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <QQuickStyle>

#include "ui/drawn_look.h"
#include "ui/symbol_image_provider.h"

// The module's types register themselves from here: in a static library without a plugin nothing
// else refers to them, and the linker would leave them out.
void qml_register_types_Velmora();  // NOLINT(readability-identifier-naming): the toolkit's name

namespace velmora {

namespace {

constexpr int bodyPixels = 13;

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
    : presentation_(model, look && look->reducesMotion() ? Motion::still : motion) {
    if (!look) {
        look = std::make_unique<DrawnLook>();
    }
    qml_register_types_Velmora();
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    useFont(look->fontFamily());
    engine_.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine_.setInitialProperties(
        {{QStringLiteral("presentation"), QVariant::fromValue(&presentation_)},
         {QStringLiteral("nativeMenus"), look->nativeMenuBar()}});
    engine_.addImageProvider(QStringLiteral("symbol"), new SymbolImageProvider(std::move(look)));
    engine_.load(QUrl(QStringLiteral("qrc:/qt/qml/Velmora/MainWindowRoot.qml")));
    if (!engine_.rootObjects().isEmpty()) {
        window_ = qobject_cast<QQuickWindow*>(engine_.rootObjects().constFirst());
    }
    if (window_ == nullptr) {
        qFatal("The main window cannot be loaded.");
    }
    QObject::connect(window_, &QWindow::visibleChanged, &presentation_, [this](bool visible) {
        if (visible) {
            presentation_.window()->windowShown();
        }
    });
    QObject::connect(qApp, &QGuiApplication::applicationStateChanged, &presentation_,
                     [this](Qt::ApplicationState state) {
                         if (state == Qt::ApplicationActive) {
                             presentation_.window()->applicationActivated();
                         }
                     });
}

void MainWindow::show() {
    window_->show();
}

}  // namespace velmora
