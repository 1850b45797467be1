#pragma once

#include <QPixmap>
#include <QScrollBar>
#include <optional>

class QStyleOptionSlider;

namespace qrn::qt {

/// A vertical scroll bar that keeps what its style draws: the bar without its slider, and the slider. The
/// style still draws it while the mouse is over it, at its ends, and wherever its two parts put together
/// would be another picture.
class QtScrollBar final : public QScrollBar {
 public:
  explicit QtScrollBar(QWidget* parent) : QScrollBar(Qt::Vertical, parent) {}

  /// How often the style has drawn the whole bar for the screen.
  int drawnByStyle() const { return drawnByStyle_; }

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  /// All that the pictures depend on.
  struct Look {
    QSize size;
    int sliderHeight;
    double scale;
    int state;
    Qt::LayoutDirection direction;
    qint64 palette;
    friend bool operator==(const Look&, const Look&) = default;
  };
  struct Parts {
    QPixmap bar, slider;
  };

  bool paintParts(const QStyleOptionSlider& option);
  std::optional<Parts> partsOf(const QStyleOptionSlider& option, double scale) const;
  QRect sliderIn(const QStyleOptionSlider& option) const;
  bool endsApart(const QStyleOptionSlider& option) const;
  QImage drawn(const QStyleOptionSlider& option, double scale, const QColor& behind) const;

  std::optional<Look> look_;    // of the last painting
  std::optional<Parts> parts_;  // of that look, once it has been painted twice
  bool partsDiffer_ = false;    // from what the style draws
  int drawnByStyle_ = 0;
};

}  // namespace qrn::qt
