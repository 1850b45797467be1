#include "host/label.h"
#include "host/text_box.h"
#include "runtime/errors.h"
#include "test_control.h"

namespace qrn::test {
namespace {

/// Writes down the steps of its life. What each step finds is noted where the order promises something.
class Living : public TestControl {
 public:
  Living(Diary& diary, std::string label) : TestControl(diary, std::move(label)) { note("constructed"); }
  ~Living() override { note("destroyed"); }

  /// What it does in a step of that name.
  std::function<void(Living&, std::string_view)> inside;

 protected:
  void initialize() override { note(std::string("initialize") + (Parent() ? ", named" : ", nameless")); }
  void initProperties() override {
    UserControl::initProperties();
    note("initProperties" + nameAndParent());
  }
  void readProperties(const host::PropertyBag& bag) override {
    note("readProperties");
    UserControl::readProperties(bag);
  }
  void resize() override {
    note("resize " + std::to_string(static_cast<int>(Width())) + "x" +
         std::to_string(static_cast<int>(Height())));
  }
  void show() override { note("show"); }
  void hide() override { note("hide"); }
  void terminate() override { note("terminate, children " + std::to_string(controls().count())); }

 private:
  std::string nameAndParent() const {
    return Parent() ? " of " + Name() + " in " + std::string(Parent()->typeName()) : std::string();
  }
  void note(const std::string& step) {
    diary().note(label() + " " + step);
    if (inside) inside(*this, std::string_view(step).substr(0, step.find_first_of(" ,")));
  }
};

class LifeCycles : public SurfaceTest {
 protected:
  host::Owned<Living> living(const std::string& label,
                             std::function<void(Living&, std::string_view)> inside = {}) {
    host::Owned<Living> control(new Living(diary, label));
    control->inside = std::move(inside);
    return control;
  }
  Living& addTo(host::UserControl& parent, host::Owned<Living> child, std::string_view name) {
    Living& added = *child;
    parent.controls().add(std::move(child), name, parent);
    return added;
  }
};

TEST_F(LifeCycles, OfAControlThatStandsAloneFollowTheirFixedOrder) {
  auto control = living("a");
  host::LifeCycle::start(*control, site, nullptr);
  EXPECT_EQ(heard(),
            (Heard{"a constructed", "a initialize, nameless", "a initProperties", "a resize 0x0", "a show"}));
  control.reset();
  EXPECT_EQ(heard(), (Heard{"a terminate, children 0", "a destroyed"}));
}

TEST_F(LifeCycles, ReadTheBagInsteadOfInitialisingWhenThereIsOne) {
  auto control = living("a");
  const host::PropertyBag bag;
  host::LifeCycle::start(*control, site, &bag);
  EXPECT_EQ(heard(),
            (Heard{"a constructed", "a initialize, nameless", "a readProperties", "a resize 0x0", "a show"}));
}

TEST_F(LifeCycles, OfAChildNameItBetweenInitialisingAndItsProperties) {
  addTo(surface(), living("child"), "Row1");
  EXPECT_EQ(heard(),
            (Heard{"child constructed", "child initialize, nameless",
                   "child initProperties of Row1 in TestControl", "child resize 0x0", "child show"}));
}

TEST_F(LifeCycles, KeepResizingAndShowingForAfterThePropertiesHoweverEarlyAControlMovesOrHides) {
  auto control = living("a", [](Living& self, std::string_view step) {
    if (step == "initialize") self.Move(0, 0, 320, 21);
    if (step == "initProperties") self.SetVisible(false);
  });
  host::LifeCycle::start(*control, site, nullptr);
  EXPECT_EQ(heard(),
            (Heard{"a constructed", "a initialize, nameless", "a initProperties", "a resize 320x21"}));
  EXPECT_FALSE(control->Visible());
  control->SetVisible(true);
  EXPECT_EQ(heard(), (Heard{"a show"}));
}

TEST_F(LifeCycles, ResizeWhenTheSizeChangesAndNotWhenOnlyThePlaceDoes) {
  auto& child = addTo(surface(), living("child"), "c");
  heard();
  child.Move(5, 6, 70, 20);
  child.Move(15, 16, 70, 20);
  child.SetLeft(1);
  child.SetHeight(20);
  EXPECT_EQ(heard(), (Heard{"child resize 70x20"}));
  child.SetWidth(71);
  EXPECT_EQ(heard(), (Heard{"child resize 71x20"}));
}

TEST_F(LifeCycles, ShowAndHideByTheControlsOwnVisibleOnly) {
  auto& outer = addTo(surface(), living("outer"), "o");
  auto& inner = addTo(outer, living("inner"), "i");
  heard();
  outer.SetVisible(false);
  EXPECT_TRUE(inner.Visible());
  EXPECT_FALSE(inner.shown());
  outer.SetVisible(false);
  outer.SetVisible(true);
  EXPECT_TRUE(inner.shown());
  inner.SetVisible(false);
  EXPECT_EQ(heard(), (Heard{"outer hide", "outer show", "inner hide"}));
}

TEST_F(LifeCycles, NeitherShowNorHideWhenANativeWidgetComesOrGoes) {
  auto& child = addTo(surface(), living("child"), "c");
  heard();
  surface().realise();
  child.Move(0, 1000, 0, 0);
  surface().dropPeer();
  EXPECT_EQ(heard(), Heard{});
}

TEST_F(LifeCycles, TerminateWhileTheChildrenLiveAndDestroyThemBeforeTheirParent) {
  auto parent = living("parent");
  host::LifeCycle::start(*parent, site, nullptr);
  addTo(addTo(*parent, living("first"), "1"), living("inner"), "i");
  addTo(*parent, living("second"), "2");
  heard();
  parent.reset();
  EXPECT_EQ(heard(), (Heard{"parent terminate, children 2", "second terminate, children 0",
                            "second destroyed", "first terminate, children 1", "inner terminate, children 0",
                            "inner destroyed", "first destroyed", "parent destroyed"}));
}

TEST_F(LifeCycles, LetAParentRemoveItsChildrenWhenItTerminates) {
  auto parent = living("parent", [](Living& self, std::string_view step) {
    if (step == "terminate") self.controls().remove("1");
  });
  host::LifeCycle::start(*parent, site, nullptr);
  addTo(*parent, living("first"), "1");
  heard();
  parent.reset();
  EXPECT_EQ(heard(), (Heard{"parent terminate, children 1", "first terminate, children 0", "first destroyed",
                            "parent destroyed"}));
}

TEST_F(LifeCycles, LeaveAChildItsNameToTheEnd) {
  const auto noteName = [this](Living& self, std::string_view step) {
    if (step == "terminate" || step == "destroyed") diary.note(self.Name());
  };
  auto parent = living("parent");
  host::LifeCycle::start(*parent, site, nullptr);
  addTo(*parent, living("first", noteName), "a name that is longer than most");
  addTo(*parent, living("second", noteName), "short");
  heard();
  parent->controls().remove("a name that is longer than most");
  parent->controls().clear();
  EXPECT_EQ(heard(), (Heard{"first terminate, children 0", "a name that is longer than most",
                            "first destroyed", "a name that is longer than most",
                            "second terminate, children 0", "short", "second destroyed", "short"}));
}

TEST_F(LifeCycles, HideAControlToTheEndThoughAListenerToItsFocusFails) {
  Living& first = addTo(surface(), living("first"), "1");
  auto& box = first.add<host::TextBox>("box");
  box.SetFocus();
  const auto failing = first.ObjectEvent.connect([](std::string_view name, host::EventArgs) {
    if (name == "LostFocus") raiseRunTimeError(kOverflow);
  });
  heard();
  EXPECT_THROW(first.SetVisible(false), RunTimeError);
  EXPECT_EQ(heard(), (Heard{"box LostFocus", "first LostFocus", "first hide"}));
  EXPECT_FALSE(first.Visible());
}

TEST_F(LifeCycles, EndAControlThatFailsInAnyStepOfItsStartAndLeaveNothingBehind) {
  for (const std::string_view failing : {"initialize", "initProperties", "resize", "show"}) {
    const auto fails = [failing](Living&, std::string_view step) {
      if (step == failing) raiseRunTimeError(kOverflow);
    };
    EXPECT_EQ(errorOf([&] { addTo(surface(), living("a", fails), "a"); }), 6) << failing;
    EXPECT_EQ(diary.lines.back(), "a destroyed") << failing;
    EXPECT_EQ(surface().controls().count(), 0) << failing;
    EXPECT_EQ(surface().contained().size(), 0u) << failing;
    // The name is free again.
    addTo(surface(), living("b"), "a");
    surface().controls().remove("a");
  }
}

TEST_F(LifeCycles, OfAStandardControlConsistOfItsNameAndItsPlace) {
  auto& box = surface().add<host::TextBox>("txtValue");
  EXPECT_EQ(box.Name(), "txtValue");
  EXPECT_EQ(box.Parent(), &surface());
  EXPECT_EQ(box.Container(), &surface());
  EXPECT_TRUE(box.Visible());
}

TEST_F(LifeCycles, StartAControlWithTheFontAndColoursOfWhatItStandsOn) {
  site.ambientProperties.font = std::make_shared<host::Font>("Serif", 12);
  site.ambientProperties.backColor = host::rgb(1, 2, 3);
  site.ambientProperties.foreColor = host::rgb(4, 5, 6);
  site.ambientProperties.userMode = false;
  const auto control = made<TestControl>(site, diary);
  EXPECT_EQ(control->font()->family, "Serif");
  EXPECT_EQ(control->backColor(), host::rgb(1, 2, 3));
  EXPECT_EQ(control->foreColor(), host::rgb(4, 5, 6));
  EXPECT_FALSE(control->userMode());

  control->setBackColor(host::rgb(7, 8, 9));
  const auto& child = control->addControl("child");
  EXPECT_EQ(child.font(), control->font());
  EXPECT_EQ(child.backColor(), host::rgb(7, 8, 9));
  EXPECT_EQ(child.foreColor(), host::rgb(4, 5, 6));
  EXPECT_FALSE(child.userMode());
}

TEST_F(LifeCycles, GiveAControlThePlatformsFontWhereItsSiteHasNone) {
  const auto control = made<TestControl>(site, diary);
  EXPECT_EQ(control->font(), platform.defaultFont());
}

TEST_F(LifeCycles, AControlKeepsItsColoursWhenThoseOfItsParentChange) {
  auto& child = surface().addControl("child");
  const host::Color before = child.backColor();
  surface().setBackColor(host::rgb(9, 9, 9));
  EXPECT_EQ(child.backColor(), before);
  EXPECT_EQ(surface().addControl("later").backColor(), host::rgb(9, 9, 9));
}

TEST_F(LifeCycles, TellTheSiteWhichPropertyChanged) {
  surface().propertyChanged("Title");
  EXPECT_EQ(site.changedKeys, (Heard{"Title"}));
}

TEST_F(LifeCycles, WeakReferencesToAControlKnowWhenItIsGone) {
  bool aliveAtItsEnd = false;
  auto control = living("a", [&](Living& self, std::string_view step) {
    if (step == "terminate") aliveAtItsEnd = static_cast<bool>(WeakRef<host::Control>(&self));
  });
  host::LifeCycle::start(*control, site, nullptr);
  const WeakRef<host::Control> ref(control.get());
  control.reset();
  EXPECT_TRUE(aliveAtItsEnd);
  EXPECT_FALSE(ref);
}

}  // namespace
}  // namespace qrn::test
