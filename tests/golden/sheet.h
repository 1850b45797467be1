#pragma once

#include <QImage>
#include <QPainter>
#include <QStringList>

namespace qrn::golden {

/// A table of pictures with captions, drawn at the application's scale factor in the colours of its palette.
class Sheet {
 public:
  /// Sizes are logical pixels, and even, so that cells lie on whole device pixels at a scale of 1.5 too.
  Sheet(const QStringList& columns, int columnWidth);

  /// A row below the others; pictures are as high as the row or less.
  void addRow(const QString& caption, const QList<QImage>& pictures, int height);
  QImage picture() const;

 private:
  struct Row {
    QString caption;
    QList<QImage> pictures;
    int height;
  };

  QStringList columns_;
  int columnWidth_;
  QList<Row> rows_;
};

}  // namespace qrn::golden
