#include "golden/comparison.h"

#include <QCoreApplication>
#include <QDir>
#include <algorithm>
#include <cstdlib>

namespace qrn::golden {
namespace {

bool alike(QRgb a, QRgb b) {
  return std::max({std::abs(qRed(a) - qRed(b)), std::abs(qGreen(a) - qGreen(b)),
                   std::abs(qBlue(a) - qBlue(b))}) <= kSlight;
}

QString sizeOf(const QImage& image) { return QString("%1x%2").arg(image.width()).arg(image.height()); }

bool save(const QImage& image, const QString& file) {
  constexpr int kSmallest = 0;  // the best compression, not the worst picture
  return image.convertToFormat(QImage::Format_RGB888).save(file, "PNG", kSmallest);
}

}  // namespace

Comparison compare(const QImage& actual, const QImage& expected) {
  if (actual.size() != expected.size()) {
    const QString complaint = QString("the size is %1 instead of %2").arg(sizeOf(actual), sizeOf(expected));
    return {complaint.toStdString(), {}};
  }
  QImage difference =
      expected.convertToFormat(QImage::Format_Grayscale8).convertToFormat(QImage::Format_RGB32);
  int count = 0;
  QPoint first;
  for (int y = 0; y < actual.height(); ++y) {
    for (int x = 0; x < actual.width(); ++x) {
      if (alike(actual.pixel(x, y), expected.pixel(x, y))) continue;
      if (count++ == 0) first = {x, y};
      difference.setPixel(x, y, qRgb(255, 0, 0));
    }
  }
  if (count <= kShare * actual.width() * actual.height()) return {{}, difference};
  const QString complaint =
      QString("%1 pixels differ, the first at %2,%3").arg(count).arg(first.x()).arg(first.y());
  return {complaint.toStdString(), difference};
}

std::string compareWithKept(const QImage& actual, const QString& name, const QString& folder) {
  const QString file = QStringLiteral(QRN_SOURCE_DIR "/%1/%2.png").arg(folder, name);
  if (qEnvironmentVariableIsSet("QRN_REFRESH_GOLDEN")) {
    const QString what = save(actual, file)
                             ? "%1 is new: look at it, then run again without QRN_REFRESH_GOLDEN"
                             : "%1 can't be written";
    return what.arg(file).toStdString();
  }
  // What was read has no scale of its own.
  QImage plain = actual;
  plain.setDevicePixelRatio(1);
  const QImage expected(file);
  const Comparison result = compare(plain, expected);
  if (result.complaint.empty()) return {};
  const QString written = QCoreApplication::applicationDirPath() + "/golden";
  const QString stem = written + "/" + name;
  std::string message = result.complaint + "\n  expected:   " + file.toStdString();
  if (expected.isNull()) message += " (missing; made with QRN_REFRESH_GOLDEN=1)";
  const bool saved = QDir().mkpath(written) && save(plain, stem + "_actual.png") &&
                     (result.difference.isNull() || save(result.difference, stem + "_difference.png"));
  if (!saved) return message + "\n  nothing could be written to " + written.toStdString();
  message += "\n  actual:     " + stem.toStdString() + "_actual.png";
  if (!result.difference.isNull()) message += "\n  difference: " + stem.toStdString() + "_difference.png";
  return message;
}

}  // namespace qrn::golden
