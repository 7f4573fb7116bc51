#include "tour/stage.h"

#include <QFileInfo>
#include <QGuiApplication>
#include <QPalette>
#include <QTest>
#include <cmath>
#include <cstdio>

#include "platform/rehearsal/history_writer.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "platform/rehearsal/sample/sample_home.h"
#include "storage/config_store.h"
#include "storage/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

void setDark(bool dark) {
    QPalette palette;
    palette.setColor(QPalette::Window, dark ? QColor(30, 30, 32) : QColor(245, 245, 247));
    palette.setColor(QPalette::WindowText, dark ? Qt::white : Qt::black);
    QGuiApplication::setPalette(palette);
}

}  // namespace

Stage::Stage(const QDir& folder, Pace pace)
    : folder_(folder.absolutePath()),
      pace_(pace),
      home_(pace == Pace::asInLife ? folder_.filePath(u"home"_s) : temporary_.path()),
      world_(pace == Pace::asInLife ? Surroundings{clock_, random_, background_}
                                    : virtual_.handed()) {
    if (pace == Pace::asInLife)
        forgetTheLastTime();
    folder_.remove(u"01-failure.png"_s);
    if (!folder_.mkpath(u"."_s))
        fail(u"the folder could not be made"_s);
    if (auto done = prepareSampleHome(home_.path(), world_.clock.now()); !done)
        fail(done.error().description);
}

// Only what a tour leaves: the folder may be any.
void Stage::forgetTheLastTime() {
    for (const QString& picture : folder_.entryList({u"[0-9][0-9]-*.png"_s}, QDir::Files))
        folder_.remove(picture);
    if (folder_.exists(u"home/Library/Contacts/contacts.json"_s))
        QDir(home_).removeRecursively();
}

Stage::~Stage() {
    if (user_ && !user_->complaints().isEmpty())
        fail(u"the views complained: "_s + user_->complaints().join(u"; "_s));
}

QDir Stage::folderForPictures() {
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() == 2)
        return {arguments[1]};
    std::fprintf(stderr, "Usage: %s <folder for the pictures>\n", qPrintable(arguments.value(0)));
    std::exit(2);
}

void Stage::place(const QString& path, const QByteArray& bytes) {
    if (auto done = replaceFile(home_.filePath(path), bytes); !done)
        fail(done.error().description);
}

QByteArray Stage::contentOf(const QString& path) {
    const auto bytes = readFile(home_.filePath(path));
    if (!bytes)
        fail(bytes.error().description);
    return *bytes;
}

void Stage::remove(const QString& path) {
    if (!QFile::remove(home_.filePath(path)))
        fail(path + u" could not be removed"_s);
}

void Stage::emptyHistory() {
    remove(historyPath);
    if (!HistoryWriter::open(messagesHistoryPath(home_.path())))
        fail(u"the history could not be made"_s);
}

void Stage::editSettings(const std::function<void(AppConfig&)>& edit) {
    SupportFolder support(home_.filePath(u".local/share"_s));
    ConfigStore store(support);
    AppConfig config = store.load();
    edit(config);
    store.save(config);
}

void Stage::open() {
    platform_.emplace(makeRehearsalPlatform(world_.clock, home_.path()));
    model_ =
        std::make_unique<AppModel>(Doors{*platform_->contacts, *platform_->scripts,
                                         *platform_->accountPreferences, *platform_->desktop},
                                   world_, Places{platform_->home, platform_->applicationSupport});
    const auto passTime = [this] {
        pace_ == Pace::asInLife ? QTest::qWait(10) : virtual_.clock.advance(0.1);
    };
    const Motion motion = pace_ == Pace::asInLife ? Motion::animated : Motion::still;
    user_ = std::make_unique<WindowDriver>(*model_, passTime, motion);
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
    untilShown(u"Stop"_s);
}

void Stage::passTo(double place, double length) {
    const double now = std::fmod(world_.clock.now().seconds, length);
    virtual_.clock.advance(std::fmod(place - now + length, length));
}

void Stage::expect(bool holds, const QString& what) {
    if (!holds)
        fail(what);
}

void Stage::until(const QString& what, const std::function<bool()>& condition, int seconds) {
    expect(user_->until(condition, seconds),
           what + u" did not come within %1 seconds"_s.arg(seconds));
}

void Stage::untilShown(const QString& name) {
    until(name, [&] { return user_->shows(name); });
}

void Stage::click(const QString& name, QAccessible::Role role) {
    expect(user_->click(name, role), u"there is no \"%1\" to click"_s.arg(name));
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
    if (pace_ == Pace::asInLife)
        return expect(numberedPicture(name), u"the picture could not be written"_s);
    auto* window = other == nullptr ? &user_->window() : qobject_cast<QQuickWindow*>(other);
    const QSize menus(0, window->minimumHeight() - 632);
    const bool dense = window->devicePixelRatio() > 1;
    for (const QString& look : {u"dark"_s, u"light"_s}) {
        setDark(look == u"dark");
        if (other != nullptr || dense) {
            picture(look + u'/' + name, *window);
            continue;
        }
        for (const QSize size : {QSize(960, 632), QSize(1240, 740)}) {
            window->resize(size + menus);
            picture(look + u"-%1/"_s.arg(size.width()) + name, *window);
        }
    }
}

void Stage::showWide(const QString& name) {
    QQuickWindow& window = user_->window();
    if (window.devicePixelRatio() > 1)
        return;
    window.resize(2200, window.height());
    picture(u"light/"_s + name, window);
}

void Stage::picture(const QString& name, QQuickWindow& window) {
    // Everything is laid out anew, and no time goes by. A display tells of each size when it likes;
    // until it has, the window goes back to an earlier one.
    for (int turn = 0; turn < 5; ++turn)
        QGuiApplication::sync();
    const QString path = folder_.filePath(name + u".png"_s);
    if (!QFileInfo(path).dir().mkpath(u"."_s) || !window.grabWindow().save(path))
        fail(u"the picture %1 could not be written"_s.arg(path));
}

bool Stage::numberedPicture(const QString& name) {
    const double still = world_.clock.uptime() + 0.4;
    user_->until([&] { return world_.clock.uptime() >= still; });
    const QString file = u"%1-%2.png"_s.arg(++pictures_, 2, 10, QChar(u'0')).arg(name);
    return user_->window().grabWindow().save(folder_.filePath(file));
}

void Stage::fail(const QString& sentence) {
    if (user_)
        numberedPicture(u"failure"_s);
    const QString program = QGuiApplication::applicationName();
    std::fputs(qPrintable(program + u" ended early: "_s + sentence +
                          u". See the last picture in "_s + folder_.path() + u'\n'),
               stderr);
    std::exit(1);
}

}  // namespace velmora
