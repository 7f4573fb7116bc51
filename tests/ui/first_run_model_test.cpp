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

// Catches a sheet that says nothing was found before anyone looked, or that names a wrong time or
// adds the date or the zone.
TEST_F(FirstRun, SaysWhenItLookedInVain) {
    open();
    EXPECT_EQ(sheets().checkedText(), QString());
    EXPECT_FALSE(view->numbersFound());
    EXPECT_TRUE(view->senderText().startsWith(u"Velmora couldn't find a number on this Mac. "));

    model->numbersCheckedAt = world.clock.now() + 249;
    EXPECT_EQ(view->checkedText(), u"Checked at 11:04:09. Still nothing found."_s);
    const QLocale before;
    QLocale::setDefault(QLocale(QLocale::English, QLocale::UnitedStates));
    EXPECT_EQ(view->checkedText(), u"Checked at 11:04:09 AM. Still nothing found."_s);
    QLocale::setDefault(before);

    view->checkAgain();
    EXPECT_TRUE(view->numbersFound());
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
    EXPECT_EQ(stored().senderNumber, QString());

    model->skippedSenderSetup = false;
    ASSERT_EQ(view->numbers().size(), 2);
    view->chooseNumber(2);
    EXPECT_TRUE(model->needsSenderSetup());
    view->chooseNumber(1);
    EXPECT_EQ(displayPhone(stored().senderNumber), view->numbers()[1]);
    EXPECT_FALSE(model->needsSenderSetup());
}

// Catches help that comes back although it was put off, whoever asked for it.
TEST_F(FirstRun, NotNowEndsTheHelp) {
    ASSERT_TRUE(QFile::rename(home.historyPath(), home.historyPath() + u".away"_s));
    started().acceptTerms();
    ASSERT_TRUE(model->needsFDAHelp());
    sheets().notNow();
    EXPECT_FALSE(model->needsFDAHelp());
    model->showingFDAHelp = true;
    ASSERT_TRUE(model->needsFDAHelp());
    view->notNow();
    EXPECT_FALSE(model->needsFDAHelp());
}

// Catches terms that count as accepted without a choice, or whose acceptance is not kept.
TEST_F(FirstRun, TermsAreAcceptedByAgreeingAlone) {
    started();
    EXPECT_FALSE(model->termsAccepted());
    sheets().acceptTerms();
    EXPECT_TRUE(model->termsAccepted());
    EXPECT_EQ(stored().termsAccepted, u"1"_s);
    EXPECT_TRUE(stored().termsAcceptedAt.has_value());
}

}  // namespace

}  // namespace velmora
