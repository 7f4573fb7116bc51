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
    const QSignalSpy announced(compose.get(), &ComposeModel::messageChanged);
    const QString insertHint = u"Insert adds a first name, a note, or another version."_s;
    EXPECT_EQ(compose->hint(), insertHint);
    const QVariantList entries = ComposeModel::insertEntries();
    for (int place = 0; place < entries.size(); ++place) {
        if (!entries[place].toMap()[u"separator"_s].toBool())
            compose->insert(place);
        EXPECT_EQ(compose->hint() == insertHint, place < 3) << place;
    }
    EXPECT_EQ(compose->message(), u"{first_name}{custom_note}\n---\n"_s);
    EXPECT_EQ(compose->hint(), u"Each person always gets the same version."_s);
    EXPECT_EQ(announced.size(), 3);
    EXPECT_EQ(stored().templates[u"friends"_s], compose->message());

    compose->setMessage(QString());
    compose->insert(3);
    EXPECT_EQ(compose->message(), u"\n---\n"_s);
    model->selectGroup(QString());
    EXPECT_FALSE(compose->showsComposer());
}

// Catches a number menu that marks or chooses another number, and one rebuilt for every letter.
TEST_F(Compose, theNumberToSendFromIsChosenFromAllOfThem) {
    thread(u"+12125550102"_s, myOtherLine);
    composer();
    const QSignalSpy announced(compose.get(), &ComposeModel::senderChanged);
    compose->setMessage(u"Hello"_s);
    EXPECT_EQ(announced.size(), 0);
    EXPECT_EQ(compose->senderTitle(), displayPhone(myLine));
    const auto marked = [this] {
        QStringList numbers;
        for (const QVariant& each : compose->senderEntries())
            if (each.toMap()[u"symbol"_s] == u"checkmark"_s)
                numbers.append(each.toMap()[u"text"_s].toString());
        return numbers;
    };
    EXPECT_EQ(marked(), QStringList{displayPhone(myLine)});
    const int other = model->numbers.value().front().number == myLine ? 1 : 0;
    compose->chooseSender(other);
    EXPECT_EQ(model->config().senderNumber, myOtherLine);
    EXPECT_EQ(marked(), QStringList{displayPhone(myOtherLine)});
    EXPECT_EQ(announced.size(), 1);
    model->editConfig([](AppConfig& config) { config.senderNumber.clear(); });
    EXPECT_EQ(compose->senderTitle(), u"Choose number"_s);
}

// Catches a send section that offers what the run's state forbids or hides how it stands.
TEST_F(Compose, theSendSectionFollowsTheRun) {
    using Stage = ComposeModel::Stage;
    composer();
    EXPECT_EQ(compose->sendTitle(), u"Send"_s);
    EXPECT_FALSE(compose->canSend() || compose->showsStatus() || compose->showsActivity());
    EXPECT_EQ(compose->status(), QString());
    EXPECT_EQ(compose->progressTotal(), 1);
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
    EXPECT_TRUE(compose->locked());
    const QString before = compose->message();
    compose->setMessage(u"Too late"_s);
    compose->insert(0);
    EXPECT_EQ(compose->message(), before);

    compose->resume();
    EXPECT_EQ(compose->stage(), Stage::running);
    world.clock.advance(0.1);
    EXPECT_EQ(compose->status(), u"0 of 3 \u00B7 Sending to Ann Lee\u2026"_s);
    world.clock.advance(25);
    EXPECT_TRUE(compose->status().startsWith(u"1 of 3 \u00B7 Next in "_s))
        << compose->status().toStdString();
    EXPECT_TRUE(compose->status().endsWith(u's'));
    EXPECT_EQ(compose->progress() / compose->progressTotal(), 1.0 / 3);
    EXPECT_TRUE(compose->showsActivity());
    compose->stop();
    EXPECT_EQ(compose->stage(), Stage::stopping);
    EXPECT_FALSE(compose->showsStatus());
    ASSERT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(compose->stage(), Stage::ready);
    EXPECT_EQ(compose->status(), u"1 of 3 \u00B7 Stopped after 1 of 3."_s);
    EXPECT_TRUE(compose->showsStatus());
}

}  // namespace

}  // namespace velmora
