#pragma once

#include <QString>
#include <QStringList>
#include <array>
#include <expected>
#include <initializer_list>
#include <memory>
#include <optional>
#include <variant>

#include "storage/files.h"

struct sqlite3;
struct sqlite3_stmt;

namespace velmora {

using namespace Qt::StringLiterals;

/// A message as Messages keeps it.
struct HistoryMessage {
    QString handle;  ///< the other party's phone number or address
    QString service = u"iMessage"_s;
    /// The user's own number or address; NULL when absent.
    std::optional<QString> line = std::nullopt;
    qint64 date = 0;  ///< nanoseconds since 2001-01-01 00:00:00 UTC
    bool fromMe = true;
    qint64 error = 0;  ///< 0 is none
    bool sent = false;
    bool delivered = false;
    QString text = u""_s;
};

/// The styles of a conversation, with the numbers that the history stores.
enum class ChatStyle : qint64 { group = 43, oneToOne = 45 };

/// Writes a Messages history the way the Messages application does, over a connection of its own,
/// so that others read meanwhile. Statements stay prepared: a million messages are fine in one
/// Transaction.
class HistoryWriter {
  public:
    /// Many changes made at once. Taken back when it is dropped without a commit.
    class Transaction {
      public:
        Transaction(Transaction&&) noexcept = default;
        Transaction& operator=(Transaction&&) = delete;
        ~Transaction();

        [[nodiscard]] std::expected<void, FileError> commit();

      private:
        friend class HistoryWriter;

        struct Forget {
            void operator()(sqlite3*) const {}
        };

        explicit Transaction(sqlite3* db) : db_(db) {}

        std::unique_ptr<sqlite3, Forget> db_;
    };

    /// Opens the history and makes the folders, the file, the tables and the indexes that are
    /// missing. An existing history may hold further tables and columns.
    [[nodiscard]] static std::expected<HistoryWriter, FileError> open(const QString& path);

    /// Adds the message to a conversation of that style with its handle, made when there is none.
    /// Returns the message's row id.
    [[nodiscard]] std::expected<qint64, FileError> add(const HistoryMessage& message,
                                                       ChatStyle style = ChatStyle::oneToOne);

    /// Adds the message to the conversation `chat`. Returns the message's row id.
    [[nodiscard]] std::expected<qint64, FileError> add(const HistoryMessage& message, qint64 chat);

    /// Makes a new conversation with `handles` and returns its row id.
    [[nodiscard]] std::expected<qint64, FileError> addChat(ChatStyle style,
                                                           const QStringList& handles,
                                                           const QString& service);

    /// Sets what has become of the message with the row id `message`.
    [[nodiscard]] std::expected<void, FileError> setFlags(qint64 message, bool sent,
                                                          bool delivered);

    /// Begins a transaction that holds every change until it is committed. They do not nest.
    [[nodiscard]] std::expected<Transaction, FileError> begin();

  private:
    enum Command {
        findHandle,
        insertHandle,
        findChat,
        insertChat,
        joinHandle,
        insertMessage,
        joinMessage,
        updateFlags,
        commandCount
    };
    using Value = std::variant<std::monostate, qint64, QString>;

    struct Closer {
        void operator()(sqlite3* connection) const;
        void operator()(sqlite3_stmt* statement) const;
    };

    explicit HistoryWriter(std::unique_ptr<sqlite3, Closer> db) : db_(std::move(db)) {}

    [[nodiscard]] std::expected<void, FileError> prepare();
    [[nodiscard]] std::expected<std::optional<qint64>, FileError> run(
        Command command, std::initializer_list<Value> values);
    [[nodiscard]] std::expected<qint64, FileError> insert(Command command,
                                                          std::initializer_list<Value> values);
    [[nodiscard]] std::expected<qint64, FileError> handleRow(const QString& handle,
                                                             const QString& service);
    [[nodiscard]] std::expected<qint64, FileError> chatRow(ChatStyle style,
                                                           const HistoryMessage& message);
    [[nodiscard]] std::expected<qint64, FileError> addTo(qint64 chat,
                                                         const HistoryMessage& message);
    template <class Work>
    [[nodiscard]] std::expected<qint64, FileError> atOnce(Work work);

    std::unique_ptr<sqlite3, Closer> db_;
    std::array<std::unique_ptr<sqlite3_stmt, Closer>, commandCount> statements_;
};

}  // namespace velmora
