#include <QPainter>
#include <QProxyStyle>
#include <QStyleFactory>

#include "picture_of.h"
#include "platform/qt/qt_scroll_bar.h"
#include "platform/qt/qt_surface.h"

namespace qrn::qt {
namespace {

/// What the style has drawn once is kept and drawn again. It must look as if it had been drawn anew.
class PaintedFromKept : public PanelTest {
 protected:
  ~PaintedFromKept() override {
    QApplication::setPalette(usual_);
    QApplication::setStyle("Fusion");
  }

  QImage paintedAt(double scale, Point offset = {}) {
    QImage image(QSize(400, 300) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::magenta);
    QPainter painter(&image);
    painter.translate(offset.x, offset.y);
    QtSurface surface(platform, painter, panel->onSurface());
    panel->paintTree(surface);
    return image;
  }
  QImage paintedAnew() {
    platform.appearanceChanged();
    return painted(platform, *panel);
  }

  const QPalette usual_ = QApplication::palette();
};

TEST_F(PaintedFromKept, IsTheSameTheSecondTime) {
  const QImage first = painted(platform, *panel);
  const std::size_t kept = platform.editorPainter().framesKept();
  EXPECT_GT(kept, 0U);
  EXPECT_EQ(difference(painted(platform, *panel), first), "");
  EXPECT_EQ(platform.editorPainter().framesKept(), kept);
}

TEST_F(PaintedFromKept, FollowsAnotherPaletteBeforeAnybodyIsTold) {
  const QImage before = painted(platform, *panel);
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35)));
  const QImage after = painted(platform, *panel);
  EXPECT_NE(difference(after, before), "");
  EXPECT_EQ(difference(after, paintedAnew()), "");
  QApplication::setPalette(usual_);
  EXPECT_EQ(difference(painted(platform, *panel), before), "");
}

TEST_F(PaintedFromKept, FollowsAnotherStyle) {
  const QImage before = painted(platform, *panel);
  QApplication::setStyle("Windows");
  const QImage after = painted(platform, *panel);
  EXPECT_NE(difference(after, before), "");
  EXPECT_EQ(difference(after, paintedAnew()), "");
}

TEST_F(PaintedFromKept, FollowsEveryScaleAndEveryPlaceInADevicePixel) {
  for (const double scale : {1.0, 1.5, 2.0, 1.0}) {
    for (const Point offset : {Point{0, 0}, Point{1, 1}, Point{0, 1}}) {
      const QImage kept = paintedAt(scale, offset);
      platform.appearanceChanged();
      EXPECT_EQ(difference(kept, paintedAt(scale, offset)), "") << scale;
    }
  }
}

TEST_F(PaintedFromKept, FollowsTheColourBehind) {
  painted(platform, *panel);
  panel->setBackColor(host::rgb(200, 255, 200));
  const QImage after = painted(platform, *panel);
  EXPECT_EQ(difference(after, paintedAnew()), "");
}

TEST_F(PaintedFromKept, FollowsTheDirectionOfTheLayout) {
  painted(platform, *panel);
  QGuiApplication::setLayoutDirection(Qt::RightToLeft);
  const QImage after = painted(platform, *panel);
  const QImage anew = paintedAnew();
  QGuiApplication::setLayoutDirection(Qt::LeftToRight);
  EXPECT_EQ(difference(after, anew), "");
}

TEST_F(PaintedFromKept, NeverTakesMoreThanItsRoom) {
  for (int i = 0; i < 1000; ++i) {
    panel->combo().SetList(0, "choice " + std::to_string(i));
    panel->combo().SetListIndex(0);
    painted(platform, *panel);
  }
  EXPECT_LE(platform.editorPainter().framesKept(), 256U);
  EXPECT_EQ(difference(painted(platform, *panel), paintedAnew()), "");
  for (int width = 300; width < 800; ++width) {
    panel->text().Move(0, 0, width, 200);
    painted(platform, *panel);
    EXPECT_LE(platform.editorPainter().pixelsKept(), 2'000'000);
  }
}

TEST_F(PaintedFromKept, ManyColoursOfEditorsAreToldApart) {
  for (int i = 0; i < 200; ++i) {
    const host::Color color = host::rgb(i, 255 - i, 30);
    panel->text().SetBackColor(color);
    painted(platform, *panel);
    const QPalette& palette = platform.palettes().of(panel->text());
    ASSERT_EQ(palette.color(QPalette::Base), QColor(i, 255 - i, 30));
  }
}

/// A scroll bar beside one that its style always draws.
class PaintedBarParts : public testing::Test {
 protected:
  PaintedBarParts() {
    for (QScrollBar* one : {static_cast<QScrollBar*>(&bar), &plain}) {
      one->resize(16, 300);
      one->setRange(0, 4000);
      one->setPageStep(500);
      one->setValue(1000);
    }
    std::ignore = shownBy(bar);
    std::ignore = shownBy(bar);
  }
  ~PaintedBarParts() override {
    QApplication::setPalette(usual_);
    QApplication::setStyle("Fusion");
  }

  static QImage shownBy(QScrollBar& one) {
    QImage image(one.size() * qApp->devicePixelRatio(), QImage::Format_RGB32);
    image.setDevicePixelRatio(qApp->devicePixelRatio());
    image.fill(Qt::magenta);
    one.render(&image);
    return image;
  }
  std::string differs() { return difference(shownBy(bar), shownBy(plain)); }
  template <class Change>
  void both(Change&& change) {
    change(static_cast<QScrollBar&>(bar));
    change(plain);
  }

  const QPalette usual_ = QApplication::palette();
  QtScrollBar bar{nullptr};
  QScrollBar plain{Qt::Vertical};
};

TEST_F(PaintedBarParts, LookLikeTheStylesBarAtEveryValue) {
  const int before = bar.drawnByStyle();
  for (int value = 0; value <= 4000; value += 17) {
    both([&](QScrollBar& one) { one.setValue(value); });
    ASSERT_EQ(differs(), "") << value;
  }
  // The style draws the bar at its ends; between two scales it always does.
  const double scale = qApp->devicePixelRatio();
  EXPECT_EQ(scale == std::floor(scale), bar.drawnByStyle() - before < 20);
}

TEST_F(PaintedBarParts, FollowRangeSizeAndBeingDisabled) {
  const std::function<void(QScrollBar&)> changes[] = {
      [](QScrollBar& one) { one.setPageStep(2000); },
      [](QScrollBar& one) { one.setMaximum(9000); },
      [](QScrollBar& one) { one.resize(20, 260); },
      [](QScrollBar& one) { one.setEnabled(false); },
      [](QScrollBar& one) { one.setEnabled(true); },
      [](QScrollBar& one) { one.setMaximum(0); },
      [](QScrollBar& one) { one.setMaximum(500); },
      [](QScrollBar& one) { one.resize(16, 40); },
      [](QScrollBar& one) { one.setLayoutDirection(Qt::RightToLeft); },
      [](QScrollBar& one) { one.setInvertedAppearance(true); },
  };
  int which = 0;
  for (const auto& change : changes) {
    both(change);
    for (int i = 0; i < 3; ++i) EXPECT_EQ(differs(), "") << which;
    ++which;
  }
}

TEST_F(PaintedBarParts, FollowThePaletteAndTheStyle) {
  QApplication::setPalette(QPalette(QColor(0x35, 0x35, 0x35)));
  for (int i = 0; i < 3; ++i) EXPECT_EQ(differs(), "");
  for (const QString& style : QStyleFactory::keys()) {
    QApplication::setStyle(style);
    for (int value = 900; value < 940; value += 3) {
      both([&](QScrollBar& one) { one.setValue(value); });
      EXPECT_EQ(differs(), "") << style.toStdString();
    }
  }
}

TEST_F(PaintedBarParts, AreLeftToStylesThatMayFade) {
  QApplication::setStyle(new QProxyStyle("Fusion"));
  const int before = bar.drawnByStyle();
  for (int i = 0; i < 3; ++i) EXPECT_EQ(differs(), "");
  EXPECT_EQ(bar.drawnByStyle() - before, 3);
}

TEST_F(PaintedBarParts, ShowWhatTheMouseIsOver) {
  const int before = bar.drawnByStyle();
  both([](QScrollBar& one) {
    one.setAttribute(Qt::WA_UnderMouse);
    QHoverEvent entered(QEvent::HoverEnter, QPointF(8, 6), QPointF(8, 6), QPointF(-1, -1));
    QCoreApplication::sendEvent(&one, &entered);
  });
  EXPECT_EQ(differs(), "");
  EXPECT_EQ(bar.drawnByStyle(), before + 1);
  both([](QScrollBar& one) {
    one.setAttribute(Qt::WA_UnderMouse, false);
    QHoverEvent left(QEvent::HoverLeave, QPointF(-1, -1), QPointF(-1, -1), QPointF(8, 6));
    QCoreApplication::sendEvent(&one, &left);
  });
  EXPECT_EQ(differs(), "");
}

}  // namespace
}  // namespace qrn::qt
