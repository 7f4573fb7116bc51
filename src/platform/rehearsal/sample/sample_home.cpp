#include "platform/rehearsal/sample/sample_home.h"

#include <QFileInfo>
#include <array>

#include "platform/rehearsal/history_writer.h"

using namespace Qt::StringLiterals;

static void makeSampleFilesKnown() {
    Q_INIT_RESOURCE(sample);
}

namespace velmora {

namespace {

constexpr QStringView firstLine = u"+12125550100";
constexpr QStringView secondLine = u"+12125550101";
constexpr QStringView addressLine = u"me@example.com";

struct Conversation {
    QStringView handle;
    QStringView line;
    double daysAgo;
    QStringView service = u"iMessage";
};

// Whoever is in the address book and not here has no conversation yet.
constexpr std::array conversations{
    Conversation{u"+12125550110", firstLine, 1},
    Conversation{u"+12125550111", firstLine, 3, u"SMS"},
    Conversation{u"+12125550112", firstLine, 2.5},
    Conversation{u"+12125550113", secondLine, 6},
    Conversation{u"+12125550114", firstLine, 12},
    Conversation{u"+12125550115", firstLine, 20},
    Conversation{u"+16465550116", firstLine, 30},
    Conversation{u"+13125550121", firstLine, 0.5},
    Conversation{u"3125550122", firstLine, 45, u"SMS"},
    Conversation{u"+46701740605", secondLine, 8},
    Conversation{u"+46701740606", secondLine, 200},
    Conversation{u"+447700900101", firstLine, 4},
    Conversation{u"+447700900102", secondLine, 15},
    Conversation{u"nikos@example.com", addressLine, 5},
    Conversation{u"+447700900105", firstLine, 60},
    Conversation{u"+447700900107", addressLine, 33},
    Conversation{u"+17185550130", firstLine, 75, u"SMS"},
    Conversation{u"+16465550140", firstLine, 9},
    Conversation{u"nora.work@example.com", firstLine, 11},
    Conversation{u"+16465550142", secondLine, 14, u"SMS"},
};

const QString settings =
    uR"json({
  "delayMax" : 4,
  "delayMin" : 2,
  "quietEnd" : "23:59",
  "quietStart" : "00:00",
  "verifyWait" : 4
}
)json"_s;

qint64 historyDate(Moment now, double daysAgo) {
    return static_cast<qint64>((now.seconds - (daysAgo * 86400)) * 1e9);
}

std::expected<void, FileError> placeSample(const QString& name, const QString& path) {
    QFile sample(u":/rehearsal/"_s + name);
    if (!sample.open(QIODevice::ReadOnly))
        return std::unexpected(FileError{sample.errorString()});
    return replaceFile(path, sample.readAll());
}

// Each conversation: a question, its answer half an hour later, and a last word.
std::expected<void, FileError> addConversation(HistoryWriter& history, const Conversation& each,
                                               Moment now) {
    const std::array words{u"Are you around this week?"_s, u"Yes, any evening."_s, u"Great!"_s};
    double daysAgo = each.daysAgo;
    for (size_t index = words.size(); index > 0; --index, daysAgo += 1.0 / 48) {
        const HistoryMessage message{.handle = each.handle.toString(),
                                     .service = each.service.toString(),
                                     .line = each.line.toString(),
                                     .date = historyDate(now, daysAgo),
                                     .fromMe = index != 2,
                                     .sent = index != 2,
                                     .delivered = index != 2,
                                     .text = words.at(index - 1)};
        if (const auto added = history.add(message); !added)
            return std::unexpected(added.error());
    }
    return {};
}

// Two people whom the user knows from a group conversation only, which is no line to answer on.
std::expected<void, FileError> addGroupConversation(HistoryWriter& history, Moment now) {
    const QStringList members{u"+447700900108"_s, u"+17185550133"_s};
    const auto chat = history.addChat(ChatStyle::group, members, u"iMessage"_s);
    if (!chat)
        return std::unexpected(chat.error());
    const auto added = history.add({.handle = members.front(),
                                    .line = firstLine.toString(),
                                    .date = historyDate(now, 3),
                                    .fromMe = false,
                                    .text = u"See you all on Sunday."_s},
                                   *chat);
    if (!added)
        return std::unexpected(added.error());
    return {};
}

std::expected<void, FileError> fillHistory(const QString& path, Moment now) {
    auto history = HistoryWriter::open(path);
    if (!history)
        return std::unexpected(history.error());
    auto transaction = history->begin();
    if (!transaction)
        return std::unexpected(transaction.error());
    for (const Conversation& each : conversations)
        if (auto added = addConversation(*history, each, now); !added)
            return added;
    if (auto added = addGroupConversation(*history, now); !added)
        return added;
    return transaction->commit();
}

}  // namespace

std::expected<void, FileError> prepareSampleHome(const QString& home, Moment now) {
    makeSampleFilesKnown();
    const QString library = home + u"/Library"_s;
    if (QFileInfo::exists(library))
        return std::unexpected(
            FileError{u"The folder %1 holds a rehearsal home already."_s.arg(home)});
    if (auto done = placeSample(u"contacts.json"_s, library + u"/Contacts/contacts.json"_s); !done)
        return done;
    if (auto done = placeSample(u"messages.json"_s, library + u"/Messages/messages.json"_s); !done)
        return done;
    if (auto done = fillHistory(library + u"/Messages/chat.db"_s, now); !done)
        return done;
    return replaceFile(home + u"/.local/share/Velmora/config.json"_s, settings.toUtf8());
}

}  // namespace velmora
