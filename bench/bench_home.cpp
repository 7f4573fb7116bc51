#include "bench_home.h"

#include <QDir>
#include <QFile>
#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <cmath>
#include <cstdlib>
#include <random>

#include "platform/rehearsal/history_writer.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "storage/config_store.h"
#include "storage/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

void require(bool done) {
    if (!done)
        qFatal("The benchmark's home folder could not be made.");
}

void writeContacts(const QString& home, int people) {
    QJsonArray contacts;
    QJsonArray members;
    for (int n = 0; n < people; ++n) {
        const QString identifier = u"person-%1"_s.arg(n);
        contacts.append(QJsonObject{
            {u"identifier"_s, identifier},
            {u"givenName"_s, u"Given%1"_s.arg((n * 7919) % people)},
            {u"familyName"_s, u"Family%1"_s.arg(n % 997)},
            {u"organizationName"_s, n % 3 == 0 ? u"Company %1"_s.arg(n % 50) : QString()},
            {u"phoneNumbers"_s, QJsonArray{QJsonObject{{u"label"_s, u"_$!<Mobile>!$_"_s},
                                                       {u"value"_s, benchPhone(n)}}}}});
        if (n % 4 == 0)
            members.append(identifier);
    }
    const QJsonArray groups{QJsonObject{
        {u"identifier"_s, u"quarter"_s}, {u"name"_s, u"Quarter"_s}, {u"members"_s, members}}};
    const QJsonDocument book(QJsonObject{{u"contacts"_s, contacts}, {u"groups"_s, groups}});
    require(createPrivateFolder(home + u"/Library/Contacts"_s).has_value());
    require(replaceFile(home + u"/Library/Contacts/contacts.json"_s, book.toJson()).has_value());
}

void writeHistory(const QString& home, int people, int messages) {
    auto history = HistoryWriter::open(messagesHistoryPath(home));
    require(history.has_value());
    auto transaction = history->begin();
    require(transaction.has_value());
    std::mt19937 random(4711);
    // A person's share of the messages falls with the inverse of the rank.
    std::exponential_distribution<double> rank(6.0);
    const qint64 now = historyTimestamp(VirtualSurroundings().clock.now());
    for (int n = 0; n < messages; ++n) {
        const double place = std::fmod(rank(random), 0.9);
        const int person = static_cast<int>(place * people);
        const bool other = random() % 10 == 0;
        const HistoryMessage message{
            .handle = benchPhone(person),
            .line = other ? u"+12125550002"_s : u"+12125550001"_s,
            .date = now - static_cast<qint64>(messages - n) * 60'000'000'000,
            .fromMe = random() % 2 == 0,
            .error = random() % 200 == 0 ? 22 : 0,
            .sent = true,
            .delivered = true,
            .text = u"Message %1"_s.arg(n)};
        require(history->add(message).has_value());
    }
    require(transaction->commit().has_value());
}

}  // namespace

QString benchPhone(int n) {
    return u"+1212%1"_s.arg(n, 7, 10, QChar(u'0'));
}

QString benchHome(int people, int messages) {
    const QString home = QDir::current().filePath(u"bench-home/%1-%2"_s.arg(people).arg(messages));
    const QString finished = home + u"/finished"_s;
    if (!QFile::exists(finished)) {
        QDir(home).removeRecursively();
        writeContacts(home, people);
        writeHistory(home, people, messages);
        require(replaceFile(finished, {}).has_value());
    }
    QDir(home + u"/.local"_s).removeRecursively();
    return home;
}

QString usedHome(int people) {
    const QString home = benchHome(people, 1'000);
    SupportFolder support(home + u"/.local/share"_s);
    AppConfig config;
    config.termsAccepted = u"1"_s;
    config.senderNumber = u"+12125550001"_s;
    config.selectedGroupID = allContactsID;
    config.quietStart = u"00:00"_s;
    config.quietEnd = u"23:59"_s;
    config.delayMin = config.delayMax = 120;
    config.templates[allContactsID] = u"Hi {first_name}, are you in?"_s;
    ConfigStore(support).save(config);
    return home;
}

BenchModel::BenchModel(const QString& home)
    : platform_(makeRehearsalPlatform(world.clock, home)),
      model_(std::make_unique<AppModel>(Doors{*platform_.contacts, *platform_.scripts,
                                              *platform_.accountPreferences, *platform_.desktop},
                                        world.handed(),
                                        Places{platform_.home, platform_.applicationSupport})) {
    model_->bootstrap();
    world.clock.advance(1);
    model_->acceptTerms();
}

}  // namespace velmora
