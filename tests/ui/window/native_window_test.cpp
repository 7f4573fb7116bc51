#include "app/app_home.h"
#include "ui/look/drawn_look.h"
#include "ui/look/system_appearance.h"
#include "ui/window/main_window.h"

namespace velmora {

namespace {

// What a desktop with title bars, colours and habits of its own says, and hears.
struct Desktop {
    QString subtitle;
    QColor accent = Qt::magenta;
    bool still = false;
    std::function<void()> changed;
};

class SystemLook final : public DrawnLook {
  public:
    explicit SystemLook(Desktop& desktop) : desktop_(desktop) {}
    [[nodiscard]] bool nativeTitle() const override { return true; }
    [[nodiscard]] bool staysWithoutWindow() const override { return true; }
    [[nodiscard]] QColor accent() const override { return desktop_.accent; }
    [[nodiscard]] bool reducesMotion() const override { return desktop_.still; }
    void showSubtitle(QWindow&, const QString& subtitle) const override {
        desktop_.subtitle = subtitle;
    }
    void whenChanged(std::function<void()> changed) override {
        desktop_.changed = std::move(changed);
    }

  private:
    Desktop& desktop_;
};

// Catches a second header under the system's own title bar, one without its subtitle, a colour or a
// wish for stillness that counts from the next start on, and an application that ends with its
// window where none does.
TEST_F(AppHome, ADesktopsOwnTitleBarColourAndHabitsAreUsed) {
    withFriends();
    Desktop desktop;
    MainWindow main(*model, std::make_unique<SystemLook>(desktop));
    QQuickWindow& window = main.window();
    const int bar = window.minimumHeight() - 580;
    main.show();
    EXPECT_EQ(window.minimumWidth(), 960);
    EXPECT_EQ(window.size(), QSize(1240, 740 + bar)) << "a header of our own is in the way";
    EXPECT_LT(bar, 40) << "as high as a menu bar";
    EXPECT_EQ(window.title(), u"Friends");
    model->setSelected(u"ann"_s, true);
    EXPECT_EQ(desktop.subtitle, u"1 of 3 selected");

    auto* appearance = qmlEngine(&window)->singletonInstance<SystemAppearance*>(
        qmlTypeId("Velmora", 1, 0, "SystemAppearance"));
    EXPECT_EQ(appearance->accent(), Qt::magenta);
    EXPECT_TRUE(appearance->animated());
    desktop = {.subtitle = {}, .accent = Qt::green, .still = true, .changed = desktop.changed};
    desktop.changed();
    EXPECT_EQ(appearance->accent(), Qt::green);
    EXPECT_FALSE(appearance->animated());
    window.close();
    EXPECT_FALSE(window.isVisible() || QGuiApplication::quitOnLastWindowClosed());
    QGuiApplication::setQuitOnLastWindowClosed(true);
}

}  // namespace

}  // namespace velmora
