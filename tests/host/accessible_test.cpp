#include "host/accessible.h"

#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "host/picture_box.h"
#include "test_control.h"

namespace qrn::test {
namespace {

using host::AccessibleFacts;
using host::AccessibleNode;
using host::AccessibleRole;

TEST_F(SurfaceTest, AControlThatSaysNothingHasNoRole) {
  EXPECT_EQ(AccessibleNode{&surface().add<host::PictureBox>("box")}.facts().role, AccessibleRole::None);
}

TEST_F(SurfaceTest, AnAmpersandIsReadAsPeopleReadIt) {
  auto& button = surface().add<host::CommandButton>("button");
  const auto read = [&](std::string_view caption) {
    button.SetCaption(caption);
    const AccessibleFacts facts = AccessibleNode{&button}.facts();
    return facts.name + "|" + facts.shortcut;
  };
  EXPECT_EQ(read("OK"), "OK|");
  EXPECT_EQ(read("&ok"), "ok|Alt+O");
  EXPECT_EQ(read("R&&D"), "R&D|");
  EXPECT_EQ(read("R&&D &2"), "R&D 2|Alt+2");
  EXPECT_EQ(read("end&"), "end|");
}

TEST_F(SurfaceTest, AControlCoveredByAContainerIsOffscreen) {
  auto& box = surface().add<host::PictureBox>("box", {0, 0, 50, 50});
  auto& check = surface().add<host::CheckBox>("check", {0, 100, 20, 20}, box);
  EXPECT_TRUE(AccessibleNode{&check}.facts().states.offscreen);
  box.SetVisible(false);
  EXPECT_FALSE(AccessibleNode{&check}.facts().states.offscreen);
  EXPECT_TRUE(AccessibleNode{&check}.facts().states.invisible);
}

TEST_F(SurfaceTest, WhatNobodyCountsAmongItsPartsHasNoParent) {
  EXPECT_FALSE(AccessibleNode{&surface().add<host::CheckBox>("check")}.parent());
}

TEST_F(SurfaceTest, AnEntryThatIsGoneByNowIsNotChosen) {
  auto& combo = surface().add<host::ComboBox>("combo");
  combo.AddItem("one");
  const AccessibleNode entry = AccessibleNode{&combo}.child(0);
  combo.Clear();
  EXPECT_EQ(entry.facts().name, "");
  EXPECT_FALSE(entry.act());
  EXPECT_EQ(combo.ListIndex(), -1);
}

}  // namespace
}  // namespace qrn::test
