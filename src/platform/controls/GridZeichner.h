#pragma once

#include <QStyledItemDelegate>

// Paints a cell: the whole current row has the frame, not the one cell.
class GridZeichner : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* maler, const QStyleOptionViewItem& option,
             const QModelIndex& index) const override;
};
