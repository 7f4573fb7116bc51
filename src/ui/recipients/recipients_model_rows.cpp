#include <algorithm>

#include "compose/template_renderer.h"
#include "core/phone.h"
#include "ui/recipients/recipient_display.h"
#include "ui/recipients/recipients_model.h"

using namespace Qt::StringLiterals;

namespace velmora {

int RecipientsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QHash<int, QByteArray> RecipientsModel::roleNames() const {
    return {{nameRole, "name"},
            {companyRole, "company"},
            {sentTextRole, "sentText"},
            {issueTextRole, "issueText"},
            {issueTextColorRole, "issueTextColor"},
            {issueSymbolRole, "issueSymbol"},
            {issueSymbolColorRole, "issueSymbolColor"},
            {previewRole, "preview"},
            {noteRole, "note"},
            {showsNoteRole, "showsNote"},
            {offersNoteRole, "offersNote"},
            {phoneRole, "phone"},
            {phoneLabelRole, "phoneLabel"},
            {threadTextRole, "threadText"},
            {threadTextColorRole, "threadTextColor"},
            {threadSymbolRole, "threadSymbol"},
            {threadSymbolColorRole, "threadSymbolColor"},
            {checkedRole, "checked"},
            {checkableRole, "checkable"},
            {checkNameRole, "checkName"},
            {rowOpacityRole, "rowOpacity"},
            {spokenRole, "spoken"},
            {headingRole, "heading"}};
}

QVariant RecipientsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Recipient* recipient = recipientAt(index.row());
    if (recipient == nullptr)
        return {};
    switch (role) {
        case headingRole:
            return heading(index.row());
        case nameRole:
            return displayName(*recipient);
        case companyRole:
            return companyBesideName(*recipient);
        case sentTextRole:
            return recipient->alreadySent ? u"Sent"_s : QString();
        case issueTextRole:
            return recipient->issue.value_or(QString());
        case issueTextColorRole:
            return issueTextColor(*recipient);
        case issueSymbolRole:
            return issueSymbol(*recipient);
        case issueSymbolColorRole:
            return issueSymbolColor(*recipient);
        case phoneRole:
            return displayPhone(recipient->phone);
        case phoneLabelRole:
            return labelBesidePhone(*recipient);
        case threadTextRole:
            return threadText(*recipient);
        case threadTextColorRole:
            return threadTextColor(*recipient);
        case threadSymbolRole:
            return threadSymbol(*recipient, senderNumber_);
        case threadSymbolColorRole:
            return threadSymbolColor(*recipient, senderNumber_);
        case previewRole:
        case noteRole:
        case showsNoteRole:
        case offersNoteRole:
            return noteData(*recipient, role);
        default:
            return stateData(*recipient, role);
    }
}

QVariant RecipientsModel::noteData(const Recipient& recipient, int role) const {
    if (role == previewRole)
        return model_.isPersonalised() ? recipient.text : QString();
    const QString note = model_.config().notes.value(recipient.id);
    if (role == noteRole)
        return note;
    const bool shown = recipient.usable && (editingNoteID_ == recipient.id || !note.isEmpty());
    if (role == showsNoteRole)
        return shown;
    return recipient.usable && !shown && enabled_ &&
           model_.currentTemplate().contains(TemplateRenderer::customNotePlaceholder);
}

QVariant RecipientsModel::stateData(const Recipient& recipient, int role) const {
    switch (role) {
        case checkedRole:
            return isChecked(recipient);
        case checkableRole:
            return isCheckable(recipient);
        case checkNameRole:
            return QString(u"Select "_s + recipient.name);
        case rowOpacityRole:
            return rowOpacity(recipient, isChecked(recipient));
        case spokenRole:
            return spokenRow(recipient, isChecked(recipient));
        default:
            return {};
    }
}

const Recipient* RecipientsModel::recipientAt(int row) const {
    if (row < 0 || row >= rowCount())
        return nullptr;
    const qsizetype index = indexes_.value(rows_[static_cast<size_t>(row)], -1);
    return index < 0 ? nullptr : &model_.recipients()[static_cast<size_t>(index)];
}

// The first row whose key is that of someone who can't be texted.
int RecipientsModel::firstBlocked() const {
    const auto first = std::ranges::partition_point(
        rows_, [](const QString& key) { return !key.startsWith(u'\n'); });
    return static_cast<int>(first - rows_.begin());
}

QString RecipientsModel::heading(int row) const {
    return row == firstBlocked() ? u"Can't text \u00B7 %1"_s.arg(rowCount() - row) : QString();
}

bool RecipientsModel::isChecked(const Recipient& recipient) const {
    return model_.selection().contains(recipient.id);
}

bool RecipientsModel::isCheckable(const Recipient& recipient) const {
    return recipient.usable && !recipient.alreadySent && !model_.runner().isActive();
}

}  // namespace velmora
