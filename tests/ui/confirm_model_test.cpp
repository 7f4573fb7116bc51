#include "ui/confirm_model.h"

#include <limits>

#include "app/app_home.h"
#include "ui/run_display.h"

namespace velmora {

namespace {

using Confirm = AppHome;

// Catches a sheet that confirms another run than the one that starts.
TEST_F(Confirm, theSheetShowsTheRunThatWouldStart) {
    withFriends().setSenderNumber(myLine);
    ConfirmModel confirm(*model);
    model->setSelection({u"joanne"_s, u"bob"_s});
    model->setCurrentTemplate(u"Hi {first_name}"_s);
    EXPECT_EQ(confirm.title(), u"Send to 2 people?"_s);
    EXPECT_EQ(confirm.exampleCaption(), u"Example for Bob Stone"_s);
    EXPECT_EQ(confirm.exampleText(), u"Hi Bob"_s);
    EXPECT_EQ(confirm.from(), u"(212) 555-9999"_s);
    EXPECT_EQ(confirm.runName(), u"Friends 2025-03-14"_s);

    confirm.setRunName(u"Party "_s);
    model->confirmingRun = true;
    confirm.cancel();
    EXPECT_FALSE(model->confirmingRun || model->runner().isActive());
    model->confirmingRun = true;
    confirm.startSending();
    EXPECT_FALSE(model->confirmingRun);
    EXPECT_EQ(model->runner().batch.value(), u"Party "_s);
    EXPECT_EQ(model->runner().total, 2);
}

// Catches rounding instead of cutting, and a delay that no whole number can hold.
TEST(RunDisplay, thePaceIsCutToWholeSecondsWhereThereAreAny) {
    const auto pace = [](double from, double to) {
        AppConfig config;
        config.delayMin = from;
        config.delayMax = to;
        return paceLine(config);
    };
    EXPECT_EQ(pace(45.9, 120), u"45 to 120 seconds apart"_s);
    EXPECT_EQ(pace(-0.5, -1.5), u"0 to -1 seconds apart"_s);
    EXPECT_EQ(pace(0x1p63, std::numeric_limits<double>::infinity()),
              u"9223372036854776000 to inf seconds apart"_s);
    EXPECT_EQ(confirmTitle(1), u"Send to 1 person?"_s);
}

}  // namespace

}  // namespace velmora
