#include "history/messages_db.h"

#include <sqlite3.h>

#include <QDir>
#include <QFileInfo>
#include <algorithm>
#include <limits>

#include "history/time_limit.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using TimestampRange = std::numeric_limits<qint64>;

struct StatementCloser {
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};
using Statement = std::unique_ptr<sqlite3_stmt, StatementCloser>;

// What cannot be bound stays NULL and matches nothing.
void bind(const Statement& statement, int position, const MessagesDB::Bind& value) {
    if (const auto* text = std::get_if<QString>(&value)) {
        sqlite3_bind_text(statement.get(), position, text->toUtf8().constData(), -1,
                          SQLITE_TRANSIENT);
    } else {
        sqlite3_bind_int64(statement.get(), position, std::get<qint64>(value));
    }
}

MessagesDB::Value column(const Statement& statement, int index) {
    switch (sqlite3_column_type(statement.get(), index)) {
        case SQLITE_TEXT: {
            const unsigned char* text = sqlite3_column_text(statement.get(), index);
            const int size = sqlite3_column_bytes(statement.get(), index);
            return QString::fromUtf8(reinterpret_cast<const char*>(text), size);
        }
        case SQLITE_INTEGER:
            return static_cast<qint64>(sqlite3_column_int64(statement.get(), index));
        default:
            return std::monostate();
    }
}

MessagesDB::Row readRow(const Statement& statement) {
    const int count = sqlite3_column_count(statement.get());
    MessagesDB::Row row;
    row.reserve(count);
    for (int index = 0; index < count; ++index)
        row.push_back(column(statement, index));
    return row;
}

QString textOf(const MessagesDB::Value& value) {
    const auto* text = std::get_if<QString>(&value);
    return text != nullptr ? *text : QString();
}

qint64 integerOf(const MessagesDB::Value& value) {
    const auto* integer = std::get_if<qint64>(&value);
    return integer != nullptr ? *integer : 0;
}

QString placeholders(qsizetype count) {
    return u"?,"_s.repeated(count).chopped(1);
}

std::vector<MessagesDB::Bind> bindAll(const QStringList& texts) {
    return {texts.begin(), texts.end()};
}

}  // namespace

qint64 historyTimestamp(Moment moment) {
    const double nanoseconds = moment.seconds * 1e9;
    if (nanoseconds <= -0x1p63)
        return TimestampRange::min();
    if (nanoseconds < 0x1p63)
        return static_cast<qint64>(nanoseconds);
    return TimestampRange::max();
}

QStringList handleVariants(const QString& phone) {
    qsizetype signs = 0;
    while (signs < phone.size() && phone[signs] == u'+')
        ++signs;
    QStringList variants{phone, phone.sliced(signs)};
    if (phone.startsWith(u"+1"))
        variants.append(phone.sliced(2));
    return variants;
}

QString messagesHistoryPath(const QString& home) {
    return QDir(home).filePath(u"Library/Messages/chat.db"_s);
}

std::expected<MessagesDB, DBError> MessagesDB::open(const QString& path) {
    // SQLite waits for the other end of a pipe.
    if (const QFileInfo file(path); file.exists() && !file.isFile())
        return std::unexpected(DBError{DBError::Kind::open, u"it is no ordinary file"_s});
    sqlite3* connection = nullptr;
    const int code =
        sqlite3_open_v2(path.toUtf8().constData(), &connection, SQLITE_OPEN_READONLY, nullptr);
    MessagesDB history{std::unique_ptr<sqlite3, Closer>(connection)};
    if (code != SQLITE_OK) {
        const QString message = connection != nullptr
                                    ? QString::fromUtf8(sqlite3_errmsg(connection))
                                    : u"unknown error"_s;
        return std::unexpected(DBError{DBError::Kind::open, message});
    }
    auto probe = history.query(u"SELECT 1 FROM message LIMIT 1"_s, {});
    if (!probe)
        return std::unexpected(std::move(probe.error()));
    return history;
}

std::expected<std::vector<MessagesDB::Row>, DBError> MessagesDB::query(
    const QString& sql, const std::vector<Bind>& binds, double seconds) {
    // Where one did not end in time, others would not, and there may be one for each person.
    if (isEndless_)
        return std::unexpected(DBError{DBError::Kind::query, u"interrupted"_s});
    const TimeLimit limit(db_.get(), seconds);
    sqlite3_stmt* prepared = nullptr;
    const int prepareCode =
        sqlite3_prepare_v2(db_.get(), sql.toUtf8().constData(), -1, &prepared, nullptr);
    const Statement statement(prepared);
    if (prepareCode != SQLITE_OK)
        return std::unexpected(queryError());
    int position = 0;
    for (const Bind& value : binds)
        bind(statement, ++position, value);
    std::vector<Row> rows;
    int stepCode = sqlite3_step(statement.get());
    for (; stepCode == SQLITE_ROW; stepCode = sqlite3_step(statement.get()))
        rows.push_back(readRow(statement));
    isEndless_ = stepCode == SQLITE_INTERRUPT;
    if (stepCode != SQLITE_DONE)
        return std::unexpected(queryError());
    return rows;
}

std::expected<std::vector<NumberInfo>, DBError> MessagesDB::senderNumbers(Moment now) {
    constexpr qint64 ninetyDays = 7'776'000'000'000'000;
    const qint64 since =
        std::max(historyTimestamp(now), TimestampRange::min() + ninetyDays) - ninetyDays;
    auto rows = query(
        u"SELECT destination_caller_id, COUNT(*) FROM message\n"
        "WHERE destination_caller_id LIKE '+%' GROUP BY 1\n"
        "HAVING MAX(CASE WHEN is_from_me = 1 THEN date END) >= ?\n"
        "ORDER BY 2 DESC LIMIT 6"_s,
        {since});
    if (!rows)
        return std::unexpected(std::move(rows.error()));
    std::vector<NumberInfo> numbers;
    for (const Row& row : *rows) {
        const auto* number = std::get_if<QString>(&row.front());
        const auto* count = std::get_if<qint64>(&row.back());
        if (number != nullptr && count != nullptr)
            numbers.push_back({*number, *count});
    }
    return numbers;
}

std::expected<std::optional<ThreadInfo>, DBError> MessagesDB::thread(
    const QString& phone, const QStringList& otherHandles) {
    QStringList handles = handleVariants(phone) + otherHandles;
    for (const QString& handle : otherHandles)
        handles.append(handle.toLower());
    // SQLite takes a limited number of values. Where they take several pieces, the newest wins.
    constexpr qsizetype most = 500;
    QString columns = u"m.service, m.destination_caller_id"_s;
    if (handles.size() > most)
        columns += u", m.date"_s;
    Row newest;
    for (qsizetype first = 0; first < handles.size(); first += most) {
        const qsizetype count = std::min(most, handles.size() - first);
        auto row = newestMessage(handles.sliced(first, count), columns);
        if (!row)
            return std::unexpected(std::move(row.error()));
        if (newest.empty() || (!row->empty() && integerOf(row->back()) > integerOf(newest.back())))
            newest = std::move(*row);
    }
    if (newest.empty())
        return std::nullopt;
    return ThreadInfo{textOf(newest[0]), textOf(newest[1])};
}

std::expected<MessagesDB::Row, DBError> MessagesDB::newestMessage(const QStringList& handles,
                                                                  const QString& columns) {
    // Style 45 is a one-to-one conversation.
    const QString sql = u"SELECT "_s + columns +
                        u" FROM chat_handle_join ch\n"
                        "JOIN handle h ON h.ROWID = ch.handle_id\n"
                        "JOIN chat c ON c.ROWID = ch.chat_id AND c.style = 45\n"
                        "JOIN chat_message_join j ON j.chat_id = c.ROWID\n"
                        "JOIN message m ON m.ROWID = j.message_id\n"
                        "WHERE h.id IN ("_s +
                        placeholders(handles.size()) +
                        u") AND m.error = 0\n"
                        "ORDER BY m.date DESC LIMIT 1"_s;
    auto rows = query(sql, bindAll(handles));
    if (!rows)
        return std::unexpected(std::move(rows.error()));
    return rows->empty() ? Row() : std::move(rows->front());
}

std::expected<std::optional<SentRecord>, DBError> MessagesDB::lastSent(const QString& phone,
                                                                       qint64 since) {
    const QStringList handles = handleVariants(phone);
    const QString sql =
        u"SELECT m.service, m.destination_caller_id, m.error, m.is_sent, m.is_delivered "
        "FROM message m\n"
        "JOIN handle h ON m.handle_id = h.ROWID\n"
        "WHERE h.id IN ("_s +
        placeholders(handles.size()) +
        u") AND m.is_from_me = 1 AND m.date >= ?\n"
        "ORDER BY m.date DESC LIMIT 1"_s;
    std::vector<Bind> binds = bindAll(handles);
    binds.emplace_back(since);
    auto rows = query(sql, binds);
    if (!rows)
        return std::unexpected(std::move(rows.error()));
    if (rows->empty())
        return std::nullopt;
    const Row& newest = rows->front();
    return SentRecord{textOf(newest[0]), textOf(newest[1]), integerOf(newest[2]),
                      integerOf(newest[3]) != 0, integerOf(newest[4]) != 0};
}

void MessagesDB::Closer::operator()(sqlite3* connection) const {
    sqlite3_close(connection);
}

DBError MessagesDB::queryError() const {
    return {DBError::Kind::query, QString::fromUtf8(sqlite3_errmsg(db_.get()))};
}

}  // namespace velmora
