#include "app/recipient_check.h"

#include "core/phone.h"
#include "core/white_space.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

const QString newThreadNote =
    u"New thread. Your iPhone uses their preferred line, or your default line."_s;

QString displayName(const ContactRecord& person, const QString& firstName) {
    if (!person.givenName.isEmpty() && !person.familyName.isEmpty())
        return person.givenName + u' ' + person.familyName;
    if (!person.givenName.isEmpty() || !person.familyName.isEmpty())
        return person.givenName + person.familyName;
    return firstName.isEmpty() ? u"(no name)"_s : firstName;
}

// A text apart from the address book's record: each page of memory that the record lies in would
// stay with the text that they share.
QString copyOf(const QString& text) {
    return QString(text.constData(), text.size());
}

void block(Recipient& recipient, const QString& issue) {
    recipient.issue = issue;
    recipient.usable = false;
}

}  // namespace

Recipient RecipientCheck::next(const ContactRecord& person) {
    Recipient recipient = recipientOf(person);
    check(recipient, person);
    return recipient;
}

Recipient RecipientCheck::recipientOf(const ContactRecord& person) {
    Recipient recipient;
    recipient.id = copyOf(person.identifier);
    recipient.firstName = copyOf(person.givenName.isEmpty() ? person.nickname : person.givenName);
    recipient.name = displayName(person, recipient.firstName);
    recipient.company = texts_.shared(trimmedWhiteSpace(person.organizationName).toString());
    if (const auto number = sources_.contacts.bestPhone(person)) {
        recipient.phone = number->phone;
        recipient.phoneLabel = texts_.shared(number->label);
    }
    return recipient;
}

void RecipientCheck::check(Recipient& recipient, const ContactRecord& person) {
    if (recipient.phone.isEmpty())
        return block(recipient, u"No usable phone number."_s);
    if (recipient.firstName.isEmpty())
        return block(recipient, u"No first name on the contact."_s);
    if (taken_.contains(recipient.phone))
        return block(recipient, u"Same number as another contact in this list."_s);
    taken_.insert(recipient.phone);
    recipient.alreadySent = sources_.alreadySent.contains(recipient.phone);
    if (sources_.history)
        checkThread(recipient, person);
}

void RecipientCheck::checkThread(Recipient& recipient, const ContactRecord& person) {
    const auto thread =
        sources_.history->thread(recipient.phone, person.emailAddresses).value_or(std::nullopt);
    if (!thread) {
        recipient.issue = newThreadNote;
        return;
    }
    recipient.thread = {texts_.shared(thread->service), texts_.shared(thread->line)};
    if (isOnOtherLine(*thread, sources_.senderNumber))
        recipient.issue = texts_.shared(
            u"Your thread with them is on %1. Text them once by hand from %2 first."_s.arg(
                displayPhone(thread->line), displayPhone(sources_.senderNumber)));
}

bool needsAttention(const std::optional<QString>& issue) {
    return issue && !issue->startsWith(u"New thread");
}

bool isOnOtherLine(const ThreadInfo& thread, const QString& senderNumber) {
    return !senderNumber.isEmpty() && thread.line.startsWith(u'+') && thread.line != senderNumber;
}

}  // namespace velmora
