#include "ui/compose_model.h"

#include <QSignalSpy>

#include "app/app_home.h"
#include "core/phone.h"
#include "ui/activity_model.h"

namespace velmora {

namespace {

class Compose : public AppHome {
  protected:
    ComposeModel& composer() {
        withFriends().setSenderNumber(myLine);
        compose = std::make_unique<ComposeModel>(*model);
        return *compose;
    }

    void TearDown() override { compose.reset(); }

    std::unique_ptr<ComposeModel> compose;
};

// Catches inserts at the wrong place or lost, and a hint that does not follow.
TEST_F(Compose, insertsGoToTheEndAndTheHintFollows) {
    composer().setMessage(QString());
    const QString insertHint = u"Insert adds a first name, a note, or another version."_s;
    const QVariantList entries = ComposeModel::insertEntries();
    for (int place = 0; place < entries.size(); ++place) {
        if (!entries[place].toMap()[u"separator"_s].toBool())
            compose->insert(place);
        EXPECT_EQ(compose->hint() == insertHint, place < 3) << place;
    }
    EXPECT_EQ(stored().templates[u"friends"_s], u"{first_name}{custom_note}\n---\n"_s);
}

// Catches a number menu that marks or chooses another number, and one rebuilt for every letter.
TEST_F(Compose, theNumberToSendFromIsChosenFromAllOfThem) {
    thread(u"+12125550102"_s, myOtherLine);
    composer();
    const QSignalSpy announced(compose.get(), &ComposeModel::senderChanged);
    compose->setMessage(u"Hello"_s);
    EXPECT_EQ(announced.size(), 0);
    compose->chooseSender(model->numbers.value().front().number == myLine ? 1 : 0);
    EXPECT_EQ(model->config().senderNumber, myOtherLine);
    EXPECT_EQ(compose->senderTitle(), displayPhone(myOtherLine));
    EXPECT_EQ(announced.size(), 1);
    EXPECT_EQ(compose->senderEntries().value(compose->senderIndex()), displayPhone(myOtherLine));
}

// Catches a send section that offers what the run's state forbids or hides how it stands.
TEST_F(Compose, theSendSectionFollowsTheRun) {
    using Stage = ComposeModel::Stage;
    composer();
    EXPECT_FALSE(compose->canSend() || compose->showsStatus() || compose->showsActivity());
    model->selectShown();
    EXPECT_EQ(compose->sendTitle(), u"Send to 3\u2026"_s);
    model->editConfig([](AppConfig& config) { config.quietEnd = u"10:30"_s; });

    compose->requestRun();
    world.clock.advance(0);
    ASSERT_TRUE(model->confirmingRun);
    model->confirmRun();
    world.clock.advance(0.1);
    EXPECT_EQ(compose->stage(), Stage::paused);
    EXPECT_EQ(compose->status(),
              u"0 of 3 \u00B7 Outside your sending hours (10:00 to 10:30). "
              "Resume to send anyway, or stop and run later."_s);
    compose->setMessage(u"Too late"_s);
    EXPECT_NE(compose->message(), u"Too late"_s);

    compose->resume();
    EXPECT_EQ(compose->stage(), Stage::running);
    world.clock.advance(0.1);
    EXPECT_EQ(compose->status(), u"0 of 3 \u00B7 Sending to Ann Lee\u2026"_s);
    world.clock.advance(25);
    EXPECT_TRUE(compose->status().startsWith(u"1 of 3 \u00B7 Next in "_s))
        << compose->status().toStdString();
    EXPECT_EQ(compose->progress() / compose->progressTotal(), 1.0 / 3);
    EXPECT_TRUE(compose->showsActivity());
    compose->stop();
    EXPECT_EQ(compose->stage(), Stage::stopping);
    ASSERT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(compose->stage(), Stage::ready);
    EXPECT_EQ(compose->status(), u"1 of 3 \u00B7 Stopped after 1 of 3."_s);
}

}  // namespace

}  // namespace velmora
