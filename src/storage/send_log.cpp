#include "storage/send_log.h"

#include <QCryptographicHash>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <iterator>
#include <optional>
#include <utility>

#include "core/fresh_id.h"
#include "storage/csv.h"
#include "storage/files.h"
#include "storage/log_time.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

enum Column : size_t { time, batch, name, phone, service, line, status, detail, columnCount };

const QString& headerLine() {
    static const QString text = u"time,batch,name,phone,service,line,status,detail\n"_s;
    return text;
}

// How many bytes a last character has of which only the first part is there, as a loss of power in
// the middle of a write leaves it.
qsizetype halfCharacterSize(const QByteArray& bytes) {
    qsizetype begin = bytes.size() - 1;
    while (begin > 0 && (bytes[begin] & 0xC0) == 0x80)
        --begin;
    const bool isHalf =
        begin >= 0 && (bytes[begin] & 0xC0) == 0xC0 && !bytes.sliced(begin).isValidUtf8();
    return isHalf ? bytes.size() - begin : 0;
}

// What has to go from the end of a torn file and what has to come there before another line, which
// would otherwise become a part of the torn one.
struct Repair {
    qsizetype surplus = 0;
    QByteArray ending;
};

Repair repairOf(const QByteArray& bytes) {
    const qsizetype surplus = halfCharacterSize(bytes);
    const QByteArray kept = bytes.chopped(surplus);
    // In another encoding it may be a whole character.
    if (!kept.isValidUtf8())
        return {0, bytes.endsWith('\n') ? "" : "\n"};
    // Every quote opens or closes, a doubled one both.
    if (kept.count('"') % 2 != 0)
        return {surplus, "\"\n"};
    return {surplus, kept.isEmpty() || kept.endsWith('\n') ? "" : "\n"};
}

// The text of a log, up to a half character at its end; nothing when it is no UTF-8.
std::optional<QString> readableText(const QByteArray& bytes) {
    const QByteArray whole = bytes.chopped(halfCharacterSize(bytes));
    return whole.isValidUtf8() ? std::optional(QString::fromUtf8(whole)) : std::nullopt;
}

// The same of the file, empty where there is none; nothing when it cannot be read.
std::optional<QString> logText(const QString& path) {
    const auto bytes = readFile(path);
    if (bytes)
        return readableText(*bytes);
    return QFile::exists(path) ? std::nullopt : std::optional(QString());
}

// The stem as it is where a file can have that name; else its beginning and what only this stem
// gives.
QString fittingStem(const QString& stem) {
    // File systems take 255 bytes: ".csv" is added to them, and ".XXXXXX" while the file is
    // replaced.
    constexpr qsizetype longest = 244;
    if (QFile::encodeName(stem).size() <= longest)
        return stem;
    const QByteArray name = QCryptographicHash::hash(stem.toUtf8(), QCryptographicHash::Sha256);
    const QString ending = u'-' + QString::fromLatin1(name.toHex().first(16));
    QString beginning = stem.left(longest);
    while (beginning.back().isHighSurrogate() ||
           QFile::encodeName(beginning).size() + ending.size() > longest)
        beginning.chop(1);
    return beginning + ending;
}

// How many entries the text can have. A row has 8 characters or more; line feeds alone are none.
qsizetype entryCount(const QString& text) {
    return std::min(text.count(u'\n'), text.size() / 8);
}

// Calls `take` with the reader at each row of the text that is an entry.
template <class Take>
void readEntryRows(const QString& text, const Take& take) {
    CSVReader rows(text);
    if (!rows.nextRow())
        return;
    while (rows.nextRow())
        if (rows.fieldCount() >= Column::columnCount)
            take(rows);
}

// The text as a string of its own, or `previous` once more: most columns repeat from row to row.
QString sharedWith(const QString& previous, QStringView text) {
    return previous == text ? previous : text.toString();
}

LogEntry entryOf(const CSVReader& row, const LogEntry& previous) {
    return {.id = freshID(),
            .time = {},
            .batch = sharedWith(previous.batch, row.field(Column::batch)),
            .name = row.field(Column::name).toString(),
            .phone = row.field(Column::phone).toString(),
            .service = sharedWith(previous.service, row.field(Column::service)),
            .line = sharedWith(previous.line, row.field(Column::line)),
            .status = sharedWith(previous.status, row.field(Column::status)),
            .detail = sharedWith(previous.detail, row.field(Column::detail))};
}

}  // namespace

void SendLog::append(const LogEntry& entry) {
    unwritten_.push_back({.path = logFile(entry.batch), .entry = entry});
    writeAll();
}

void SendLog::rewrite(const QString& batch, const std::vector<LogEntry>& entries) {
    QString text = headerLine();
    for (const LogEntry& entry : entries)
        text += csvLine(entry);
    const QString path = logFile(batch);
    std::erase_if(unwritten_, [&](const Unwritten& each) { return each.path == path; });
    // Lines that could not be read, then or now, are not among the entries.
    if (!unread_.contains(path) && logText(path) && replaceFile(path, text.toUtf8()))
        return;
    QSet<QString> lines;
    for (const LogEntry& entry : entries) {
        const QString line = csvLine(entry);
        if (!lines.contains(line))
            unwritten_.push_back({.path = path, .entry = entry, .unlessThere = true});
        lines.insert(line);
    }
    writeAll();
}

void SendLog::writeAll() {
    const std::vector<Unwritten> waiting = std::exchange(unwritten_, {});
    std::ranges::copy_if(waiting, std::back_inserter(unwritten_),
                         [](const Unwritten& each) { return !each.write(); });
}

bool SendLog::Unwritten::write() const {
    const QByteArray line = csvLine(entry).toUtf8();
    const QByteArray old = readFile(path).value_or(QByteArray());
    if (unlessThere && old.contains(line))
        return true;
    const Repair repair = repairOf(old);
    // An empty file needs the header, too: its first line is skipped when it is read.
    const bool isEmpty = QFileInfo(path).size() == repair.surplus;
    const QByteArray bytes = (isEmpty ? headerLine().toUtf8() : repair.ending) + line;
    const auto done =
        QFile::exists(path) ? appendToFile(path, bytes, repair.surplus) : replaceFile(path, bytes);
    return done.has_value();
}

std::vector<LogEntry> SendLog::load(const QString& batch) {
    writeAll();
    const QString path = logFile(batch);
    const std::optional<QString> found = logText(path);
    if (found)
        unread_.remove(path);
    else
        unread_.insert(path);
    const QString text = found.value_or(QString());
    std::vector<LogEntry> entries;
    const LogEntry none;
    entries.reserve(static_cast<size_t>(entryCount(text)));
    readEntryRows(text, [&](const CSVReader& row) {
        const auto time = parseLogTime(row.field(Column::time));
        entries.push_back(entryOf(row, entries.empty() ? none : entries.back()));
        entries.back().time = time ? *time : clock_.now();
    });
    for (const Unwritten& each : unwritten_) {
        if (each.path != path)
            continue;
        entries.push_back(each.entry);
        entries.back().id = freshID();
    }
    return entries;
}

QSet<QString> SendLog::alreadySent(const QString& batch) {
    writeAll();
    const QString path = logFile(batch);
    const QString text = logText(path).value_or(QString());
    QSet<QString> phones;
    phones.reserve(entryCount(text));
    readEntryRows(text, [&](const CSVReader& row) {
        if (isSentStatus(row.field(Column::status)))
            phones.insert(row.field(Column::phone).toString());
    });
    for (const Unwritten& each : unwritten_)
        if (each.path == path && isSentStatus(each.entry.status))
            phones.insert(each.entry.phone);
    return phones;
}

QString SendLog::logFile(const QString& batch) {
    return folder_.logs() + u'/' + fittingStem(safeFileStem(batch)) + u".csv"_s;
}

QString safeFileStem(const QString& batch) {
    QString stem;
    for (const char32_t scalar : batch.toUcs4()) {
        const bool isKept = QChar::isLetterOrNumber(scalar) || QChar::isMark(scalar) ||
                            scalar == U'-' || scalar == U'_';
        if (isKept)
            stem += QChar::fromUcs4(scalar);
        else
            stem += u'-';
    }
    while (stem.startsWith(u'-'))
        stem.remove(0, 1);
    while (stem.endsWith(u'-'))
        stem.chop(1);
    return stem.isEmpty() ? u"batch"_s : stem;
}

QString csvLine(const LogEntry& entry) {
    return formatCSV({formatLogTime(entry.time), entry.batch, entry.name, entry.phone,
                      entry.service, entry.line, entry.status, entry.detail});
}

}  // namespace velmora
