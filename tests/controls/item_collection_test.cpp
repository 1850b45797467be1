#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

class ItemCollection : public PanelTest {
 protected:
  // The items by the names of their controls, which are their keys.
  std::vector<std::string> order() {
    std::vector<std::string> names;
    for (std::int32_t i = 1; i <= items().Count(); ++i) names.push_back(nameOf(items().Item(Variant(i))));
    return names;
  }
  static std::string nameOf(const PanelItemPtr& item) {
    if (const auto parameter = std::dynamic_pointer_cast<clsQRNParam>(item))
      return parameter->Control().Name();
    return std::dynamic_pointer_cast<clsQRNAction>(item)->Control().Name();
  }
  std::int32_t indexOf(const Variant& selector) { return items().GetIndexOf(selector); }
  std::shared_ptr<clsQRNParam> addAt(const std::string& name, const Variant& at) {
    return items().AddParameter(name, qrnTypeString, at);
  }

  // An item of another panel.
  std::shared_ptr<clsQRNParam> foreignItem() {
    if (!otherPanel_) otherPanel_ = host::create<QRNDisplay>(site);
    return otherPanel_->Items().AddParameter("Foreign", qrnTypeString);
  }

 private:
  host::Owned<QRNDisplay> otherPanel_;
};

using Names = std::vector<std::string>;

// ---- adding ----

TEST_F(ItemCollection, OfAPanelIsAlwaysTheSame) {
  EXPECT_EQ(&panel().Items(), &panel().Items());
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(ItemCollection, AnItemMakesItsControlInTheItemContainerUnderItsKey) {
  const auto parameter = addParameter("Damping");
  const auto action = items().AddAction("Calibrate", ddtypeMethod);
  EXPECT_EQ(panel().ControlsCollection().find("damping"), &parameter->Control());
  EXPECT_EQ(panel().ControlsCollection().find("Calibrate"), &action->Control());
  EXPECT_EQ(parameter->Control().Container(), &panel().ControlsContainer());
  EXPECT_EQ(parameter->Control().Parent(), &panel());
  EXPECT_EQ(parameter->Control().typeName(), "QRNEdit");
  EXPECT_EQ(action->Control().typeName(), "QRNMenuItem");
}

TEST_F(ItemCollection, AParameterRaisesItsStatusBeforeItsLayout) {
  addParameter("A");
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)", "ParameterLayout(1)"}));
}

TEST_F(ItemCollection, AnActionRaisesItsLayoutOnly) {
  items().AddAction("A", ddtypeMenu);
  EXPECT_EQ(events(), (Events{"ActionLayout(1)"}));
}

TEST_F(ItemCollection, WhatIsAddedInFrontIsAnnouncedWithItsOwnPosition) {
  addParameter("A");
  addParameter("B");
  startListening();
  addAt("X", Variant(2));
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(2)", "ParameterLayout(2)"}));
}

TEST_F(ItemCollection, AddingOrRemovingLaysNothingOut) {
  addParameter("A");
  panel().LayoutControls(false);
  const double top = row(1).Top();
  addAt("X", Variant(1));
  EXPECT_EQ(row(2).Top(), top);
  EXPECT_EQ(row(1).TabIndex(), 0);
  items().Remove(Variant(1));
  EXPECT_EQ(row(1).Top(), top);
}

TEST_F(ItemCollection, AnEmptyNameBecomesTheFirstFreeNumberOfItsKind) {
  addParameter("");
  EXPECT_EQ(order(), (Names{"Parameter1"}));
  items().RemoveAll();
  items().AddAction("", ddtypeMenu);
  EXPECT_EQ(order(), (Names{"Action1"}));
}

TEST_F(ItemCollection, MadeNumbersStartAboveTheNumberOfItems) {
  for (const char* name : {"A", "B", "C"}) addParameter(name);
  addParameter("");
  EXPECT_EQ(order().back(), "Parameter4");
}

TEST_F(ItemCollection, MadeNumbersSkipKeysInUse) {
  for (const char* name : {"A", "parameter4", "Parameter5"}) addParameter(name);
  addParameter("");
  EXPECT_EQ(order().back(), "Parameter6");
}

TEST_F(ItemCollection, AFreedNumberIsUsedAgainOnlyAboveTheNumberOfItems) {
  for (int i = 0; i < 3; ++i) addParameter("");
  items().Remove(Variant("Parameter1"));
  addParameter("");  // 3 is taken
  items().Remove(Variant("Parameter4"));
  items().Remove(Variant("Parameter3"));
  addParameter("");  // 2 is taken, 3 free again, 1 below the count
  EXPECT_EQ(order(), (Names{"Parameter2", "Parameter3"}));
}

TEST_F(ItemCollection, MadeKeysLookAtItemsOnlyAndThenMeetTheNameOfAnotherControl) {
  panel().ControlsCollection().add("QRNV16Controls2.QRNMenuItem", "Parameter1", panel().ControlsContainer());
  EXPECT_EQ(raisedBy([&] { addParameter(""); }).number, kControlNameUsed);
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(ItemCollection, ANameOfAControlOfThePanelIsRefused) {
  addParameter("A");
  EXPECT_EQ(raisedBy([&] { addParameter("a"); }).number, kControlNameUsed);
  EXPECT_EQ(raisedBy([&] { addParameter("lblTitle"); }).number, kControlNameUsed);
  EXPECT_EQ(order(), (Names{"A"}));
}

TEST_F(ItemCollection, AKeyInUseIsRefusedAfterTheControlHasBeenMade) {
  addParameter("A");
  panel().ControlsCollection().remove("A");  // the item stays behind
  EXPECT_EQ(raisedBy([&] { addParameter("A"); }).number, kKeyAlreadyUsed);
  EXPECT_EQ(items().Count(), 1);
  EXPECT_NE(panel().ControlsCollection().find("A"), nullptr);
}

// ---- the place ----

TEST_F(ItemCollection, APositionIsTheOneInFrontOfWhichTheNewItemGoes) {
  addParameter("A");
  addParameter("B");
  const auto x = addAt("X", Variant(1));
  EXPECT_EQ(order(), (Names{"X", "A", "B"}));
  EXPECT_EQ(indexOf(Variant(x)), 1);
}

TEST_F(ItemCollection, ThePositionOfTheLastItemPutsTheNewOneBeforeIt) {
  addParameter("A");
  addParameter("B");
  addAt("X", Variant(items().Count()));
  EXPECT_EQ(order(), (Names{"A", "X", "B"}));
}

TEST_F(ItemCollection, AnItemObjectOrAKeyIsAPositionToo) {
  addParameter("A");
  const auto b = addParameter("B");
  addAt("X", Variant(b));
  addAt("Y", Variant("b"));
  EXPECT_EQ(order(), (Names{"A", "X", "Y", "B"}));
}

TEST_F(ItemCollection, APositionThatDoesNotResolveAppends) {
  addParameter("A");
  addParameter("B");
  addAt("zero", Variant(0));
  addAt("beyond", Variant(items().Count() + 1));
  addAt("negative", Variant(-1));
  addAt("unknown", Variant("nobody"));
  addAt("foreign", Variant(foreignItem()));
  addAt("nothing", Variant(std::shared_ptr<clsQRNParam>()));
  addAt("null", Variant(Null()));
  addAt("empty", Variant());
  EXPECT_EQ(order(), (Names{"A", "B", "zero", "beyond", "negative", "unknown", "foreign", "nothing", "null",
                            "empty"}));
}

TEST_F(ItemCollection, ActionsTakeAPositionToo) {
  addParameter("A");
  items().AddAction("X", ddtypeMenu, Variant(1));
  EXPECT_EQ(order(), (Names{"X", "A"}));
}

// ---- finding ----

TEST_F(ItemCollection, FindsAnItemByObjectKeyAndPosition) {
  addParameter("A");
  const auto b = addParameter("B");
  EXPECT_EQ(items().Item(Variant(b)), b);
  EXPECT_EQ(items().Item(Variant("B")), b);
  EXPECT_EQ(items().Item(Variant(2)), b);
  EXPECT_EQ(items().Item(Variant(std::int16_t{2})), b);
  EXPECT_EQ(items().Item(Variant(2.0)), b);
  EXPECT_EQ(indexOf(Variant(b)), 2);
  EXPECT_EQ(indexOf(Variant("B")), 2);
  EXPECT_EQ(indexOf(Variant(2)), 2);
}

TEST_F(ItemCollection, KeysAreTheSameWhateverTheirCase) {
  const auto item = addParameter("abc");
  EXPECT_EQ(items().Item(Variant("ABC")), item);
  EXPECT_EQ(indexOf(Variant("aBc")), 1);
}

TEST_F(ItemCollection, ATextOfDigitsIsAKeyAndNoPosition) {
  addParameter("A");
  EXPECT_EQ(raisedBy([&] { items().Item(Variant("1")); }).number, kInvalidProcedureCall);
}

TEST_F(ItemCollection, AnUnknownKeyOrPositionIsRefusedByItem) {
  addParameter("A");
  EXPECT_EQ(raisedBy([&] { items().Item(Variant("nobody")); }).number, kInvalidProcedureCall);
  EXPECT_EQ(raisedBy([&] { items().Item(Variant(0)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { items().Item(Variant(2)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { items().Item(Variant(-1)); }).number, kSubscriptOutOfRange);
}

TEST_F(ItemCollection, WhateverDoesNotResolveIsNotInTheCollectionForGetIndexOf) {
  addParameter("A");
  for (const Variant& selector : {Variant("nobody"), Variant(0), Variant(2), Variant(Null()), Variant(),
                                  Variant(foreignItem()), Variant(std::shared_ptr<clsQRNParam>())}) {
    const Raised raised = raisedBy([&] { indexOf(selector); });
    EXPECT_EQ(raised.number, kObjectNotInCollection);
    EXPECT_EQ(raised.description, "Object not in collection.");
    EXPECT_EQ(raised.source, "clsQRNCollection");
  }
}

TEST_F(ItemCollection, ARemovedItemIsNotInTheCollection) {
  const auto item = addParameter("A");
  addParameter("B");
  items().Remove(Variant("A"));
  EXPECT_EQ(raisedBy([&] { indexOf(Variant(item)); }).number, kObjectNotInCollection);
}

TEST_F(ItemCollection, EnumeratesItsItemsInTheirOrder) {
  addParameter("A");
  items().AddAction("B", ddtypeMenu);
  addAt("X", Variant(1));
  Names seen;
  for (const PanelItemPtr& item : items()) seen.push_back(nameOf(item));
  EXPECT_EQ(seen, (Names{"X", "A", "B"}));
}

// ---- removing ----

TEST_F(ItemCollection, RemovingDestroysTheControlAndMovesTheLaterItemsUp) {
  addParameter("A");
  const auto b = addParameter("B");
  addParameter("C");
  const WeakRef<host::Control> control(panel().ControlsCollection().find("B"));
  items().Remove(Variant("b"));
  EXPECT_EQ(order(), (Names{"A", "C"}));
  EXPECT_FALSE(control);
  EXPECT_EQ(panel().ControlsCollection().find("B"), nullptr);
  EXPECT_EQ(indexOf(Variant("C")), 2);
}

TEST_F(ItemCollection, RemovesByPositionAndByObject) {
  addParameter("A");
  const auto b = addParameter("B");
  addParameter("C");
  items().Remove(Variant(b));
  items().Remove(Variant(1));
  EXPECT_EQ(order(), (Names{"C"}));
}

TEST_F(ItemCollection, AForeignObjectIsLeftAloneByRemoveButRefusedByItem) {
  addParameter("A");
  const auto foreign = foreignItem();
  EXPECT_EQ(raisedBy([&] { items().Remove(Variant(foreign)); }).number, 0);
  EXPECT_EQ(items().Count(), 1);
  EXPECT_EQ(nameOf(foreign), "Foreign");
  EXPECT_EQ(raisedBy([&] { items().Item(Variant(foreign)); }).number, kObjectNotInCollection);
}

TEST_F(ItemCollection, AnUnknownKeyOrPositionRemovesNothing) {
  addParameter("A");
  EXPECT_EQ(raisedBy([&] { items().Remove(Variant("nobody")); }).number, kInvalidProcedureCall);
  EXPECT_EQ(raisedBy([&] { items().Remove(Variant(2)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(raisedBy([&] { items().Remove(Variant(0)); }).number, kSubscriptOutOfRange);
  EXPECT_EQ(order(), (Names{"A"}));
}

TEST_F(ItemCollection, ARemovedNameCanBeUsedAgain) {
  addParameter("A");
  items().Remove(Variant("A"));
  items().AddAction("a", ddtypeMenu);
  EXPECT_EQ(order(), (Names{"a"}));
}

TEST_F(ItemCollection, AnItemWhoseControlHasGoneCanBeRemoved) {
  addParameter("A");
  panel().ControlsCollection().remove("A");
  items().Remove(Variant("A"));
  EXPECT_EQ(items().Count(), 0);
}

TEST_F(ItemCollection, RemoveAllOfNothingDoesNothing) {
  items().RemoveAll();
  EXPECT_EQ(items().Count(), 0);
  EXPECT_EQ(events(), Events{});
}

TEST_F(ItemCollection, RemoveAllLeavesNoItemControl) {
  for (const char* name : {"A", "B", "C"}) addParameter(name);
  panel().ImageList();
  items().RemoveAll();
  EXPECT_EQ(items().Count(), 0);
  EXPECT_TRUE(panel().ControlsContainer().contained().empty());
  EXPECT_EQ(panel().ControlsCollection().count(), 1);  // the image list
}

TEST_F(ItemCollection, OutlivesItsPanelWithoutReachingIt) {
  const auto item = addParameter("A");
  panel_.reset();
  const Raised raised = raisedBy([&] { item->Control(); });
  EXPECT_EQ(raised.number, kObjectNotInitialized);
  EXPECT_EQ(raised.description, "Object is not initialized.");
}

TEST_F(ItemCollection, AnItemThatOutlivesItsPanelIsInNoOtherOne) {
  const auto item = addParameter("A");
  const ButtonPtr button = panel().Buttons().AddButton("OK", "OK");
  panel_.reset();
  const auto other = host::create<QRNDisplay>(site);
  other->Items().AddParameter("A", qrnTypeString);
  other->Buttons().AddButton("OK", "OK");
  EXPECT_EQ(raisedBy([&] { other->Items().GetIndexOf(Variant(item)); }).number, kObjectNotInCollection);
  EXPECT_EQ(raisedBy([&] { other->Buttons().GetIndexOf(Variant(button)); }).number, kObjectNotInCollection);
  other->Items().Remove(Variant(item));
  other->Buttons().Remove(Variant(button));
  EXPECT_EQ(other->Items().Count(), 1);
  EXPECT_EQ(other->Buttons().Count(), 1);
}

TEST_F(ItemCollection, AHiddenReferenceKeepsNothingAliveAndKnowsWhenItsTargetHasGone) {
  clsHiddenRef<QRNDisplay> reference;
  EXPECT_EQ(reference.get(), nullptr);
  reference.set(panel_.get());
  EXPECT_EQ(reference.get(), panel_.get());
  panel_.reset();
  EXPECT_EQ(reference.get(), nullptr);
}

// Many items, as short collections are searched in another way than long ones.
TEST_F(ItemCollection, FindsEveryOneOfManyItemsByKeyAndPosition) {
  for (int i = 1; i <= 50; ++i) addParameter("Item" + std::to_string(i));
  addAt("First", Variant(1));
  items().Remove(Variant("item25"));
  for (int i = 1; i <= 50; ++i) {
    const std::string key = "ITEM" + std::to_string(i);
    if (i == 25) {
      EXPECT_EQ(raisedBy([&] { items().Item(Variant(key)); }).number, kInvalidProcedureCall);
      continue;
    }
    const int position = i < 25 ? i + 1 : i;
    EXPECT_EQ(indexOf(Variant(key)), position);
    EXPECT_EQ(items().Item(Variant(position)), items().Item(Variant(key)));
  }
}

TEST_F(ItemCollection, APositionBeyondAnyNumberIsOutsideToo) {
  addParameter("A");
  for (const double position : {3e9, -3e9, 1e300, 0.4, 1.6}) {
    EXPECT_EQ(raisedBy([&] { items().Item(Variant(position)); }).number, kSubscriptOutOfRange) << position;
    EXPECT_EQ(raisedBy([&] { items().Remove(Variant(position)); }).number, kSubscriptOutOfRange) << position;
  }
  EXPECT_EQ(items().Count(), 1);
}

TEST_F(ItemCollection, FindsKeysInAnyCaseOfTheirLetters) {
  for (const char* key : {"\u00ff", "\u03ac", "\u0436", "\u1ea1"}) addParameter(key);
  EXPECT_EQ(indexOf(Variant("\u0178")), 1);
  EXPECT_EQ(indexOf(Variant("\u0386")), 2);
  EXPECT_EQ(indexOf(Variant("\u0416")), 3);
  EXPECT_EQ(indexOf(Variant("\u1ea0")), 4);
}

// Whatever a device description calls a parameter: the panel's own controls stand aside.
TEST_F(ItemCollection, AnItemMayHaveTheNameOfThePanelsPictures) {
  addParameter("imlimages")->SetParamState(qrnStateReadOnly);
  addParameter("A")->SetParamState(qrnStateReadOnly);
  items().AddAction("B", ddtypeMenu);
  for (const std::int32_t position : {1, 2}) {
    ASSERT_NE(row(position).Icon2Picture(), nullptr);
    EXPECT_EQ(row(position).Icon2Picture(), panel().ImageList().Image(qrnImageLocked));
  }
}

}  // namespace
}  // namespace qrn::test
