#include <gtest/gtest.h>

#include <QApplication>
#include <QPaintEvent>
#include <QPainter>
#include <QWidget>
#include <cmath>

#include "base/text.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_surface.h"

namespace qrn::qt {
namespace {

constexpr host::Color kRed = host::rgb(255, 0, 0);
constexpr QRgb kRedPixel = 0xFFFF0000, kWhitePixel = 0xFFFFFFFF;

/// A white picture of 20 by 20 logical pixels at a scale factor.
class Surface : public testing::Test {
 protected:
  QImage drawn(double scale, const std::function<void(QtSurface&)>& draw) {
    QImage image(QSize(20, 20) * scale, QImage::Format_RGB32);
    image.setDevicePixelRatio(scale);
    image.fill(Qt::white);
    QPainter painter(&image);
    QtSurface surface(platform, painter, {0, 0, 20, 20});
    draw(surface);
    return image;
  }
  static int count(const QImage& image, QRgb color) {
    int found = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x) found += image.pixel(x, y) == color ? 1 : 0;
    return found;
  }

  QtPlatform platform;
};

/// A widget of 20 by 20 pixels that draws on a surface what it has to.
class DrawingWidget final : public QWidget {
 public:
  DrawingWidget(QtPlatform& platform, std::function<void(QtSurface&)> draw)
      : platform_(platform), draw_(std::move(draw)) {
    resize(20, 20);
  }

 protected:
  void paintEvent(QPaintEvent* event) override {
    EXPECT_GT(event->region().rectCount(), 1);
    QPainter painter(this);
    QtSurface surface(platform_, painter, fromQt(event->rect()), event->region());
    draw_(surface);
  }

 private:
  QtPlatform& platform_;
  std::function<void(QtSurface&)> draw_;
};

TEST_F(Surface, FillsExactlyItsPixelsAtEveryScale) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage image = drawn(scale, [](QtSurface& s) { s.fill({2, 4, 6, 8}, kRed); });
    EXPECT_EQ(count(image, kRedPixel), static_cast<int>(6 * scale * 8 * scale)) << scale;
    EXPECT_EQ(image.pixel(static_cast<int>(2 * scale), static_cast<int>(4 * scale)), kRedPixel) << scale;
  }
}

TEST_F(Surface, NeighboursNeitherOverlapNorGapeAtAScaleThatIsNoWholeNumber) {
  const QImage image = drawn(1.5, [](QtSurface& s) {
    for (int i = 0; i < 20; ++i) s.fill({static_cast<double>(i), 0, 1, 20}, kRed);
  });
  EXPECT_EQ(count(image, kRedPixel), 30 * 30);
}

TEST_F(Surface, ALineHasBothItsEndsAndIsCrispAtEveryScale) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage image = drawn(scale, [](QtSurface& s) {
      s.line({2, 3}, {9, 3}, kRed);
      s.line({5, 15}, {5, 8}, kRed);
    });
    const int thick = scale == 2 ? 2 : 1;
    const int lengths = static_cast<int>(8 * scale) + static_cast<int>(8 * scale);
    EXPECT_EQ(count(image, kRedPixel), lengths * thick) << scale;
    EXPECT_EQ(count(image, kRedPixel) + count(image, kWhitePixel), image.width() * image.height()) << scale;
  }
}

TEST_F(Surface, FramesReachTheEdgesOfTheirAreaAtEveryScale) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    for (const int width : {6, 7}) {
      const QImage image = drawn(scale, [&](QtSurface& s) {
        s.frame({2, 2, static_cast<double>(width), 8}, kRed);
      });
      const auto right = static_cast<int>(std::floor((2 + width) * scale + 0.5)) - 1;
      const auto middle = static_cast<int>(6 * scale);
      EXPECT_EQ(image.pixel(right, middle), kRedPixel) << scale << " " << width;
      EXPECT_EQ(image.pixel(right + 1, middle), kWhitePixel) << scale << " " << width;
    }
  }
}

TEST_F(Surface, FramesInsideEachOtherTouchAtEveryScale) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage image = drawn(scale, [&](QtSurface& s) {
      s.frame({1, 1, 17, 17}, kRed);
      s.frame({1, 1, 17, 17}, host::rgb(0, 0, 255), host::rgb(0, 0, 255), 1);
    });
    const int thick = scale == 2 ? 2 : 1;
    const int left = static_cast<int>(std::floor(scale + 0.5)), right = static_cast<int>(18 * scale) - 1;
    const int middle = static_cast<int>(9 * scale);
    for (int i = 0; i < 2 * thick; ++i) {
      const QRgb color = i < thick ? kRedPixel : 0xFF0000FF;
      EXPECT_EQ(image.pixel(left + i, middle), color) << scale << " " << i;
      EXPECT_EQ(image.pixel(right - i, middle), color) << scale << " " << i;
      EXPECT_EQ(image.pixel(middle, left + i), color) << scale << " " << i;
      EXPECT_EQ(image.pixel(middle, right - i), color) << scale << " " << i;
    }
    EXPECT_EQ(image.pixel(left + 2 * thick, middle), kWhitePixel) << scale;
  }
}

TEST_F(Surface, ASlantedLineIsSmooth) {
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage image = drawn(scale, [](QtSurface& s) { s.line({2, 2}, {12, 8}, kRed); });
    EXPECT_LT(count(image, kRedPixel) + count(image, kWhitePixel), image.width() * image.height()) << scale;
  }
}

TEST_F(Surface, ARegionHasItsOwnOriginAndClips) {
  const QImage image = drawn(1, [](QtSurface& s) {
    s.enter({5, 5, 10, 10});
    s.enter({8, 8, 10, 10});
    EXPECT_EQ(s.visible(), (Rect{0, 0, 2, 2}));
    s.fill({0, 0, 20, 20}, kRed);
    s.line({0, 0}, {19, 0}, host::rgb(0, 0, 255));
    s.leave();
    s.leave();
    s.fill({0, 0, 1, 1}, kRed);
  });
  EXPECT_EQ(count(image, kRedPixel), 3);
  EXPECT_EQ(count(image, 0xFF0000FF), 2);
  EXPECT_EQ(image.pixel(13, 13), 0xFF0000FF);
}

TEST_F(Surface, MergingAndMaskingWorkBitByBit) {
  const QImage image = drawn(1, [](QtSurface& s) {
    s.fill({0, 0, 20, 20}, host::rgb(0x12, 0x34, 0x56));
    s.fill({0, 0, 5, 5}, host::rgb(0xF0, 0, 0x0F), host::DrawMode::MergePen);
    s.fill({10, 10, 5, 5}, host::rgb(0xF0, 0, 0x0F), host::DrawMode::MaskPen);
  });
  EXPECT_EQ(image.pixel(0, 0), 0xFFF2345Fu);
  EXPECT_EQ(image.pixel(12, 12), 0xFF100006u);
  EXPECT_EQ(image.pixel(7, 7), 0xFF123456u);
}

TEST_F(Surface, APictureComesFromTheBitmapOfItsScale) {
  const host::Picture::Bitmap one{2, 2, std::vector<std::uint32_t>(4, 0xFFFF0000)};
  const host::Picture::Bitmap two{4, 4, std::vector<std::uint32_t>(16, 0xFF0000FF)};
  const host::Picture picture({one, two});
  const auto draw = [&](QtSurface& s) { s.picture({3, 3}, picture); };
  EXPECT_EQ(count(drawn(1, draw), kRedPixel), 4);
  EXPECT_EQ(count(drawn(2, draw), 0xFF0000FF), 16);
  EXPECT_EQ(count(drawn(1.5, draw), 0xFF0000FF), 9);
}

TEST_F(Surface, APictureAtTheAddressOfAnEarlierOneIsDrawnAsItIs) {
  std::optional<host::Picture> picture;
  const auto draw = [&](QtSurface& s) { s.picture({0, 0}, *picture); };
  picture.emplace(std::vector<host::Picture::Bitmap>{{1, 1, {0xFFFF0000}}});
  EXPECT_EQ(drawn(1, draw).pixel(0, 0), kRedPixel);
  picture.emplace(std::vector<host::Picture::Bitmap>{{1, 1, {0xFF0000FF}}});
  EXPECT_EQ(drawn(1, draw).pixel(0, 0), 0xFF0000FFu);
}

TEST_F(Surface, TextStandsOnTheBaselineOfItsFont) {
  const host::Font font("DejaVu Sans", 9);
  const QImage image = drawn(1, [&](QtSurface& s) { s.text({1, 2}, "H", font, host::rgb(0, 0, 0)); });
  int lowest = 0;
  for (int y = 0; y < 20; ++y)
    for (int x = 0; x < 20; ++x)
      if (image.pixel(x, y) != kWhitePixel) lowest = y;
  EXPECT_EQ(lowest, 2 + platform.metrics(font).ascent() - 1);
}

// What is drawn behind the surface's back shows whether it draws.
TEST_F(Surface, AFillOfTheColourThatIsThereAlreadyIsLeftOut) {
  QImage image(20, 20, QImage::Format_RGB32);
  QPainter painter(&image);
  QtSurface surface(platform, painter, {0, 0, 20, 20});
  surface.fill({0, 0, 20, 20}, kRed);
  image.fill(Qt::white);
  surface.enter({5, 5, 10, 10});
  surface.fill({0, 0, 10, 10}, kRed);
  surface.leave();
  EXPECT_EQ(count(image, kRedPixel), 0);
}

TEST_F(Surface, AFillCoversWhateverWasDrawnOnItsColour) {
  using Draw = std::function<void(QtSurface&)>;
  const Rect whole{0, 0, 20, 20};
  const host::Picture picture({{2, 2, std::vector<std::uint32_t>(4, 0xFF0000FF)}});
  host::Font font("DejaVu Sans", 9), underlined = font;
  underlined.underline = true;
  constexpr host::Color kBlue = host::rgb(0, 0, 255);
  const std::vector<Draw> drawings = {
      [&](auto& s) {
        s.fill({6, 6, 3, 3}, kBlue);
      },
      [&](auto& s) { s.fill(whole, kBlue); },
      [&](auto& s) {
        s.fill({6, 6, 3, 3}, kBlue, host::DrawMode::MergePen);
      },
      [&](auto& s) {
        s.line({0, 7}, {19, 7}, kBlue);
      },
      [&](auto& s) {
        s.line({7, 0}, {7, 19}, kBlue);
      },
      [&](auto& s) {
        s.line({2, 3}, {15, 12}, kBlue);
      },
      [&](auto& s) {
        s.frame({5, 5, 8, 8}, kBlue);
      },
      [&](auto& s) {
        s.frame({5, 5, 8, 8}, kBlue, kBlue, 2);
      },
      [&](auto& s) {
        s.text({4, 3}, "Ag", font, kBlue);
      },
      [&](auto& s) {
        s.text({4, 3}, "Ag", underlined, kBlue);
      },
      [&](auto& s) {
        s.picture({7, 7}, picture);
      },
      [&](auto& s) {
        s.focusRectangle({5, 5, 9, 9});
      },
  };
  const Draw fill = [&](auto& s) { s.fill(whole, kRed); };
  const auto inside = [&](const Draw& draw, int regions) -> Draw {
    return [=](auto& s) {
      for (int i = 0; i < regions; ++i) s.enter(whole);
      draw(s);
      for (int i = 0; i < regions; ++i) s.leave();
    };
  };
  const auto redAfter = [&](double scale, const std::vector<Draw>& steps) {
    const auto drawAll = [&](QtSurface& s) {
      for (const Draw& step : steps) step(s);
    };
    return count(drawn(scale, drawAll), kRedPixel);
  };
  for (const double scale : {1.0, 1.5, 2.0}) {
    const auto all = static_cast<int>(400 * scale * scale);
    for (std::size_t i = 0; i < drawings.size(); ++i) {
      const Draw& draw = drawings[i];
      EXPECT_LT(redAfter(scale, {fill, draw}), all) << i << " " << scale;
      EXPECT_EQ(redAfter(scale, {fill, draw, fill}), all) << i << " " << scale;
      EXPECT_EQ(redAfter(scale, {fill, inside(draw, 2), fill}), all) << i << " " << scale;
      EXPECT_EQ(redAfter(scale, {fill, draw, inside(fill, 1)}), all) << i << " " << scale;
      EXPECT_EQ(redAfter(scale, {fill, inside(draw, 1), inside(fill, 2)}), all) << i << " " << scale;
    }
  }
}

TEST_F(Surface, AFillCoversTheLastOfManyThingsThatWereDrawn) {
  const QImage image = drawn(1, [](QtSurface& s) {
    s.fill({0, 0, 20, 20}, kRed);
    for (int i = 0; i < 400; ++i) {
      s.enter({static_cast<double>(i % 20), static_cast<double>(i / 20), 1, 1});
      s.fill({0, 0, 1, 1}, host::rgb(0, 0, 255));
      s.leave();
    }
    s.fill({0, 0, 20, 20}, kRed);
  });
  EXPECT_EQ(count(image, kRedPixel), 400);
}

// Most texts are drawn without a clip as their glyphs are known to lie inside; where a family has no bold or
// slanted letters they are made up, and reach further.
TEST_F(Surface, LettersAreCutOffAtTheEdgesOfTheirRegion) {
  std::vector<host::Font> fonts;
  for (const char* family : {"DejaVu Sans", "DejaVu Sans Mono"}) {
    for (const double size : {8.25, 9.0, 14.0}) {
      for (const bool bold : {false, true}) {
        for (const bool italic : {false, true}) fonts.emplace_back(family, size, bold, italic);
      }
    }
  }
  const auto checkLetter = [&](const host::Font& font, double scale, char32_t c) {
    std::string letter;
    text::append(letter, c);
    const double width = platform.metrics(font).advance(letter);
    for (const double inset : {0.0, 1.0, 2.0}) {
      const Rect region{4 + inset, 3 + inset, std::round(width) - 2 * inset, 13 - 2 * inset};
      const QImage image = drawn(scale, [&](QtSurface& s) {
        s.enter(region);
        s.text({-inset, -inset}, letter, font, host::rgb(0, 0, 0));
        s.leave();
        // All that may be black lies in there.
        s.fill(region, host::rgb(255, 255, 255));
      });
      ASSERT_EQ(count(image, kWhitePixel), image.width() * image.height())
          << letter << " " << font.family << " " << font.size << " " << font.bold << font.italic << " "
          << scale << " " << inset;
    }
  };
  for (const host::Font& font : fonts) {
    for (const double scale : {1.0, 1.5, 2.0}) {
      for (char32_t c = 0x21; c < 0x180; c += c == 0x7E ? 0x23 : 1) checkLetter(font, scale, c);
    }
  }
}

TEST_F(Surface, OfAWidgetOnlyThePartsThatHaveToBePaintedAreDrawnAndTheyAreAsEver) {
  const host::Picture picture({{2, 2, std::vector<std::uint32_t>(4, 0xFF0000FF)}});
  const host::Font font("DejaVu Sans", 9);
  const QRegion parts = QRegion(2, 2, 6, 4) + QRegion(4, 10, 12, 6);
  const auto draw = [&](QtSurface& s) {
    s.fill({0, 0, 20, 20}, kRed);
    s.text({3, 1}, "Ag", font, host::rgb(0, 0, 0));
    s.text({5, 9}, "g", font, host::rgb(0, 0, 0));
    s.picture({6, 5}, picture);
    s.picture({10, 12}, picture);
    s.line({0, 13}, {19, 13}, host::rgb(0, 255, 0));
    s.enter({1, 1, 8, 18});
    s.frame({0, 0, 8, 18}, host::rgb(0, 255, 0));
    s.leave();
  };
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QImage whole = drawn(scale, draw);
    QImage image(whole.size(), QImage::Format_RGB32), expected(image.size(), QImage::Format_RGB32);
    for (QImage* one : {&image, &expected}) {
      one->setDevicePixelRatio(scale);
      one->fill(Qt::white);
    }
    QPainter expecting(&expected);
    expecting.setClipRegion(parts);
    expecting.drawImage(0, 0, whole);
    expecting.end();
    DrawingWidget widget(platform, draw);
    widget.render(&image, parts.boundingRect().topLeft(), parts, QWidget::RenderFlags());
    EXPECT_EQ(image, expected) << scale;
  }
}

TEST_F(Surface, TheFocusRectangleCanBeSeen) {
  const QImage image = drawn(1, [](QtSurface& s) { s.focusRectangle({2, 2, 16, 16}); });
  EXPECT_LT(count(image, kWhitePixel), 20 * 20);
  EXPECT_EQ(image.pixel(0, 0), kWhitePixel);
}

}  // namespace
}  // namespace qrn::qt
