#include "host/controls.h"

#include "host/label.h"
#include "host/picture_box.h"
#include "host/prog_ids.h"
#include "host/text_box.h"
#include "host/timer.h"
#include "test_control.h"

namespace qrn::test {
namespace {

class ControlCollections : public SurfaceTest {
 protected:
  host::Controls& controls() { return surface().controls(); }
};

TEST_F(ControlCollections, MakeEveryStandardControlByItsProgId) {
  for (const char* type : {"TextBox", "CheckBox", "ComboBox", "ListBox", "VScrollBar", "Timer"}) {
    const host::Control& added = controls().add(std::string("VB.") + type, type, surface());
    EXPECT_EQ(added.typeName(), type);
    EXPECT_EQ(added.Parent(), &surface());
  }
  EXPECT_EQ(controls().count(), 6);
}

TEST_F(ControlCollections, TakeProgIdsInAnyCase) {
  EXPECT_EQ(controls().add("vb.TEXTBOX", "a", surface()).typeName(), "TextBox");
}

TEST_F(ControlCollections, RefuseAnUnknownProgIdWithError429) {
  EXPECT_EQ(errorOf([&] { controls().add("VB.Gauge", "a", surface()); }), 429);
  EXPECT_EQ(errorOf([&] { controls().add("", "a", surface()); }), 429);
  EXPECT_EQ(errorOf([&] { controls().add("VB.TextBox ", "a", surface()); }), 429);
  EXPECT_EQ(controls().count(), 0);
  controls().add("VB.TextBox", "a", surface());
}

TEST_F(ControlCollections, MakeTheClassesThatTheLayerAboveHandedDown) {
  struct Plain : host::UserControl {
    std::string_view typeName() const override { return "Plain"; }
    const host::ClassTable& classTable() const override {
      static const host::ClassTable table{"Plain", "Test.Plain", {}, {}, {}, {}, {}};
      return table;
    }
  };
  static constexpr host::ProgId kClasses[] = {
      {"Test.Plain", [] { return host::Owned<host::Control>(new Plain); }}};
  host::setControlClasses(kClasses);
  EXPECT_EQ(controls().add("test.plain", "a", surface()).typeName(), "Plain");
  EXPECT_EQ(controls().add("VB.TextBox", "b", surface()).typeName(), "TextBox");
  EXPECT_EQ(controls().add("TEST.PLAIN", "c", surface()).typeName(), "Plain");
  host::setControlClasses({});
  EXPECT_EQ(errorOf([&] { controls().add("Test.Plain", "d", surface()); }), 429);
}

TEST_F(ControlCollections, RefuseANameInUseWithError727WhateverItsCase) {
  surface().add<host::TextBox>("txtValue");
  EXPECT_EQ(errorOf([&] { controls().add("VB.CheckBox", "TXTVALUE", surface()); }), 727);
  EXPECT_EQ(controls().count(), 1);
  EXPECT_EQ(controls().find("txtvalue")->typeName(), "TextBox");
}

TEST_F(ControlCollections, RefuseTheNamesOfTheOwnersOwnPartsAsWell) {
  host::Label label;
  surface().contain(label, surface(), "lblTitle");
  EXPECT_EQ(errorOf([&] { controls().add("VB.TextBox", "LBLtitle", surface()); }), 727);
  EXPECT_EQ(controls().find("lblTitle"), nullptr) << "a part is not in the collection";
}

TEST_F(ControlCollections, GiveANameThatOneUserControlUsesToAnotherOnesChild) {
  surface().add<host::TextBox>("txtValue");
  EXPECT_EQ(surface().addControl("row").add<host::TextBox>("txtValue").Name(), "txtValue");
}

TEST_F(ControlCollections, FindAndRemoveByNameInAnyCase) {
  auto& box = surface().add<host::TextBox>("txtValue");
  const WeakRef<host::Control> ref(&box);
  EXPECT_EQ(controls().find("TxtVALUE"), &box);
  controls().remove("TXTvalue");
  EXPECT_FALSE(ref);
  EXPECT_EQ(controls().find("txtValue"), nullptr);
  EXPECT_TRUE(surface().contained().empty());
  surface().add<host::TextBox>("txtValue");
}

TEST_F(ControlCollections, AnswerTheRemovalOfAnUnknownNameWithError730) {
  EXPECT_EQ(errorOf([&] { controls().remove("nobody"); }), 730);
  surface().add<host::TextBox>("a");
  controls().remove("a");
  EXPECT_EQ(errorOf([&] { controls().remove("a"); }), 730);
}

TEST_F(ControlCollections, PutAControlIntoAnyContainerOfTheirOwner) {
  auto& box = surface().add<host::PictureBox>("box", {10, 20, 100, 100});
  auto& inner = surface().add<host::TextBox>("txt", {1, 2, 30, 10}, box);
  EXPECT_EQ(inner.Parent(), &surface());
  EXPECT_EQ(inner.Container(), &box);
  EXPECT_EQ(inner.onSurface(), (Rect{11, 22, 30, 10}));
}

TEST_F(ControlCollections, ForgetTheFocusInsideAContainerThatIsRemoved) {
  auto& box = surface().add<host::PictureBox>("box", {10, 20, 100, 100});
  auto& inner = surface().add<host::TextBox>("txt", {1, 2, 30, 10}, box);
  inner.SetFocus();
  ASSERT_EQ(input().focus(), &inner);
  controls().remove("box");
  EXPECT_EQ(input().focus(), nullptr);
  controls().remove("txt");
  user.types("a");
}

TEST_F(ControlCollections, RemoveAControlInsideItsOwnEvent) {
  auto& child = surface().addControl("child");
  Heard names;
  const auto own = child.Asked.connect([&](std::int16_t&, bool&) { controls().remove("child"); });
  const auto named =
      child.ObjectEvent.connect([&](std::string_view name, host::EventArgs) { names.emplace_back(name); });
  std::int16_t number = 1;
  bool flag = false;
  child.raise(child.Asked, "Asked", number, flag);
  EXPECT_EQ(controls().count(), 0);
  EXPECT_EQ(names, Heard{}) << "there is no control any more that could raise it by name";
}

TEST_F(ControlCollections, RemoveAControlInsideItsEventByName) {
  auto& child = surface().addControl("child");
  Heard heardLater;
  const auto first =
      child.ObjectEvent.connect([&](std::string_view, host::EventArgs) { controls().remove("child"); });
  const auto second = child.ObjectEvent.connect(
      [&](std::string_view name, host::EventArgs) { heardLater.emplace_back(name); });
  std::int16_t number = 1;
  bool flag = false;
  child.raise(child.Asked, "Asked", number, flag);
  EXPECT_EQ(heardLater, Heard{});
}

class ControlEvents : public SurfaceTest {};

TEST_F(ControlEvents, ReachTheirOwnListenersFirstThenThoseByNameWithTheSameArguments) {
  const auto own = surface().Asked.connect([&](std::int16_t& number, bool& flag) {
    diary.note("own " + std::to_string(number));
    number = 5;
    flag = true;
  });
  const auto named = surface().ObjectEvent.connect([&](std::string_view name, host::EventArgs arguments) {
    diary.note(std::string(name) + " " + std::to_string(arguments[0].asLong()) +
               (arguments[1].as<bool>() ? " True" : " False"));
    arguments[0].as<std::int16_t>() = 6;
  });
  const auto last = surface().ObjectEvent.connect([&](std::string_view, host::EventArgs arguments) {
    diary.note("last " + std::to_string(arguments[0].as<std::int16_t>()));
  });
  std::int16_t number = 4;
  bool flag = false;
  surface().raise(surface().Asked, "Asked", number, flag);
  EXPECT_EQ(heard(), (Heard{"own 4", "Asked 5 True", "last 6"}));
  EXPECT_EQ(number, 6);
  EXPECT_TRUE(flag);
}

TEST_F(ControlEvents, AnArgumentAskedForAsAnotherTypeIsTheCallersMistake) {
  const auto named = surface().ObjectEvent.connect(
      [&](std::string_view, host::EventArgs arguments) { static_cast<void>(arguments[0].as<bool>()); });
  std::int16_t number = 4;
  bool flag = false;
  EXPECT_THROW(surface().raise(surface().Asked, "Asked", number, flag), std::bad_variant_access);
}

TEST_F(ControlEvents, TheFocusOfAControlIsRaisedByName) {
  auto& child = surface().addControl("child");
  auto& box = child.add<host::TextBox>("txt");
  Heard names;
  const auto named = child.ObjectEvent.connect([&](std::string_view name, host::EventArgs arguments) {
    EXPECT_TRUE(arguments.empty());
    names.emplace_back(name);
  });
  box.SetFocus();
  input().setFocus(nullptr);
  EXPECT_EQ(names, (Heard{"GotFocus", "LostFocus"}));
}

}  // namespace
}  // namespace qrn::test
