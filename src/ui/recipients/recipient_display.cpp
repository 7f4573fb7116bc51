#include "ui/recipients/recipient_display.h"

#include "app/recipient_check.h"
#include "core/phone.h"
#include "ui/controls/whole_numbers.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// The person's name, or their company where they have no other name.
QString displayName(const Recipient& recipient) {
    const bool nameless = recipient.name == "(no name)"_L1 && !recipient.company.isEmpty();
    return nameless ? recipient.company : recipient.name;
}

QString companyBesideName(const Recipient& recipient) {
    return recipient.company == displayName(recipient) ? QString() : recipient.company;
}

Remark issueOf(const Recipient& recipient) {
    if (!recipient.issue)
        return {};
    if (needsAttention(recipient.issue)) {
        return {.text = withWholeNumbers(*recipient.issue),
                .symbol = u"exclamationmark.triangle.fill"_s,
                .spoken = *recipient.issue,
                .textTone = Tone::primary,
                .symbolTone = Tone::orange};
    }
    return {.text = withWholeNumbers(*recipient.issue),
            .symbol = u"info.circle"_s,
            .spoken = *recipient.issue,
            .textTone = Tone::secondary,
            .symbolTone = Tone::secondary};
}

QString labelBesidePhone(const Recipient& recipient) {
    return recipient.phoneLabel == "mobile"_L1 ? QString() : recipient.phoneLabel;
}

Remark threadOf(const Recipient& recipient, const QString& senderNumber) {
    if (!recipient.thread) {
        const QString none = recipient.usable ? u"No thread yet"_s : QString();
        return {.text = none, .symbol = {}, .spoken = none, .textTone = Tone::tertiary};
    }
    const bool other = isOnOtherLine(*recipient.thread, senderNumber);
    const QString text = recipient.thread->service + u' ' + displayPhone(recipient.thread->line);
    return {.text = text,
            .symbol = other ? u"exclamationmark.circle.fill"_s : u"checkmark.circle.fill"_s,
            .spoken = text + (other ? u", wrong line"_s : u", right line"_s),
            .textTone = Tone::secondary,
            .symbolTone = other ? Tone::red : Tone::green};
}

QString spokenRow(const Recipient& recipient, bool checked) {
    QStringList words{displayName(recipient)};
    if (const QString company = companyBesideName(recipient); !company.isEmpty())
        words.append(company);
    if (recipient.alreadySent)
        words.append(u"already sent"_s);
    else if (recipient.usable)
        words.append(checked ? u"selected"_s : u"not selected"_s);
    else
        words.append(u"can't be texted"_s);
    if (recipient.issue)
        words.append(*recipient.issue);
    return words.join(u", "_s);
}

}  // namespace

RecipientEntry entryOf(const Recipient& recipient, const QString& senderNumber, bool checked) {
    return {.name = displayName(recipient),
            .company = companyBesideName(recipient),
            .sentText = recipient.alreadySent ? u"Sent"_s : QString(),
            .issue = issueOf(recipient),
            .phone = displayPhone(recipient.phone),
            .phoneLabel = labelBesidePhone(recipient),
            .thread = threadOf(recipient, senderNumber),
            .checked = checked,
            .checkName = u"Select "_s + recipient.name,
            .faint = recipient.usable && !checked,
            .spoken = spokenRow(recipient, checked)};
}

}  // namespace velmora
