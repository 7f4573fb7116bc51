#pragma once

#include <QHashFunctions>
#include <QString>
#include <QUuid>
#include <optional>

#include "core/moment.h"

namespace velmora {

using namespace Qt::StringLiterals;

/// The list id that stands for the whole address book wherever a list id is taken. Never the
/// identifier of a real group.
inline const QString allContactsID = u"__all_contacts__"_s;

/// The line of an existing conversation with one person.
struct ThreadInfo {
    QString service;  ///< the history's service name of the newest good message, as stored
    QString line;     ///< the user's own number or address that the conversation runs on
};

/// One person of the chosen list, after the checks. The first five fields are fixed once it is
/// built.
struct Recipient {
    QString id;    ///< the contact's identifier: unique in a list, the key of notes and selection
    QString name;  ///< display name, in lists and in the send log
    QString firstName;   ///< what replaces "{first_name}"; may be empty
    QString phone;       ///< "+" and digits, or empty when the person has no usable number
    QString phoneLabel;  ///< the label of that number; empty with an empty phone
    QString company;
    std::optional<QString> issue;  ///< why the person can't be sent, or what to watch
    std::optional<ThreadInfo> thread;
    bool usable = true;        ///< may be sent at all; else nothing is written to them
    bool alreadySent = false;  ///< the current run name's log holds a sent line for `phone`
};

/// One address-book group.
struct GroupInfo {
    QString id;
    QString name;
    qint64 count = 0;  ///< number of members

    friend bool operator==(const GroupInfo&, const GroupInfo&) = default;
    friend size_t qHash(const GroupInfo& group, size_t seed = 0) {
        return qHashMulti(seed, group.id, group.name, group.count);
    }
};

/// One of the user's own sending numbers.
struct NumberInfo {
    QString number;    ///< as the history stores it, beginning with "+"; its identity
    qint64 count = 0;  ///< how many of the history's messages name it as their line

    friend bool operator==(const NumberInfo&, const NumberInfo&) = default;
    friend size_t qHash(const NumberInfo& number, size_t seed = 0) {
        return qHashMulti(seed, number.number, number.count);
    }
};

/// The newest message that the user sent to a person since a given moment, as the history has it.
struct SentRecord {
    QString service;
    QString line;      ///< the user's line that the message left on
    qint64 error = 0;  ///< the history's error code; 0 is none
    bool sent = false;
    bool delivered = false;

    /// True when Messages has settled the message for good: it failed, left or arrived.
    [[nodiscard]] bool isConclusive() const { return error != 0 || sent || delivered; }
};

/// True for a log status that keeps a person from being texted again under the same run name.
[[nodiscard]] inline bool isSentStatus(QStringView status) {
    return status.startsWith(u"sent");
}

/// One line of the send log.
struct LogEntry {
    QUuid id;  ///< identity in this process; made afresh whenever the line is read, never stored
    /// When the outcome was known: the wait for the history ended, or the script failed. A line
    /// that the history settles later keeps it, unless an SMS fallback takes its place. Of a text
    /// in hand when the program ended, when Messages had taken it.
    Moment time;
    QString batch;
    QString name;
    QString phone;
    QString service;  ///< a display word: "iMessage", "SMS (fallback)" or the history's own name
    QString line;     ///< the user's line that the text left on, when known
    QString status;   ///< "sent", "sent_unverified" or "failed"
    QString detail;   ///< a sentence on the status; may be empty
};

/// The service through which a text is sent.
enum class Service { iMessage, sms };

/// The service's name as Messages writes it: "iMessage" or "SMS".
[[nodiscard]] QString serviceName(Service service);

/// The service of exactly that name (letter case matters), or nothing.
[[nodiscard]] std::optional<Service> serviceNamed(QStringView name);

}  // namespace velmora
