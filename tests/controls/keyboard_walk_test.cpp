#include <algorithm>
#include <string>
#include <vector>

#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

/// A panel of everything that can stand in one, walked through with nothing but Tab.
class KeyboardWalk : public PanelTest {
 protected:
  KeyboardWalk() {
    addParameter("text");
    addParameter("number", qrnTypeDouble);
    addParameter("tick", qrnTypeBoolean);
    addParameter("choice", qrnTypeList);
    addParameter("bits", qrnTypeBitfield);
    items().AddAction("method", ddtypeMethod);
    panel().Buttons().AddButton("OK", "&OK");
    panel().Buttons().AddButton("Cancel", "&Cancel");
  }

  /// The names of what has the focus after each Tab, from outside the panel to its end.
  std::vector<std::string> walk(bool forward = true) {
    panel().LayoutControls(false);
    panel().input().setFocus(nullptr);
    std::vector<std::string> names;
    while (panel().input().moveFocus(forward) && names.size() < 1000) names.push_back(focused());
    return names;
  }

  std::string focused() {
    for (const PanelItemPtr& item : items()) {
      const auto& control = dynamic_cast<const clsQRNParam*>(item.get())
                                ? static_cast<host::UserControl&>(static_cast<clsQRNParam&>(*item).Control())
                                : static_cast<clsQRNAction&>(*item).Control();
      if (control.hasFocus()) return control.Name();
    }
    for (const ButtonPtr& button : panel().Buttons()) {
      if (button->Control().hasFocus()) return button->Control().Name();
    }
    return "nothing";
  }
};

using Names = std::vector<std::string>;

TEST_F(KeyboardWalk, GoesThroughAllItemsAndThenTheFooter) {
  EXPECT_EQ(walk(), (Names{"text", "number", "tick", "choice", "bits", "method", "OK", "Cancel"}));
}

TEST_F(KeyboardWalk, GoesBackTheSameWay) {
  EXPECT_EQ(walk(false), (Names{"Cancel", "OK", "method", "bits", "choice", "tick", "number", "text"}));
}

TEST_F(KeyboardWalk, LeavesOutWhatCanNotBeUsed) {
  row(1).SetEnabled(false);
  row(2).SetVisible(false);
  row(3).SetValueType(qrnTypeArray);
  static_cast<clsQRNAction&>(*items().Item(Variant("method"))).Control().SetEnabled(false);
  panel().Buttons().Item(Variant("OK"))->Control().SetEnabled(false);
  EXPECT_EQ(walk(), (Names{"choice", "bits", "Cancel"}));
}

TEST_F(KeyboardWalk, StopsAtLockedRowsWhoseTextCanBeRead) {
  row(1).SetLocked(true);
  EXPECT_EQ(walk().front(), "text");
}

TEST_F(KeyboardWalk, ReachesRowsFarOutOfViewAndBringsThemIntoIt) {
  for (int i = 0; i < 200; ++i) addParameter("more" + std::to_string(i));
  panel().realise();
  const Names names = walk();
  ASSERT_EQ(names.size(), 208u);
  EXPECT_EQ(names[205], "more199");
  user->focuses(row(206));
  EXPECT_TRUE(row(206).visibleOnSurface().contains(headless::User::middleOf(row(206))));
}

TEST_F(KeyboardWalk, EndsInADisabledPanelBeforeItBegins) {
  panel().SetEnabled(false);
  EXPECT_EQ(focused(), "nothing");
  panel().input().moveFocus(true);
  EXPECT_EQ(focused(), "nothing");
}

// ---- everything filled in without a mouse ----

TEST_F(KeyboardWalk, FillsInAWholePanel) {
  row(4).SetValueNames(0, "off");
  row(4).SetValueNames(1, "on");
  row(5).SetValueNames(0, "low");
  row(5).SetValueNames(1, "high");
  walk();
  panel().input().setFocus(nullptr);
  panel().input().moveFocus(true);
  startListening();
  user->types("PT-1107");
  user->presses(host::key::Tab);
  user->types("2.5");
  user->presses(host::key::Tab);
  user->presses(host::key::Space);
  user->presses(host::key::Tab);
  user->presses(host::key::Down);
  user->presses(host::key::Down);
  user->presses(host::key::Tab);
  user->presses(host::key::Down);
  user->presses(host::key::Space);
  user->presses(host::key::Tab);
  user->presses(host::key::Space);
  EXPECT_EQ(row(1).ValueText(), "PT-1107");
  EXPECT_EQ(row(2).Value(), Variant(2.5));
  EXPECT_EQ(row(3).Value(), Variant(true));
  EXPECT_EQ(row(4).ValueText(), "on");
  EXPECT_EQ(row(5).ValueText(), "10");
  const Events heard = events();
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "ActionClick(6)"), 1);
  EXPECT_EQ(std::count(heard.begin(), heard.end(), "ParameterEndEdit(5, True)"), 1);
}

}  // namespace
}  // namespace qrn::test
