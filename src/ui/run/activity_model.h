#pragma once

#include <QAbstractListModel>
#include <QtQmlIntegration>

#include "sending/runner.h"

namespace velmora {

/// The send log as the composer's column lists it: the newest line first.
class ActivityModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")

  public:
    enum Role {
        entryRole = Qt::UserRole  ///< `entry`: an `ActivityEntry`
    };

    /// `runner` outlives it.
    explicit ActivityModel(const Runner& runner);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

  private:
    void followReplaced();
    void followAppended();
    void followEntry(qsizetype index);

    const Runner& runner_;
    int count_ = 0;  // the lines that the view knows
};

}  // namespace velmora
