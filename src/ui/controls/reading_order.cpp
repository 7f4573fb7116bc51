#include "ui/controls/reading_order.h"

#include <QQuickWindow>
#include <algorithm>

namespace velmora {

void ReadingOrder::setRows(QQuickItem* rows) {
    if (rows_ == rows)
        return;
    rows_ = rows;
    if (rows_ != nullptr) {
        connect(rows_, &QQuickItem::windowChanged, this, &ReadingOrder::follow);
        follow(rows_->window());
    }
    Q_EMIT rowsChanged();
}

void ReadingOrder::follow(QQuickWindow* window) {
    disconnect(frames_);
    // By then the view has put every row where it belongs. A frame may be made on another thread.
    if (window != nullptr)
        frames_ = connect(window, &QQuickWindow::frameSwapped, this, &ReadingOrder::keep);
}

void ReadingOrder::keep() const {
    if (rows_ == nullptr)
        return;
    QList<QQuickItem*> rows = rows_->childItems();
    if (std::ranges::is_sorted(rows, {}, &QQuickItem::y))
        return;
    std::ranges::sort(rows, {}, &QQuickItem::y);
    for (qsizetype row = 1; row < rows.size(); ++row)
        rows[row]->stackAfter(rows[row - 1]);
}

}  // namespace velmora
