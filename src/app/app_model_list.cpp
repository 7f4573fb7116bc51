#include <QDir>
#include <QScopedValueRollback>
#include <algorithm>
#include <numeric>
#include <utility>

#include "app/app_model.h"
#include "app/recipient_check.h"
#include "core/collation.h"
#include "core/freed_memory.h"

using namespace Qt::StringLiterals;

namespace velmora {

void AppModel::selectGroup(const QString& listID) {
    if (runner_.isActive())
        return;
    const std::optional<QString> chosen =
        listID.isEmpty() ? std::nullopt : std::optional<QString>(listID);
    editConfig([&](AppConfig& config) { config.selectedGroupID = chosen; });
    publish({});
    restoreSelection({});
    searchText = QString();
    selectedOnly = false;
    editingNoteID = std::nullopt;
    batchName = defaultBatchName();
    loadList();
}

void AppModel::loadList() {
    const std::optional<QString> listID = config_.selectedGroupID;
    if (!listID)
        return;
    const FreedMemoryReturns afterReading;
    loading = true;
    loadGroups();
    const auto people = contacts_.contactsInList(*listID);
    if (people) {
        loadedBatch_ = batchName;
        publish(checked(*people));
        restorePicks(*listID);
        if (!runner_.isActive()) {
            runner_.batch = batchName.value();
            runner_.reloadLog();
        }
        tellOfLog();
    } else {
        alert = u"Couldn't read that list: "_s + people.error().description;
    }
    loading = false;
}

std::vector<Recipient> AppModel::checked(const std::vector<ContactRecord>& people) {
    auto history = MessagesDB::open(historyPath_);
    RecipientCheck check({.contacts = contacts_,
                          .history = history ? std::optional(std::move(*history)) : std::nullopt,
                          .senderNumber = config_.senderNumber,
                          .alreadySent = sendLog_.alreadySent(loadedBatch_)});
    std::vector<Recipient> list;
    list.reserve(people.size());
    for (const ContactRecord& person : people)
        list.push_back(check.next(person));
    sortByName(list, [](const Recipient& recipient) { return recipient.name; });
    return list;
}

void AppModel::tellOfLog() {
    if (sendLog_.isUnderstood(batchName) || toldOf_.contains(batchName))
        return;
    toldOf_.insert(batchName);
    const QString unread = alert.value() ? *alert.value() + u"\n\n"_s : QString();
    alert =
        unread +
        u"Velmora can't tell from the log %1 who was already texted in the run \"%2\". Mend the "
        "file or choose another run name, or they may be texted again."_s.arg(
            QDir::toNativeSeparators(sendLog_.logFile(batchName)), batchName.value());
}

void AppModel::publish(std::vector<Recipient> list) {
    recipients_ = std::move(list);
    attentionCount_ = std::ranges::count_if(recipients_, needsAttention, &Recipient::issue);
    search_.reset();
    Q_EMIT recipientsReplaced();
}

void AppModel::restorePicks(const QString& listID) {
    const QStringList picks = config_.picks.value(listID);
    const QSet<QString> picked(picks.begin(), picks.end());
    QSet<QString> restored;
    for (const Recipient& each : recipients_)
        if (each.usable && !each.alreadySent && picked.contains(each.id))
            restored.insert(each.id);
    restoreSelection(restored);
}

void AppModel::restoreSelection(const QSet<QString>& selection) {
    const QScopedValueRollback<bool> suppressed(suppressPickSave_, true);
    setSelection(selection);
}

std::vector<qsizetype> AppModel::visibleRecipients() const {
    std::vector<qsizetype> visible(recipients_.size());
    std::iota(visible.begin(), visible.end(), 0);
    if (!searchText.value().isEmpty()) {
        if (!search_)
            search_.emplace(recipients_);
        visible = search_->find(searchText);
    }
    if (selectedOnly)
        std::erase_if(visible, [this](qsizetype index) {
            return !selection_.contains(recipients_[static_cast<size_t>(index)].id);
        });
    return visible;
}

void AppModel::setSelection(const QSet<QString>& selection) {
    const QSet<QString> previous = std::exchange(selection_, QSet<QString>(selection));
    const bool same = selection_ == previous;
    Q_EMIT selectionChanged();
    if (same || suppressPickSave_ || !config_.selectedGroupID)
        return;
    QStringList ids(selection_.begin(), selection_.end());
    ids.sort();  // so that the file does not change where the choice does not
    editConfig([&](AppConfig& config) { config.picks.insert(*config.selectedGroupID, ids); });
}

void AppModel::setSelected(const QString& id, bool selected) {
    QSet<QString> changed = selection_;
    if (selected)
        changed.insert(id);
    else
        changed.remove(id);
    setSelection(changed);
}

void AppModel::selectShown() {
    if (runner_.isActive())
        return;
    QSet<QString> changed = selection_;
    for (const qsizetype index : visibleRecipients()) {
        const Recipient& shown = recipients_[static_cast<size_t>(index)];
        if (shown.usable && !shown.alreadySent)
            changed.insert(shown.id);
    }
    setSelection(changed);
}

void AppModel::clearShown() {
    if (runner_.isActive())
        return;
    QSet<QString> changed;
    if (selectedOnly || !searchText.value().isEmpty()) {
        changed = selection_;
        for (const qsizetype index : visibleRecipients())
            changed.remove(recipients_[static_cast<size_t>(index)].id);
    }
    setSelection(changed);
}

void AppModel::setNote(const QString& id, const QString& note) {
    editConfig([&](AppConfig& config) {
        if (note.isEmpty())
            config.notes.remove(id);
        else
            config.notes.insert(id, note);
    });
    const auto noted = std::ranges::find(recipients_, id, &Recipient::id);
    if (noted != recipients_.end())
        Q_EMIT recipientTextChanged(noted - recipients_.begin());
}

}  // namespace velmora
