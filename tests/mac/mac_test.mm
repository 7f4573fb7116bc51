#import <AppKit/AppKit.h>
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDir>

#include "fake_mac.h"
#include "platform/mac/doors.h"
#include "platform/mac/native_text.h"
#include "platform/mac/native_value.h"
#include "platform/platform.h"
#include "support/virtual_surroundings.h"

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

/// What the address book holds, and what it is read as; none of both, and every read fails.
struct MacContacts : MacTest {
    void holds(NSArray* contacts, NSArray* groups) {
        answers["contacts"] = contacts;
        answers["unifiedContactsMatchingPredicate:keysToFetch:error:"] = contacts;
        answers["groupsMatchingPredicate:error:"] = groups;
    }
    std::expected<void, ContactsError> enumerate() {
        people.clear();
        return source->enumerateContacts(
            [&](const ContactRecord& each) { people.push_back(each); });
    }

    const std::unique_ptr<ContactSource> source = makeMacContactSource();
    std::vector<ContactRecord> people;
};
using MacSystem = MacTest;

id labeled(NSString* label, id value) {
    return made("CNLabeledValue", {{"label", label}, {"value", value}});
}

TEST_F(MacContacts, AreReadWholeInTheirOrderAndLabelledAsThePlatformDoes) {
    using Phone = std::tuple<NSString*, NSString*, std::optional<QString>>;
    NSMutableArray* numbers = [NSMutableArray array];
    answers["localizedStringForLabel:"] = @"a word";
    QList<PhoneEntry> entries;
    for (const auto& [native, number, label] :
         {Phone{CNLabelPhoneNumberMain, @"555 0101", PhoneLabel::main},
          {CNLabelPhoneNumberMobile, @"555 0102", PhoneLabel::mobile},
          {CNLabelPhoneNumberiPhone, @"555 0103", PhoneLabel::iPhone},
          {@"boat ⛵", @"555 0104", u"boat ⛵"_s},
          {@"", nil, u""_s},
          {nil, @"555 0105", {}}}) {
        [numbers addObject:labeled(native, made("CNPhoneNumber", {{"stringValue", number}}))];
        entries.append({label, textOf(number)});
        if (!label) continue;
        EXPECT_EQ(source->localizedLabel(*label), u"a word");
        EXPECT_EQ(calls.last(), u"localizedStringForLabel:"_s + textOf(native));
    }
    Answers ann = {
        {"phoneNumbers", numbers},
        {"emailAddresses", @[ labeled(@"home", @"a@b.example"), labeled(nil, @"c@d.example") ]}};
    for (const char* name :
         {"identifier", "givenName", "familyName", "nickname", "organizationName"})
        ann[name] = [NSString stringWithFormat:@"%s👪", name];
    id family = made("CNGroup", {{"identifier", @"G1"}, {"name", @"Family 👪"}});
    holds(@[ made("CNContact", ann), made("CNContact", {}) ], @[ family, made("CNGroup", {}) ]);
    answers["predicateForContactsInGroupWithIdentifier:"] = @"who is in it";
    calls.clear();
    ASSERT_TRUE(enumerate());
    const ContactRecord& read = people.front();
    EXPECT_EQ(
        (QStringList{read.identifier, read.givenName, read.familyName, read.nickname,
                     read.organizationName} +
         read.emailAddresses)
            .join(u' '),
        u"identifier👪 givenName👪 familyName👪 nickname👪 organizationName👪 a@b.example c@d.example"_s);
    EXPECT_TRUE(read.phoneNumbers == entries);
    EXPECT_TRUE(people.back() == ContactRecord{} && people.size() == 2);
    EXPECT_TRUE(source->membersOfGroup(u"G 👪"_s) == people);
    EXPECT_TRUE(source->allGroups() == (std::vector<GroupRecord>{{u"G1"_s, u"Family 👪"_s}, {}}));
    const QString keys =
        u"(givenName, familyName, nickname, organizationName, phoneNumbers, emailAddresses)"_s;
    EXPECT_EQ(
        calls,
        (QStringList{u"initWithKeysToFetch:"_s + keys, u"setUnifyResults:1"_s,
                     u"predicateForContactsInGroupWithIdentifier:G 👪"_s,
                     u"unifiedContactsMatchingPredicate:keysToFetch:error:who is in it, "_s + keys,
                     u"groupsMatchingPredicate:error:"_s}));
}

TEST_F(MacContacts, AFailureHasTheStoresSentenceOrOneOfOurs) {
    NSError* locked = [NSError errorWithDomain:@"locked 🔒" code:1 userInfo:nil];
    for (const auto& [given, shown] :
         {std::pair<NSError*, QString>{locked, textOf(locked.localizedDescription)},
          {nil, u"The address book could not be read."_s}}) {
        error = given;
        holds(nil, nil);
        EXPECT_EQ(enumerate().error().description, shown);
        EXPECT_EQ(source->membersOfGroup(u"G1"_s).error().description, shown);
        EXPECT_EQ(source->allGroups().error().description, shown);
        // A store may leave an error behind that it got over; the answer alone decides.
        holds(@[], @[]);
        EXPECT_TRUE(enumerate());
        EXPECT_TRUE(source->membersOfGroup(u"G1"_s) && source->allGroups());
    }
}

TEST_F(MacContacts, AccessIsWhatTheStatusSays) {
    using enum ContactAccess;
    const QList<ContactAccess> expected = {notDetermined, restricted, denied, authorized, denied};
    for (int status = 0; status < expected.size(); ++status) {
        answers["authorizationStatusForEntityType:"] = @(status);
        EXPECT_EQ(source->access(), expected[status]) << "status " << status;
        EXPECT_EQ(calls.last(), u"authorizationStatusForEntityType:0");
    }
}

// The answer comes on a thread of the store's own; the task must go on on this one.
TEST_F(MacContacts, AnAnswerIsTakenOnTheMainThread) {
    NSError* no = [NSError errorWithDomain:@"store" code:1 userInfo:nil];
    for (const auto& [granted, failure, expected] :
         {std::tuple<bool, NSError*, bool>{true, nil, true},
          {false, nil, false},
          {true, no, false}}) {
        answers["granted"] = @(granted);
        error = failure;
        std::optional<bool> given;
        source->requestAccess().then([&](bool allowed) { given = allowed; });
        answering.join();
        EXPECT_FALSE(given) << "the task went on before this thread was free";
        QCoreApplication::processEvents();
        EXPECT_EQ(given, expected);
    }
}

TEST_F(MacSystem, AScriptSucceedsFailsWithItsTextOrCannotBeMade) {
    using enum ScriptResult::Outcome;
    const auto scripts = makeMacScriptRunner();
    const QString source = u"tell \"🎉\"\nsend"_s;
    for (const auto& [given, outcome, message] :
         {std::tuple<id, ScriptResult::Outcome, std::optional<QString>>{nil, success, {}},
          {@{NSAppleScriptErrorMessage : @"Not now 🙈."}, failure, u"Not now 🙈."_s},
          {@{@"NSAppleScriptErrorNumber" : @-1728}, failure, {}},
          {@{NSAppleScriptErrorMessage : @-1728}, failure, {}}}) {
        error = given;
        calls.clear();
        const ScriptResult result = scripts->run(source);
        EXPECT_EQ(result.outcome, outcome);
        EXPECT_EQ(result.message, message);
        EXPECT_EQ(calls, (QStringList{u"initWithSource:"_s + source, u"executeAndReturnError:"_s}));
    }
    answers["initWithSource:"] = nil;
    EXPECT_EQ(scripts->run(source).outcome, notPrepared);
}

TEST_F(MacSystem, AliasesAreTextsListsAndDictionariesAndNothingElse) {
    const auto preferences = makeMacAccountPreferences();
    EXPECT_FALSE(preferences->aliases().isValid());
    EXPECT_EQ(calls, QStringList{u"IMD-IDS-Aliases of com.apple.madrid"_s});
    answers["aliases"] = @{@"selectedAliases" : @[ @"+1555", @7, @[ @"🙂" ] ], @"allAliases" : @[]};
    const QVariantList list{u"+1555"_s, QVariant(), QVariant(QVariantList{u"🙂"_s})};
    const QVariantMap aliases{{u"selectedAliases"_s, list}, {u"allAliases"_s, QVariantList()}};
    EXPECT_EQ(preferences->aliases(), QVariant(aliases));
    EXPECT_EQ(valueOf(@""), QVariant(QString()));
    for (id other : { (id) @7, (id) @{@7 : @"seven"}, (id)[NSDate date], (id)nil })
        EXPECT_FALSE(valueOf(other).isValid()) << [[other description] UTF8String];
}

TEST_F(MacSystem, TheDesktopOpensTheseAddressesAndKeepsAwake) {
    const auto desktop = makeMacDesktop();
    desktop->openPrivacyPane(PrivacyPane::contacts);
    desktop->openPrivacyPane(PrivacyPane::fullDiskAccess);
    desktop->openPage(ProductPage::terms);
    desktop->openPage(ProductPage::safeguards);
    desktop->openMessages();  // which is not there
    answers["URLForApplicationWithBundleIdentifier:"] = [NSURL URLWithString:@"file:///M.app"];
    desktop->openMessages();
    answers["beginActivityWithOptions:reason:"] = @"its token";
    auto activity = desktop->beginActivity(u"Sending 📨"_s);
    const QString privacy = u"openURL:x-apple.systempreferences:com.apple.preference.security?"_s;
    const QString messages = u"URLForApplicationWithBundleIdentifier:com.apple.MobileSMS"_s;
    EXPECT_EQ(calls,
              (QStringList{privacy + u"Privacy_Contacts"_s, privacy + u"Privacy_AllFiles"_s,
                           u"openURL:https://velmora.example/terms"_s,
                           u"openURL:https://velmora.example/safeguards"_s, messages, messages,
                           u"openApplicationAtURL:configuration:completionHandler:file:///M.app, "
                           "any way, "_s,
                           u"beginActivityWithOptions:reason:ffffff, Sending 📨"_s}));
    calls.clear();
    activity.reset();
    EXPECT_EQ(calls, QStringList{u"endActivity:its token"_s});
}

TEST_F(MacSystem, OnlyAReasonToQuitTellsThatTheSessionEnds) {
    const auto desktop = makeMacDesktop();
    EXPECT_FALSE(desktop->sessionEnds()) << "there is no event";
    answers["currentAppleEvent"] = made("NSAppleEventDescriptor", {});
    EXPECT_FALSE(desktop->sessionEnds()) << "the event has no reason";
    answers["attributeDescriptorForKeyword:"] = @"a reason";
    EXPECT_TRUE(desktop->sessionEnds());
    EXPECT_EQ(calls.last(), u"attributeDescriptorForKeyword:7768793f") << "it is 'why?'";
}

TEST_F(MacSystem, TheDoorbellBringsAnotherOfThisBundleForward) {
    const auto doorbell = makeMacDoorbell();
    EXPECT_FALSE(doorbell->ring(u""_s) || !calls.isEmpty()) << "this is in no bundle";
    answers["bundleIdentifier"] = @"v";
    NSMutableArray* processes = [NSMutableArray array];
    for (const auto& [process, comesForward, rang, asked] : {std::tuple{getpid(), true, false, 0},
                                                             {2, false, false, 1},
                                                             {3, true, true, 2},
                                                             {4, true, true, 2}}) {
        [processes
            addObject:made("NSRunningApplication", {{"processIdentifier", @(process)},
                                                    {"activateWithOptions:", @(comesForward)}})];
        answers["runningApplicationsWithBundleIdentifier:"] = processes;
        calls.clear();
        EXPECT_EQ(doorbell->ring(u""_s), rang);
        EXPECT_EQ(calls.first(), u"runningApplicationsWithBundleIdentifier:v");
        EXPECT_EQ(calls.count(u"activateWithOptions:1"_s), asked);
    }
}

TEST_F(MacSystem, ThePlatformHasEveryDoorAndTheUsersFolders) {
    VirtualClock clock(Moment{});
    answers["URLsForDirectory:inDomains:"] = @[];
    EXPECT_EQ(makePlatform(clock).applicationSupport, QString());
    answers["URLsForDirectory:inDomains:"] = @[ [NSURL fileURLWithPath:@"/Users/ann/Library/A S"] ];
    const Platform platform = makePlatform(clock);
    EXPECT_TRUE(platform.contacts && platform.scripts && platform.accountPreferences &&
                platform.desktop && platform.doorbell);
    EXPECT_EQ(platform.home, QDir::homePath());
    EXPECT_EQ(platform.applicationSupport, u"/Users/ann/Library/A S");
    EXPECT_EQ(calls.last(), u"URLsForDirectory:inDomains:e, 1");
    EXPECT_EQ(qgetenv("QV4_FORCE_INTERPRETER"), "1");
}

}  // namespace
