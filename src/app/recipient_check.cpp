#include "app/recipient_check.h"

#include "core/phone.h"
#include "core/white_space.h"

namespace velmora {

namespace {

const QString newThreadNote =
    QStringLiteral("New thread. Your iPhone uses their preferred line, or your default line.");

QString displayName(const ContactRecord& person, const QString& firstName) {
    if (!person.givenName.isEmpty() && !person.familyName.isEmpty())
        return person.givenName + u' ' + person.familyName;
    if (!person.givenName.isEmpty() || !person.familyName.isEmpty())
        return person.givenName + person.familyName;
    return firstName.isEmpty() ? QStringLiteral("(no name)") : firstName;
}

Recipient recipientOf(const ContactRecord& person, const std::optional<BestPhone>& number) {
    Recipient recipient;
    recipient.id = person.identifier;
    recipient.firstName = person.givenName.isEmpty() ? person.nickname : person.givenName;
    recipient.name = displayName(person, recipient.firstName);
    recipient.company = trimmedWhiteSpace(person.organizationName).toString();
    if (number) {
        recipient.phone = number->phone;
        recipient.phoneLabel = number->label;
    }
    return recipient;
}

void block(Recipient& recipient, const QString& issue) {
    recipient.issue = issue;
    recipient.usable = false;
}

}  // namespace

Recipient RecipientCheck::next(const ContactRecord& person) {
    Recipient recipient = recipientOf(person, sources_.contacts.bestPhone(person));
    check(recipient, person);
    return recipient;
}

void RecipientCheck::check(Recipient& recipient, const ContactRecord& person) {
    if (recipient.phone.isEmpty())
        return block(recipient, QStringLiteral("No usable phone number."));
    if (recipient.firstName.isEmpty())
        return block(recipient, QStringLiteral("No first name on the contact."));
    if (taken_.contains(recipient.phone))
        return block(recipient, QStringLiteral("Same number as another contact in this list."));
    taken_.insert(recipient.phone);
    recipient.alreadySent = sources_.alreadySent.contains(recipient.phone);
    if (sources_.history)
        checkThread(recipient, person);
}

void RecipientCheck::checkThread(Recipient& recipient, const ContactRecord& person) {
    recipient.thread =
        sources_.history->thread(recipient.phone, person.emailAddresses).value_or(std::nullopt);
    if (!recipient.thread)
        recipient.issue = newThreadNote;
    else if (isOnOtherLine(*recipient.thread, sources_.senderNumber))
        recipient.issue =
            QStringLiteral("Your thread with them is on %1. Text them once by hand from %2 first.")
                .arg(displayPhone(recipient.thread->line), displayPhone(sources_.senderNumber));
}

bool needsAttention(const std::optional<QString>& issue) {
    return issue && !issue->startsWith(u"New thread");
}

bool isOnOtherLine(const ThreadInfo& thread, const QString& senderNumber) {
    return !senderNumber.isEmpty() && thread.line.startsWith(u'+') && thread.line != senderNumber;
}

}  // namespace velmora
