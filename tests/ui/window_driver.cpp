#include "ui/window_driver.h"

#include <QDeadlineTimer>
#include <QGuiApplication>
#include <QQuickItem>
#include <QTest>
#include <cstdio>

using namespace Qt::StringLiterals;

namespace velmora {
namespace {

QStringList heard;

void hear(QtMsgType type, const QMessageLogContext&, const QString& message) {
    if (type == QtFatalMsg)
        std::fputs(qPrintable(message + QLatin1Char('\n')), stderr);
    // The window system without a screen has no windows to raise or to hint at, and the toolkit's
    // own clock stumbles where the computer is too busy to draw.
    if (type != QtDebugMsg && type != QtInfoMsg &&
        !message.startsWith("This plugin does not support"_L1) &&
        !message.startsWith("QUnifiedTimer::"_L1))
        heard.append(message);
}

// As it reads: a space that keeps its neighbours together is one like any other.
QString nameOf(QAccessibleInterface* element) {
    return element->text(QAccessible::Name).replace(QChar::Nbsp, u' ');
}

QAccessibleInterface* findBelow(QAccessibleInterface* root, const QString& name,
                                QAccessible::Role role) {
    if (root == nullptr || root->state().invisible)
        return nullptr;
    const bool fits =
        role == QAccessible::NoRole ? root->role() != QAccessible::Window : root->role() == role;
    if (fits && nameOf(root) == name)
        return root;
    // The last child lies on top.
    for (int child = root->childCount() - 1; child >= 0; --child)
        if (auto* found = findBelow(root->child(child), name, role))
            return found;
    return nullptr;
}

QAccessibleInterface* find(QWindow* window, const QString& name,
                           QAccessible::Role role = QAccessible::NoRole) {
    return findBelow(QAccessible::queryAccessibleInterface(window), name, role);
}

// A frame puts everything where it belongs.
void layOut(QWindow* window) {
    QEvent frame(QEvent::UpdateRequest);
    QCoreApplication::sendEvent(window, &frame);
}

QString speech(QAccessibleInterface* element) {
    const QAccessible::State state = element->state();
    QStringList words{QVariant::fromValue(element->role()).toString(), nameOf(element)};
    QAccessibleValueInterface* number = element->valueInterface();
    const QString value =
        number != nullptr ? number->currentValue().toString() : element->text(QAccessible::Value);
    // What the toolkit itself says of a window and of a progress changes with its versions.
    const bool isWindow = element->role() == QAccessible::Window;
    if (!value.isEmpty() && !isWindow && element->role() != QAccessible::ProgressBar)
        words.append("value "_L1 + value);
    if (state.checkable)
        words.append(QLatin1String(state.checked ? "checked" : "unchecked"));
    if (state.selected)
        words.append("selected"_L1);
    const QString description = isWindow ? QString() : element->text(QAccessible::Description);
    return words.join(", "_L1) + (description.isEmpty() ? QString() : " | "_L1 + description);
}

void gather(QAccessibleInterface* element, QList<QAccessibleInterface*>& all) {
    if (element == nullptr || element->state().invisible)
        return;
    all.append(element);
    for (int child = 0; child < element->childCount(); ++child)
        gather(element->child(child), all);
}

}  // namespace

WindowDriver::WindowDriver(AppModel& model, VirtualClock& clock)
    : WindowDriver(model, [&clock] { clock.advance(0.1); }, Motion::still) {}

WindowDriver::WindowDriver(AppModel& model, std::function<void()> passTime, Motion motion)
    : passTime_(std::move(passTime)), handlerBefore_(qInstallMessageHandler(hear)) {
    heard.clear();
    QAccessible::setActive(true);
    main_ = std::make_unique<MainWindow>(model, nullptr, motion);
    main_->show();
    main_->window().requestActivate();
    settle();
}

WindowDriver::~WindowDriver() {
    main_.reset();
    qInstallMessageHandler(handlerBefore_);
}

QStringList WindowDriver::complaints() const {
    return heard;
}

void WindowDriver::settle() {
    for (int turn = 0; turn < 5; ++turn) {
        passTime_();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
}

bool WindowDriver::until(const std::function<bool()>& condition, int seconds) {
    const QDeadlineTimer deadline(std::chrono::seconds{seconds});
    while (!condition() && !deadline.hasExpired())
        settle();
    return condition();
}

bool WindowDriver::appears(const QString& name) {
    return until([&] { return shows(name); });
}

bool WindowDriver::vanishes(const QString& name) {
    return until([&] { return !shows(name); });
}

bool WindowDriver::shows(const QString& name, QWindow* in) {
    return find(orMain(in), name) != nullptr;
}

QList<QAccessibleInterface*> WindowDriver::elements(QWindow* in) {
    QList<QAccessibleInterface*> all;
    gather(QAccessible::queryAccessibleInterface(orMain(in)), all);
    return all;
}

QStringList WindowDriver::spoken(const QString& name, QWindow* in) {
    layOut(orMain(in));
    auto* whole = QAccessible::queryAccessibleInterface(orMain(in));
    QList<QAccessibleInterface*> below;
    gather(name.isEmpty() ? whole : find(orMain(in), name), below);
    QStringList all;
    for (QAccessibleInterface* each : below)
        if (!each->text(QAccessible::Name).isEmpty())
            all.append(speech(each));
    return all;
}

QRect WindowDriver::area(const QString& name, QAccessible::Role role, QWindow* in) {
    QWindow* there = orMain(in);
    layOut(there);
    QAccessibleInterface* found = nullptr;
    until([&] { return (found = find(there, name, role)) != nullptr; });
    return found == nullptr ? QRect() : found->rect().translated(there->mapFromGlobal(QPoint()));
}

bool WindowDriver::click(const QString& name, QAccessible::Role role, QWindow* in) {
    const QRect found = area(name, role, in);
    if (!found.isNull())
        clickAt(found.center(), in);
    return !found.isNull();
}

void WindowDriver::clickAt(QPoint place, QWindow* in) {
    QTest::mouseMove(orMain(in), place);
    QTest::mouseClick(orMain(in), Qt::LeftButton, {}, place);
    settle();
}

void WindowDriver::type(const QString& text) {
    QWindow* window = QGuiApplication::focusWindow();
    for (const QChar each : text)
        QTest::sendKeyEvent(QTest::Click, window, Qt::Key_unknown, each, {});
    settle();
}

void WindowDriver::key(int key, Qt::KeyboardModifiers modifiers) {
    QTest::keyClick(QGuiApplication::focusWindow(), static_cast<Qt::Key>(key), modifiers);
    settle();
}

void WindowDriver::keys(std::initializer_list<QKeyCombination> keys) {
    for (const QKeyCombination each : keys)
        key(each.key(), each.keyboardModifiers());
}

QString WindowDriver::focused() const {
    auto* item = qobject_cast<QQuickItem*>(QGuiApplication::focusObject());
    for (; item != nullptr; item = item->parentItem()) {
        QAccessibleInterface* there = QAccessible::queryAccessibleInterface(item);
        if (there != nullptr && !there->text(QAccessible::Name).isEmpty())
            return there->text(QAccessible::Name);
    }
    return {};
}

QWindow* WindowDriver::windowTitled(const QString& title) {
    for (QWindow* each : QGuiApplication::allWindows())
        if (each->isVisible() && each->title() == title)
            return each;
    return nullptr;
}

}  // namespace velmora
