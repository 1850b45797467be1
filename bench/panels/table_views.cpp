#include <QHeaderView>
#include <QPainter>
#include <QStyledItemDelegate>
#include <QTableView>

#include "panels/contenders.h"
#include "panels/qt_window.h"
#include "panels/table_model.h"

namespace qrn::bench {
namespace {

constexpr int kRowHeight = 26;

/// Draws values as the editors that they would have in a form.
class EditorDelegate final : public QStyledItemDelegate {
 public:
  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    if (index.column() != TableModel::Value) return QStyledItemDelegate::paint(painter, option, index);
    const auto& model = static_cast<const TableModel&>(*index.model());
    QStyle& style = *option.widget->style();
    switch (model.kind(index.row())) {
      case Kind::Choice: return paintChoice(style, *painter, option, model.valueText(index.row()));
      case Kind::Flag: return paintFlag(style, *painter, option, model.ticked(index.row()));
      default: return paintText(style, *painter, option, model.valueText(index.row()));
    }
  }
  QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override {
    return {QStyledItemDelegate::sizeHint(option, index).width(), kRowHeight};
  }

 private:
  static void paintChoice(QStyle& style, QPainter& painter, const QStyleOptionViewItem& cell,
                          const QString& text) {
    QStyleOptionComboBox box;
    take(box, cell, QStyle::State_Enabled);
    box.currentText = text;
    style.drawComplexControl(QStyle::CC_ComboBox, &box, &painter, nullptr);
    style.drawControl(QStyle::CE_ComboBoxLabel, &box, &painter, nullptr);
  }
  static void paintFlag(QStyle& style, QPainter& painter, const QStyleOptionViewItem& cell, bool ticked) {
    QStyleOptionButton box;
    take(box, cell, QStyle::State_Enabled | (ticked ? QStyle::State_On : QStyle::State_Off));
    style.drawControl(QStyle::CE_CheckBox, &box, &painter, nullptr);
  }
  static void paintText(QStyle& style, QPainter& painter, const QStyleOptionViewItem& cell,
                        const QString& text) {
    QStyleOptionFrame frame;
    take(frame, cell, QStyle::State_Enabled | QStyle::State_Sunken);
    frame.lineWidth = 1;
    style.drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, nullptr);
    style.drawItemText(&painter, cell.rect.adjusted(5, 0, -5, 0), Qt::AlignVCenter | Qt::AlignLeft,
                       cell.palette, true, text, QPalette::Text);
  }
  static void take(QStyleOption& option, const QStyleOptionViewItem& cell, QStyle::State state) {
    option.rect = cell.rect;
    option.palette = cell.palette;
    option.fontMetrics = cell.fontMetrics;
    option.state = state;
  }
};

/// A table with a model of its own; nothing but what is seen is drawn.
class TableForm final : public QtForm {
 public:
  explicit TableForm(const FormOptions& options) : model_(options.rows) {
    QHeaderView& columns = *view_.horizontalHeader();
    QHeaderView& rows = *view_.verticalHeader();
    view_.setShowGrid(false);
    view_.setWordWrap(false);
    view_.setItemDelegate(&delegate_);
    view_.setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    rows.hide();
    rows.setSectionResizeMode(QHeaderView::Fixed);
    rows.setDefaultSectionSize(kRowHeight);
    columns.hide();
    columns.setMinimumSectionSize(20);
    // As wide as the widest of all captions, not of a thousand.
    columns.setResizeContentsPrecision(-1);
    view_.setModel(&model_);
    view_.resize(800, 600);
    view_.resizeColumnToContents(TableModel::Caption);
    columns.setSectionResizeMode(TableModel::Value, QHeaderView::Stretch);
    columns.resizeSection(TableModel::Mark, 28);
    columns.resizeSection(TableModel::Unit, 60);
    columns.resizeSection(TableModel::Status, 28);
    showWindow(view_, view_.verticalScrollBar());
  }

  void setCaption(int row, const std::string& caption) override {
    model_.setCaption(row, caption);
    view_.resizeColumnToContents(TableModel::Caption);
  }
  int captionWidth() const override { return view_.columnWidth(TableModel::Caption); }
  void write(int row, int generation) override { model_.write(row, generation); }
  void blink(int row) override { model_.blink(row); }

 private:
  TableModel model_;
  EditorDelegate delegate_;
  QTableView view_;
};

}  // namespace

Contender tableViews() {
  return {"table", displayName(),
          [](const FormOptions& options) { return std::make_unique<TableForm>(options); }};
}

}  // namespace qrn::bench
