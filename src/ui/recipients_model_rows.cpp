#include "compose/template_renderer.h"
#include "core/phone.h"
#include "ui/recipient_display.h"
#include "ui/recipients_model.h"

namespace velmora {

using namespace Qt::StringLiterals;

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
            {sectionRole, "section"}};
}

QVariant RecipientsModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const Recipient* recipient = recipientAt(index.row());
    if (recipient == nullptr)
        return {};
    switch (role) {
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
        case sectionRole:
            return recipient.usable ? QString() : u"blocked"_s;
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

bool RecipientsModel::isChecked(const Recipient& recipient) const {
    return model_.selection().contains(recipient.id);
}

bool RecipientsModel::isCheckable(const Recipient& recipient) const {
    return recipient.usable && !recipient.alreadySent && !model_.runner().isActive();
}

}  // namespace velmora
