#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration>
#include <vector>

#include "app/app_model.h"

namespace velmora {

/// The rows of the sidebar: All Contacts, then the address-book groups in the model's order. The
/// rows that the view knows are kept, so that a new count changes a row instead of the list.
class SidebarModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(int currentRow READ currentRow NOTIFY currentRowChanged)
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged)

  public:
    enum Role {
        nameRole = Qt::UserRole,  ///< `name`: the list's name
        symbolRole,               ///< `symbol`: the name of its symbol
        countRole                 ///< `count`: how many people, a plain integer
    };

    explicit SidebarModel(AppModel& model);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// The chosen list's row, or -1.
    [[nodiscard]] int currentRow() const;
    /// False during a run, which keeps its list.
    [[nodiscard]] bool enabled() const;
    /// Chooses the list at `row`; no list when there is no such row. Nothing happens when it is the
    /// chosen one already.
    Q_INVOKABLE void choose(int row);

  Q_SIGNALS:
    void currentRowChanged();
    void enabledChanged();

  private:
    void follow();

    AppModel& model_;
    std::vector<GroupInfo> rows_;
};

}  // namespace velmora
