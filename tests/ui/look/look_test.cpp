#include <gmock/gmock.h>

#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlEngine>
#include <cmath>
#include <memory>
#include <utility>
#include <vector>

#include "ui/look/drawn_look.h"
#include "ui/look/symbol_image_provider.h"
#include "ui/look/tone.h"

using namespace Qt::StringLiterals;

void qml_register_types_Velmora();  // NOLINT(readability-identifier-naming): the toolkit's name

using namespace velmora;

std::vector<QRgb> pixels(const QImage& image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    const auto* first = reinterpret_cast<const QRgb*>(argb.constBits());
    return {first, first + argb.sizeInBytes() / 4};
}

// Catches a symbol that is empty, in its own colour, stretched or of another size, and one from a
// wrong address.
TEST(Symbols, TheProviderDrawsWhatItsAddressNames) {
    SymbolImageProvider provider(std::make_unique<DrawnLook>());
    QSize size;
    const auto request = [&](const QString& id, QSize requested) {
        return provider.requestImage(id, &size, requested);
    };
    const QStringList files = QDir(u":/velmora/symbols"_s).entryList();
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        const auto drawn = pixels(request(name + u"/regular/123456ff"_s, {0, 42}));
        EXPECT_GT(std::ranges::count(drawn, 0xff123456U), 8) << qPrintable(name);
        for (const QRgb pixel : drawn)
            EXPECT_TRUE(qAlpha(pixel) < 255 || pixel == 0xff123456U) << qPrintable(name);
    }
    const QImage wide = request(u"xmark.circle.fill/regular/12345680"_s, {60, 30});
    EXPECT_EQ(size, QSize(60, 30));
    EXPECT_EQ(pixels(wide.copy(22, 15, 1, 1)).front(), 0x80123456U);
    EXPECT_THAT(pixels(wide.copy(0, 0, 15, 30)), testing::Each(0U)) << "stretched";
    for (const QString& id : {u"none/regular/000000ff"_s, u"iphone/heavy/000000ff"_s, u"iphone"_s})
        EXPECT_TRUE(request(id, {16, 16}).isNull()) << qPrintable(id);
}

double luminance(const QColor& color) {
    const auto linear = [](float part) {
        return part <= 0.03928F ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return (0.2126 * linear(color.redF())) + (0.7152 * linear(color.greenF())) +
           (0.0722 * linear(color.blueF()));
}

// The contrast of the Web Content Accessibility Guidelines 2.1, from 1 to 21.
double contrast(const QColor& one, const QColor& other) {
    const double ratio = (luminance(one) + 0.05) / (luminance(other) + 0.05);
    return std::max(ratio, 1 / ratio);
}

QColor over(const QColor& below, const QColor& color, double opacity) {
    const auto mixed = [&](float top, float ground) {
        return static_cast<float>((top * opacity) + (ground * (1 - opacity)));
    };
    return QColor::fromRgbF(mixed(color.redF(), below.redF()),
                            mixed(color.greenF(), below.greenF()),
                            mixed(color.blueF(), below.blueF()));
}

// Catches a text whose colour is too close to what it stands on, in light or in dark, in a row that
// is drawn faint or has the keyboard, and a theme that does not follow the desktop.
TEST(Theme, TextStandsOutOnEverything) {
    qml_register_types_Velmora();
    QQmlEngine engine;
    engine.addImportPath(u"qrc:/qt/qml"_s);
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Velmora\nQtObject { property var theme: Theme }", {});
    const std::unique_ptr<QObject> holder(component.create());
    ASSERT_TRUE(holder) << component.errorString().toStdString();
    QObject* theme = holder->property("theme").value<QObject*>();
    const auto color = [theme](const QByteArray& name) {
        return theme->property(name.constData()).value<QColor>();
    };
    const double faintOpacity = theme->property("faintOpacity").toDouble();
    const auto toned = [theme](Tone tone, bool faint) {
        QColor ink;
        QMetaObject::invokeMethod(theme, "colorOf", Q_RETURN_ARG(QColor, ink),
                                  Q_ARG(int, std::to_underlying(tone)), Q_ARG(bool, faint));
        return ink;
    };
    const auto expectContrast = [&](const QColor& text, const QColor& ground, double opacity) {
        EXPECT_GE(contrast(over(ground, text, opacity), ground), 4.5)
            << text.name().toStdString() << " on " << ground.name().toStdString() << ", dark "
            << theme->property("dark").toBool();
    };
    const QPalette before = QGuiApplication::palette();
    for (const bool dark : {true, false}) {
        QPalette palette;
        palette.setColor(QPalette::Window, dark ? Qt::black : Qt::white);
        palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
        QGuiApplication::setPalette(palette);
        QCoreApplication::processEvents();
        ASSERT_EQ(theme->property("dark").toBool(), dark);
        const QColor content = color("textBackground");
        const QColor focused = over(content, color("quaternary"), color("quaternary").alphaF());
        for (const QColor& ground : {content, focused}) {
            for (const Tone tone :
                 {Tone::primary, Tone::secondary, Tone::tertiary, Tone::accent, Tone::green}) {
                expectContrast(toned(tone, false), ground, 1);
                expectContrast(toned(tone, true), ground, faintOpacity);
            }
        }
        const QColor window = color("windowBackground");
        expectContrast(color("secondary"),
                       over(window, color("quaternary"), color("quaternary").alphaF()), 1);
        const std::vector<std::pair<QByteArrayList, QByteArrayList>> pairs = {
            {{"accentText"}, {"windowBackground"}},
            {{"primary", "secondary"},
             {"sidebarBackground", "sheetBackground", "groupBackground", "windowBackground",
              "menuBackground"}},
            {{"primary", "destructive"}, {"controlBackground", "controlHover", "controlPressed"}},
            {{"overAccent"}, {"accent", "accentHover", "accentPressed"}}};
        for (const auto& [inks, grounds] : pairs)
            for (const QByteArray& ink : inks)
                for (const QByteArray& ground : grounds)
                    expectContrast(color(ink), color(ground), 1);
        for (const char* ground : {"windowBackground", "textBackground"})
            EXPECT_GE(contrast(color("emblem"), color(ground)), 3) << ground << dark;
    }
    QGuiApplication::setPalette(before);
}
