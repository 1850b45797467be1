#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// The title bar of the fixture's panel is 22 high: a line of 13 and 9 around it.
class PanelPainting : public PanelTest {
 protected:
  headless::RecordingSurface painted() {
    headless::RecordingSurface surface(platform, {400, 300});
    panel().paintTree(surface);
    return surface;
  }
};

TEST_F(PanelPainting, DrawsItsTitleAndItsEdge) {
  panel().SetTitle("Device");
  EXPECT_EQ(painted().operations("text"), (Events{"text 9,5 \"Device\" #000000"}));
  panel().SetActive(false);
  EXPECT_EQ(painted().operations("text"), (Events{"text 9,5 \"Device\" #6d6d6d"}));
  panel().SetTitleStyle(qrnTitleNone);
  EXPECT_EQ(painted().operations("text"), Events{});
}

TEST_F(PanelPainting, DrawsADialogTitleInTheColoursOfACaption) {
  const auto hasFill = [&](const std::string& wanted) {
    const auto fills = painted().operations("fill");
    return std::find(fills.begin(), fills.end(), wanted) != fills.end();
  };
  EXPECT_FALSE(hasFill("fill 0,0 400x22 #0078d7"));
  panel().SetTitleStyle(qrnTitleDialog);
  EXPECT_TRUE(hasFill("fill 0,0 400x22 #0078d7"));
  panel().SetActive(false);
  EXPECT_TRUE(hasFill("fill 0,0 400x22 #a0a0a0"));
}

TEST_F(PanelPainting, ADisabledDialogTitleIsGreyOnTheBarOfAnInactiveOne) {
  panel().SetTitle("Device");
  panel().SetTitleStyle(qrnTitleDialog);
  EXPECT_EQ(painted().operations("text"), (Events{"text 9,5 \"Device\" #ffffff"}));
  panel().SetEnabled(false);
  EXPECT_EQ(painted().operations("text"), (Events{"text 9,5 \"Device\" #6d6d6d"}));
  const auto fills = painted().operations("fill");
  EXPECT_NE(std::find(fills.begin(), fills.end(), "fill 0,0 400x22 #a0a0a0"), fills.end());
}

TEST_F(PanelPainting, ATitleThatIsTooLongEndsInAnEllipsis) {
  panel().SetTitle("Pressure transmitter");
  EXPECT_EQ(painted().operations("text"), (Events{"text 9,5 \"Pressure transmitter\" #000000"}));
  panel().Move(0, 0, 120, 300);
  EXPECT_EQ(panel().lblTitle().bounds(), (Rect{9, 5, 69, 14}));
  EXPECT_EQ(painted().operations("text"), (Events{"text 9,5 \"Pressure t…\" #000000"}));
}

TEST_F(PanelPainting, EveryStateOfTheTitleBarLooksDifferent) {
  std::vector<Events> looks;
  for (const auto style : {qrnTitleStandard, qrnTitleDialog}) {
    panel().SetTitleStyle(style);
    for (const bool active : {true, false}) {
      panel().SetActive(active);
      for (const bool maximized : {true, false}) {
        panel().SetMaximized(maximized);
        looks.push_back(painted().operations());
        user->hovers(panel().imgMaxRst());
        looks.push_back(painted().operations());
        user->pressesAt(headless::User::middleOf(panel().imgMaxRst()));
        looks.push_back(painted().operations());
        user->releasesAt({2, 2});
        user->movesTo({2, 2});
      }
    }
  }
  for (std::size_t i = 0; i < looks.size(); ++i)
    EXPECT_EQ(std::count(looks.begin(), looks.end(), looks[i]), 1) << i;
}

TEST_F(PanelPainting, TheGlyphsOfADisabledPanelAreGrey) {
  panel().SetBorderStyle(qrnEdgeNone);
  const auto greyLines = [&] {
    const Events lines = painted().operations("line");
    return std::count_if(lines.begin(), lines.end(),
                         [](const auto& line) { return line.ends_with("#6d6d6d"); });
  };
  EXPECT_EQ(greyLines(), 0);
  panel().SetEnabled(false);
  // All but the one below the bar.
  EXPECT_EQ(greyLines(), static_cast<long>(painted().operations("line").size()) - 1);
}

TEST_F(PanelPainting, TheLinesOfAnEngravedEdgeLieInsideEachOther) {
  panel().SetTitleStyle(qrnTitleNone);
  const Events lines = painted().operations("line");
  ASSERT_EQ(lines.size(), 8u);
  EXPECT_EQ(lines[0], "line 0,299 0,0 #a0a0a0");
  EXPECT_EQ(lines[4], "line 1,298 1,1 #ffffff");
}

TEST_F(PanelPainting, EachEdgeLooksDifferent) {
  panel().SetTitleStyle(qrnTitleNone);
  std::vector<Events> looks;
  for (const auto style : {qrnEdgeNone, qrnEdgeSimple, qrnEdgeSunken, qrnEdgeEngraved, qrnEdgeBorder}) {
    panel().SetBorderStyle(style);
    const Events lines = painted().operations("line");
    EXPECT_EQ(std::count(looks.begin(), looks.end(), lines), 0) << style;
    looks.push_back(lines);
  }
  EXPECT_TRUE(looks.front().empty());
}

TEST_F(PanelPainting, ATitleButtonIsFramedWhileTheMouseIsOverItOnly) {
  const auto lines = [&] { return painted().operations("line").size(); };
  const auto before = lines();
  user->hovers(panel().imgClose());
  EXPECT_EQ(lines(), before + 4);
  user->movesTo({370 - 12, 2});  // the bar beside the buttons
  EXPECT_EQ(lines(), before);
}

TEST_F(PanelPainting, ATitleButtonIsNotFramedWhenTheMouseHasGoneElsewhereAtOnce) {
  const auto row = panel().Items().AddParameter("", qrnTypeString);
  panel().LayoutControls(false);
  const auto lines = [&] { return painted().operations("line").size(); };
  const auto before = lines();
  user->hovers(panel().imgClose());
  user->hovers(row->Control().lblLabel());
  EXPECT_EQ(lines(), before);
  user->hovers(panel().imgClose());
  EXPECT_EQ(lines(), before + 4);
  panel().input().mouseLeft();  // to another window
  EXPECT_EQ(lines(), before);
}

}  // namespace
}  // namespace qrn::test
