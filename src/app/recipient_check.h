#pragma once

#include <QSet>
#include <QString>
#include <optional>

#include "contacts/contacts_service.h"
#include "core/records.h"
#include "core/shared_texts.h"
#include "history/messages_db.h"

namespace velmora {

/// Turns the people of one list into recipients: who can be texted, and what to watch. A number
/// belongs to the first person with a first name that has it, so people are handed in the order of
/// the address book.
class RecipientCheck {
  public:
    /// What the checks work with, read once for the list.
    struct Sources {
        const ContactsService& contacts;    ///< outlives the check
        std::optional<MessagesDB> history;  ///< none when it cannot be opened
        QString senderNumber;               ///< empty until chosen
        QSet<QString> alreadySent;          ///< phones sent under the current run name
    };

    explicit RecipientCheck(Sources sources) : sources_(std::move(sources)) {}

    /// The next person of the list, checked.
    [[nodiscard]] Recipient next(const ContactRecord& person);

  private:
    [[nodiscard]] Recipient recipientOf(const ContactRecord& person);
    void check(Recipient& recipient, const ContactRecord& person);
    void checkThread(Recipient& recipient, const ContactRecord& person);

    Sources sources_;
    QSet<QString> taken_;
    SharedTexts texts_;  // companies, labels, services, lines and issues are few
};

/// True for an issue that the user has to look at: any but the note on a new thread.
[[nodiscard]] bool needsAttention(const std::optional<QString>& issue);

/// True when a conversation runs on another of the user's numbers than the one they send from. An
/// e-mail address as the line never counts, nor does any line while no number is chosen.
[[nodiscard]] bool isOnOtherLine(const ThreadInfo& thread, const QString& senderNumber);

}  // namespace velmora
