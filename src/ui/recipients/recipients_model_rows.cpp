#include <algorithm>

#include "compose/template_renderer.h"
#include "ui/recipients/recipient_display.h"
#include "ui/recipients/recipients_model.h"

using namespace Qt::StringLiterals;

namespace velmora {

int RecipientsModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QHash<int, QByteArray> RecipientsModel::roleNames() const {
    return {{entryRole, "entry"}};
}

QVariant RecipientsModel::data(const QModelIndex& index, int role) const {
    if (role != entryRole || !checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    return QVariant::fromValue(entryAt(index.row()));
}

RecipientEntry RecipientsModel::entryAt(int row) const {
    const Recipient* recipient = recipientAt(row);
    if (recipient == nullptr)
        return {};
    RecipientEntry entry = entryOf(*recipient, senderNumber_, isChecked(*recipient));
    entry.checkable = isCheckable(*recipient);
    entry.heading = heading(row);
    if (model_.isPersonalised())
        entry.preview = model_.textFor(*recipient);
    entry.note = model_.config().notes.value(recipient->id);
    entry.showsNote =
        recipient->usable && (editingNoteID_ == recipient->id || !entry.note.isEmpty());
    entry.offersNote = recipient->usable && !entry.showsNote && enabled_ &&
                       model_.currentTemplate().contains(TemplateRenderer::customNotePlaceholder);
    return entry;
}

const Recipient* RecipientsModel::recipientAt(int row) const {
    if (row < 0 || row >= rowCount())
        return nullptr;
    const qsizetype index = rows_[static_cast<size_t>(row)];
    return index < 0 ? nullptr : &model_.recipients()[static_cast<size_t>(index)];
}

int RecipientsModel::rowOf(const QString& id) const {
    const auto found = std::ranges::find_if(rows_, [&](qsizetype index) {
        return index >= 0 && model_.recipients()[static_cast<size_t>(index)].id == id;
    });
    return found == rows_.end() ? -1 : static_cast<int>(found - rows_.begin());
}

// The first row of someone who can't be texted.
int RecipientsModel::firstBlocked() const {
    const auto first = std::ranges::partition_point(rows_, [this](qsizetype index) {
        return index < 0 || model_.recipients()[static_cast<size_t>(index)].usable;
    });
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
