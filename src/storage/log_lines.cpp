#include "storage/log_lines.h"

#include <algorithm>
#include <array>

#include "core/fresh_id.h"
#include "core/phone.h"
#include "storage/csv.h"
#include "storage/log_time.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

enum Column : size_t { time, batch, name, phone, service, line, status, detail, columnCount };

constexpr std::array<QStringView, columnCount> columnNames{
    u"time", u"batch", u"name", u"phone", u"service", u"line", u"status", u"detail"};

// How many bytes a last character has of which only the first part is there, as a loss of power in
// the middle of a write leaves it.
qsizetype halfCharacterSize(const QByteArray& bytes) {
    constexpr qsizetype longestHalf = 3;
    for (qsizetype size = 1; size <= std::min(longestHalf, bytes.size()); ++size) {
        const auto byte = static_cast<unsigned char>(bytes[bytes.size() - size]);
        if ((byte & 0xC0) == 0x80)
            continue;
        return (byte & 0xC0) == 0xC0 && !bytes.last(size).isValidUtf8() ? size : 0;
    }
    return 0;
}

bool isHeader(const CSVReader& row) {
    for (size_t column = 0; column < columnCount; ++column)
        if (row.fieldCount() <= column || row.field(column) != columnNames[column])
            return false;
    return true;
}

bool isPhone(QStringView text) {
    // A spreadsheet's 4.4770091E+11 is no number any more.
    if (text.contains(u'E', Qt::CaseInsensitive))
        return false;
    const auto isDigit = [](QChar each) { return each >= u'0' && each <= u'9'; };
    const QStringView digits = text.startsWith(u'+') ? text.sliced(1) : text;
    return (!digits.isEmpty() && std::ranges::all_of(digits, isDigit)) ||
           normalizePhone(text.toString());
}

// The text as a string of its own, or `previous` once more: most columns repeat from row to row.
QString sharedWith(const QString& previous, QStringView text) {
    return previous == text ? previous : text.toString();
}

LogEntry entryOf(const CSVReader& row, const LogEntry& previous, Moment now) {
    return {.id = freshID(),
            .time = parseLogTime(row.field(Column::time)).value_or(now),
            .batch = sharedWith(previous.batch, row.field(Column::batch)),
            .name = row.field(Column::name).toString(),
            .phone = row.field(Column::phone).toString(),
            .service = sharedWith(previous.service, row.field(Column::service)),
            .line = sharedWith(previous.line, row.field(Column::line)),
            .status = sharedWith(previous.status, row.field(Column::status)),
            .detail = sharedWith(previous.detail, row.field(Column::detail))};
}

// A line of nothing says nothing about anybody.
bool isBlank(const CSVReader& row) {
    return row.fieldCount() == 1 && row.field(0).isEmpty();
}

// Calls `take` with the reader at each row that is an entry. Whether there is nothing but these and
// the header; a last row that was cut off counts for nothing.
template <class Take>
bool readRows(const QByteArray& bytes, const Take& take) {
    const QByteArray whole = bytes.chopped(halfCharacterSize(bytes));
    if (!whole.isValidUtf8())
        return false;
    const QString text = QString::fromUtf8(whole);
    const bool isTorn = !bytes.endsWith('\n');
    CSVReader rows(text);
    bool understood = !rows.nextRow() || isHeader(rows) || (isTorn && rows.isLast());
    while (rows.nextRow()) {
        const bool isEntry = rows.fieldCount() >= Column::columnCount;
        if (isEntry)
            take(rows);
        if (isEntry ? !isPhone(rows.field(Column::phone))
                    : !isBlank(rows) && !(isTorn && rows.isLast()))
            understood = false;
    }
    return understood;
}

qsizetype lastRowOf(const QByteArray& bytes) {
    qsizetype begin = 0;
    bool isQuoted = false;
    for (qsizetype place = 0; place < bytes.size(); ++place) {
        isQuoted = isQuoted != (bytes[place] == '"');
        if (bytes[place] == '\n' && !isQuoted)
            begin = place + 1;
    }
    return begin;
}

bool beginsLikeTime(QStringView text) {
    constexpr QStringView time = u"0000-00-00T00:00:00+00:00";
    const auto fits = [](QChar is, QChar shown) {
        return shown == u'0' ? is >= u'0' && is <= u'9' : is == shown || shown == u'+';
    };
    return text.size() <= time.size() && std::ranges::equal(text, time.first(text.size()), fits);
}

// Whether the row, which has no end, is the beginning of a line of ours that names nobody.
bool isBeginning(const QByteArray& row, bool isFirst) {
    const QString text = QString::fromUtf8(row);
    CSVReader reader(text);
    return (isFirst && logHeader().startsWith(row)) ||
           (reader.nextRow() && reader.fieldCount() < Column::columnCount &&
            beginsLikeTime(reader.field(Column::time)));
}

}  // namespace

const QByteArray& logHeader() {
    static const QByteArray text = "time,batch,name,phone,service,line,status,detail\n";
    return text;
}

QString csvLine(const LogEntry& entry) {
    return formatCSV({formatLogTime(entry.time), entry.batch, entry.name, entry.phone,
                      entry.service, entry.line, entry.status, entry.detail});
}

ParsedLog parseLog(const QByteArray& bytes, Moment now) {
    ParsedLog log;
    const LogEntry none;
    log.understood = readRows(bytes, [&](const CSVReader& row) {
        const LogEntry& previous = log.entries.empty() ? none : log.entries.back();
        log.entries.push_back(entryOf(row, previous, now));
    });
    return log;
}

SentPhones parseSentPhones(const QByteArray& bytes) {
    SentPhones sent;
    sent.understood = readRows(bytes, [&sent](const CSVReader& row) {
        if (isSentStatus(row.field(Column::status)))
            insertForms(row.field(Column::phone).toString(), sent.phones);
    });
    return sent;
}

void insertForms(const QString& phone, QSet<QString>& phones) {
    phones.insert(phone);
    if (phone.startsWith(u'+'))
        return;
    for (const auto& form : {normalizePhone(phone), normalizePhone(u'+' + phone)})
        if (form)
            phones.insert(*form);
}

LogRepair repairOf(const QByteArray& bytes) {
    const qsizetype surplus = halfCharacterSize(bytes);
    const QByteArray kept = bytes.chopped(surplus);
    // In another encoding it may be a whole character.
    if (!kept.isValidUtf8())
        return {0, bytes.endsWith('\n') ? "" : "\n"};
    // Every quote opens or closes, a doubled one both.
    const bool isQuoted = kept.count('"') % 2 != 0;
    if (!isQuoted && (kept.isEmpty() || kept.endsWith('\n')))
        return {surplus, ""};
    const qsizetype begin = lastRowOf(kept);
    if (isBeginning(kept.sliced(begin), begin == 0))
        return {bytes.size() - begin, ""};
    return {surplus, isQuoted ? "\"\n" : "\n"};
}

qsizetype lastPlaceOf(const QByteArray& line, const QByteArray& bytes, qsizetype since) {
    const qsizetype start = std::clamp<qsizetype>(since, 0, bytes.size());
    const QByteArrayView part = QByteArrayView(bytes).sliced(start);
    qsizetype place = part.lastIndexOf(line);
    while (place >= 0 && start + place > 0 && bytes[start + place - 1] != '\n')
        place = place > 0 ? part.lastIndexOf(line, place - 1) : -1;
    return place < 0 ? -1 : start + place;
}

}  // namespace velmora
