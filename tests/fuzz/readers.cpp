#include "fuzz/readers.h"

#include <QFile>
#include <QJsonDocument>
#include <QTemporaryDir>

#include "compose/template_renderer.h"
#include "core/phone.h"
#include "history/account_preferences.h"
#include "history/messages_db.h"
#include "platform/rehearsal/address_book.h"
#include "platform/rehearsal/messages_settings.h"
#include "platform/rehearsal/script_parser.h"
#include "sending/message_sender.h"
#include "storage/config_store.h"
#include "storage/csv.h"
#include "storage/files.h"
#include "storage/log_lines.h"
#include "storage/log_time.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

void must(bool holds, const char* what) {
    if (!holds)
        qFatal("%s", what);
}

/// A home whose file at `path` holds the bytes; the next call replaces it.
QString homeWith(const QString& path, const QByteArray& bytes) {
    static const QTemporaryDir home;
    QFile::remove(home.filePath(path));
    must(replaceFile(home.filePath(path), bytes).has_value(), "the input cannot be written");
    return home.path();
}

void readSettings(const QByteArray& bytes) {
    const auto config = decodeConfig(bytes);
    const auto json = config ? encodeConfig(*config) : std::nullopt;
    must(!json || decodeConfig(*json) == config, "settings change when they are saved");
}

// A carriage return by itself is written bare, and reading drops it.
QByteArray writtenLog(const ParsedLog& log) {
    QString text = QString::fromUtf8(logHeader());
    for (const LogEntry& entry : log.entries)
        text += csvLine(entry);
    return text.remove(u'\r').toUtf8();
}

void readLog(const QByteArray& bytes) {
    const ParsedLog log = parseLog(bytes, Moment{800000000});
    const SentPhones sent = parseSentPhones(bytes);
    must(sent.understood == log.understood, "a log is understood and not");
    for (const LogEntry& entry : log.entries)
        must(!isSentStatus(entry.status) || sent.phones.contains(entry.phone), "a phone is missed");
    const QByteArray again = writtenLog(log);
    must(writtenLog(parseLog(again, Moment{})) == again, "a log changes when it is written");
    const LogRepair repair = repairOf(bytes);
    const QByteArray kept = bytes.chopped(repair.surplus);
    must(repair.surplus <= 3 || kept.isEmpty() || kept.endsWith('\n'), "a repair takes too much");
    must(parseLog(kept, {}).entries.size() == log.entries.size(), "a repair takes an entry");
    const QByteArray line = "2025-03-14T11:00:00-04:00,b,n,+15550200000,s,l,sent,\n";
    const QByteArray start = kept.isEmpty() ? logHeader() : repair.ending;
    const QByteArray added = kept + start + line;
    must(!QString::fromUtf8(bytes).isValidUtf16() || !bytes.isValidUtf8() ||
             parseSentPhones(added).phones.contains(u"+15550200000"_s),
         "a torn line swallows the next");
}

void readCSV(const QByteArray& bytes) {
    auto rows = parseCSV(QString::fromUtf8(bytes));
    QString text;
    for (QStringList& fields : rows)
        text += formatCSV(fields.replaceInStrings(u"\r"_s, u"\u240d"_s));
    must(parseCSV(text) == rows, "rows change when they are written");
    for (const QStringList& fields : rows)
        must(!fields.isEmpty(), "a row has no field");
}

void readLogTimes(const QByteArray& bytes) {
    for (const QString& text : QString::fromUtf8(bytes).split(u'\n')) {
        const auto moment = parseLogTime(text);
        if (!moment)
            continue;
        const int minutes = text.mid(20, 2).toInt() * 60 + text.last(2).toInt();
        const bool isUTC = text.endsWith(u'Z');
        const int offset = isUTC ? 0 : text[19] == u'-' ? -minutes : minutes;
        must(text.size() == (isUTC ? 20 : 25), "what is no time is read as one");
        // At the ends of time an offset leads beyond the years that are written.
        const bool isEnd = text.startsWith(u"0001-01-01") || text.startsWith(u"9999-12-31");
        must(isEnd || formatLogTime(*moment, offset).first(19) == text.first(19), "a time moves");
    }
}

void readClockText(const QByteArray& bytes) {
    AppConfig config;
    config.quietStart = QString::fromUtf8(bytes);
    const bool outside = isOutsideSendingHours(config, Moment{763657200});
    must(minutesOfDay(config.quietStart) || !outside, "an unreadable time holds texts back");
}

void readPhone(const QByteArray& bytes) {
    const auto phone = normalizePhone(QString::fromUtf8(bytes));
    if (!phone)
        return;
    must(normalizePhone(*phone) == phone, "a phone has two forms");
    must(phone->startsWith(u'+') && phone->size() >= 9 && phone->size() <= 16, "no phone");
    static_cast<void>(displayPhone(QString::fromUtf8(bytes)));
}

void readTemplate(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    for (const QString& version : TemplateRenderer::splitVersions(text)) {
        must(!version.trimmed().isEmpty(), "a version is empty");
        const QString rendered = TemplateRenderer::renderText(version, u"Ann"_s, text);
        must(rendered.size() <= (version.size() + 1) * (text.size() + 4), "a text has grown");
    }
}

void readScript(const QByteArray& bytes) {
    const QString text = QString::fromUtf8(bytes);
    const QString phone = text.left(text.size() / 3);
    const auto read = parseMessageScript(messageScript(phone, Service::sms, text));
    must(read && read->phone == phone && read->text == text && read->service == Service::sms,
         "a text is not read back as itself");
    const auto other = parseMessageScript(text);
    must(!other || messageScript(other->phone, other->service, other->text) == text,
         "what a Mac would not take for the script is taken for it");
}

void readContacts(const QByteArray& bytes) {
    AddressBook book(homeWith(u"Library/Contacts/contacts.json"_s, bytes));
    QStringList identifiers;
    const auto read = book.enumerateContacts(
        [&identifiers](const ContactRecord& person) { identifiers.append(person.identifier); });
    must(!read || identifiers.removeDuplicates() == 0, "two people are one");
    const auto groups = book.allGroups();
    must(read.has_value() == groups.has_value(), "a book is read and not");
}

void readMessages(const QByteArray& bytes) {
    const QString path = messagesSettingsPath(homeWith(u"Library/Messages/messages.json"_s, bytes));
    const auto behaviour = readSendBehaviour(path, u"+15550200000"_s, Service::iMessage);
    must(behaviour || behaviour.error().description.endsWith(u'.'), "no sentence");
}

struct FixedPreferences final : AccountPreferences {
    explicit FixedPreferences(QVariant value) : value(std::move(value)) {}
    [[nodiscard]] QVariant aliases() const override { return value; }
    QVariant value;
};

void readAccount(const QByteArray& bytes) {
    const FixedPreferences preferences(QJsonDocument::fromJson(bytes).toVariant());
    for (const QString& alias : phoneAliases(preferences))
        must(alias.startsWith(u'+'), "an alias is no number");
}

void readHistory(const QByteArray& bytes) {
    auto history =
        MessagesDB::open(messagesHistoryPath(homeWith(u"Library/Messages/chat.db"_s, bytes)));
    if (!history)
        return;
    const auto numbers = history->senderNumbers(Moment{763657200});
    must(!numbers || numbers->size() <= 6, "too many numbers");
    static_cast<void>(history->thread(u"+15550200000"_s, {u"Ann@example.com"_s}));
    static_cast<void>(history->lastSent(u"+15550200000"_s, 0));
}

}  // namespace

const std::map<std::string, Reader>& readers() {
    static const std::map<std::string, Reader> all = {
        {"settings", readSettings}, {"log", readLog},         {"csv", readCSV},
        {"log_time", readLogTimes}, {"clock", readClockText}, {"phone", readPhone},
        {"template", readTemplate}, {"script", readScript},   {"contacts", readContacts},
        {"messages", readMessages}, {"account", readAccount}, {"history", readHistory}};
    return all;
}

}  // namespace velmora

// What libFuzzer calls; the reader is named by VELMORA_READER.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* bytes, std::size_t size) {
    static const velmora::Reader reader =
        velmora::readers().at(qgetenv("VELMORA_READER").toStdString());
    reader(QByteArray(reinterpret_cast<const char*>(bytes), static_cast<qsizetype>(size)));
    return 0;
}
