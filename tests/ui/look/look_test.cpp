#include <gmock/gmock.h>

#include <QDir>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlEngine>
#include <array>
#include <cmath>
#include <memory>
#include <numeric>
#include <vector>

#include "ui/first_run/full_disk_access_timeline.h"
#include "ui/look/application_icon.h"
#include "ui/look/drawn_look.h"
#include "ui/look/fixed_digits.h"
#include "ui/look/symbol_image_provider.h"
#include "ui/look/tone.h"

using namespace Qt::StringLiterals;

void qml_register_types_Velmora();  // NOLINT(readability-identifier-naming): the toolkit's name

namespace velmora {
namespace {

const QColor tint(0x12, 0x34, 0x56);

std::vector<QRgb> pixels(const QImage& image) {
    const QImage argb = image.convertToFormat(QImage::Format_ARGB32);
    const auto* first = reinterpret_cast<const QRgb*>(argb.constBits());
    return {first, first + argb.sizeInBytes() / 4};
}

/// How much is drawn: 1 is one fully covered pixel.
double coverage(const QImage& image) {
    const auto add = [](double sum, QRgb pixel) { return sum + (qAlpha(pixel) / 255.0); };
    const std::vector<QRgb> all = pixels(image);
    return std::accumulate(all.begin(), all.end(), 0.0, add);
}

// Catches a drawing without content, in its own color or cut off, a light one as thick as usual and
// a tick that is not bolder.
TEST(Symbols, areTintedOnTheirGridAndThinnerWhenLight) {
    const DrawnLook source;
    const QStringList files = QDir(u":/velmora/symbols"_s).entryList();
    ASSERT_FALSE(files.isEmpty());
    for (const QString& file : files) {
        const QString name = file.chopped(4);
        SCOPED_TRACE(qUtf8Printable(name));
        const QImage small = source.symbol(name, {16, 16}, tint, SymbolWeight::regular);
        EXPECT_GT(coverage(small), 8);
        // Four pixels to a unit of the grid, whose outermost two units stay clear.
        const QImage large = source.symbol(name, {96, 96}, tint, SymbolWeight::regular);
        for (const QRgb pixel : pixels(large))
            EXPECT_TRUE(qAlpha(pixel) < 255 || pixel == tint.rgba()) << std::hex << pixel;
        EXPECT_NEAR(coverage(large), coverage(large.copy(7, 7, large.width() - 14, 82)), 1e-6);
        const QImage light = source.symbol(name, {96, 96}, tint, SymbolWeight::light);
        const double ratio = coverage(light) / coverage(large);
        EXPECT_TRUE(name.endsWith(u".fill") ? ratio == 1 : ratio < 0.85) << ratio;
    }
    const auto tick = [&](SymbolWeight weight) {
        return coverage(source.symbol(u"checkmark"_s, {14, 14}, tint, weight));
    };
    EXPECT_GT(tick(SymbolWeight::bold), 1.5 * tick(SymbolWeight::regular));
}

// Catches a symbol or picture that is stretched, off its place, in another colour or of another
// scale, and one from a wrong address or without a size.
TEST(Symbols, TheProviderReadsItsAddressAndRefusesAnyOther) {
    SymbolImageProvider provider(std::make_unique<DrawnLook>());
    const auto request = [&](const char* id, QSize requested) {
        QSize size;
        const QImage image = provider.requestImage(QString::fromLatin1(id), &size, requested);
        EXPECT_EQ(size, image.size());
        return image;
    };
    const QImage wide = request("xmark.circle.fill/regular/12345680", {60, 30});
    EXPECT_EQ(wide.size(), QSize(60, 30));
    EXPECT_EQ(pixels(wide.copy(22, 15, 1, 1)).front(), 0x80123456U);
    EXPECT_EQ(coverage(wide.copy(0, 0, 15, 30)), 0) << "stretched";
    EXPECT_EQ(request("iphone/light/000000ff", {0, 42}).size(), QSize(42, 42));
    EXPECT_EQ(request("person.3/regular/000000ff", {18, 18}).size(), QSize(24, 18));
    for (const char* id : {"no.such.symbol/regular/000000ff", "iphone/heavy/000000ff", "iphone"})
        EXPECT_TRUE(request(id, {16, 16}).isNull()) << id;

    const QImage icon = request("applicationIcon", {80, 40});
    EXPECT_EQ(coverage(icon.copy(0, 0, 20, 40)) + coverage(icon.copy(60, 0, 20, 40)), 0);
    EXPECT_GT(coverage(icon.copy(20, 0, 40, 40)), 900);
    const QIcon icons = applicationIcon();
    const auto reach = [&](int side) {
        return coverage(icons.pixmap(side).toImage().copy(0, side / 2, side / 12, 1));
    };
    EXPECT_GT(reach(32), 0.9) << "a small icon with the margin and the fine lines of the large";
    EXPECT_EQ(reach(33), 0);
    const QImage arrow = request("arrowPointer", {64, 64});
    EXPECT_NEAR(coverage(arrow), coverage(arrow.copy(0, 0, 28, 40)), 1e-6);
    EXPECT_GT(coverage(arrow.copy(0, 0, 4, 4)), 12) << "the tip is elsewhere";
    EXPECT_GT(coverage(arrow.copy(0, 32, 28, 8)), 8) << "too small";
    EXPECT_TRUE(DrawnLook().picture(SystemPicture::applicationIcon, {0, 5}).isNull());
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
    const auto color = [theme](const char* name) { return theme->property(name).value<QColor>(); };
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
        expectContrast(color("accentText"), window, 1);
        expectContrast(color("secondary"),
                       over(window, color("quaternary"), color("quaternary").alphaF()), 1);
        for (const char* ground : {"sidebarBackground", "sheetBackground", "groupBackground",
                                   "windowBackground", "menuBackground"})
            for (const char* ink : {"primary", "secondary"})
                expectContrast(color(ink), color(ground), 1);
        for (const char* ground : {"windowBackground", "textBackground"})
            EXPECT_GE(contrast(color("emblem"), color(ground)), 3) << ground << dark;
        for (const char* ground : {"controlBackground", "controlHover", "controlPressed"})
            for (const char* ink : {"primary", "destructive"})
                expectContrast(color(ink), color(ground), 1);
        for (const char* ground : {"accent", "accentHover", "accentPressed"})
            expectContrast(color("overAccent"), color(ground), 1);
    }
    QGuiApplication::setPalette(before);
}

// Catches a number that changes its width while it counts.
TEST(FixedDigits, TakeTheSameWidth) {
    FixedDigits digits;
    const auto width = [&digits](const QString& text, int size) {
        digits.setPixelSize(size);
        digits.setText(text);
        return digits.implicitWidth();
    };
    const double narrow = width(u"1:11 AM"_s, 12);
    EXPECT_GT(narrow, 0);
    EXPECT_EQ(narrow, width(u"8:40 AM"_s, 12));
    EXPECT_GT(width(u"8:40 AM"_s, 24), narrow * 1.5);
}

// Catches a drawing that jumps in or out, a pointer that does not end on the switch or presses it
// at another moment than the switch turns, and a place outside the loop for an early date.
TEST(FullDiskAccessTimeline, ThePointerGlidesToTheSwitchAndTurnsIt) {
    using Frame = std::array<double, 6>;  // time, opacity, x, y and scale of the pointer, switch
    FullDiskAccessTimeline timeline;
    for (const Frame& frame : {Frame{0, 0, 250, 180, 1, 0},
                               {0.15, 0.5, 250, 180, 1, 0},
                               {0.8, 1, 250 + (23 * 0.15625), 180 - (90 * 0.15625), 1, 0},
                               {2.2, 1, 273, 90, 0.86, 0},
                               {2.35, 1, 273, 90, 1, 0.5},
                               {6.3, 1, 273, 90, 1, 1},
                               {6.6, 0.5, 273, 90, 1, 1},
                               {6.95, 0, 273, 90, 1, 1}}) {
        timeline.setTime(frame[0]);
        const Frame shown{timeline.time(),     timeline.opacity(),      timeline.pointerX(),
                          timeline.pointerY(), timeline.pointerScale(), timeline.switchedOn()};
        EXPECT_THAT(shown, testing::Pointwise(testing::DoubleNear(1e-9), frame));
    }
    timeline.setStill(true);
    EXPECT_EQ(timeline.opacity() * timeline.switchedOn(), 1);
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({7'000'003.5}), 3.5);
    EXPECT_DOUBLE_EQ(FullDiskAccessTimeline::phase({-1}), 6);
}

}  // namespace
}  // namespace velmora
