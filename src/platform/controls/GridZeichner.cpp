#include "platform/controls/GridZeichner.h"

#include <QPainter>
#include <QTableView>

void GridZeichner::paint(QPainter* maler, const QStyleOptionViewItem& option,
                         const QModelIndex& index) const {
  QStyleOptionViewItem zelle = option;
  zelle.state &= ~QStyle::State_HasFocus;
  QStyledItemDelegate::paint(maler, zelle, index);
  const auto* grid = qobject_cast<const QTableView*>(option.widget);
  if (grid == nullptr || grid->currentIndex().row() != index.row()) return;
  const bool markiert = option.state & QStyle::State_Selected;
  const bool fokus = grid->hasFocus();
  QColor farbe = option.palette.color(QPalette::Active, QPalette::Highlight);
  if (markiert && fokus) farbe = option.palette.color(QPalette::Active, QPalette::WindowText);
  maler->save();
  maler->setPen(QPen(farbe, fokus ? 2 : 1));
  const QRect r = option.rect;
  maler->drawLine(r.topLeft() + QPoint(0, fokus ? 1 : 0), r.topRight() + QPoint(0, fokus ? 1 : 0));
  maler->drawLine(r.bottomLeft(), r.bottomRight());
  maler->restore();
}
