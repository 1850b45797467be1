#include "platform/qt/qt_scroll_bar.h"

#include <QApplication>
#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionSlider>
#include <cmath>

namespace qrn::qt {
namespace {

// Styles let the outline of the slider reach over its edges, by more than a pixel at a scale of 2.
constexpr int kOutline = 2;

QRect withOutline(const QRect& slider, int width) {
  return {0, slider.top() - kOutline, width, slider.height() + 2 * kOutline};
}

void draw(QPainter& painter, const QPixmap& bar, const QPixmap& slider, const QRect& at) {
  painter.drawPixmap(0, 0, bar);
  painter.drawPixmap(at.topLeft(), slider);
}

// Other styles may let the look under the mouse fade away over some time, of which nothing should be kept.
bool isStill(const QStyle& style) {
  return style.name() == QLatin1String("fusion") || style.name() == QLatin1String("windows");
}

}  // namespace

void QtScrollBar::changeEvent(QEvent* event) {
  look_.reset();
  QScrollBar::changeEvent(event);
}

void QtScrollBar::paintEvent(QPaintEvent* event) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  option.subControls = QStyle::SC_All;
  // What is pressed or under the mouse has a look of its own.
  const bool untouched = !underMouse() && QGuiApplication::mouseButtons() == Qt::NoButton;
  if (untouched && paintParts(option)) return;
  ++drawnByStyle_;
  QScrollBar::paintEvent(event);
}

bool QtScrollBar::paintParts(const QStyleOptionSlider& option) {
  QPainter painter(this);
  const double scale = painter.deviceTransform().m11();
  if (scale != std::floor(scale) || !isStill(*style()) || !endsApart(option)) return false;
  const QRect slider = sliderIn(option);
  const Look look{size(),           slider.height(),          scale, int(option.state),
                  option.direction, option.palette.cacheKey()};
  if (look_ != look) {
    // Drawn again with this look it will be worth keeping.
    look_ = look;
    parts_.reset();
    partsDiffer_ = false;
    return false;
  }
  if (partsDiffer_) return false;
  if (!parts_) parts_ = partsOf(option, scale);
  partsDiffer_ = !parts_;
  if (parts_) draw(painter, parts_->bar, parts_->slider, withOutline(slider, width()));
  return parts_.has_value();
}

// Tried out where the slider is and in two other places, for styles may draw anything.
std::optional<QtScrollBar::Parts> QtScrollBar::partsOf(const QStyleOptionSlider& option, double scale) const {
  QStyleOptionSlider bare = option;
  bare.subControls.setFlag(QStyle::SC_ScrollBarSlider, false);
  const QImage bar = drawn(bare, scale, Qt::white), whole = drawn(option, scale, Qt::white);
  if (whole != drawn(option, scale, Qt::black)) return std::nullopt;  // what lies behind can be seen
  const QRect cut = withOutline(sliderIn(option), width());
  QImage slider = whole.copy(QRect(cut.topLeft() * scale, cut.size() * scale));
  slider.setDevicePixelRatio(scale);
  const Parts parts{QPixmap::fromImage(bar), QPixmap::fromImage(slider)};
  for (const int share : {2, 3}) {
    QStyleOptionSlider other = option;
    other.sliderPosition = other.sliderValue = minimum() + (maximum() - minimum()) / share;
    if (!endsApart(other)) continue;
    QImage composed = drawn(bare, scale, Qt::white);
    QPainter painter(&composed);
    draw(painter, parts.bar, parts.slider, withOutline(sliderIn(other), width()));
    painter.end();
    if (composed != drawn(other, scale, Qt::white)) return std::nullopt;
  }
  return parts;
}

QRect QtScrollBar::sliderIn(const QStyleOptionSlider& option) const {
  return style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, this);
}

// At its ends the slider may share lines with what is there.
bool QtScrollBar::endsApart(const QStyleOptionSlider& option) const {
  constexpr int kFar = 2 * kOutline;
  const QRect groove =
      style()->subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarGroove, this);
  const QRect slider = sliderIn(option);
  return slider.top() - groove.top() > kFar && groove.bottom() - slider.bottom() > kFar;
}

QImage QtScrollBar::drawn(const QStyleOptionSlider& option, double scale, const QColor& behind) const {
  QImage image(size() * scale, QImage::Format_RGB32);
  image.setDevicePixelRatio(scale);
  image.fill(behind);
  QPainter painter(&image);
  style()->drawComplexControl(QStyle::CC_ScrollBar, &option, &painter, this);
  return image;
}

}  // namespace qrn::qt
