#pragma once

#include <QStyle>
#include <QStyledItemDelegate>

class QPainter;

namespace qrn::qt {

/// What is to be seen of one entry of a list with check marks.
struct QtListItem {
  QString text;
  bool ticked = false;
  bool enabled = true;
  bool current = false;  // and the list has the focus

  /// Draws it with the palette and font given.
  void paint(QPainter& painter, const QRect& place, const QPalette& palette, const QFont& font) const;
};

/// Between the frame of a list and its entries: at a scale of 1.5 they would lie over the frame.
inline constexpr int kListMargin = 1;

/// The height of an entry.
int listItemHeight(const QFont& font);

/// Draws the entries of the real list just as the painted one is drawn.
class QtListItemDelegate final : public QStyledItemDelegate {
 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
};

}  // namespace qrn::qt
