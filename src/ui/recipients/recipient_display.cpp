#include "ui/recipients/recipient_display.h"

#include "app/recipient_check.h"
#include "core/phone.h"

using namespace Qt::StringLiterals;

namespace velmora {

QString displayName(const Recipient& recipient) {
    const bool nameless = recipient.name == "(no name)"_L1 && !recipient.company.isEmpty();
    return nameless ? recipient.company : recipient.name;
}

QString companyBesideName(const Recipient& recipient) {
    return recipient.company == displayName(recipient) ? QString() : recipient.company;
}

QString issueSymbol(const Recipient& recipient) {
    if (!recipient.issue)
        return {};
    return needsAttention(recipient.issue) ? u"exclamationmark.triangle.fill"_s : u"info.circle"_s;
}

QString issueSymbolColor(const Recipient& recipient) {
    return needsAttention(recipient.issue) ? u"orange"_s : u"secondary"_s;
}

QString issueTextColor(const Recipient& recipient) {
    return needsAttention(recipient.issue) ? u"primary"_s : u"secondary"_s;
}

QString labelBesidePhone(const Recipient& recipient) {
    return recipient.phoneLabel == "mobile"_L1 ? QString() : recipient.phoneLabel;
}

QString threadText(const Recipient& recipient) {
    if (recipient.thread)
        return recipient.thread->service + u' ' + displayPhone(recipient.thread->line);
    return recipient.usable ? u"No thread yet"_s : QString();
}

QString threadTextColor(const Recipient& recipient) {
    return recipient.thread ? u"secondary"_s : u"tertiary"_s;
}

QString threadSymbol(const Recipient& recipient, const QString& senderNumber) {
    if (!recipient.thread)
        return {};
    return isOnOtherLine(*recipient.thread, senderNumber) ? u"exclamationmark.circle.fill"_s
                                                          : u"checkmark.circle.fill"_s;
}

QString threadSymbolColor(const Recipient& recipient, const QString& senderNumber) {
    const bool other = recipient.thread && isOnOtherLine(*recipient.thread, senderNumber);
    return other ? u"red"_s : u"green"_s;
}

double rowOpacity(const Recipient& recipient, bool checked) {
    constexpr double faint = 0.72;
    return checked || !recipient.usable ? 1 : faint;
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

}  // namespace velmora
