#pragma once

#include <gtest/gtest.h>

#include <memory>

#include "platform/rehearsal/messages_application.h"
#include "sending/runner.h"
#include "sending/send_outcome.h"
#include "storage/files.h"
#include "storage/log_lines.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

namespace velmora {

using namespace Qt::StringLiterals;

/// Counts the activities that are held right now.
struct CountedActivities final : ActivitySource {
    struct Held final : Activity {
        explicit Held(int& held) : held(held) { ++held; }
        ~Held() override { --held; }
        int& held;
    };
    [[nodiscard]] std::unique_ptr<Activity> beginActivity(const QString& reason) override {
        EXPECT_EQ(reason, u"Sending your messages"_s);
        return std::make_unique<Held>(held);
    }

    int held = 0;
};

/// A runner with everything that it works with, at 11 in the morning. Texts leave on `line`, the
/// chosen sending number, and are confirmed within 2 seconds, unless `messages` says otherwise.
struct SendingWorld {
    using State = Runner::State;

    static inline const QString line = u"+15550100001"_s;
    static inline const QString batch = u"Spring Party"_s;

    SendingWorld() {
        config.senderNumber = line;
        messages({});
        static_cast<void>(home.history());
    }

    /// What Messages does with the texts to some people, by their numbers, as JSON.
    void messages(const std::map<int, QByteArray>& behaviours) {
        std::map<QString, QByteArray> people;
        for (const auto& [n, json] : behaviours)
            people[phone(n)] = json;
        home.writeMessages(messagesOnLine(line, people));
    }

    [[nodiscard]] static QString phone(int n) { return u"+1555020%1"_s.arg(n, 4, 10, QChar(u'0')); }

    [[nodiscard]] static std::vector<Runner::Item> people(int count) {
        std::vector<Runner::Item> items;
        for (int n = 0; n < count; ++n)
            items.push_back({u"Person %1"_s.arg(n), phone(n), u"Hello \"%1\"\n\\o/"_s.arg(n)});
        return items;
    }

    /// Has a line of the n-th person stand in the log since `secondsAgo`.
    void store(int n, const QString& status, double secondsAgo = 0) {
        const Moment time = clock().now() + -secondsAgo;
        sendLog.append({{}, time, batch, {}, phone(n), u"kept"_s, {}, status, u"detail"_s});
    }

    void start(int count, const QString& name = batch) {
        runner->start(name, people(count), config);
    }

    /// Lets the time pass until the run waits for the user or has ended.
    void settle() { EXPECT_TRUE(clock().runUntilIdle(1e5)); }

    /// Lets the run go on until it waits for the user, for this reason.
    void expectPaused(const QString& reason) {
        settle();
        EXPECT_EQ(runner->state.value(), State::paused);
        EXPECT_EQ(runner->message.value(), reason);
        EXPECT_FALSE(runner->nextIn.value());
    }

    /// Lets the run go on until it has ended, with this summary.
    void expectDone(const QString& summary) {
        settle();
        EXPECT_EQ(runner->state.value(), State::done);
        EXPECT_EQ(runner->message.value(), summary);
        EXPECT_FALSE(runner->current.value() || runner->nextIn.value());
        EXPECT_EQ(activities.held, 0);
    }

    /// The lines of the log, without what the test did not choose; "me" is `line`.
    [[nodiscard]] QStringList outcomes() const {
        QStringList lines;
        for (const LogEntry& each : runner->log())
            lines += each.status + u'|' + each.service + u'|' +
                     (each.line == line ? u"me"_s : each.line) + u'|' + each.detail;
        return lines;
    }

    [[nodiscard]] QByteArray file() {
        return readFile(sendLog.logFile(batch)).value_or("(unreadable)");
    }

    /// The file that the displayed log would make.
    [[nodiscard]] QByteArray displayed() const {
        QByteArray bytes = logHeader();
        for (const LogEntry& entry : runner->log())
            bytes += csvLine(entry).toUtf8();
        return bytes;
    }

    [[nodiscard]] std::unique_ptr<Runner> makeRunner(const QString& historyPath) {
        return std::make_unique<Runner>(
            Runner::Tools{sender, activities, sendLog, historyPath, surroundings.handed()});
    }

    [[nodiscard]] VirtualClock& clock() { return surroundings.clock; }

    VirtualSurroundings surroundings;
    RehearsalHome home;
    MessagesApplication rehearsal{surroundings.clock, home.path()};
    WatchedScripts scripts{rehearsal};
    CountedActivities activities;
    SupportFolder folder{home.applicationSupport()};
    SendLog sendLog{folder, surroundings.clock};
    MessageSender sender{scripts};
    AppConfig config;
    std::unique_ptr<Runner> runner = makeRunner(home.historyPath());
};

}  // namespace velmora
