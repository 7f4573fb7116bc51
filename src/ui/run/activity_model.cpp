#include "ui/run/activity_model.h"

#include "ui/run/run_display.h"

namespace velmora {

ActivityModel::ActivityModel(const Runner& runner)
    : runner_(runner), count_(static_cast<int>(runner.log().size())) {
    connect(&runner_, &Runner::logReplaced, this, &ActivityModel::followReplaced);
    connect(&runner_, &Runner::logAppended, this, &ActivityModel::followAppended);
    connect(&runner_, &Runner::logEntryChanged, this, &ActivityModel::followEntry);
}

int ActivityModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : count_;
}

QVariant ActivityModel::data(const QModelIndex& index, int role) const {
    const qsizetype place = count_ - 1 - index.row();
    if (role != entryRole || !checkIndex(index, CheckIndexOption::IndexIsValid) ||
        place >= std::ssize(runner_.log()))
        return {};
    return QVariant::fromValue(activityEntry(runner_.log()[static_cast<size_t>(place)]));
}

QHash<int, QByteArray> ActivityModel::roleNames() const {
    return {{entryRole, "entry"}};
}

void ActivityModel::followReplaced() {
    const int count = static_cast<int>(runner_.log().size());
    if (count == count_) {
        // The same log read again, most of the time: the list keeps its place.
        if (count > 0)
            Q_EMIT dataChanged(index(0), index(count - 1));
        return;
    }
    beginResetModel();
    count_ = count;
    endResetModel();
}

void ActivityModel::followAppended() {
    beginInsertRows({}, 0, 0);
    ++count_;
    endInsertRows();
}

void ActivityModel::followEntry(qsizetype index) {
    const QModelIndex changed = this->index(count_ - 1 - static_cast<int>(index));
    Q_EMIT dataChanged(changed, changed);
}

}  // namespace velmora
