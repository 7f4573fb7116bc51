#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/window/presentation.h"

namespace velmora {

namespace {

using MenuCommandsTest = AppHome;

// Catches a command that reaches under a sheet or the alert, a test text before the terms are
// accepted, a key that two things claim, in a pause or at all, or that is taken from a text field;
// a bar that is not told, or told of nothing.
TEST_F(MenuCommandsTest, OffersFollowWhatIsOnTheScreen) {
    Presentation presentation(started());
    const MenuCommands& menus = *presentation.menus();
    const QSignalSpy told(&menus, &MenuCommands::offersChanged);
    const auto heard = [&menus] {
        QStringList keys;
        for (const QVariant& each : menus.shortcuts()) {
            const auto place = static_cast<qsizetype>(each.value<MenuEntry>().command);
            const auto offer = menus.offers().value(place).value<MenuEntry>();
            if (offer.enabled)
                keys += offer.sequences();
        }
        return keys.join(u' ').toStdString();
    };
    EXPECT_EQ(heard(), "Ctrl+Q Ctrl+W Ctrl+M") << "the terms lie over all";
    const std::string covered = "Ctrl+, Ctrl+Q Ctrl+W Ctrl+M";
    const std::string paused = "Ctrl+, Ctrl+Q Ctrl+W Ctrl+Shift+A Ctrl+Shift+D Ctrl+R Ctrl+M";
    const std::string all =
        "Ctrl+, Ctrl+Q Ctrl+W Ctrl+Shift+A Ctrl+Shift+D Ctrl+R Ctrl+Return Ctrl+Enter Ctrl+M";
    const std::vector<std::pair<std::function<void()>, std::string>> steps = {
        {[&] { model->acceptTerms(); }, all},
        {[&] { model->alert = u"No."_s; }, covered},
        {[&] { model->alert = std::nullopt; }, all},
        {[&] { model->confirmingRun = true; }, covered},
        {[&] { model->confirmingRun = false; }, all},
        {[&] { model->runner().state = Runner::State::paused; }, paused},
        {[&] { model->runner().state = Runner::State::running; }, all},
    };
    for (size_t step = 0; step < steps.size(); ++step) {
        const qsizetype before = told.size();
        steps[step].first();
        EXPECT_EQ(heard(), steps[step].second) << step;
        EXPECT_EQ(menus.contentOffered(), steps[step].second != covered) << step;
        EXPECT_GT(told.size(), before) << step;
    }
    const qsizetype before = told.size();
    model->setSelected(u"ann"_s, true);
    EXPECT_EQ(told.size(), before);
}

}  // namespace

}  // namespace velmora
