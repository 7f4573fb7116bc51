#include "ui/look/system_appearance.h"

#include <QEvent>
#include <QFont>
#include <QGuiApplication>
#include <QPalette>

namespace velmora {

namespace {

bool paletteIsDark() {
    const QPalette palette = QGuiApplication::palette();
    return palette.color(QPalette::WindowText).lightness() >
           palette.color(QPalette::Window).lightness();
}

}  // namespace

SystemAppearance::SystemAppearance(QObject* parent) : QObject(parent), dark_(paletteIsDark()) {
    if (qGuiApp != nullptr)
        qGuiApp->installEventFilter(this);
}

void SystemAppearance::setMotion(bool animated, bool reduced) {
    if (animated == animated_ && reduced == reducesMotion_)
        return;
    animated_ = animated;
    reducesMotion_ = reduced;
    Q_EMIT motionChanged();
}

void SystemAppearance::setAccent(const QColor& accent) {
    if (accent == accent_)
        return;
    accent_ = accent;
    Q_EMIT accentChanged();
}

QString SystemAppearance::fontFamily() const {
    return QGuiApplication::font().family();
}

bool SystemAppearance::eventFilter(QObject* watched, QEvent* event) {
    if (watched == qGuiApp && event->type() == QEvent::ApplicationPaletteChange) {
        const bool dark = paletteIsDark();
        if (dark != dark_) {
            dark_ = dark;
            Q_EMIT darkChanged();
        }
    }
    return QObject::eventFilter(watched, event);
}

}  // namespace velmora
