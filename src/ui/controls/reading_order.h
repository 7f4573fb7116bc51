#pragma once

#include <QtQml/qqmlregistration.h>
#include <QPointer>
#include <QQuickItem>

namespace velmora {

/// Keeps the rows of a list in the order in which they stand, from the top down, for a screen
/// reader: a view has them in the order in which it made them.
class ReadingOrder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    /// What holds the rows.
    Q_PROPERTY(QQuickItem* rows READ rows WRITE setRows NOTIFY rowsChanged)

  public:
    using QObject::QObject;

    [[nodiscard]] QQuickItem* rows() const { return rows_; }
    void setRows(QQuickItem* rows);

  Q_SIGNALS:
    void rowsChanged();

  private:
    void follow(QQuickWindow* window);
    void keep() const;

    QPointer<QQuickItem> rows_;
    QMetaObject::Connection frames_;
};

}  // namespace velmora
