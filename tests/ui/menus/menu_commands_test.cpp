#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/window/presentation.h"

namespace velmora {

namespace {

class MenuCommandsTest : public AppHome {
  protected:
    /// What is not offered, and after it what hears no keys though its menu shows some.
    [[nodiscard]] static QStringList refused(const MenuCommands& menus) {
        QStringList off;
        QStringList deaf;
        const QVariantList offers = menus.offers();
        for (const QVariant& menu : menus.menus()) {
            for (const QVariant& each : menu.value<Menu>().entries) {
                const auto item = each.value<MenuEntry>();
                const auto offer =
                    offers.value(static_cast<qsizetype>(item.command)).value<MenuEntry>();
                EXPECT_EQ(offer.text, item.text);
                if (!offer.enabled)
                    off.append(item.text);
                if (offer.sequences() != item.sequences())
                    deaf.append(item.keys());
            }
        }
        return off + deaf;
    }
};

// Catches a command that reaches under a sheet or the alert, a test text before the terms are
// accepted, and Command-Return that two things claim during a pause; a bar that is not told.
TEST_F(MenuCommandsTest, OffersFollowWhatIsOnTheScreen) {
    Presentation presentation(started());
    const MenuCommands& menus = *presentation.menus();
    const QSignalSpy told(&menus, &MenuCommands::offersChanged);
    const QStringList content = {u"Select All"_s, u"Clear Selection"_s, u"Reload from Contacts"_s,
                                 u"Send…"_s};
    EXPECT_EQ(refused(menus), QStringList(u"Settings…"_s) + content) << "the terms lie over all";
    EXPECT_FALSE(menus.contentOffered());
    const std::vector<std::pair<std::function<void()>, QStringList>> steps = {
        {[&] { model->acceptTerms(); }, {}},
        {[&] { model->alert = u"No."_s; }, content},
        {[&] { model->alert = std::nullopt; }, {}},
        {[&] { model->confirmingRun = true; }, content},
        {[&] { model->confirmingRun = false; }, {}},
        {[&] { model->runner().state = Runner::State::paused; }, {u"Ctrl+Return"_s}},
        {[&] { model->runner().state = Runner::State::running; }, {}},
    };
    for (size_t step = 0; step < steps.size(); ++step) {
        const qsizetype before = told.size();
        steps[step].first();
        EXPECT_EQ(refused(menus), steps[step].second) << step;
        EXPECT_GT(told.size(), before) << step;
    }
    const qsizetype before = told.size();
    model->selectShown();
    EXPECT_EQ(told.size(), before) << "told of nothing";
}

// Catches a key that two commands share, and an edit key taken from the text field.
TEST_F(MenuCommandsTest, EachKeyIsListenedForOnce) {
    const MenuCommands menus(open());
    QStringList heard;
    for (const QVariant& each : menus.shortcuts())
        heard += each.value<MenuEntry>().sequences();
    EXPECT_EQ(heard.join(u' ').toStdString(),
              "Ctrl+, Ctrl+Q Ctrl+W Ctrl+Shift+A Ctrl+Shift+D Ctrl+R Ctrl+Return Ctrl+Enter "
              "Ctrl+M");
}

}  // namespace

}  // namespace velmora
