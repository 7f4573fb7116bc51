#include "storage/send_log.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "core/fresh_id.h"
#include "storage/files.h"
#include "storage/log_lines.h"
#include "storage/log_name.h"

namespace velmora {

namespace {

using Kind = FileError::Kind;

QByteArray lineOf(const LogEntry& entry) {
    return csvLine(entry).toUtf8();
}

}  // namespace

void SendLog::write(const QString& path, std::vector<Change>& changes, Unreadable unreadable) {
    const auto old = readFile(path);
    const bool missing = !old && old.error().kind == Kind::missing;
    if (!old && !missing) {
        if (unreadable == Unreadable::addBlindly)
            writeBlindly(path, changes);
        return;
    }
    const LogRepair repair = repairOf(old.value_or(QByteArray()));
    QByteArray kept = old.value_or(QByteArray()).chopped(repair.surplus);
    const qsizetype size = kept.size();
    QByteArray added = kept.isEmpty() ? logHeader() : repair.ending;
    std::vector<Change> inPlace;
    std::vector<Change> additions;
    for (Change& change : changes) {
        const bool again = change.since.has_value();
        if (!again)
            change.since = change.before.isEmpty() ? size : 0;
        // Those before it may have become shorter.
        const qsizetype since =
            *change.since > size ? 0 : *change.since - std::max<qsizetype>(size - kept.size(), 0);
        QByteArray former = change.before;
        qsizetype place = former.isEmpty() ? -1 : lastPlaceOf(former, kept, since);
        change.beforeStands = place >= 0;
        // A write that failed may have left the line in the file, but not on the disk.
        if (again && place < 0) {
            former = change.line;
            place = lastPlaceOf(former, kept, since);
        }
        if (place >= 0)
            kept.replace(place, former.size(), change.line);
        else
            added += change.line;
        (place >= 0 ? inPlace : additions).push_back(std::move(change));
    }
    if (additions.empty())
        added.clear();
    if (inPlace.empty() || !replaceFile(path, kept + added)) {
        const bool isAdded =
            !additions.empty() &&
            (missing ? createFile(path, added) : appendToFile(path, added, repair.surplus))
                .has_value();
        changes = std::move(inPlace);
        if (!isAdded)
            std::ranges::move(additions, std::back_inserter(changes));
    } else {
        changes.clear();
    }
}

// Whatever the file holds, the lines are added. The first begins a line of its own.
void SendLog::writeBlindly(const QString& path, std::vector<Change>& changes) {
    QByteArray lines("\n");
    for (Change& change : changes) {
        lines += change.line;
        change.since = change.since.value_or(0);
    }
    if (appendToFile(path, lines))
        changes.clear();
}

void SendLog::append(const LogEntry& entry) {
    add({logFile(entry.batch), {}, entry, lineOf(entry)});
}

void SendLog::replace(const LogEntry& before, const LogEntry& after) {
    add({logFile(after.batch), lineOf(before), after, lineOf(after)});
}

void SendLog::add(Change change) {
    // What it replaces may wait to be written itself.
    const auto earlier = std::ranges::find_if(waiting_, [&change](const Change& each) {
        return each.path == change.path && each.line == change.before;
    });
    if (earlier == waiting_.end()) {
        waiting_.push_back(std::move(change));
    } else {
        earlier->after = std::move(change.after);
        earlier->line = std::move(change.line);
        // A write that failed may have left it in the file all the same.
        if (earlier->before.isEmpty())
            earlier->before = std::move(change.before);
    }
    retry();
}

void SendLog::retry() {
    std::vector<Change> left = std::exchange(waiting_, {});
    while (!left.empty()) {
        const QString path = left.front().path;
        const auto isOfFile = [&path](const Change& each) { return each.path == path; };
        std::vector<Change> changes;
        std::ranges::copy_if(left, std::back_inserter(changes), isOfFile);
        std::erase_if(left, isOfFile);
        // A second time for a file that has come or gone just then, or could not be read once.
        write(path, changes, Unreadable::leave);
        if (!changes.empty())
            write(path, changes, Unreadable::addBlindly);
        std::ranges::move(changes, std::back_inserter(waiting_));
    }
}

void SendLog::rewrite(const QString& batch, const std::vector<LogEntry>& entries) {
    const QString path = logFile(batch);
    const auto old = readFile(path);
    const bool readable = old || old.error().kind == Kind::missing;
    const bool isThatRead =
        readable && path == lastRead_.path && qHash(old.value_or(QByteArray())) == lastRead_.hash;
    if (!isThatRead || !lastRead_.understood)
        return;
    QByteArray bytes = logHeader();
    for (const LogEntry& entry : entries)
        bytes += lineOf(entry);
    if (!replaceFile(path, bytes))
        return;
    std::erase_if(waiting_, [&path](const Change& each) { return each.path == path; });
    lastRead_.hash = qHash(bytes);
}

QByteArray SendLog::read(const QString& path) {
    retry();
    makeFilePrivate(path);
    const auto bytes = readFile(path);
    lastRead_ = {.path = path,
                 .hash = qHash(bytes.value_or(QByteArray())),
                 .understood = bytes || bytes.error().kind == Kind::missing};
    return bytes.value_or(QByteArray());
}

void SendLog::judge(bool understood) {
    lastRead_.understood = lastRead_.understood && understood;
    if (lastRead_.understood)
        puzzling_.remove(lastRead_.path);
    else
        puzzling_.insert(lastRead_.path);
}

std::vector<LogEntry> SendLog::load(const QString& batch) {
    const QString path = logFile(batch);
    ParsedLog log = parseLog(read(path), clock_.now());
    judge(log.understood);
    addWaiting(log.entries, path);
    return std::move(log.entries);
}

QSet<QString> SendLog::alreadySent(const QString& batch) {
    const QString path = logFile(batch);
    SentPhones sent = parseSentPhones(read(path));
    judge(sent.understood);
    for (const Change& each : waiting_)
        if (each.path == path && isSentStatus(each.after.status))
            insertForms(each.after.phone, sent.phones);
    return sent.phones;
}

void SendLog::addWaiting(std::vector<LogEntry>& entries, const QString& path) const {
    for (const Change& each : waiting_) {
        if (each.path != path)
            continue;
        const auto before = std::ranges::find_if(
            entries.rbegin(), entries.rend(),
            [&each](const LogEntry& entry) { return lineOf(entry) == each.before; });
        LogEntry& entry = before != entries.rend() ? *before : entries.emplace_back();
        entry = each.after;
        entry.id = freshID();
    }
}

bool SendLog::isUnderstood(const QString& batch) {
    return !puzzling_.contains(logFile(batch));
}

bool SendLog::isWritten(const QString& batch, const QString& phone) {
    const QString path = logFile(batch);
    return std::ranges::none_of(waiting_, [&](const Change& each) {
        return each.path == path && each.after.phone == phone && !each.beforeStands;
    });
}

QString SendLog::logFile(const QString& batch) {
    return folder_.logs() + u'/' + logFileName(batch);
}

}  // namespace velmora
