#include "ui/recipients/recipients_model.h"

#include <algorithm>
#include <utility>

#include "ui/recipients/row_changes.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// A person who can't be texted any more is another row, for it stands in the other section.
QString keyOf(const Recipient& recipient) {
    return recipient.usable ? recipient.id : u'\n' + recipient.id;
}

QStringList missingFrom(const QSet<QString>& selection, const QSet<QString>& other) {
    QStringList missing;
    std::ranges::copy_if(other, std::back_inserter(missing),
                         [&](const QString& id) { return !selection.contains(id); });
    return missing;
}

}  // namespace

RecipientsModel::RecipientsModel(AppModel& model) : model_(model) {
    connect(&model_, &AppModel::recipientsReplaced, this, &RecipientsModel::followRecipients);
    connect(&model_, &AppModel::searchTextChanged, this, &RecipientsModel::followFilter);
    connect(&model_, &AppModel::selectedOnlyChanged, this, &RecipientsModel::followFilter);
    connect(&model_, &AppModel::selectionChanged, this, &RecipientsModel::followSelection);
    connect(&model_, &AppModel::configChanged, this, &RecipientsModel::followConfig);
    connect(&model_, &AppModel::editingNoteIDChanged, this, &RecipientsModel::followEditing);
    connect(&model_.runner(), &Runner::stateChanged, this, &RecipientsModel::followRun);
    connect(&model_, &AppModel::bootstrappedChanged, this, &RecipientsModel::contentChanged);
    connect(&model_, &AppModel::recipientTextsChanged, this, &RecipientsModel::announceAll);
    connect(&model_, &AppModel::recipientTextChanged, this, [this](qsizetype index) {
        announceRow(rowOf(model_.recipients()[static_cast<size_t>(index)].id));
    });
    followConfig();
    followEditing();
    followRun();
    followRecipients();
}

// The people or the filter are others.

void RecipientsModel::followRecipients() {
    std::vector<QString> keys;
    keys.reserve(model_.recipients().size());
    std::ranges::transform(model_.recipients(), std::back_inserter(keys), keyOf);
    QHash<QStringView, qsizetype> indexes;
    indexes.reserve(std::ssize(keys));
    for (const QString& key : keys)
        indexes.insert(key, indexes.size());
    for (qsizetype& row : rows_)
        row = indexes.value(keys_[static_cast<size_t>(row)], -1);
    keys_ = std::move(keys);
    selection_ = model_.selection();
    followRows();
    announceAll();
}

void RecipientsModel::followFilter() {
    Q_EMIT filterChanged();
    followRows();
}

void RecipientsModel::followRows() {
    const std::vector<qsizetype> wanted = visibleRows();
    // The view may hear of these rows together with the next ones: where it stood means nothing
    // then.
    if (wanted.empty())
        setTopRow(-1);
    for (const RowChange& step : rowChanges(rows_, wanted, topRow_)) {
        const int first = static_cast<int>(step.first);
        const int last = static_cast<int>(step.first + step.count - 1);
        if (step.kind == RowChange::Kind::remove) {
            beginRemoveRows({}, first, last);
            rows_.erase(rows_.begin() + first, rows_.begin() + last + 1);
            endRemoveRows();
        } else {
            beginInsertRows({}, first, last);
            rows_.insert(rows_.begin() + first, wanted.begin() + first, wanted.begin() + last + 1);
            endInsertRows();
        }
    }
    announce(firstBlocked(), rowCount() - 1);
    ++revision_;
    Q_EMIT contentChanged();
}

std::vector<qsizetype> RecipientsModel::visibleRows() const {
    std::vector<qsizetype> rows;
    std::vector<qsizetype> blocked;
    for (const qsizetype index : model_.visibleRecipients())
        (model_.recipients()[static_cast<size_t>(index)].usable ? rows : blocked).push_back(index);
    rows.insert(rows.end(), blocked.begin(), blocked.end());
    return rows;
}

// A part of each row is another.
void RecipientsModel::followSelection() {
    const QSet<QString> before = std::exchange(selection_, model_.selection());
    const QStringList changed = missingFrom(selection_, before) + missingFrom(before, selection_);
    if (changed.size() == 1)
        announceRow(rowOf(changed.constFirst()));
    else if (!changed.isEmpty())
        announceAll();
    if (model_.selectedOnly)
        followRows();
}

void RecipientsModel::followConfig() {
    const QString before = std::exchange(senderNumber_, model_.config().senderNumber);
    if (before != senderNumber_)
        announceAll();
}

void RecipientsModel::followRun() {
    const bool before = std::exchange(enabled_, enabled());
    if (before == enabled_)
        return;
    Q_EMIT enabledChanged();
    announceAll();
}

void RecipientsModel::followEditing() {
    const auto before = std::exchange(editingNoteID_, model_.editingNoteID.value());
    for (const auto& id : {before, editingNoteID_})
        if (id)
            announceRow(rowOf(*id));
}

void RecipientsModel::announce(int first, int last) {
    if (first >= 0 && last >= first)
        Q_EMIT dataChanged(index(first), index(last), {entryRole});
}

// What stands around the rows.

bool RecipientsModel::enabled() const {
    return !model_.runner().isActive();
}

bool RecipientsModel::selectedOnly() const {
    return model_.selectedOnly;
}

QString RecipientsModel::searchText() const {
    return model_.searchText;
}

bool RecipientsModel::isFiltered() const {
    return model_.selectedOnly || !model_.searchText.value().isEmpty();
}

QString RecipientsModel::selectTitle() const {
    return isFiltered() ? u"Select Shown"_s : u"Select All"_s;
}

QString RecipientsModel::clearTitle() const {
    return isFiltered() ? u"Clear Shown"_s : u"Clear All"_s;
}

bool RecipientsModel::showsNobody() const {
    return rows_.empty() && model_.bootstrapped;
}

EmptyStateContent RecipientsModel::emptyState() const {
    if (model_.recipients().empty()) {
        return {.icon = u"person.crop.circle.badge.questionmark"_s,
                .title = u"Nobody in this list"_s,
                .message = u"Add people to this group in Contacts, then choose Reload."_s};
    }
    if (!searchText().isEmpty()) {
        return {.icon = u"magnifyingglass"_s,
                .title = u"No matches"_s,
                .message = u"Nobody in this list matches your search."_s};
    }
    return {.icon = u"checkmark.circle"_s,
            .title = u"Nobody selected yet"_s,
            .message = u"Switch to All and check the people you want to text."_s};
}

void RecipientsModel::setTopRow(int row) {
    if (std::exchange(topRow_, row) != row)
        Q_EMIT topRowChanged();
}

// What the user does.

void RecipientsModel::search(const QString& text) {
    if (enabled())
        model_.searchText = text;
}

void RecipientsModel::showSelectedOnly(bool only) {
    if (enabled())
        model_.selectedOnly = only;
}

void RecipientsModel::selectShown() {
    model_.selectShown();
}

void RecipientsModel::clearShown() {
    model_.clearShown();
}

void RecipientsModel::setChecked(int row, bool checked) {
    const Recipient* recipient = recipientAt(row);
    if (recipient != nullptr && isCheckable(*recipient))
        model_.setSelected(recipient->id, checked);
}

void RecipientsModel::toggle(int row) {
    const Recipient* recipient = recipientAt(row);
    if (recipient != nullptr)
        setChecked(row, !isChecked(*recipient));
}

void RecipientsModel::editNote(int row) {
    const Recipient* recipient = recipientAt(row);
    if (recipient != nullptr && recipient->usable)
        model_.editingNoteID = recipient->id;
}

void RecipientsModel::setNote(int row, const QString& note) {
    const Recipient* recipient = recipientAt(row);
    if (recipient != nullptr && recipient->usable && enabled())
        model_.setNote(recipient->id, note);
}

}  // namespace velmora
