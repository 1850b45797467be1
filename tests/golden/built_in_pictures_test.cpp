#include <gtest/gtest.h>

#include <QApplication>

#include "golden/comparison.h"
#include "golden/palettes.h"
#include "golden/sheet.h"
#include "images/QRNImageList.h"
#include "images/built_in_pictures.h"
#include "images/toolbox_bitmaps.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"
#include "platform/qt/qt_surface.h"

namespace qrn::golden {
namespace {

// A cell holds a picture of 16 x 15 at three times its size.
constexpr int kCell = 52;

struct Ground {
  const char* name;
  QPalette palette;
};

QList<Ground> grounds() { return {{"light", lightPalette()}, {"dark", darkPalette()}}; }

/// What every release shows its users, so the picture that is kept is the one in the documentation.
class BuiltInPictureSheet : public testing::Test {
 protected:
  BuiltInPictureSheet() { QApplication::setPalette(lightPalette()); }
  ~BuiltInPictureSheet() override { QApplication::setPalette(usual_); }

  /// A picture as rows and buttons draw it on a screen of a scale factor, pixel by pixel.
  QImage drawn(std::int32_t id, int scale, const QPalette& palette) {
    QImage image(kCell, 15 * scale + 4, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(palette.color(QPalette::Window));
    QPainter painter(&image);
    qt::QtSurface surface(platform_, painter, {0, 0, kCell, kCell});
    surface.picture({2.0 / scale, 2.0 / scale}, *list_->Image(static_cast<qrnImageId>(id)));
    image.setDevicePixelRatio(1);
    return image;
  }

  QImage numbers(int first, int end) {
    QStringList columns;
    for (int id = first; id < end; ++id) columns.append(QString::number(id));
    Sheet sheet(columns, kCell);
    for (const Ground& ground : grounds()) {
      for (const int scale : {1, 2, 3}) {
        QList<QImage> row;
        for (int id = first; id < end; ++id) row.append(drawn(id, scale, ground.palette));
        sheet.addRow(QString("%1, %2x").arg(ground.name).arg(scale), row, 15 * scale + 4);
      }
    }
    return sheet.picture();
  }

 private:
  const QPalette usual_ = QApplication::palette();
  qt::QtPlatform platform_;
  qt::QtSite site_{platform_};
  host::Owned<QRNImageList> list_ = host::create<QRNImageList>(site_);
};

/// As a bitmap file, so that somebody else's reader of such files judges it.
QImage toolboxPicture(std::int32_t id) {
  const auto bitmap = toolboxBitmap(id);
  QByteArray file =
      QByteArray::fromHex("424dee0000000000000076000000");  // 14 + 224 bytes, the pixels from 118
  file.append(reinterpret_cast<const char*>(bitmap.data()), static_cast<qsizetype>(bitmap.size()));
  return QImage::fromData(file, "BMP");
}

QImage toolbox() {
  QStringList columns;
  for (std::int32_t id = kFirstToolboxBitmap; id <= kLastToolboxBitmap; ++id)
    columns.append(QString::number(id));
  Sheet sheet(columns, kCell);
  for (const int times : {1, 3}) {
    QList<QImage> row;
    for (std::int32_t id = kFirstToolboxBitmap; id <= kLastToolboxBitmap; ++id) {
      const QImage picture = toolboxPicture(id);
      row.append(picture.scaled(picture.size() * times));
    }
    sheet.addRow(times == 1 ? "toolbox" : "enlarged", row, 15 * times + 4);
  }
  return sheet.picture();
}

QImage oneBelowTheOther(const QList<QImage>& parts) {
  QSize size;
  for (const QImage& part : parts)
    size = {std::max(size.width(), part.width()), size.height() + part.height()};
  QImage whole(size, QImage::Format_RGB32);
  whole.fill(QApplication::palette().color(QPalette::ToolTipBase));
  QPainter painter(&whole);
  int y = 0;
  for (const QImage& part : parts) {
    painter.drawImage(0, y, part);
    y += part.height();
  }
  return whole;
}

TEST_F(BuiltInPictureSheet, ToolboxBitmapsAreReadAsBitmapFiles) {
  for (std::int32_t id = kFirstToolboxBitmap; id <= kLastToolboxBitmap; ++id) {
    EXPECT_EQ(toolboxPicture(id).size(), QSize(16, 15)) << id;
    EXPECT_EQ(toolboxPicture(id).colorCount(), 16) << id;
  }
}

TEST_F(BuiltInPictureSheet, ShowsEveryNumberAtThreeScalesOnLightAndDark) {
  constexpr int kHalf = (kBuiltInPictureCount + 1) / 2;
  const QImage sheet = oneBelowTheOther({numbers(0, kHalf), numbers(kHalf, kBuiltInPictureCount), toolbox()});
  EXPECT_EQ(compareWithKept(sheet, "pictures", "docs"), "");
}

}  // namespace
}  // namespace qrn::golden
