#include "app_home.h"

namespace velmora {
namespace {

class Run : public AppHome {
  protected:
    /// Friends with Ann and Bob checked and a message of two versions.
    AppModel& ready() {
        withFriends().setCurrentTemplate(
            u"Hi {first_name}{custom_note}\n---\nHey {first_name}!{custom_note}"_s);
        model->setSelection({u"ann"_s, u"bob"_s});
        return *model;
    }

    void request() {
        model->requestRun();
        world.clock.advance(0);
    }

    [[nodiscard]] QStringList names(const QString& batch) const {
        QStringList all;
        for (const LogEntry& each : logged(batch))
            all.append(each.name + u' ' + each.status);
        return all;
    }

    /// Whom Messages was given which text, in order.
    [[nodiscard]] QStringList textsInMessages() const {
        auto history = MessagesDB::open(home.historyPath()).value();
        const auto rows = history.query(
            u"SELECT id || ' ' || text FROM message JOIN handle ON handle.ROWID = handle_id"
            " WHERE text != '' ORDER BY message.ROWID"_s,
            {});
        QStringList all;
        for (const auto& row : rows.value())
            all.append(std::get<QString>(row.at(0)));
        return all;
    }
};

// Catches a break anywhere on a text's way, another's text or note, someone texted twice, and a
// rename that lets that happen.
TEST_F(Run, GoesFromTheListToTheLogAndNeverTextsAnyoneTwice) {
    ready().setNote(u"bob"_s, u"see you"_s);
    model->setNote(u"joanne"_s, u"and Max"_s);
    EXPECT_EQ(model->exampleRecipient()->id, u"ann"_s);
    request();
    EXPECT_TRUE(model->confirmingRun);
    const QString first = model->batchName;
    model->confirmRun();
    EXPECT_FALSE(model->confirmingRun);
    EXPECT_TRUE(model->runner().isActive());
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(names(first), (QStringList{u"Ann Lee sent"_s, u"Bob Stone sent"_s}));
    EXPECT_EQ(logged(first)[0].line, myLine);

    model->setSelection({u"ann"_s, u"joanne"_s});
    model->startRun();
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(names(first).mid(2), QStringList{u"Joanne sent"_s});
    EXPECT_EQ(textsInMessages(),
              (QStringList{u"+12125550101 Hey Ann!"_s, u"+12125550102 Hi Bob see you"_s,
                           u"+12125550103 Hey Joanne! and Max"_s}));

    model->batchName = u"Another"_s;
    model->loadList();
    model->setSelection({u"ann"_s, u"joanne"_s});
    model->batchName = first;
    model->confirmRun();
    EXPECT_TRUE(model->selection().isEmpty());
    EXPECT_EQ(model->alert.value(), u"Some people were already sent in the run \""_s + first +
                                        u"\", so they were unchecked. Check the list, then send "
                                        "again."_s);
    EXPECT_FALSE(model->runner().isActive());
    EXPECT_TRUE(recipient(u"ann"_s).alreadySent);
    model->selectShown();
    EXPECT_TRUE(model->selection().isEmpty());

    // As many under the other name, but not the same people.
    for (const auto& [name, id] : {std::pair(u"Bob's"_s, u"bob"_s), {u"Ann's"_s, u"ann"_s}}) {
        model->batchName = name;
        model->loadList();
        model->setSelection({id});
        model->startRun();
        EXPECT_TRUE(world.clock.runUntilIdle());
    }
    model->setSelection({u"ann"_s, u"bob"_s});
    model->loadList();
    EXPECT_EQ(model->selection(), QSet{u"bob"_s});
    model->alert = std::nullopt;
    model->batchName = u"Bob's"_s;
    model->confirmRun();
    EXPECT_FALSE(model->runner().isActive()) << "would text Ann, whom the sheet did not show";
    EXPECT_TRUE(model->alert.value().has_value());
}

// Catches a log that another program saved in a way of its own and that counts, without a word, as
// nobody having been texted.
TEST_F(Run, ALogThatDoesNotTellWhoWasTextedIsToldOnce) {
    ready();
    const QString first = model->batchName;
    SupportFolder folder(home.applicationSupport());
    const QString path = SendLog(folder, world.clock).logFile(u"Party"_s);
    writeTestFile(path, "time;batch;name;phone\n2025;Party;Ann;+12125550101\n");
    request();
    model->batchName = u"Party"_s;
    model->confirmRun();
    EXPECT_FALSE(model->runner().isActive());
    EXPECT_EQ(model->alert.value(), u"Velmora can't tell from the log "_s + path +
                                        u" who was already texted in the run \"Party\". Mend the "
                                        "file or choose another run name, or they may be texted "
                                        "again."_s);
    model->alert = std::nullopt;
    model->loadList();
    EXPECT_FALSE(model->alert.value());
    model->confirmRun();
    EXPECT_TRUE(model->runner().isActive()) << "who knows better may send";
    EXPECT_TRUE(world.clock.runUntilIdle());
    EXPECT_EQ(names(u"Party"_s).size(), 2);
    model->batchName = first;
    model->confirmRun();
    EXPECT_FALSE(model->alert.value());
    EXPECT_TRUE(world.clock.runUntilIdle());
    // The log changes after the list was loaded; the list cannot be loaded.
    for (const QString& name : {u"Later"_s, u"Unread"_s}) {
        model->batchName = name;
        name == u"Later" ? model->loadList() : home.writeContacts("{ torn");
        writeTestFile(SendLog(folder, world.clock).logFile(name), "time;batch\n");
        model->confirmRun();
        EXPECT_FALSE(model->runner().isActive()) << qPrintable(name);
        EXPECT_TRUE(model->alert.value().value_or(QString()).contains(name + u".csv"_s));
    }
    EXPECT_TRUE(model->alert.value()->contains(u"Couldn't read that list"));
}

// Catches a run that starts where it must not, or a refusal that names the wrong reason.
TEST_F(Run, IsRefusedForTheFirstReasonThatHolds) {
    withFriends().editConfig([](AppConfig& config) {
        config.senderNumber.clear();
        config.selectedGroupID.reset();
        config.maxPerRun = 1;
    });
    EXPECT_EQ(model->validationError(), u"Choose a list first."_s);
    model->selectGroup(u"friends"_s);
    EXPECT_EQ(model->validationError(), u"Choose the number you send from."_s);
    model->setSenderNumber(myLine);
    model->dbOK = false;
    EXPECT_TRUE(model->validationError()->startsWith(u"Turn on Full Disk Access"));
    model->dbOK = true;
    model->setCurrentTemplate(u"---\n \n---"_s);
    EXPECT_EQ(model->validationError(), u"The message is empty."_s);
    model->setCurrentTemplate(u"Hi"_s);
    EXPECT_EQ(model->validationError(), u"Select at least one person."_s);
    model->setSelection({u"ann"_s, u"bob"_s});
    request();
    EXPECT_EQ(model->alert.value(),
              u"You've selected 2 people, and one run sends at most 1. Uncheck some, or send the "
              "rest in a second run with the same run name."_s);
    EXPECT_FALSE(model->confirmingRun);
    model->setSelected(u"bob"_s, false);
    EXPECT_EQ(model->validationError(), std::nullopt);
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s)});
    model->loadList();
    model->setSelection({u"ann"_s});
    model->startRun();
    EXPECT_EQ(model->runner().total.value(), 0) << "without a number";
}

// Catches a request before the terms are accepted, and one or a test send that outlives its model.
TEST_F(Run, RequestsNeedTheTermsAndAModel) {
    ready().editConfig([](AppConfig& config) { config.termsAccepted.clear(); });
    request();
    EXPECT_FALSE(model->confirmingRun);
    model->acceptTerms();
    EXPECT_EQ(stored().termsAcceptedAt, world.clock.now());
    model->requestRun();
    EXPECT_FALSE(model->confirmingRun);
    model->testPhone = u"212 555 0101"_s;
    model->sendTest();
    EXPECT_TRUE(model->testing);
    model.reset();
    EXPECT_TRUE(world.clock.runUntilIdle());
}

// Catches a run whose people, number or log are changed under it.
TEST_F(Run, KeepsItsListWhileItGoes) {
    ready().startRun();
    const QString batch = model->batchName;
    model->selectGroup(allContactsID);
    model->selectShown();
    model->clearShown();
    model->setSenderNumber(myOtherLine);
    model->testPhone = u"212 555 0101"_s;
    model->sendTest();
    EXPECT_EQ(model->testResult.value(), QString());
    request();
    EXPECT_EQ(model->config().selectedGroupID, u"friends"_s);
    EXPECT_EQ(model->selection(), (QSet<QString>{u"ann"_s, u"bob"_s}));
    EXPECT_EQ(model->config().senderNumber, myLine);
    EXPECT_FALSE(model->confirmingRun);
    model->batchName = u"Another"_s;
    model->loadList();
    EXPECT_EQ(model->runner().batch.value(), batch);
    EXPECT_TRUE(world.clock.runUntilIdle());
    model->loadList();
    EXPECT_EQ(model->runner().batch.value(), u"Another"_s);
    EXPECT_TRUE(model->runner().log().empty());
}

// Catches a test that reports another line or outcome than Messages had.
TEST_F(Run, TestSendSaysWhichLineItUsed) {
    withFriends();
    const auto result = [this](const QString& phone) {
        model->testPhone = phone;
        model->sendTest();
        EXPECT_TRUE(world.clock.runUntilIdle());
        EXPECT_FALSE(model->testing);
        return model->testResult.value();
    };
    EXPECT_EQ(result(u"555 1234"_s), u"Enter a valid phone number."_s);
    EXPECT_EQ(result(u"212 555 0101"_s),
              u"Sent by iMessage from (212) 555-9999. That matches your sending number."_s);
    model->setSenderNumber(myOtherLine);
    EXPECT_TRUE(result(u"212 555 0101"_s).endsWith(u"That is NOT your sending number."));
    model->setSenderNumber(QString());
    EXPECT_TRUE(result(u"212 555 0101"_s).endsWith(u"That matches your sending number."));
    model->dbOK = false;
    EXPECT_EQ(result(u"212 555 0101"_s),
              u"Sent. Turn on Full Disk Access to see which line it used."_s);
    model->dbOK = true;
    const std::vector<std::pair<QByteArray, QString>> outcomes = {
        {R"({"error": 22})", u"Messages reported error 22. That number may not have iMessage."_s},
        {R"({"recordAfter": null})",
         u"Sent, but Messages hasn't recorded it yet. Check the thread."_s},
        {R"({"line": ""})",
         u"Sent by iMessage from an unknown line. That matches your sending number."_s},
        {R"({"scriptError": "No."})", u"No."_s}};
    for (const auto& [behaviour, sentence] : outcomes) {
        home.writeMessages(messagesOnLine(myLine, {{u"+12125550101"_s, behaviour}}));
        EXPECT_EQ(result(u"212 555 0101"_s), sentence);
    }
}

}  // namespace
}  // namespace velmora
