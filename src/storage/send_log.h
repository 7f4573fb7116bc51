#pragma once

#include <QSet>
#include <QString>
#include <vector>

#include "core/clock.h"
#include "core/records.h"
#include "storage/csv.h"
#include "storage/support_folder.h"

namespace velmora {

/// One CSV file per run name: the user's record of what went out, and what keeps a later run under
/// the same name from texting anyone twice. Keeps in memory only what went wrong: the lines that
/// could not be written, which count as if they stood in their file, and which files could not be
/// read.
class SendLog {
  public:
    /// `folder` and `clock` outlive the log.
    SendLog(SupportFolder& folder, const Clock& clock) : folder_(folder), clock_(clock) {}

    /// Adds the entry to the file of its own batch, header first in a new or an empty file. A last
    /// line that was cut off in the middle is ended first, so that it swallows no other. What
    /// cannot be written is tried again whenever a log is read or added to, until the program ends;
    /// a file that exists but cannot be opened is left alone.
    void append(const LogEntry& entry);

    /// Replaces the run's file by the header and `entries`. A file that could not be read, for it
    /// is no UTF-8 or was out of reach, and one that cannot be replaced stand; what they lack of
    /// `entries` is added to them as by `append`, beside older versions of the same lines.
    void rewrite(const QString& batch, const std::vector<LogEntry>& entries);

    /// The entries of the run's file, which takes first what it could not before, in file order,
    /// each with a fresh id; none when there is no file or it is no UTF-8, half a character at its
    /// end aside. Rows of fewer than 8 fields are skipped; a time that cannot be read is now. Then
    /// those that could not be written.
    [[nodiscard]] std::vector<LogEntry> load(const QString& batch);

    /// The phones of these entries whose status begins with "sent".
    [[nodiscard]] QSet<QString> alreadySent(const QString& batch);

    /// The path of the run's file, named by safeFileStem. Where that is longer than file systems
    /// take, a hash of it stands for its end.
    [[nodiscard]] QString logFile(const QString& batch);

  private:
    struct Unwritten {
        QString path;
        LogEntry entry;
        bool unlessThere = false;  // not when the file has the same line already

        [[nodiscard]] bool write() const;
    };

    void writeAll();

    SupportFolder& folder_;
    const Clock& clock_;
    std::vector<Unwritten> unwritten_;
    QSet<QString> unread_;  // files that were there but could not be read when loaded last
};

/// The run name as a file name without its ending: every Unicode scalar that is no letter, mark,
/// number, "-" or "_" becomes "-"; "-" at both ends is removed; "batch" when nothing is left.
[[nodiscard]] QString safeFileStem(const QString& batch);

/// The entry's line as it stands in the file, line feed included.
[[nodiscard]] QString csvLine(const LogEntry& entry);

}  // namespace velmora
