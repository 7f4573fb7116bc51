#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <QDir>

#include "fake_mac.h"
#include "platform/mac/doors.h"
#include "platform/mac/native_value.h"
#include "platform/platform.h"
#include "support/virtual_clock.h"

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

using MacSystem = MacTest;

TEST_F(MacSystem, AScriptSucceedsFailsWithItsTextOrCannotBeMade) {
    using enum ScriptResult::Outcome;
    struct Case {
        bool refused;
        NSDictionary* error;
        ScriptResult::Outcome outcome;
        std::optional<QString> message;
    };
    const auto scripts = makeMacScriptRunner();
    const QString source = u"tell \"🎉\"\nsend"_s;
    for (const Case& each :
         {Case{false, nil, success, {}}, Case{true, nil, notPrepared, {}},
          Case{false, @{NSAppleScriptErrorMessage : @"Not now 🙈."}, failure, u"Not now 🙈."_s},
          Case{false, @{@"NSAppleScriptErrorNumber" : @-1728}, failure, {}},
          Case{false, @{NSAppleScriptErrorMessage : @-1728}, failure, {}}}) {
        mac->scriptIsRefused = each.refused;
        mac->scriptError = each.error;
        mac->calls.clear();
        const ScriptResult result = scripts->run(source);
        EXPECT_EQ(result.outcome, each.outcome);
        EXPECT_EQ(result.message, each.message);
        QStringList expected = {u"script "_s + source};
        if (!each.refused) expected << u"run"_s;
        EXPECT_EQ(mac->calls, expected);
    }
}

TEST_F(MacSystem, AliasesAreTextsListsAndDictionariesAndNothingElse) {
    const auto preferences = makeMacAccountPreferences();
    EXPECT_FALSE(preferences->aliases().isValid());
    EXPECT_EQ(mac->calls, QStringList{u"prefer IMD-IDS-Aliases of com.apple.madrid"_s});

    mac->preference = @{@"selectedAliases" : @[ @"+1555", @7, @[ @"🙂" ] ], @"allAliases" : @[]};
    const QVariantMap aliases{{u"selectedAliases"_s, QVariantList{u"+1555"_s, QVariant(),
                                                                  QVariant(QVariantList{u"🙂"_s})}},
                              {u"allAliases"_s, QVariantList()}};
    EXPECT_EQ(preferences->aliases(), QVariant(aliases));
    EXPECT_EQ(valueOf(@""), QVariant(QString()));
    for (id other : { (id) @7, (id) @{@7 : @"seven"}, (id)[NSDate date], (id)nil })
        EXPECT_FALSE(valueOf(other).isValid()) << [[other description] UTF8String];
}

TEST_F(MacSystem, TheWorkspaceOpensTheseAddresses) {
    const auto desktop = makeMacDesktop();
    desktop->openPrivacyPane(PrivacyPane::contacts);
    desktop->openPrivacyPane(PrivacyPane::fullDiskAccess);
    desktop->openPage(ProductPage::terms);
    desktop->openPage(ProductPage::safeguards);
    desktop->openMessages();
    mac->hasMessages = false;
    desktop->openMessages();
    const QString privacy = u"open x-apple.systempreferences:com.apple.preference.security?"_s;
    EXPECT_EQ(mac->calls,
              (QStringList{privacy + u"Privacy_Contacts"_s, privacy + u"Privacy_AllFiles"_s,
                           u"open https://velmora.example/terms"_s,
                           u"open https://velmora.example/safeguards"_s,
                           u"look for com.apple.MobileSMS"_s, u"start file:///Messages.app"_s,
                           u"look for com.apple.MobileSMS"_s}));
}

TEST_F(MacSystem, AnActivityKeepsTheComputerAwakeUntilItsEnd) {
    auto activity = makeMacDesktop()->beginActivity(u"Sending 📨"_s);
    EXPECT_EQ(mac->calls, QStringList{u"begin ffffff Sending 📨"_s});
    activity.reset();
    EXPECT_EQ(mac->calls.value(1), u"end Sending 📨");
    EXPECT_EQ(mac->calls.size(), 2);
}

TEST_F(MacSystem, OnlyAReasonToQuitTellsThatTheSessionEnds) {
    const auto desktop = makeMacDesktop();
    EXPECT_FALSE(desktop->sessionEnds()) << "there is no event";
    mac->eventAttribute = 'addr';
    EXPECT_FALSE(desktop->sessionEnds()) << "the event has no reason";
    mac->eventAttribute = 'why?';
    EXPECT_TRUE(desktop->sessionEnds());
}

// This process is the one of number 1.
TEST_F(MacSystem, TheDoorbellBringsAnotherOfThisBundleForward) {
    struct Case {
        NSString* bundle;
        NSArray* processes;
        int comesForward;
        bool rang;
        QStringList activated;
    };
    const auto doorbell = makeMacDoorbell();
    for (const Case& each : {Case{nil, @[ @2 ], 2, false, {}}, Case{@"v", @[ @1 ], 1, false, {}},
                             Case{@"v", @[ @1, @2, @3 ], 2, true, {u"activate 2"_s}},
                             Case{@"v", @[ @2 ], 0, false, {u"activate 2"_s}}}) {
        NSMutableArray* processes = [NSMutableArray array];
        for (NSNumber* number in each.processes)
            [processes addObject:made([NSRunningApplication class], @{@"number" : number})];
        mac->bundle = each.bundle;
        mac->processes = processes;
        mac->comesForward = each.comesForward;
        mac->calls.clear();
        EXPECT_EQ(doorbell->ring(u""_s), each.rang);
        EXPECT_EQ(mac->calls.filter(u"activate"_s), each.activated);
        EXPECT_EQ(mac->calls.filter(u"running"_s).size(), each.bundle == nil ? 0 : 1);
    }
}

TEST_F(MacSystem, ThePlatformHasEveryDoorAndTheUsersFolders) {
    VirtualClock clock(Moment{});
    const Platform platform = makePlatform(clock);
    EXPECT_TRUE(platform.contacts && platform.scripts && platform.accountPreferences &&
                platform.desktop && platform.doorbell);
    EXPECT_EQ(platform.home, QDir::homePath());
    EXPECT_EQ(platform.applicationSupport, u"/Users/ann/Library/Application Support");
    EXPECT_EQ(qgetenv("QV4_FORCE_INTERPRETER"), "1");
    mac->hasFolders = false;
    EXPECT_EQ(makePlatform(clock).applicationSupport, QString());
}

}  // namespace
