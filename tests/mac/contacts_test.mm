#include <gmock/gmock.h>

#include <QCoreApplication>
#include <QThread>

#include "fake_mac.h"
#include "platform/mac/doors.h"

using namespace Qt::StringLiterals;
using namespace velmora;

namespace {

using MacContacts = MacTest;

NSError* failure(NSString* sentence) {
    return [NSError errorWithDomain:@"store"
                               code:1
                           userInfo:@{NSLocalizedDescriptionKey : sentence}];
}

id phone(NSString* label, NSString* number) {
    NSMutableDictionary* values = [NSMutableDictionary dictionary];
    if (label != nil) [values setObject:label forKey:@"label"];
    [values setObject:made([CNPhoneNumber class], number == nil ? @{} : @{@"stringValue" : number})
               forKey:@"value"];
    return made([CNLabeledValue class], values);
}

id ann() {
    return made(
        [CNContact class], @{
            @"identifier" : @"A1",
            @"givenName" : @"Ann 👩‍👩‍👧",
            @"familyName" : @"Šmíd",
            @"nickname" : @"Annie",
            @"organizationName" : @"Ann & Co",
            @"phoneNumbers" : @[
                phone(CNLabelPhoneNumberMain, @"555 0101"),
                phone(CNLabelPhoneNumberMobile, @"555 0102"),
                phone(CNLabelPhoneNumberiPhone, @"555 0103"), phone(@"boat ⛵", @"555 0104"),
                phone(nil, @"555 0105"), phone(@"", nil)
            ],
            @"emailAddresses" : @[
                made([CNLabeledValue class], @{@"value" : @"ann@velmora.example"}),
                made([CNLabeledValue class], @{@"value" : @"ann@home.example"})
            ]
        });
}

const ContactRecord annAsRead{.identifier = u"A1"_s,
                              .givenName = u"Ann 👩‍👩‍👧"_s,
                              .familyName = u"Šmíd"_s,
                              .nickname = u"Annie"_s,
                              .organizationName = u"Ann & Co"_s,
                              .phoneNumbers = {{PhoneLabel::main, u"555 0101"_s},
                                               {PhoneLabel::mobile, u"555 0102"_s},
                                               {PhoneLabel::iPhone, u"555 0103"_s},
                                               {u"boat ⛵"_s, u"555 0104"_s},
                                               {{}, u"555 0105"_s},
                                               {u""_s, {}}},
                              .emailAddresses = {u"ann@velmora.example"_s, u"ann@home.example"_s}};

TEST_F(MacContacts, AreReadWholeInTheirOrder) {
    mac->contacts = @[ ann(), made([CNContact class], @{}) ];
    mac->members = @{@"G 👪" : mac->contacts, @"empty" : @[]};
    mac->groups = @[
        made([CNGroup class], @{@"identifier" : @"G1", @"name" : @"Family 👪"}),
        made([CNGroup class], @{@"identifier" : @"G2"})
    ];
    const auto source = makeMacContactSource();

    std::vector<ContactRecord> all;
    ASSERT_TRUE(
        source->enumerateContacts([&](const ContactRecord& record) { all.push_back(record); }));
    EXPECT_TRUE(mac->unified) << "linked cards come as several people";
    const std::vector<ContactRecord> expected = {annAsRead, {}};
    EXPECT_TRUE(all == expected);
    EXPECT_TRUE(source->membersOfGroup(u"G 👪"_s) == expected);
    EXPECT_EQ(mac->keys.count, 6U) << "more is read of people than is used";
    EXPECT_TRUE(source->membersOfGroup(u"empty"_s)->empty());
    EXPECT_TRUE(source->allGroups() ==
                (std::vector<GroupRecord>{{u"G1"_s, u"Family 👪"_s}, {u"G2"_s, {}}}));
}

TEST_F(MacContacts, AFailureHasTheStoresSentenceOrOneOfOurs) {
    const auto source = makeMacContactSource();
    mac->contacts = @[ ann() ];
    for (const auto& [given, shown] :
         {std::pair<NSError*, QString>{failure(@"The store is locked 🔒."),
                                       u"The store is locked 🔒."_s},
          {nil, u"The address book could not be read."_s}}) {
        mac->readFails = true;
        mac->readError = given;
        EXPECT_EQ(source->enumerateContacts([](const ContactRecord&) {}).error().description,
                  shown);
        EXPECT_EQ(source->membersOfGroup(u"G1"_s).error().description, shown);
        EXPECT_EQ(source->allGroups().error().description, shown);
        // A store may leave an error behind that it got over; the answer alone decides.
        mac->readFails = false;
        EXPECT_TRUE(source->enumerateContacts([](const ContactRecord&) {}));
        EXPECT_TRUE(source->allGroups());
    }
}

TEST_F(MacContacts, AccessIsWhatTheStatusSays) {
    const auto source = makeMacContactSource();
    const QList<ContactAccess> expected = {ContactAccess::notDetermined, ContactAccess::restricted,
                                           ContactAccess::denied, ContactAccess::authorized,
                                           ContactAccess::denied};
    for (mac->status = 0; mac->status < expected.size(); ++mac->status)
        EXPECT_EQ(source->access(), expected[mac->status]) << "status " << mac->status;
}

// The answer comes on a thread of the store's own; the task must go on on this one.
TEST_F(MacContacts, AnAnswerIsTakenOnTheMainThread) {
    struct Case {
        BOOL granted;
        NSError* error;
        bool expected;
    };
    const auto source = makeMacContactSource();
    for (const Case& each : {Case{YES, nil, true}, Case{NO, nil, false},
                             Case{YES, failure(@"No."), false}, Case{NO, failure(@"No."), false}}) {
        mac->granted = each.granted;
        mac->accessError = each.error;
        std::optional<bool> answer;
        QThread* thread = nullptr;
        source->requestAccess().then([&](bool granted) {
            thread = QThread::currentThread();
            answer = granted;
        });
        mac->answering.join();
        EXPECT_FALSE(answer) << "the task went on before this thread was free";
        QCoreApplication::processEvents();
        EXPECT_EQ(answer, each.expected) << int(each.granted) << (each.error != nil);
        EXPECT_EQ(thread, QThread::currentThread());
    }
}

TEST_F(MacContacts, ALabelIsAskedForAsThePlatformSpellsIt) {
    const auto source = makeMacContactSource();
    for (const auto& [label, word] : {std::pair{PhoneLabel::mobile, u"native mobile"_s},
                                      {PhoneLabel::iPhone, u"native iPhone"_s},
                                      {PhoneLabel::main, u"native main"_s},
                                      {u"boat ⛵"_s, u"boat ⛵"_s},
                                      {u""_s, u""_s}})
        EXPECT_EQ(source->localizedLabel(label), u"the word for "_s + word);
}

}  // namespace
