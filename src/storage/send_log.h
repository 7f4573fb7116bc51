#pragma once

#include <QByteArray>
#include <QSet>
#include <QString>
#include <optional>
#include <vector>

#include "core/clock.h"
#include "core/records.h"
#include "storage/support_folder.h"

namespace velmora {

/// One CSV file per run name: the user's record of what went out, and what keeps a later run under
/// the same name from texting anyone twice. What is on the disk is the truth, and whatever else
/// stands there is kept; in memory are only the lines that could not be written, which count as if
/// they stood in their file, and what was found when a file was read last.
class SendLog {
  public:
    /// `folder` and `clock` outlive the log.
    SendLog(SupportFolder& folder, const Clock& clock) : folder_(folder), clock_(clock) {}
    SendLog(const SendLog&) = delete;
    SendLog& operator=(const SendLog&) = delete;
    /// Tries once more what could not be written.
    ~SendLog() { retry(); }

    /// Adds the entry to the file of its own batch, header first in a new or an empty file. It is
    /// on the disk when this returns, unless it cannot be written: then it is tried again by every
    /// operation below and by `retry`. A last line that was cut off in the middle is ended first,
    /// so that it swallows no other, and goes if it is too short to name an outcome. Where the
    /// file cannot be read, the entry is added all the same.
    void append(const LogEntry& entry);

    /// Puts `after` into the place of `before`, a line of the same batch that was written as
    /// `append` does, in one step: at no instant has the file neither. Where `before` is not there,
    /// `after` is added. Where the file can be added to but not replaced, `before` stands
    /// meanwhile.
    void replace(const LogEntry& before, const LogEntry& after);

    /// Replaces the run's file by the header and `entries`, if it is still what `load` read last
    /// and is understood. A failure leaves the old file and is not tried again.
    void rewrite(const QString& batch, const std::vector<LogEntry>& entries);

    /// The entries of the run's file, which takes first what it could not before, in file order,
    /// each with a fresh id; none when there is no file or it is no UTF-8, half a character at its
    /// end aside. Rows of fewer than 8 fields are skipped; a time that cannot be read is now. Then
    /// those that could not be written. Takes others' permissions off the file.
    [[nodiscard]] std::vector<LogEntry> load(const QString& batch);

    /// The phones of these entries whose status begins with "sent", as they stand there and in the
    /// form that all phones have, should another program have changed how they are written.
    [[nodiscard]] QSet<QString> alreadySent(const QString& batch);

    /// Whether the run's file, when it was read last, was one that tells who was texted: there is
    /// none, or it could be read and holds the header and entries alone, each with a phone.
    [[nodiscard]] bool isUnderstood(const QString& batch);

    /// Whether the person's lines of the run are on the disk, be it those whose place others wait
    /// to take.
    [[nodiscard]] bool isWritten(const QString& batch, const QString& phone);

    /// Tries again to write what could not be written.
    void retry();

    /// The path of the run's file, named by safeFileStem. Where that is longer than file systems
    /// take, a hash of it stands for its end.
    [[nodiscard]] QString logFile(const QString& batch);

  private:
    /// A line that waits to be written, in the place of another one unless that is empty.
    struct Change {
        QString path;
        QByteArray before;
        LogEntry after;
        QByteArray line;  // of `after`
        // Where either line stands in the file at the earliest; nothing before the first try.
        std::optional<qsizetype> since = {};
        bool beforeStands = false;  // in the file, when it was read last
    };
    /// What was found in a file.
    struct Reading {
        QString path;
        size_t hash = 0;
        bool understood = true;
    };

    enum class Unreadable { leave, addBlindly };

    // Both leave the changes that could not be written.
    static void write(const QString& path, std::vector<Change>& changes, Unreadable unreadable);
    static void writeBlindly(const QString& path, std::vector<Change>& changes);
    void add(Change change);
    void addWaiting(std::vector<LogEntry>& entries, const QString& path) const;
    [[nodiscard]] QByteArray read(const QString& path);
    void judge(bool understood);

    SupportFolder& folder_;
    const Clock& clock_;
    std::vector<Change> waiting_;
    Reading lastRead_;
    QSet<QString> puzzling_;  // the files that were not understood when they were read last
};

}  // namespace velmora
