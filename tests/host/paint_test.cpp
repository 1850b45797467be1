#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/label.h"
#include "host/list_box.h"
#include "host/picture_box.h"
#include "host/text_box.h"
#include "host/v_scroll_bar.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class Painting : public SurfaceTest {
 protected:
  Painting() { surface().setBackColor(host::rgb(255, 255, 255)); }

  Heard painted(Size size = {200, 150}) {
    headless::RecordingSurface target(platform, size);
    surface().paintTree(target);
    return target.operations();
  }
};

TEST_F(Painting, GoesFromTheOutsideInAndFromTheBottomUp) {
  auto& row = surface().addControl("row", {10, 20, 100, 30});
  row.setBackColor(host::rgb(1, 2, 3));
  row.add<host::Label>("below", {5, 5, 50, 13}).SetCaption("below");
  row.add<host::Label>("above", {5, 10, 50, 13}).SetCaption("above");
  EXPECT_EQ(painted(), (Heard{"fill 0,0 200x150 #ffffff", "fill 10,20 100x30 #010203",
                              "text 15,25 \"below\" #000000", "text 15,30 \"above\" #000000"}));
  row.bringToFront(*row.contained().front());
  EXPECT_EQ(painted().back(), "text 15,25 \"below\" #000000");
}

TEST_F(Painting, LeavesOutWhatIsHidden) {
  auto& row = surface().addControl("row", {10, 20, 100, 30});
  auto& label = row.add<host::Label>("label");
  label.SetCaption("text");
  label.SetVisible(false);
  EXPECT_EQ(painted().size(), 2u);
  label.SetVisible(true);
  row.SetVisible(false);
  EXPECT_EQ(painted(), (Heard{"fill 0,0 200x150 #ffffff"}));
}

TEST_F(Painting, LeavesOutWhatLiesOutsideTheContainerOrTheSurface) {
  auto& row = surface().addControl("row", {10, 20, 100, 30});
  row.add<host::Label>("right", {100, 0, 50, 13}).SetCaption("right");
  row.add<host::Label>("edge", {99, 0, 50, 13}).SetCaption("edge");
  surface().add<host::Label>("far", {0, 150, 50, 13}).SetCaption("far");
  EXPECT_EQ(painted(),
            (Heard{"fill 0,0 200x150 #ffffff", "fill 10,20 100x30 #ffffff", "text 109,20 \"edge\" #000000"}));
}

TEST_F(Painting, TouchesOnlyWhatASmallerTargetShows) {
  for (int i = 0; i < 10; ++i) {
    auto& label = surface().add<host::Label>("label" + std::to_string(i), {0, i * 15.0, 60, 13});
    label.SetCaption(std::to_string(i));
  }
  EXPECT_EQ(painted({200, 20}),
            (Heard{"fill 0,0 200x150 #ffffff", "text 0,0 \"0\" #000000", "text 0,15 \"1\" #000000"}));
}

TEST_F(Painting, MovesWhatAScrolledContainerHoldsAndClipsIt) {
  auto& box = surface().add<host::PictureBox>("box", {10, 40, 100, 30});
  for (int i = 0; i < 5; ++i)
    surface()
        .add<host::Label>("label" + std::to_string(i), {0, i * 20.0, 60, 20}, box)
        .SetCaption(std::to_string(i));
  EXPECT_EQ(painted(),
            (Heard{"fill 0,0 200x150 #ffffff", "text 10,40 \"0\" #000000", "text 10,60 \"1\" #000000"}));
  box.scrollTo(45);
  EXPECT_EQ(painted(),
            (Heard{"fill 0,0 200x150 #ffffff", "text 10,35 \"2\" #000000", "text 10,55 \"3\" #000000"}));
}

TEST_F(Painting, DrawsEveryEditorInItsPresentState) {
  auto& box = surface().add<host::TextBox>("txt", {0, 0, 50, 20});
  box.SetText("abc");
  surface().add<host::CheckBox>("chk", {0, 20, 50, 20}).SetValue(1);
  auto& combo = surface().add<host::ComboBox>("cbo", {0, 40, 50, 20});
  combo.AddItem("slow");
  combo.SetListIndex(0);
  auto& list = surface().add<host::ListBox>("lst", {0, 60, 50, 20});
  list.AddItem("a");
  list.AddItem("b");
  list.SetSelected(1, true);
  auto& bar = surface().add<host::VScrollBar>("bar", {184, 0, 16, 150});
  bar.SetMax(10);
  bar.SetValue(4);
  EXPECT_EQ(painted(),
            (Heard{"fill 0,0 200x150 #ffffff", "TextBox 0,0 50x20 \"abc\"", "CheckBox 0,20 50x20 ticked",
                   "ComboBox 0,40 50x20 \"slow\"", "ListBox 0,60 50x20 01", "VScrollBar 184,0 16x150 4/10"}));
  box.SetPasswordChar("*");
  EXPECT_EQ(painted()[1], "TextBox 0,0 50x20 \"***\"");
}

TEST_F(Painting, LeavesControlsWithANativeWidgetToIt) {
  auto& first = surface().add<host::TextBox>("first", {0, 0, 50, 20});
  auto& second = surface().add<host::TextBox>("second", {0, 20, 50, 20});
  surface().realise();
  first.SetFocus();
  EXPECT_EQ(painted(), (Heard{"fill 0,0 200x150 #ffffff", "TextBox 0,20 50x20 \"\""}));
  second.SetFocus();
  EXPECT_EQ(painted(), (Heard{"fill 0,0 200x150 #ffffff", "TextBox 0,0 50x20 \"\""}));
}

TEST_F(Painting, IsAskedForInPixelsWhateverTheScale) {
  surface().setScaleMode(1);
  surface().add<host::Label>("label", {150, 300, 750, 195}).SetCaption("twips");
  EXPECT_EQ(painted().back(), "text 10,20 \"twips\" #000000");
}

class RecordingSurfaces : public testing::Test {
 protected:
  headless::HeadlessPlatform platform;
  headless::RecordingSurface target{platform, {100, 80}};
};

TEST_F(RecordingSurfaces, NestRegionsWithTheirOriginAndTheirClip) {
  EXPECT_EQ(target.visible(), (Rect{0, 0, 100, 80}));
  target.enter({10, 20, 200, 30});
  EXPECT_EQ(target.visible(), (Rect{0, 0, 90, 30}));
  target.enter({-5, 10, 50, 100});
  EXPECT_EQ(target.visible(), (Rect{5, 0, 45, 20})) << "seen from the region's own corner";
  target.fill({0, 0, 5, 5}, host::systemColor(host::SystemColor::Highlight), host::DrawMode::Copy);
  target.leave();
  target.text({1, 2}, "x", host::Font(), host::rgb(0, 0, 0));
  target.leave();
  target.line({0, 0}, {9, 0}, host::rgb(0, 0, 255));
  EXPECT_EQ(target.operations(),
            (Heard{"fill 5,30 5x5 #0078d7", "text 11,22 \"x\" #000000", "line 0,0 9,0 #0000ff"}));
}

TEST_F(RecordingSurfaces, HaveNothingVisibleInARegionOutside) {
  target.enter({100, 0, 10, 10});
  EXPECT_TRUE(target.visible().empty());
}

TEST_F(RecordingSurfaces, NameTheWayAFillCombines) {
  target.fill({0, 0, 1, 1}, 0, host::DrawMode::MergePen);
  target.fill({0, 0, 1, 1}, 0, host::DrawMode::MaskPen);
  target.focusRectangle({1, 2, 3, 4});
  EXPECT_EQ(target.operations(), (Heard{"merge 0,0 1x1 #000000", "mask 0,0 1x1 #000000", "focus 1,2 3x4"}));
  EXPECT_EQ(target.operations("focus"), (Heard{"focus 1,2 3x4"}));
  EXPECT_EQ(target.operations("foc"), Heard{});
}

TEST_F(RecordingSurfaces, DrawAFrameInsideItsEdges) {
  target.frame({10, 20, 30, 40}, host::rgb(255, 0, 0), host::rgb(0, 0, 255));
  EXPECT_EQ(target.operations(), (Heard{"line 10,59 10,20 #ff0000", "line 10,20 39,20 #ff0000",
                                        "line 39,20 39,59 #0000ff", "line 10,59 39,59 #0000ff"}));
}

TEST_F(RecordingSurfaces, DrawFramesOfSomeDepthInsideTheOthers) {
  target.frame({10, 20, 5, 4}, host::rgb(255, 0, 0), host::rgb(0, 0, 255), 1);
  EXPECT_EQ(target.operations(), (Heard{"line 11,22 11,21 #ff0000", "line 11,21 13,21 #ff0000",
                                        "line 13,21 13,22 #0000ff", "line 11,22 13,22 #0000ff"}));
}

TEST_F(RecordingSurfaces, DrawNoFrameAroundNothing) {
  target.frame({10, 20, 0, 40}, 0);
  target.frame({10, 20, 30, 0.5}, 0);
  EXPECT_EQ(target.operations(), Heard{});
}

}  // namespace
}  // namespace qrn::test
