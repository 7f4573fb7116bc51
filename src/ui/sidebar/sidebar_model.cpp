#include "ui/sidebar/sidebar_model.h"

#include <algorithm>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

std::vector<GroupInfo> listsOf(const AppModel& model) {
    std::vector<GroupInfo> lists{
        {.id = allContactsID, .name = u"All Contacts"_s, .count = model.allContactsCount}};
    const std::vector<GroupInfo> groups = model.groups;
    lists.insert(lists.end(), groups.begin(), groups.end());
    return lists;
}

}  // namespace

SidebarModel::SidebarModel(AppModel& model) : model_(model), rows_(listsOf(model)) {
    connect(&model_, &AppModel::groupsChanged, this, &SidebarModel::follow);
    connect(&model_, &AppModel::allContactsCountChanged, this, &SidebarModel::follow);
    connect(&model_, &AppModel::configChanged, this, &SidebarModel::currentRowChanged);
    connect(&model_.runner(), &Runner::stateChanged, this, &SidebarModel::enabledChanged);
}

int SidebarModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
}

QVariant SidebarModel::data(const QModelIndex& index, int role) const {
    if (!checkIndex(index, CheckIndexOption::IndexIsValid))
        return {};
    const GroupInfo& list = rows_[static_cast<size_t>(index.row())];
    switch (role) {
        case nameRole:
            return list.name;
        case symbolRole:
            return list.id == allContactsID ? u"person.2"_s : u"person.3"_s;
        case countRole:
            return list.count;
        default:
            return {};
    }
}

QHash<int, QByteArray> SidebarModel::roleNames() const {
    return {{nameRole, "name"}, {symbolRole, "symbol"}, {countRole, "count"}};
}

int SidebarModel::currentRow() const {
    const auto& chosen = model_.config().selectedGroupID;
    const auto row =
        std::ranges::find_if(rows_, [&](const GroupInfo& list) { return list.id == chosen; });
    return row == rows_.end() ? -1 : static_cast<int>(row - rows_.begin());
}

bool SidebarModel::enabled() const {
    return !model_.runner().isActive();
}

void SidebarModel::choose(int row) {
    const bool exists = row >= 0 && row < rowCount();
    const QString id = exists ? rows_[static_cast<size_t>(row)].id : QString();
    if (id != model_.config().selectedGroupID.value_or(QString()))
        model_.selectGroup(id);
}

void SidebarModel::follow() {
    std::vector<GroupInfo> lists = listsOf(model_);
    if (!std::ranges::equal(lists, rows_, {}, &GroupInfo::id, &GroupInfo::id)) {
        beginResetModel();
        rows_ = std::move(lists);
        endResetModel();
        Q_EMIT currentRowChanged();
        return;
    }
    for (size_t row = 0; row < lists.size(); ++row) {
        if (lists[row] != rows_[row]) {
            rows_[row] = lists[row];
            const QModelIndex changed = index(static_cast<int>(row));
            Q_EMIT dataChanged(changed, changed);
        }
    }
}

}  // namespace velmora
