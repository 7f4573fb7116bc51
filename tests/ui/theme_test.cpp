#include <gtest/gtest.h>

#include <QColor>
#include <QGuiApplication>
#include <QPalette>
#include <QQmlComponent>
#include <QQmlEngine>
#include <cmath>

void qml_register_types_Velmora();  // NOLINT(readability-identifier-naming): the toolkit's name

namespace velmora {

namespace {

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
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    QQmlComponent component(&engine);
    component.setData("import QtQml\nimport Velmora\nQtObject { property var theme: Theme }", {});
    const std::unique_ptr<QObject> holder(component.create());
    ASSERT_TRUE(holder) << component.errorString().toStdString();
    const QObject* theme = holder->property("theme").value<QObject*>();
    const auto color = [theme](const std::string& name) {
        return theme->property(name.c_str()).value<QColor>();
    };
    const auto expectContrast = [&](const std::string& text, const QColor& ground, double opacity) {
        EXPECT_GE(contrast(over(ground, color(text), opacity), ground), 4.5)
            << text << " on " << ground.name().toStdString() << ", dark "
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
        const QColor window = color("windowBackground");
        const QColor focused = over(window, color("quaternary"), color("quaternary").alphaF());
        for (const QColor& ground : {window, focused}) {
            for (const char* ink : {"primary", "secondary", "tertiary", "accentText", "green"}) {
                expectContrast(ink, ground, 1);
                expectContrast(std::string(ink) + "Faint", ground, 0.72);
            }
        }
        for (const char* ground : {"sidebarBackground", "sheetBackground", "groupBackground",
                                   "textBackground", "menuBackground"})
            for (const char* ink : {"primary", "secondary"})
                expectContrast(ink, color(ground), 1);
        for (const char* ground : {"controlBackground", "controlHover", "controlPressed"})
            for (const char* ink : {"primary", "destructive"})
                expectContrast(ink, color(ground), 1);
        for (const char* ground : {"accent", "accentHover", "accentPressed"})
            expectContrast("overAccent", color(ground), 1);
    }
    QGuiApplication::setPalette(before);
}

}  // namespace

}  // namespace velmora
