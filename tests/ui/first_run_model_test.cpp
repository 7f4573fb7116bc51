#include "ui/first_run_model.h"

#include "app/app_home.h"
#include "core/phone.h"

namespace velmora {

namespace {

class FirstRun : public AppHome {
  protected:
    FirstRunModel& sheets() {
        view.emplace(*model);
        return *view;
    }

    std::optional<FirstRunModel> view;
};

// Catches a sheet that says nothing was found before anyone looked, or that names a wrong time.
TEST_F(FirstRun, SaysWhenItLookedInVain) {
    open();
    EXPECT_EQ(sheets().checkedText(), QString());
    model->numbersCheckedAt = world.clock.now() + 249;
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(view->checkedText(), u"Checked at 11:04:09 AM. Still nothing found."_s);
    QLocale::setDefault(before);

    view->checkAgain();
    EXPECT_EQ(view->checkedText(), QString());
    EXPECT_TRUE(view->senderText().startsWith(u"Velmora sends through Messages"));
}

// Catches a button that stores another number than it shows, and a choice that does not close its
// sheet or is forgotten by the next look.
TEST_F(FirstRun, ChoosingANumberOrLaterEndsTheSheet) {
    thread(u"+12125550102"_s, myOtherLine);
    withFriends();
    ASSERT_TRUE(model->needsSenderSetup());
    sheets().chooseLater();
    EXPECT_FALSE(model->needsSenderSetup());
    model->skippedSenderSetup = false;
    ASSERT_EQ(view->numbers().size(), 2);
    view->chooseNumber(2);
    EXPECT_TRUE(model->needsSenderSetup());
    view->chooseNumber(1);
    EXPECT_EQ(displayPhone(stored().senderNumber), view->numbers()[1]);
    EXPECT_FALSE(model->needsSenderSetup());
}

// Catches terms that count as accepted without a choice or are not kept, and help that comes back
// although it was put off, whoever asked for it.
TEST_F(FirstRun, TermsAreKeptAndNotNowEndsTheHelp) {
    ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u".away"_s));
    started();
    EXPECT_FALSE(model->termsAccepted());
    sheets().acceptTerms();
    EXPECT_EQ(stored().termsAccepted, u"1"_s);
    EXPECT_TRUE(stored().termsAcceptedAt.has_value());
    for (const bool asked : {false, true}) {
        model->showingFDAHelp = asked;
        ASSERT_TRUE(model->needsFDAHelp());
        view->notNow();
        EXPECT_FALSE(model->needsFDAHelp());
    }
}

}  // namespace

}  // namespace velmora
