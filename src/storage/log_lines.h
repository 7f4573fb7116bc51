#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <vector>

#include "core/records.h"

namespace velmora {

// How a send log stands in its file: UTF-8, a header, and a line of CSV for each entry.

/// The first line of every log, line feed included.
[[nodiscard]] const QByteArray& logHeader();

/// The entry's line as it stands in the file, line feed included.
[[nodiscard]] QString csvLine(const LogEntry& entry);

struct ParsedLog {
    std::vector<LogEntry> entries;  ///< each with a fresh id
    /// Whether the bytes are a header and entries and nothing else, each entry with a phone. A last
    /// line that was cut off counts for nothing.
    bool understood = true;
};

/// The entries of a log, a half character at its end aside; none when it is no UTF-8. Rows of fewer
/// than 8 fields are skipped; a time that cannot be read is `now`.
[[nodiscard]] ParsedLog parseLog(const QByteArray& bytes, Moment now);

struct SentPhones {
    QSet<QString> phones;
    bool understood = true;  ///< as of a parsed log
};

/// The phones of the same entries whose status begins with "sent", each in the forms of
/// `insertForms`.
[[nodiscard]] SentPhones parseSentPhones(const QByteArray& bytes);

/// Adds the phone as it stands in a log, and as Velmora would have written it: a spreadsheet takes
/// the "+" for a sign and drops it.
void insertForms(const QString& phone, QSet<QString>& phones);

/// What has to go from the end of a torn log and what has to come there before another line, which
/// would otherwise become a part of the torn one.
struct LogRepair {
    qsizetype surplus = 0;  ///< bytes
    QByteArray ending;
};
[[nodiscard]] LogRepair repairOf(const QByteArray& bytes);

/// Where the last line of these bytes begins that is `line`, which ends with a line feed; -1 where
/// there is none at `since` or after.
[[nodiscard]] qsizetype lastPlaceOf(const QByteArray& line, const QByteArray& bytes,
                                    qsizetype since = 0);

}  // namespace velmora
