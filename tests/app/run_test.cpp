#include "app_home.h"

using namespace velmora;

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

    /// Sends to everyone checked, to the end of the run.
    void send() {
        model->startRun();
        EXPECT_TRUE(world.clock.runUntilIdle());
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
    model->confirmRun();
    EXPECT_TRUE(model->runner().isActive() && !model->confirmingRun);
    EXPECT_TRUE(world.clock.runUntilIdle());
    model->setSelection({u"ann"_s, u"joanne"_s});
    send();
    model->loadList();
    QStringList logged;
    for (const LogEntry& each : model->runner().log())
        logged.append(each.name + u' ' + each.status + u' ' + each.line);
    EXPECT_EQ(logged.join(u", "_s),
              u"Ann Lee sent %1, Bob Stone sent %1, Joanne sent %1"_s.arg(myLine));
    auto history = MessagesDB::open(home.historyPath()).value();
    const auto texts = history.query(
        u"SELECT group_concat(id || ' ' || text, ', ') FROM message JOIN handle"
        " ON handle.ROWID = handle_id WHERE text != ''"_s,
        {});
    EXPECT_EQ(std::get<QString>(texts.value().at(0).at(0)),
              u"+12125550101 Hey Ann!, +12125550102 Hi Bob see you, "
              "+12125550103 Hey Joanne! and Max"_s);

    // As many under the other name, but not the same people.
    for (const auto& [name, id] : {std::pair(u"Bob's"_s, u"bob"_s), {u"Ann's"_s, u"ann"_s}}) {
        model->batchName = name;
        model->setSelection({id});
        send();
    }
    model->setSelection({u"ann"_s, u"bob"_s});
    model->loadList();
    EXPECT_EQ(model->selection(), QSet{u"bob"_s});
    model->batchName = u"Bob's"_s;
    model->confirmRun();
    EXPECT_FALSE(model->runner().isActive()) << "would text Ann, whom the sheet did not show";
    EXPECT_EQ(model->alert.value(),
              u"Some people were already sent in the run \"Bob's\", so they "
              "were unchecked. Check the list, then send again."_s);
    model->selectShown();
    EXPECT_EQ(model->selection(), (QSet{u"ann"_s, u"joanne"_s}));
}

// Catches a log that another program saved in a way of its own and that counts, without a word, as
// nobody having been texted.
TEST_F(Run, ALogThatDoesNotTellWhoWasTextedIsToldOnce) {
    ready();
    SupportFolder folder(home.applicationSupport());
    const QString path = SendLog(folder, world.clock).logFile(u"Party"_s);
    writeTestFile(path, "time;batch;name;phone\n2025;Party;Ann;+12125550101\n");
    const auto alertOfRun = [this](const QString& name) {
        model->alert = std::nullopt;
        model->batchName = name;
        model->confirmRun();
        EXPECT_NE(model->runner().isActive(), model->alert.value().has_value());
        EXPECT_TRUE(world.clock.runUntilIdle());
        return model->alert.value();
    };
    EXPECT_EQ(
        alertOfRun(u"Party"_s),
        u"Velmora can't tell from the log %1 who was already texted in the run \"Party\". Mend "
        "the file or choose another run name, or they may be texted again."_s.arg(path));
    EXPECT_FALSE(alertOfRun(u"Party"_s)) << "who knows better may send";
    model->batchName = u"Later"_s;
    model->loadList();
    writeTestFile(SendLog(folder, world.clock).logFile(u"Later"_s), "time;batch\n");
    EXPECT_TRUE(alertOfRun(u"Later"_s)) << "changed since the list was loaded";
    // The list cannot be loaded.
    home.writeContacts("{ torn");
    writeTestFile(SendLog(folder, world.clock).logFile(u"Unread"_s), "time;batch\n");
    const QString both = alertOfRun(u"Unread"_s).value_or(QString());
    EXPECT_TRUE(both.contains(u"Couldn't read that list"_s) && both.contains(u"Unread.csv"_s));
}

// Catches a run that starts where it must not or before the terms are accepted, a refusal that
// names the wrong reason, and a request or a test send that outlives its model.
TEST_F(Run, IsRefusedForTheFirstReasonThatHolds) {
    started().dbOK = false;
    model->editConfig([](AppConfig& config) {
        config.selectedGroupID.reset();
        config.senderNumber.clear();
        config.templates[u"friends"_s] = u"---\n \n---"_s;
        config.maxPerRun = 1;
    });
    request();
    EXPECT_EQ(model->alert.value(), std::nullopt) << "before the terms are accepted";
    model->acceptTerms();
    EXPECT_EQ(stored().termsAcceptedAt, world.clock.now());
    const std::vector<std::pair<QString, std::function<void()>>> reasons = {
        {u"Choose a list first."_s, [&] { model->selectGroup(u"friends"_s); }},
        {u"Choose the number you send from."_s, [&] { model->setSenderNumber(myLine); }},
        {u"Turn on Full Disk Access"_s, [&] { model->dbOK = true; }},
        {u"The message is empty."_s, [&] { model->setCurrentTemplate(u"Hi"_s); }},
        {u"Select at least one person."_s, [&] { model->setSelection({u"ann"_s, u"bob"_s}); }},
        {u"You've selected 2 people, and one run sends at most 1."_s,
         [&] { model->setSelection({u"ann"_s}); }}};
    for (const auto& [refusal, mend] : reasons) {
        request();
        EXPECT_TRUE(model->alert.value().value_or(QString()).startsWith(refusal))
            << refusal.toStdString();
        EXPECT_FALSE(model->confirmingRun);
        mend();
    }
    EXPECT_EQ(model->validationError(), std::nullopt);
    friends({person(u"ann"_s, u"Ann"_s, u"Lee"_s)});
    model->loadList();
    model->setSelection({u"ann"_s});
    model->startRun();
    EXPECT_EQ(model->runner().total.value(), 0) << "without a number";

    model->requestRun();
    EXPECT_FALSE(model->confirmingRun) << "an edit under way has not arrived yet";
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
    request();
    EXPECT_EQ(model->testResult.value(), QString());
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
    const auto result = [this](const QString& phone = u"212 555 0101"_s) {
        model->testPhone = phone;
        model->sendTest();
        EXPECT_TRUE(world.clock.runUntilIdle());
        EXPECT_FALSE(model->testing);
        return model->testResult.value();
    };
    EXPECT_EQ(result(u"555 1234"_s), u"Enter a valid phone number."_s);
    const QString sent = u"Sent by iMessage from (212) 555-9999. "_s;
    EXPECT_EQ(result(), sent + u"That matches your sending number."_s);
    model->setSenderNumber(myOtherLine);
    EXPECT_EQ(result(), sent + u"That is NOT your sending number."_s);
    model->setSenderNumber(QString());
    EXPECT_EQ(result(), sent + u"That matches your sending number."_s);
    model->dbOK = false;
    EXPECT_EQ(result(), u"Sent. Turn on Full Disk Access to see which line it used."_s);
    model->dbOK = true;
    for (const auto& [behaviour, word] : std::map<QByteArray, QString>{
             {R"({"error": 22})", u"Messages reported error 22."_s},
             {R"({"recordAfter": null})", u"Sent, but Messages hasn't recorded it yet."_s},
             {R"({"line": ""})", u"from an unknown line. That matches"_s},
             {R"({"scriptError": "No."})", u"No."_s}}) {
        home.writeMessages(messagesOnLine(myLine, {{u"+12125550101"_s, behaviour}}));
        EXPECT_TRUE(result().contains(word)) << word.toStdString();
    }
}
