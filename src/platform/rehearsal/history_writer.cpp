#include "platform/rehearsal/history_writer.h"

#include <sqlite3.h>

#include <QFileInfo>
#include <QUuid>

#include "platform/rehearsal/history_schema.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// In the order of HistoryWriter::Command.
constexpr std::array commands{
    "SELECT ROWID FROM handle WHERE id = ? AND service = ?",
    "INSERT INTO handle (id, service) VALUES (?, ?)",
    "SELECT chat_id FROM chat_handle_join JOIN chat ON chat.ROWID = chat_id"
    " WHERE handle_id = ? AND style = ? ORDER BY chat_id LIMIT 1",
    "INSERT INTO chat (guid, style) VALUES (?, ?)",
    "INSERT OR IGNORE INTO chat_handle_join (chat_id, handle_id) VALUES (?, ?)",
    "INSERT INTO message (guid, text, handle_id, service, destination_caller_id, date, is_from_me,"
    " error, is_sent, is_delivered) VALUES (?, ?, ?, ?, ?, ?, ?, ?, ?, ?)",
    "INSERT INTO chat_message_join (chat_id, message_id) VALUES (?, ?)",
    "UPDATE message SET is_sent = ?, is_delivered = ? WHERE ROWID = ?",
};

std::unexpected<FileError> failure(const QString& what, sqlite3* db) {
    return std::unexpected(FileError{u"Couldn't %1 the Messages history: %2."_s.arg(
        what, QString::fromUtf8(sqlite3_errmsg(db)))});
}

std::unexpected<FileError> writeFailure(sqlite3* db) {
    return failure(u"write"_s, db);
}

int bindValue(sqlite3_stmt* statement, int position, const auto& value) {
    if (const auto* number = std::get_if<qint64>(&value))
        return sqlite3_bind_int64(statement, position, *number);
    if (const auto* text = std::get_if<QString>(&value)) {
        const QByteArray bytes = text->toUtf8();
        return sqlite3_bind_text(statement, position, bytes.constData(),
                                 static_cast<int>(bytes.size()), SQLITE_TRANSIENT);
    }
    return sqlite3_bind_null(statement, position);
}

QString freshGuid() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

qint64 numberOf(bool flag) {
    return flag ? 1 : 0;
}

}  // namespace

void HistoryWriter::Closer::operator()(sqlite3* connection) const {
    sqlite3_close_v2(connection);
}

void HistoryWriter::Closer::operator()(sqlite3_stmt* statement) const {
    sqlite3_finalize(statement);
}

HistoryWriter::Transaction::~Transaction() {
    if (db_)
        sqlite3_exec(db_.get(), "ROLLBACK", nullptr, nullptr, nullptr);
}

std::expected<void, FileError> HistoryWriter::Transaction::commit() {
    if (sqlite3_exec(db_.get(), "COMMIT", nullptr, nullptr, nullptr) != SQLITE_OK)
        return writeFailure(db_.get());
    db_.reset();
    return {};
}

std::expected<HistoryWriter, FileError> HistoryWriter::open(const QString& path) {
    if (auto folder = createPrivateFolder(QFileInfo(path).absolutePath()); !folder)
        return std::unexpected(folder.error());
    // SQLite gives the files beside it the permissions of this one, and would let everyone read it.
    if (!QFileInfo::exists(path)) {
        if (auto made = replaceFile(path, {}); !made)
            return std::unexpected(made.error());
    }
    sqlite3* connection = nullptr;
    const int opened = sqlite3_open_v2(path.toUtf8().constData(), &connection,
                                       SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    HistoryWriter writer{std::unique_ptr<sqlite3, Closer>(connection)};
    if (opened != SQLITE_OK)
        return failure(u"open"_s, connection);
    // The interface waits meanwhile.
    sqlite3_busy_timeout(connection, 250);
    // The cache holds the indexes of a large history, else bulk use crawls from page to page.
    for (const char* sql : {"PRAGMA journal_mode = WAL", "PRAGMA synchronous = NORMAL",
                            "PRAGMA cache_size = -65536", historySchema}) {
        if (sqlite3_exec(connection, sql, nullptr, nullptr, nullptr) != SQLITE_OK)
            return failure(u"open"_s, connection);
    }
    if (auto prepared = writer.prepare(); !prepared)
        return std::unexpected(prepared.error());
    return writer;
}

std::expected<void, FileError> HistoryWriter::prepare() {
    static_assert(commands.size() == commandCount);
    for (size_t index = 0; index < commands.size(); ++index) {
        sqlite3_stmt* statement = nullptr;
        if (sqlite3_prepare_v3(db_.get(), commands.at(index), -1, SQLITE_PREPARE_PERSISTENT,
                               &statement, nullptr) != SQLITE_OK)
            return failure(u"open"_s, db_.get());
        statements_.at(index).reset(statement);
    }
    return {};
}

std::expected<std::optional<qint64>, FileError> HistoryWriter::run(
    Command command, std::initializer_list<Value> values) {
    sqlite3_stmt* statement = statements_.at(command).get();
    int position = 0;
    for (const Value& value : values)
        if (bindValue(statement, ++position, value) != SQLITE_OK)
            return writeFailure(db_.get());
    const int step = sqlite3_step(statement);
    std::optional<qint64> row;
    if (step == SQLITE_ROW)
        row = sqlite3_column_int64(statement, 0);
    if (sqlite3_reset(statement) != SQLITE_OK)
        return writeFailure(db_.get());
    return row;
}

std::expected<qint64, FileError> HistoryWriter::insert(Command command,
                                                       std::initializer_list<Value> values) {
    if (const auto done = run(command, values); !done)
        return std::unexpected(done.error());
    return sqlite3_last_insert_rowid(db_.get());
}

std::expected<HistoryWriter::Transaction, FileError> HistoryWriter::begin() {
    if (sqlite3_exec(db_.get(), "BEGIN IMMEDIATE", nullptr, nullptr, nullptr) != SQLITE_OK)
        return writeFailure(db_.get());
    return Transaction(db_.get());
}

template <class Work>
std::expected<qint64, FileError> HistoryWriter::atOnce(Work work) {
    if (sqlite3_get_autocommit(db_.get()) == 0)
        return work();
    auto transaction = begin();
    if (!transaction)
        return std::unexpected(transaction.error());
    std::expected<qint64, FileError> row = work();
    if (!row)
        return row;
    if (const auto committed = transaction->commit(); !committed)
        return std::unexpected(committed.error());
    return row;
}

std::expected<qint64, FileError> HistoryWriter::add(const HistoryMessage& message,
                                                    ChatStyle style) {
    return atOnce([&] {
        const auto chat = chatRow(style, message);
        return chat ? addTo(*chat, message) : chat;
    });
}

std::expected<qint64, FileError> HistoryWriter::add(const HistoryMessage& message, qint64 chat) {
    return atOnce([&] { return addTo(chat, message); });
}

std::expected<qint64, FileError> HistoryWriter::addTo(qint64 chat, const HistoryMessage& message) {
    const auto handle = handleRow(message.handle, message.service);
    if (!handle)
        return handle;
    const Value line = message.line ? Value(*message.line) : Value();
    const auto row =
        insert(insertMessage, {freshGuid(), message.text, *handle, message.service, line,
                               message.date, numberOf(message.fromMe), message.error,
                               numberOf(message.sent), numberOf(message.delivered)});
    if (!row)
        return row;
    if (const auto joined = run(joinMessage, {chat, *row}); !joined)
        return std::unexpected(joined.error());
    return row;
}

std::expected<qint64, FileError> HistoryWriter::handleRow(const QString& handle,
                                                          const QString& service) {
    const auto known = run(findHandle, {handle, service});
    if (!known)
        return std::unexpected(known.error());
    return *known ? **known : insert(insertHandle, {handle, service});
}

std::expected<qint64, FileError> HistoryWriter::chatRow(ChatStyle style,
                                                        const HistoryMessage& message) {
    const auto handle = handleRow(message.handle, message.service);
    if (!handle)
        return handle;
    const auto known = run(findChat, {*handle, std::to_underlying(style)});
    if (!known)
        return std::unexpected(known.error());
    return *known ? **known : addChat(style, {message.handle}, message.service);
}

std::expected<qint64, FileError> HistoryWriter::addChat(ChatStyle style, const QStringList& handles,
                                                        const QString& service) {
    return atOnce([&]() -> std::expected<qint64, FileError> {
        const QString guid = style == ChatStyle::group || handles.isEmpty()
                                 ? service + u";+;chat"_s + freshGuid()
                                 : service + u";-;"_s + handles.front();
        const auto chat = insert(insertChat, {guid, std::to_underlying(style)});
        if (!chat)
            return chat;
        for (const QString& each : handles) {
            const auto handle = handleRow(each, service);
            if (!handle)
                return handle;
            if (const auto joined = run(joinHandle, {*chat, *handle}); !joined)
                return std::unexpected(joined.error());
        }
        return chat;
    });
}

std::expected<void, FileError> HistoryWriter::setFlags(qint64 message, bool sent, bool delivered) {
    const auto done = run(updateFlags, {numberOf(sent), numberOf(delivered), message});
    if (!done)
        return std::unexpected(done.error());
    return {};
}

}  // namespace velmora
