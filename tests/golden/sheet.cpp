#include "golden/sheet.h"

#include <QApplication>
#include <QPalette>

namespace qrn::golden {
namespace {

constexpr int kGap = 6;
constexpr int kHeader = 18;
constexpr int kCaption = 76;

}  // namespace

Sheet::Sheet(const QStringList& columns, int columnWidth) : columns_(columns), columnWidth_(columnWidth) {}

void Sheet::addRow(const QString& caption, const QList<QImage>& pictures, int height) {
  rows_.append({caption, pictures, height});
}

QImage Sheet::picture() const {
  int height = kHeader + kGap;
  for (const Row& row : rows_) height += row.height + kGap;
  const int width = kCaption + static_cast<int>(columns_.size()) * (columnWidth_ + kGap);
  const double scale = qApp->devicePixelRatio();
  QImage image(QSize(width, height) * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  // A colour that no edge has, so that each can be seen.
  image.fill(QApplication::palette().color(QPalette::ToolTipBase));
  QPainter painter(&image);
  painter.setPen(QApplication::palette().color(QPalette::WindowText));
  int x = kCaption;
  for (const QString& column : columns_) {
    painter.drawText(QRect(x, 0, columnWidth_, kHeader), Qt::AlignLeft | Qt::AlignVCenter, column);
    x += columnWidth_ + kGap;
  }
  int y = kHeader;
  for (const Row& row : rows_) {
    painter.drawText(QRect(kGap, y, kCaption - kGap, row.height), Qt::AlignLeft | Qt::AlignVCenter,
                     row.caption);
    x = kCaption;
    for (const QImage& each : row.pictures) {
      painter.drawImage(QPoint(x, y), each);
      x += columnWidth_ + kGap;
    }
    y += row.height + kGap;
  }
  return image;
}

}  // namespace qrn::golden
