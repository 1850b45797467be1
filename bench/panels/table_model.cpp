#include "panels/table_model.h"

#include "panels/qt_window.h"

namespace qrn::bench {
namespace {

const QString& choiceText(std::uint32_t choice) {
  static const std::vector<QString> texts(std::begin(kChoices), std::end(kChoices));
  return texts[choice];
}

}  // namespace

TableModel::TableModel(int rows)
    : rows_(static_cast<std::size_t>(rows)),
      disc_(pixmapOf(Icon::Disc)),
      triangle_(pixmapOf(Icon::Triangle)),
      square_(pixmapOf(Icon::Square)) {
  for (int row = 0; row < rows; ++row) {
    Row& made = rows_[static_cast<std::size_t>(row)];
    made.caption = QString::fromStdString(captionOf(row));
    made.unit = QString::fromUtf8(unitOf(row));
    made.lit = row / 4 % 2 != 0;
    set(row, 0);
  }
}

void TableModel::set(int row, int generation) {
  Row& one = rows_[static_cast<std::size_t>(row)];
  one.generation = generation;
  switch (kindOf(row)) {
    case Kind::Number: one.number = numberOf(row, generation); break;
    case Kind::Choice: one.whole = static_cast<std::uint32_t>(choiceOf(row, generation)); break;
    case Kind::Flag: one.whole = flagOf(row, generation); break;
    case Kind::Hexadecimal: one.whole = hexadecimalOf(row, generation); break;
  }
}

void TableModel::setCaption(int row, const std::string& caption) {
  rows_[static_cast<std::size_t>(row)].caption = QString::fromStdString(caption);
  changed(row, Caption);
}

void TableModel::write(int row, int generation) {
  set(row, generation);
  changed(row, Value);
}

void TableModel::blink(int row) {
  Row& one = rows_[static_cast<std::size_t>(row)];
  one.lit = !one.lit;
  changed(row, Status);
}

QString TableModel::valueText(int row) const {
  const Row& one = at(row);
  switch (kindOf(row)) {
    case Kind::Number: return QString::number(one.number, 'f', 3);
    case Kind::Choice: return choiceText(one.whole);
    case Kind::Hexadecimal: return QString::asprintf("0x%08X", one.whole);
    default: return {};
  }
}

QVariant TableModel::data(const QModelIndex& index, int role) const {
  const Row& one = at(index.row());
  const bool text = role == Qt::DisplayRole, picture = role == Qt::DecorationRole;
  switch (index.column()) {
    case Caption: return text ? one.caption : QVariant();
    case Value:
      if (text || role == Qt::EditRole) return valueText(index.row());
      if (role == Qt::CheckStateRole && kindOf(index.row()) == Kind::Flag)
        return one.whole != 0 ? Qt::Checked : Qt::Unchecked;
      return {};
    case Mark: return picture ? disc_ : QVariant();
    case Unit: return text ? one.unit : QVariant();
    default: return picture ? (one.lit ? square_ : triangle_) : QVariant();
  }
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags usual = QAbstractTableModel::flags(index);
  if (index.column() != Value) return usual;
  return usual | (kindOf(index.row()) == Kind::Flag ? Qt::ItemIsUserCheckable : Qt::ItemIsEditable);
}

}  // namespace qrn::bench
