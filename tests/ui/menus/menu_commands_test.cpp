#include <QSignalSpy>

#include "app/app_home.h"
#include "ui/window/presentation.h"

namespace velmora {
namespace {

using MenuCommandsTest = AppHome;

// Catches a command that reaches under a sheet or the alert, a key that two things claim in a pause
// or that is taken from a text field, and a bar that is not told, or told of nothing.
TEST_F(MenuCommandsTest, OffersFollowWhatIsOnTheScreen) {
    Presentation presentation(started());
    MenuCommands& menus = *presentation.menus();
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
    const std::string all =
        "Ctrl+, Ctrl+Q Ctrl+W Ctrl+F Ctrl+Shift+A Ctrl+Shift+D Ctrl+R Ctrl+Return Ctrl+Enter "
        "Ctrl+M";
    const std::string noFind = "Ctrl+, Ctrl+Q Ctrl+W Ctrl+Shift+A Ctrl+Shift+D Ctrl+R";
    const std::string covered = noFind + " Ctrl+Return Ctrl+Enter Ctrl+M";
    EXPECT_EQ(heard(), covered) << "the terms";
    const std::vector<std::tuple<std::function<void()>, std::string, bool>> steps = {
        {[&] { model->acceptTerms(); }, all, true},
        {[&] { model->alert = u"No."_s; }, covered, false},
        {[&] { model->alert = std::nullopt; }, all, true},
        {[&] { model->confirmingRun = true; }, covered, false},
        {[&] { model->confirmingRun = false; }, all, true},
        {[&] { model->runner().state = Runner::State::paused; }, noFind + " Ctrl+M", false},
        {[&] { model->runner().state = Runner::State::idle; }, all, true},
        {[&] { model->contactsAllowed = false; }, covered, true},
        {[&] { model->contactsAllowed = true; }, all, true},
    };
    for (size_t step = 0; step < steps.size(); ++step) {
        const qsizetype before = told.size();
        const auto& [change, keys, selects] = steps[step];
        change();
        EXPECT_EQ(heard(), keys) << step;
        const auto send = menus.entriesFor(3, nullptr).constLast().value<MenuEntry>();
        EXPECT_EQ(send.keys().isEmpty(), model->runner().state == Runner::State::paused) << step;
        EXPECT_GT(told.size(), before) << step;
        model->setSelection({});
        menus.run(menus::Command::selectShown);
        EXPECT_EQ(!model->selection().isEmpty(), selects) << step;
        model->allContactsCount = 0;
        menus.run(menus::Command::reload);
        EXPECT_EQ(model->allContactsCount.value(), 3) << step;
    }
    const qsizetype before = told.size();
    model->setSelected(u"ann"_s, false);
    EXPECT_EQ(told.size(), before);
}

}  // namespace
}  // namespace velmora
