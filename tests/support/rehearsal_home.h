#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <QTemporaryDir>
#include <functional>
#include <map>
#include <memory>
#include <optional>
#include <vector>

#include "platform/rehearsal/history_writer.h"
#include "sending/script_runner.h"

namespace velmora {

using namespace Qt::StringLiterals;

/// Makes the file hold these bytes, in folders that are made for it; fails the test otherwise.
void writeTestFile(const QString& path, const QByteArray& bytes);

/// Runs `sql` on the history at `path` as some other program would, whose connection this returns.
std::unique_ptr<sqlite3, int (*)(sqlite3*)> changeHistory(const QString& path, const char* sql);

/// Passes scripts on to Messages, counts them, and lets a test look at each before.
struct WatchedScripts final : ScriptRunner {
    explicit WatchedScripts(ScriptRunner& messages) : messages(messages) {}
    [[nodiscard]] ScriptResult run(const QString& source) override {
        ++count;
        if (before)
            before(source);
        return messages.run(source);
    }

    int count = 0;
    std::function<void(const QString& source)> before;
    ScriptRunner& messages;
};

/// A home folder of the test's own, with an address book, the settings of Messages and a history.
class RehearsalHome {
  public:
    [[nodiscard]] QString path() const { return folder_.path(); }
    [[nodiscard]] QString applicationSupport() const { return folder_.filePath(u".local/share"_s); }
    [[nodiscard]] QString historyPath() const {
        return folder_.filePath(u"Library/Messages/chat.db"_s);
    }

    void writeContacts(const QByteArray& json) {
        writeTestFile(folder_.filePath(u"Library/Contacts/contacts.json"_s), json);
    }
    void writeMessages(const QByteArray& json) {
        writeTestFile(folder_.filePath(u"Library/Messages/messages.json"_s), json);
    }

    /// The history, made at the first call.
    [[nodiscard]] HistoryWriter& history();

    /// Adds a message to the history and returns its row id.
    qint64 record(const HistoryMessage& message, ChatStyle style = ChatStyle::oneToOne);

  private:
    QTemporaryDir folder_;
    std::optional<HistoryWriter> history_;
};

/// Members of a group by its identifier and name.
struct RehearsalGroup {
    QString identifier;
    QString name;
    QStringList members;
};

/// The JSON of one person with a mobile number; with an empty `phone`, without any.
[[nodiscard]] QByteArray person(const QString& identifier, const QString& givenName,
                                const QString& familyName, const QString& phone = {},
                                const QStringList& emailAddresses = {});

/// The JSON of an address book with these people (each as `person` gives it) and groups.
[[nodiscard]] QByteArray addressBook(const std::vector<QByteArray>& people,
                                     const std::vector<RehearsalGroup>& groups = {});

/// The JSON of settings of Messages whose texts leave on `line`, with what else stands under some
/// people's numbers as JSON: {{"+12125550123", R"({"iMessage": {"error": 22}})"}}.
[[nodiscard]] QByteArray messagesOnLine(const QString& line,
                                        const std::map<QString, QByteArray>& people = {});

}  // namespace velmora
