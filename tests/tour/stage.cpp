#include "tour/stage.h"

#include <QGuiApplication>
#include <QPalette>
#include <cmath>
#include <cstdio>

#include "core/config_store.h"
#include "core/files.h"
#include "platform/rehearsal/history_writer.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "platform/rehearsal/sample/sample_home.h"

namespace velmora {

using namespace Qt::Literals::StringLiterals;

namespace {

enum class Appearance { light, dark };

void setAppearance(Appearance appearance) {
    const bool dark = appearance == Appearance::dark;
    QPalette palette;
    palette.setColor(QPalette::Window, dark ? QColor(30, 30, 32) : QColor(245, 245, 247));
    palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(palette);
}

}  // namespace

Stage::Stage(const QDir& folder) : folder_(folder) {
    if (auto done = prepareSampleHome(home_.path(), world_.clock.now()); !done)
        fail(done.error().description);
}

Stage::~Stage() {
    if (user_ && !user_->complaints().isEmpty())
        fail(u"the views complained: "_s + user_->complaints().join(u"; "_s));
}

void Stage::place(const QString& path, const QByteArray& bytes) const {
    if (auto done = replaceFile(home_.filePath(path), bytes); !done)
        fail(done.error().description);
}

QByteArray Stage::contentOf(const QString& path) const {
    const auto bytes = readFile(home_.filePath(path));
    if (!bytes)
        fail(bytes.error().description);
    return *bytes;
}

void Stage::remove(const QString& path) const {
    if (!QFile::remove(home_.filePath(path)))
        fail(path + u" could not be removed"_s);
}

void Stage::emptyHistory() const {
    remove(u"Library/Messages/chat.db"_s);
    if (!HistoryWriter::open(messagesHistoryPath(home_.path())))
        fail(u"the history could not be made"_s);
}

void Stage::editSettings(const std::function<void(AppConfig&)>& edit) const {
    SupportFolder support(home_.filePath(u".local/share"_s));
    ConfigStore store(support);
    AppConfig config = store.load();
    edit(config);
    store.save(config);
}

void Stage::open() {
    platform_.emplace(makeRehearsalPlatform(world_.clock, home_.path()));
    model_ = std::make_unique<AppModel>(Doors{*platform_->contacts, *platform_->scripts,
                                              *platform_->accountPreferences, *platform_->desktop},
                                        world_.handed(),
                                        Places{platform_->home, platform_->applicationSupport});
    user_ = std::make_unique<WindowDriver>(*model_, world_.clock);
    until(u"the start-up"_s, [this] { return model_->bootstrapped.value(); });
}

void Stage::openDinner() {
    editSettings([](AppConfig& config) {
        config.termsAccepted = u"1"_s;
        config.senderNumber = u"+12125550100"_s;
        config.selectedGroupID = u"g-dinner"_s;
    });
    open();
    model_->setCurrentTemplate(
        u"Hi {first_name}, dinner on Friday at eight? I'm cooking.{custom_note}"_s);
    model_->setNote(u"p01"_s, u"Bring the photos!"_s);
}

void Stage::startDinner() {
    openDinner();
    model_->selectShown();
    model_->setSelected(u"p06"_s, false);
    model_->requestRun();
    model_->confirmRun();
    until(u"the run"_s, [this] { return user_->shows(u"Stop"_s); });
}

void Stage::passTo(double place, double length) {
    const double now = std::fmod(world_.clock.now().seconds, length);
    world_.clock.advance(std::fmod(place - now + length, length));
}

void Stage::until(const QString& what, const std::function<bool()>& condition) {
    if (!user_->until(condition))
        fail(what + u" did not come"_s);
}

void Stage::click(const QString& name, QAccessible::Role role) {
    if (!user_->click(name, role))
        fail(u"there is no \"%1\" to click"_s.arg(name));
}

QWindow* Stage::window(const QString& title) {
    QWindow* found = nullptr;
    until(u"the window "_s + title, [&] {
        found = WindowDriver::windowTitled(title);
        return found != nullptr;
    });
    return found;
}

void Stage::closeWindow(const QString& title) {
    window(title)->close();
    user_->window().requestActivate();
    until(u"the main window"_s,
          [this] { return QGuiApplication::focusWindow() == &user_->window(); });
}

void Stage::show(const QString& name, QWindow* other) {
    auto* window = other == nullptr ? &user_->window() : qobject_cast<QQuickWindow*>(other);
    const QSize menus(0, window->minimumHeight() - 580);
    const bool dense = window->devicePixelRatio() > 1;
    for (const Appearance appearance : {Appearance::dark, Appearance::light}) {
        setAppearance(appearance);
        const QString look = appearance == Appearance::dark ? u"dark"_s : u"light"_s;
        if (other != nullptr || dense) {
            picture(look, name, *window);
            continue;
        }
        for (const QSize size : {QSize(960, 580), QSize(1240, 740)}) {
            window->resize(size + menus);
            picture(look + u"-%1"_s.arg(size.width()), name, *window);
        }
    }
}

void Stage::picture(const QString& look, const QString& name, QQuickWindow& window) {
    // Everything is laid out anew, and no time goes by.
    for (int turn = 0; turn < 5; ++turn)
        QCoreApplication::processEvents();
    const QString path = folder_.filePath(look + u'/' + name + u".png"_s);
    if (!folder_.mkpath(look) || !window.grabWindow().save(path))
        fail(u"the picture %1 could not be written"_s.arg(path));
}

void Stage::fail(const QString& sentence) const {
    std::fputs(qPrintable(u"The gallery ended early: "_s + sentence + u".\n"_s), stderr);
    std::exit(1);
}

}  // namespace velmora
