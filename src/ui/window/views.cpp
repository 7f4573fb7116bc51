#include "ui/window/views.h"

#include <QFontDatabase>
#include <QGuiApplication>
#include <utility>

#include "ui/look/symbol_image_provider.h"

using namespace Qt::StringLiterals;

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

void prepareViews(QQmlApplicationEngine& engine, std::unique_ptr<NativeLook> look) {
    qml_register_types_Velmora();
    useFont(look->fontFamily());
    engine.addImportPath(u"qrc:/qt/qml"_s);
    engine.addImageProvider(u"symbol"_s, new SymbolImageProvider(std::move(look)));
}

}  // namespace velmora
