#pragma once

#include <QAbstractTableModel>
#include <QPixmap>
#include <vector>

#include "panels/shown_data.h"

namespace qrn::bench {

/// The rows of a form as a table: caption, value, icon, unit, status.
class TableModel final : public QAbstractTableModel {
 public:
  enum Column { Caption, Value, Mark, Unit, Status, Columns };

  explicit TableModel(int rows);

  void setCaption(int row, const std::string& caption);
  void write(int row, int generation);
  void blink(int row);

  Kind kind(int row) const { return kindOf(row); }
  bool ticked(int row) const { return flagOf(row, at(row).generation); }
  QString valueText(int row) const;

  int rowCount(const QModelIndex& parent) const override {
    return parent.isValid() ? 0 : static_cast<int>(rows_.size());
  }
  int columnCount(const QModelIndex&) const override { return Columns; }
  QVariant data(const QModelIndex& index, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  struct Row {
    QString caption;
    QString unit;
    double number = 0;
    std::uint32_t whole = 0;
    int generation = 0;
    bool lit = false;
  };
  const Row& at(int row) const { return rows_[static_cast<std::size_t>(row)]; }
  void set(int row, int generation);
  void changed(int row, Column column) { emit dataChanged(index(row, column), index(row, column)); }

  std::vector<Row> rows_;
  QPixmap disc_, triangle_, square_;
};

}  // namespace qrn::bench
