#pragma once

#include <QString>
#include <QStringList>
#include <expected>
#include <memory>
#include <optional>
#include <variant>
#include <vector>

#include "core/records.h"
#include "history/db_error.h"

struct sqlite3;

namespace velmora {

/// The history's unit of time: whole nanoseconds since 2001-01-01 00:00:00 UTC, cut toward zero. A
/// moment beyond what 64 bits hold gives the nearest end of their range; one that is no number
/// gives the latest, since which nothing was sent.
[[nodiscard]] qint64 historyTimestamp(Moment moment);

/// The forms under which the history may hold a phone: itself, without its leading "+" signs, and,
/// when it begins with "+1", without these two characters.
[[nodiscard]] QStringList handleVariants(const QString& phone);

/// Where the Messages history lies under a home folder.
[[nodiscard]] QString messagesHistoryPath(const QString& home);

/// A read-only connection to the Messages history: opened, used for a few queries, dropped. Used on
/// one thread at a time, any one.
class MessagesDB {
  public:
    using Bind = std::variant<QString, qint64>;
    /// A column: text, an integer, or neither (NULL, REAL and BLOB).
    using Value = std::variant<std::monostate, QString, qint64>;
    using Row = std::vector<Value>;

    /// Opens the file and probes that its messages can be read. Fails with Kind::open when the file
    /// is missing or may not be opened, with Kind::query when it is no history or is locked.
    [[nodiscard]] static std::expected<MessagesDB, DBError> open(const QString& path);

    /// Seconds after which a statement is interrupted; no other is tried on the connection then.
    static constexpr double longestQuery = 10;

    /// Prepares, binds, runs and finalizes one statement: all its rows. Fails with Kind::query, as
    /// every operation below, when SQLite refuses the statement or a row (a missing table, a lock,
    /// a damaged file) or is not done within `seconds`.
    [[nodiscard]] std::expected<std::vector<Row>, DBError> query(const QString& sql,
                                                                 const std::vector<Bind>& binds,
                                                                 double seconds = longestQuery);

    /// The "+" numbers that the user sent from in the 90 days before `now`, at most 6, the busiest
    /// first.
    [[nodiscard]] std::expected<std::vector<NumberInfo>, DBError> senderNumbers(Moment now);

    /// The newest message without error, sent or received, in any one-to-one chat with `phone` or
    /// one of the person's `otherHandles` (e-mail addresses). Nothing when there is none.
    [[nodiscard]] std::expected<std::optional<ThreadInfo>, DBError> thread(
        const QString& phone, const QStringList& otherHandles);

    /// The newest message that the user sent to `phone` at or after `since`, a history timestamp.
    /// Nothing when there is none.
    [[nodiscard]] std::expected<std::optional<SentRecord>, DBError> lastSent(const QString& phone,
                                                                             qint64 since);

  private:
    struct Closer {
        void operator()(sqlite3* connection) const;
    };

    explicit MessagesDB(std::unique_ptr<sqlite3, Closer> db) : db_(std::move(db)) {}

    [[nodiscard]] DBError queryError() const;
    [[nodiscard]] std::expected<Row, DBError> newestMessage(const QStringList& handles,
                                                            const QString& columns);

    std::unique_ptr<sqlite3, Closer> db_;
    bool isEndless_ = false;
};

}  // namespace velmora
