#include "host/image.h"
#include "host/label.h"
#include "host/picture_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

host::PicturePtr picture(int width, int height) {
  const auto pixels = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return std::make_shared<host::Picture>(
      std::vector<host::Picture::Bitmap>{{width, height, std::vector<std::uint32_t>(pixels, 0xFF000000)}});
}

class Labels : public SurfaceTest {
 protected:
  host::FontPtr largeFont() {
    auto font = std::make_shared<host::Font>("Sans", 20);
    static_cast<headless::FixedMetrics&>(platform.metrics(*font)).characterWidth = 11;
    return font;
  }
  Heard painted() {
    headless::RecordingSurface target(platform, {200, 150});
    surface().paintTree(target);
    return target.operations("text");
  }
  host::Label& label = surface().add<host::Label>("lbl", {10, 20, 60, 13});
};

TEST_F(Labels, MeasureTheirCaptionOnceForEachTextAndFont) {
  label.SetCaption("Damping");
  EXPECT_EQ(label.textWidth(), 42);
  const int measured = platform.measuredTexts();
  label.SetCaption("Damping");
  label.Move(0, 0, 10, 10);
  label.SetAlignment(host::kAlignRight);
  EXPECT_EQ(label.textWidth(), 42);
  EXPECT_EQ(platform.measuredTexts(), measured);
  label.SetCaption("Span");
  EXPECT_EQ(label.textWidth(), 24);
  EXPECT_EQ(platform.measuredTexts(), measured + 1);
}

TEST_F(Labels, MeasureAgainWhenTheFontOfWhatHoldsThemChanges) {
  label.SetCaption("Span");
  EXPECT_EQ(label.textWidth(), 24);
  surface().setFont(largeFont());
  EXPECT_EQ(label.textWidth(), 44);
}

TEST_F(Labels, AreNotMeasuredUntilSomebodyAsks) {
  const int measured = platform.measuredTexts();
  for (int i = 0; i < 100; ++i) label.SetCaption(std::to_string(i));
  EXPECT_EQ(platform.measuredTexts(), measured);
}

TEST_F(Labels, ArePaintedByWhatHoldsThemInItsFontAndColour) {
  label.SetCaption("Span");
  surface().setForeColor(host::rgb(1, 2, 3));
  EXPECT_EQ(painted(), (Heard{"text 10,20 \"Span\" #010203"}));
  label.SetForeColor(host::rgb(255, 0, 0));
  EXPECT_EQ(painted(), (Heard{"text 10,20 \"Span\" #ff0000"}));
  label.SetForeColor(std::nullopt);
  EXPECT_EQ(painted(), (Heard{"text 10,20 \"Span\" #010203"}));
}

TEST_F(Labels, AreGreyWhenTheyOrWhatHoldsThemIsDisabled) {
  label.SetCaption("Span");
  label.SetForeColor(host::rgb(255, 0, 0));
  label.SetEnabled(false);
  EXPECT_EQ(painted(), (Heard{"text 10,20 \"Span\" #6d6d6d"}));
  label.SetEnabled(true);
  surface().SetEnabled(false);
  EXPECT_EQ(painted(), (Heard{"text 10,20 \"Span\" #6d6d6d"}));
}

TEST_F(Labels, AlignTheirTextAndStartALongOneAtItsBeginning) {
  label.SetCaption("Span");
  label.SetAlignment(host::kAlignRight);
  EXPECT_EQ(painted(), (Heard{"text 46,20 \"Span\" #000000"}));
  label.SetAlignment(host::kAlignCentre);
  EXPECT_EQ(painted(), (Heard{"text 28,20 \"Span\" #000000"}));
  label.SetAlignment(17);
  EXPECT_EQ(painted(), (Heard{"text 28,20 \"Span\" #000000"})) << "any other number centres";
  label.SetCaption("Much too long a caption");
  for (const auto alignment : {host::kAlignLeft, host::kAlignRight, host::kAlignCentre}) {
    label.SetAlignment(alignment);
    EXPECT_EQ(painted(), (Heard{"text 10,20 \"Much too…\" #000000"}));
  }
}

TEST_F(Labels, EndATextThatIsTooLongInAnEllipsisThatFits) {
  label.SetCaption("Damping");
  const auto shownIn = [&](double width) {
    label.SetWidth(width);
    return painted().front();
  };
  EXPECT_EQ(shownIn(42), "text 10,20 \"Damping\" #000000");
  EXPECT_EQ(shownIn(41), "text 10,20 \"Dampi…\" #000000");
  EXPECT_EQ(shownIn(36), "text 10,20 \"Dampi…\" #000000");
  EXPECT_EQ(shownIn(35), "text 10,20 \"Damp…\" #000000");
  EXPECT_EQ(shownIn(7), "text 10,20 \"…\" #000000");
  EXPECT_EQ(shownIn(6), "text 10,20 \"Damping\" #000000") << "an ellipsis alone says less than the text";
}

TEST_F(Labels, PaintNothingWithoutACaption) { EXPECT_EQ(painted(), Heard{}); }

TEST_F(Labels, AskForTheirPlaceToBePaintedAgainWhenTheyChange) {
  surface().realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*surface().peer());
  const auto repainted = [&] { return std::exchange(peer.invalidated, {}); };
  repainted();
  label.SetCaption("Span");
  EXPECT_EQ(repainted(), (std::vector<Rect>{{10, 20, 60, 13}}));
  label.SetCaption("Span");
  EXPECT_EQ(repainted(), std::vector<Rect>{});
  label.Move(20, 20, 60, 13);
  EXPECT_EQ(repainted(), (std::vector<Rect>{{10, 20, 60, 13}, {20, 20, 60, 13}}));
  label.SetVisible(false);
  EXPECT_EQ(repainted(), (std::vector<Rect>{{20, 20, 60, 13}}));
  label.SetCaption("hidden");
  EXPECT_EQ(repainted(), std::vector<Rect>{});
}

TEST_F(Labels, OutOfViewAskForNoPainting) {
  auto& box = surface().add<host::PictureBox>("box", {0, 50, 100, 40});
  auto& inside = surface().add<host::Label>("inside", {0, 100, 60, 13}, box);
  surface().realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*surface().peer());
  inside.SetCaption("below");
  EXPECT_TRUE(peer.invalidated.empty());
  box.scrollTo(70);
  peer.invalidated.clear();
  inside.SetCaption("half in view");
  EXPECT_EQ(peer.invalidated, (std::vector<Rect>{{0, 80, 60, 10}}));
}

class Images : public SurfaceTest {
 protected:
  host::Image& image = surface().add<host::Image>("img", {30, 40, 5, 5});
};

TEST_F(Images, TakeTheSizeOfTheirPicture) {
  image.SetPicture(picture(16, 15));
  EXPECT_EQ(image.bounds(), (Rect{30, 40, 16, 15}));
  image.SetPicture(nullptr);
  EXPECT_EQ(image.bounds(), (Rect{30, 40, 0, 0}));
}

TEST_F(Images, TakeItInTheScaleUnitsOfTheirContainer) {
  surface().setScaleMode(1);
  image.SetPicture(picture(16, 15));
  EXPECT_EQ(image.Width(), 240);
  EXPECT_EQ(image.pixelSize(), (Size{16, 15}));
}

TEST_F(Images, PaintTheirPictureAtTheirPlace) {
  headless::RecordingSurface target(platform, {200, 150});
  image.SetPicture(picture(16, 15));
  surface().paintTree(target);
  EXPECT_EQ(target.operations("picture"), (Heard{"picture 30,40 16x15"}));
}

TEST_F(Images, AskToBePaintedOnlyWhenThePictureIsAnotherOne) {
  surface().realise();
  auto& peer = static_cast<headless::HeadlessPeer&>(*surface().peer());
  const auto same = picture(16, 15);
  image.SetPicture(same);
  peer.invalidated.clear();
  image.SetPicture(same);
  EXPECT_TRUE(peer.invalidated.empty());
  image.SetPicture(picture(16, 15));
  EXPECT_FALSE(peer.invalidated.empty());
}

class PictureBoxes : public SurfaceTest {};

TEST_F(PictureBoxes, MeasureTheirInsideInPixelsWhateverTheScaleAroundThem) {
  surface().setScaleMode(1);
  auto& box = surface().add<host::PictureBox>("box", {0, 0, 1500, 750});
  EXPECT_EQ(box.ScaleWidth(), 100);
  EXPECT_EQ(box.ScaleHeight(), 50);
  auto& inside = surface().add<host::Label>("lbl", {10, 10, 20, 13}, box);
  EXPECT_EQ(inside.onSurface(), (Rect{10, 10, 20, 13}));
}

TEST_F(PictureBoxes, TellWhatHoldsThemWhenTheirSizeChanges) {
  auto& box = surface().add<host::PictureBox>("box", {0, 0, 100, 100});
  heard();
  box.Move(10, 10, 100, 100);
  EXPECT_EQ(heard(), Heard{});
  box.SetHeight(50);
  EXPECT_EQ(heard(), (Heard{"box Change"}));
}

}  // namespace
}  // namespace qrn::test
