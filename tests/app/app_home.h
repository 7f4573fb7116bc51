#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QJsonDocument>
#include <QJsonValue>
#include <QLocale>
#include <QScopeGuard>

#include "app/app_model.h"
#include "platform/rehearsal/rehearsal_platform.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

namespace velmora {

using namespace Qt::StringLiterals;

inline const QString myLine = u"+12125559999"_s;
inline const QString myOtherLine = u"+12125558888"_s;

/// Has the interface speak that language as long as the answer lives.
[[nodiscard]] inline auto speaking(const QString& language) {
    const QLocale before;
    QLocale::setDefault(QLocale(language));
    return qScopeGuard([before] { QLocale::setDefault(before); });
}

/// The person with one more field.
inline QByteArray with(const QByteArray& key, const QByteArray& value, QByteArray person) {
    return person.replace("{", "{\"" + key + "\": \"" + value + "\",");
}

/// Velmora in a home of its own: Ann, Bob and Joanne in the group Friends, all on iMessage, and a
/// history that names one sending number.
class AppHome : public ::testing::Test {
  protected:
    AppHome() {
        friends({ann, joanne, bob});
        home.writeMessages(messagesOnLine(myLine));
        thread(u"+12125550101"_s, myLine);
    }

    /// Makes these people the address book, all of them in Friends.
    void friends(const std::vector<QByteArray>& people) {
        QStringList ids;
        for (const QByteArray& each : people)
            ids.append(QJsonDocument::fromJson(each)[u"identifier"].toString());
        home.writeContacts(addressBook(people, {{u"friends"_s, u"Friends"_s, ids}}));
    }

    /// Records a conversation with `phone` on `line`.
    void thread(const QString& phone, const QString& line) {
        const qint64 date = historyTimestamp(world.clock.now() + -3600);
        home.record({.handle = phone, .line = line, .date = date, .sent = true});
    }

    /// A new model over the home, as after a restart.
    AppModel& open() {
        model.reset();
        platform.emplace(makeRehearsalPlatform(world.clock, home.path()));
        model = std::make_unique<AppModel>(Doors{*platform->contacts, *platform->scripts,
                                                 *platform->accountPreferences, *platform->desktop},
                                           world.handed(),
                                           Places{platform->home, platform->applicationSupport});
        return *model;
    }

    AppModel& started() {
        open().bootstrap();
        world.clock.advance(1);
        EXPECT_TRUE(model->bootstrapped);
        return *model;
    }

    /// Started, the terms accepted and Friends chosen.
    AppModel& withFriends() {
        started().acceptTerms();
        model->selectGroup(u"friends"_s);
        return *model;
    }

    [[nodiscard]] const Recipient& recipient(const QString& id) const {
        const auto& all = model->recipients();
        const auto found = std::ranges::find(all, id, &Recipient::id);
        return all.at(static_cast<size_t>(found - all.begin()));
    }

    [[nodiscard]] QString settingsPath() const {
        return home.applicationSupport() + u"/Velmora/config.json"_s;
    }
    [[nodiscard]] AppConfig stored() const {
        SupportFolder folder(home.applicationSupport());
        return ConfigStore(folder).load();
    }

    const QByteArray ann = person(u"ann"_s, u"Ann"_s, u"Lee"_s, u"(212) 555-0101"_s);
    const QByteArray bob = person(u"bob"_s, u"Bob"_s, u"Stone"_s, u"212 555 0102"_s);
    const QByteArray joanne = person(u"joanne"_s, u"Joanne"_s, u""_s, u"212 555 0103"_s);
    RehearsalHome home;
    VirtualSurroundings world;
    std::optional<Platform> platform;
    std::unique_ptr<AppModel> model;
};

}  // namespace velmora
