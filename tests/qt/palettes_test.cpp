#include <QApplication>

#include "picture_of.h"
#include "platform/qt/qt_color.h"

namespace qrn::qt {
namespace {

/// A dark palette as a desktop has it, with shades that follow from one colour.
class DarkPalette : public PanelTest {
 protected:
  DarkPalette() {
    QPalette dark(QColor(0x35, 0x35, 0x35));
    dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
    dark.setColor(QPalette::Highlight, QColor(0x2a, 0x82, 0xda));
    for (const auto role : {QPalette::Text, QPalette::WindowText, QPalette::ButtonText})
      dark.setColor(role, Qt::white);
    QApplication::setPalette(dark);
  }
  ~DarkPalette() override { QApplication::setPalette(usual_); }

  double contrastToWindow(host::SystemColor which) const {
    return host::contrast(platform.system(which), platform.system(host::SystemColor::ButtonFace));
  }
  // Of any pixel of a picture to a colour.
  static double greatestContrast(const QImage& picture, const QColor& color) {
    double greatest = 1;
    for (int y = 0; y < picture.height(); ++y)
      for (int x = 0; x < picture.width(); ++x)
        greatest = std::max(greatest, host::contrast(fromQt(picture.pixelColor(x, y)), fromQt(color)));
    return greatest;
  }

  const QPalette usual_ = QApplication::palette();
};

TEST_F(DarkPalette, HasAFrameOfWindowsThatCanBeSeen) {
  EXPECT_GT(contrastToWindow(host::SystemColor::WindowFrame), 3);
}

TEST_F(DarkPalette, HasAnInactiveCaptionThatIsNeitherTheWindowNorTheActiveOne) {
  using enum host::SystemColor;
  EXPECT_GT(contrastToWindow(InactiveCaption), 1.15);
  EXPECT_GT(host::contrast(platform.system(InactiveCaption), platform.system(ActiveCaption)), 2);
  EXPECT_GT(host::contrast(platform.system(InactiveCaption), platform.system(InactiveCaptionText)), 4.5);
}

TEST_F(DarkPalette, LeavesAnEmptyTextBoxItsOutline) {
  panel->text().SetText("");
  EXPECT_GT(greatestContrast(partOf(painted(platform, *panel), panel->text()), QColor(0x23, 0x23, 0x23)), 2);
}

TEST_F(DarkPalette, LeavesAListItsOutlineAndThoseOfItsMarks) {
  panel->list().SetForeColor(host::rgb(0x40, 0, 0));
  const QImage whole = partOf(painted(platform, *panel), panel->list());
  EXPECT_GT(greatestContrast(whole.copy(0, 0, 2, whole.height()), QColor(0x23, 0x23, 0x23)), 2);
  EXPECT_GT(greatestContrast(whole.copy(4, 4, 12, 12), QColor(0x23, 0x23, 0x23)), 2);
}

TEST_F(DarkPalette, MakesAnErrorsRedReadableOnAButtonThatIsDrawnLighter) {
  panel->combo().SetForeColor(host::rgb(255, 0, 0));
  const QPalette& palette = platform.palettes().of(panel->combo());
  const QColor drawn = palette.color(QPalette::Button).lighter(150);
  EXPECT_GT(host::contrast(fromQt(palette.color(QPalette::Text)), fromQt(drawn)), 3);
}

}  // namespace
}  // namespace qrn::qt
