#include "platform/qt/qt_list_item.h"

#include <QApplication>
#include <QFontMetrics>
#include <QWidget>

namespace qrn::qt {

void QtListItem::paint(QPainter& painter, const QRect& place, const QPalette& palette,
                       const QFont& font) const {
  QStyleOptionViewItem option;
  option.rect = place;
  option.palette = palette;
  option.palette.setCurrentColorGroup(enabled ? QPalette::Active : QPalette::Disabled);
  option.font = font;
  option.fontMetrics = QFontMetrics(font);
  option.text = text;
  option.features = QStyleOptionViewItem::HasDisplay | QStyleOptionViewItem::HasCheckIndicator;
  option.checkState = ticked ? Qt::Checked : Qt::Unchecked;
  option.displayAlignment = Qt::AlignLeft | Qt::AlignVCenter;
  option.showDecorationSelected = true;
  option.state = QStyle::State_Active | (ticked ? QStyle::State_On : QStyle::State_Off);
  option.state.setFlag(QStyle::State_Enabled, enabled);
  option.state.setFlag(QStyle::State_Selected, current);
  QApplication::style()->drawControl(QStyle::CE_ItemViewItem, &option, &painter);
}

int listItemHeight(const QFont& font) { return QFontMetrics(font).height() + 2; }

void QtListItemDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                               const QModelIndex& index) const {
  const QWidget& list = *option.widget;
  const bool current = option.state.testFlag(QStyle::State_Selected) && list.hasFocus();
  const QtListItem item{index.data(Qt::DisplayRole).toString(),
                        index.data(Qt::CheckStateRole).toInt() == Qt::Checked, list.isEnabled(), current};
  item.paint(*painter, option.rect, list.palette(), list.font());
}

QSize QtListItemDelegate::sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const {
  return {QStyledItemDelegate::sizeHint(option, index).width(), listItemHeight(option.font)};
}

}  // namespace qrn::qt
