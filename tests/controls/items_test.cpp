#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "controls/raised.h"
#include "diag/QRNErrors.h"
#include "images/built_in_pictures.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

constexpr host::Color kRed = host::rgb(255, 0, 0);
constexpr host::Color kGreen = host::rgb(0, 127, 0);
constexpr host::Color kBlue = host::rgb(0, 0, 255);
constexpr host::Color kBlack = host::rgb(0, 0, 0);

class Items : public PanelTest {
 protected:
  std::shared_ptr<clsQRNParam> parameter(qrnValueType type = qrnTypeString) {
    auto item = items().AddParameter("", type);
    startListening();
    return item;
  }
  // What the user leaves in the row's text box by one edit.
  static void type(clsQRNParam& item, std::string_view text) {
    dynamic_cast<host::TextBox&>(*item.Control().CurrentEditor())
        .userTyped(text, static_cast<std::int32_t>(text.size()));
  }
  static void expectLook(clsQRNParam& item, qrnImageId picture, host::Color color) {
    EXPECT_EQ(item.Control().Icon2Picture(), builtInPicture(picture)) << "state " << item.ParamState();
    EXPECT_EQ(item.Control().ValueForeColor(), color) << "state " << item.ParamState();
    EXPECT_FALSE(item.Control().Icon2Hidden());
  }
};

// ---- a new item ----

TEST_F(Items, StartWithoutTagStateAndError) {
  const auto item = parameter();
  EXPECT_TRUE(item->Tag().isEmpty());
  EXPECT_EQ(item->ParamState(), qrnStateNormal);
  EXPECT_EQ(item->ParamError(), qrnErrorNone);
  EXPECT_TRUE(items().AddAction("", ddtypeMenu)->Tag().isEmpty());
}

TEST_F(Items, CarryAnyTagOfTheCaller) {
  const auto item = parameter();
  item->SetTag(Variant("0x4711"));
  EXPECT_EQ(item->Tag(), Variant("0x4711"));
  const auto action = items().AddAction("", ddtypeMenu);
  action->SetTag(Variant(item));
  EXPECT_EQ(action->Tag(), Variant(item));
}

TEST_F(Items, AParameterGetsItsDefaultLayout) {
  const auto item = parameter(qrnTypeLong);
  EXPECT_EQ(item->Control().ValueType(), qrnTypeLong);
  EXPECT_EQ(item->Control().Icon1Column(), 0);
  EXPECT_EQ(item->Control().Icon2Column(), 4);
  EXPECT_EQ(item->Control().Icon2ButtonMode(), qrnButtonFlat);
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageInfo));
}

TEST_F(Items, ADefaultLayoutGivenLaterReplacesTypeAndIconsAndIsAnnounced) {
  const auto item = parameter(qrnTypeLong);
  item->Control().SetIcon1Column(2);
  item->Control().SetIcon2Column(1);
  item->Control().SetIcon2ButtonMode(qrnbuttonNone);
  item->SetDefaultLayout(qrnTypeBoolean);
  EXPECT_EQ(item->Control().ValueType(), qrnTypeBoolean);
  EXPECT_EQ(item->Control().Icon1Column(), 0);
  EXPECT_EQ(item->Control().Icon2Column(), 4);
  EXPECT_EQ(item->Control().Icon2ButtonMode(), qrnButtonFlat);
  EXPECT_EQ(events(), (Events{"ParameterLayout(1)"}));
}

TEST_F(Items, TheLayoutEventComesAfterTheLayoutSoThatItsListenerHasTheLastWord) {
  const auto connection = panel().ParameterLayout.connect([&](std::int32_t& index) {
    row(index).SetLabelText("Damping");
    row(index).SetIcon1Column(1);
  });
  const auto item = parameter();
  EXPECT_EQ(item->Control().LabelText(), "Damping");
  EXPECT_EQ(item->Control().Icon1Column(), 1);
}

TEST_F(Items, AnActionShowsTheIconOfItsKind) {
  const auto iconOf = [&](ddtypeAction kind) { return items().AddAction("", kind)->Control().Icon(); };
  EXPECT_EQ(iconOf(ddtypeMenu), builtInPicture(qrnImageFolder));
  EXPECT_EQ(iconOf(ddtypeMethod), builtInPicture(qrnImageMethod));
  EXPECT_EQ(iconOf(ddtypeEditBox), builtInPicture(qrnImageDialog));
}

TEST_F(Items, AnActionOfAnUnlistedKindOnlyRaisesItsLayout) {
  const auto item = items().AddAction("", ddtypeMethod);
  startListening();
  for (const std::int32_t kind : {-1, 3, 100}) item->SetDefaultLayout(static_cast<ddtypeAction>(kind));
  EXPECT_EQ(events(), (Events{"ActionLayout(1)", "ActionLayout(1)", "ActionLayout(1)"}));
  EXPECT_EQ(item->Control().Icon(), builtInPicture(qrnImageMethod));
}

TEST_F(Items, ARemovedItemHasNoControlAnyMore) {
  const auto item = parameter();
  const auto action = items().AddAction("", ddtypeMenu);
  items().RemoveAll();
  EXPECT_EQ(raisedBy([&] { item->Control(); }).number, kObjectNotInitialized);
  EXPECT_EQ(raisedBy([&] { item->SetParamValue(Variant(1)); }).number, kObjectNotInitialized);
  EXPECT_EQ(raisedBy([&] { item->SetDefaultLayout(qrnTypeLong); }).number, kObjectNotInitialized);
  EXPECT_EQ(raisedBy([&] { action->Control(); }).number, kObjectNotInitialized);
  for (const ddtypeAction kind : {ddtypeMenu, static_cast<ddtypeAction>(100)})
    EXPECT_EQ(raisedBy([&] { action->SetDefaultLayout(kind); }).number, kObjectNotInitialized);
}

TEST_F(Items, TheStateOfARemovedItemCanBeWrittenWithoutAnyEffect) {
  const auto item = parameter();
  items().RemoveAll();
  startListening();
  item->SetParamState(qrnStateNeeded);
  EXPECT_EQ(item->ParamState(), qrnStateNeeded);
  EXPECT_EQ(events(), Events{});
}

// ---- the look of a state ----

struct Look {
  std::int32_t state;
  qrnImageId picture;
  host::Color color;
};

TEST_F(Items, EveryFlagHasItsPictureAndColour) {
  const auto item = parameter();
  for (const Look& look : std::vector<Look>{{qrnStateRangeError, qrnImageRangeErr, kRed},
                                            {qrnStateError, qrnImageInputErr, kRed},
                                            {qrnStateOtherError, qrnImageError, kRed},
                                            {qrnStateNeeded, qrnImageNeeded, kGreen},
                                            {qrnStateChanged, qrnImageChanged, kBlue},
                                            {qrnStateDataDirty, qrnImageChanged, kBlue},
                                            {qrnStateDynOffline, qrnImageDynOffline, kGreen},
                                            {qrnStateDynamic, qrnImageDynamic1, kGreen},
                                            {qrnStateInitValue, qrnImageInitValue, kBlack},
                                            {qrnStateReadOnly, qrnImageLocked, kBlack},
                                            {qrnStateNormal, qrnImageInfo, kBlack}}) {
    item->SetParamState(static_cast<qrnParamState>(look.state));
    expectLook(*item, look.picture, look.color);
  }
}

// Each flag against all those that stand behind it.
TEST_F(Items, TheMoreImportantFlagChoosesTheLook) {
  const std::vector<std::pair<qrnParamState, qrnImageId>> byImportance{
      {qrnStateRangeError, qrnImageRangeErr},   {qrnStateError, qrnImageInputErr},
      {qrnStateOtherError, qrnImageError},      {qrnStateNeeded, qrnImageNeeded},
      {qrnStateChanged, qrnImageChanged},       {qrnStateDataDirty, qrnImageChanged},
      {qrnStateDynOffline, qrnImageDynOffline}, {qrnStateDynamic, qrnImageDynamic1},
      {qrnStateInitValue, qrnImageInitValue},   {qrnStateReadOnly, qrnImageLocked}};
  const auto item = parameter();
  qrnParamState state = qrnStateNormal;
  for (auto it = byImportance.rbegin(); it != byImportance.rend(); ++it) {
    state = state | it->first;
    item->SetParamState(state);
    EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(it->second)) << "state " << state;
  }
}

TEST_F(Items, AReadOnlyParameterInErrorIsBothRedAndLocked) {
  const auto item = parameter();
  item->SetParamState(qrnStateRangeError | qrnStateReadOnly);
  expectLook(*item, qrnImageRangeErr, kRed);
  EXPECT_TRUE(item->Control().Locked());
  item->SetParamState(qrnStateRangeError);
  EXPECT_FALSE(item->Control().Locked());
}

TEST_F(Items, TheSameStateTwiceIsAnnouncedOnce) {
  const auto item = parameter();
  item->SetParamState(qrnStateNeeded);
  item->SetParamState(qrnStateNeeded);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)"}));
}

TEST_F(Items, PicturesComeFromThePanelsImageList) {
  const auto list = host::create<QRNImageList>(site);
  list->SetImage(qrnImageNeeded, builtInPicture(qrnImageQuestion));
  panel().SetImageList(list.get());
  const auto item = parameter();
  item->SetParamState(qrnStateNeeded);
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageQuestion));
}

TEST_F(Items, AStateWithoutAPictureHidesTheIconAndStillColoursTheValue) {
  const auto list = host::create<QRNImageList>(site);
  list->SetImage(qrnImageNeeded, nullptr);
  panel().SetImageList(list.get());
  const auto item = parameter();
  item->SetParamState(qrnStateNeeded);
  EXPECT_TRUE(item->Control().Icon2Hidden());
  EXPECT_EQ(item->Control().Icon2Picture(), nullptr);
  EXPECT_EQ(item->Control().ValueForeColor(), kGreen);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)"}));

  item->SetParamState(qrnStateNormal);
  expectLook(*item, qrnImageInfo, kBlack);
}

// ---- values ----

TEST_F(Items, AValueIsThatOfTheRow) {
  const auto item = parameter(qrnTypeLong);
  item->SetParamValue(Variant(42));
  EXPECT_EQ(item->ParamValue(), Variant(42));
  EXPECT_EQ(item->Control().Value(), Variant(42));
  item->Control().SetValue(Variant(43));
  EXPECT_EQ(item->ParamValue(), Variant(43));
}

TEST_F(Items, AnArrayValueIsThatOfTheRow) {
  const auto item = parameter(qrnTypeArray);
  item->Control().SetArraySize(3);
  item->Control().SetArrayType(qrnTypeLong);
  item->SetParamArrayValue(1, Variant(42));
  EXPECT_EQ(item->ParamArrayValue(1), item->Control().ArrayValue(1));
  EXPECT_EQ(item->Control().CurrentArrayValueIndex(), 1);
}

TEST_F(Items, ErrorsOfTheRowReachTheCaller) {
  const auto item = parameter(qrnTypeBoolean);
  EXPECT_EQ(raisedBy([&] { item->SetParamValue(Variant("neither true nor false")); }).number, kTypeMismatch);
}

TEST_F(Items, ADynamicValueTicksWithEveryWriteAndRaisesNothing) {
  const auto item = parameter(qrnTypeDouble);
  item->SetParamState(qrnStateDynamic);
  startListening();
  std::vector<host::PicturePtr> pictures;
  for (int i = 0; i < 4; ++i) {
    item->SetParamValue(Variant(1.5));
    pictures.push_back(item->Control().Icon2Picture());
  }
  const auto first = builtInPicture(qrnImageDynamic1), second = builtInPicture(qrnImageDynamic2);
  EXPECT_EQ(pictures, (std::vector{second, first, second, first}));
  EXPECT_EQ(events(), Events{});
}

TEST_F(Items, WritingAnArrayElementTicksToo) {
  const auto item = parameter(qrnTypeArray);
  item->Control().SetArraySize(2);
  item->SetParamState(qrnStateDynamic);
  item->SetParamArrayValue(0, Variant(1));
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageDynamic2));
}

TEST_F(Items, WritesBeforeTheStateBecameDynamicCountForTheTick) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageInfo));
  item->SetParamState(qrnStateDynamic);
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageDynamic2));
}

TEST_F(Items, AValueWrittenByTheProgramIsNoChange) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  EXPECT_EQ(item->ParamState(), qrnStateNormal);
  EXPECT_EQ(events(), Events{});
}

// ---- what the editor reports ----

TEST_F(Items, AnEditedValueIsChanged) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  type(*item, "b");
  EXPECT_EQ(item->ParamState(), qrnStateChanged);
  expectLook(*item, qrnImageChanged, kBlue);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)", "ParameterChange(1)"}));
}

TEST_F(Items, AValueEditedBackIsUnchangedAgain) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  type(*item, "b");
  type(*item, "a");
  EXPECT_EQ(item->ParamState(), qrnStateNormal);
  expectLook(*item, qrnImageInfo, kBlack);
}

TEST_F(Items, AFurtherEditOfAChangedValueIsAChangeButNoNewStatus) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  type(*item, "b");
  startListening();
  type(*item, "bc");
  EXPECT_EQ(events(), (Events{"ParameterChange(1)"}));
}

TEST_F(Items, ARangeErrorFollowedByAValidEntryIsAnnouncedTwice) {
  const auto item = parameter(qrnTypeLong);
  item->Control().SetValueRule("0..10");
  item->SetParamValue(Variant(5));
  type(*item, "99");
  EXPECT_EQ(item->ParamError(), qrnErrorRange);
  EXPECT_EQ(item->ParamState(), qrnStateChanged | qrnStateError | qrnStateRangeError);
  expectLook(*item, qrnImageRangeErr, kRed);

  type(*item, "5");
  EXPECT_EQ(item->ParamError(), qrnErrorNone);
  EXPECT_EQ(item->ParamState(), qrnStateNormal);
  expectLook(*item, qrnImageInfo, kBlack);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)", "ParameterChange(1)", "ParameterStatusChange(1)",
                              "ParameterChange(1)"}));
}

struct ErrorCase {
  qrnValueType type;
  std::string rule, charSet, entry;
  qrnErrorCode error;
  std::int32_t flags;
};

TEST_F(Items, EveryErrorOfTheEditorSetsTheErrorFlagAndARangeErrorTwo) {
  for (const ErrorCase& one : std::vector<ErrorCase>{
           {qrnTypeDouble, "", "", "abc", qrnErrorTypeMismatch, qrnStateError},
           {qrnTypeString, "##", "", "a", qrnErrorSyntax, qrnStateError},
           {qrnTypeString, "", "0-9", "a", qrnErrorCharSet, qrnStateError},
           {qrnTypeDouble, "0..1", "", "2", qrnErrorRange, qrnStateError | qrnStateRangeError}}) {
    const auto item = parameter(one.type);
    item->Control().SetValueRule(one.rule);
    item->Control().SetValueCharSet(one.charSet);
    type(*item, one.entry);
    EXPECT_EQ(item->ParamError(), one.error);
    EXPECT_EQ(item->ParamState() & (qrnStateError | qrnStateRangeError), one.flags) << one.entry;
  }
}

TEST_F(Items, AnErrorOfAnotherKindIsAnnouncedThoughTheFlagsStayTheSame) {
  const auto item = parameter();
  item->Control().SetValueRule("a*");
  item->Control().SetValueCharSet("a-z");
  type(*item, "b");
  EXPECT_EQ(item->ParamError(), qrnErrorSyntax);
  const qrnParamState state = item->ParamState();
  startListening();
  type(*item, "B");
  EXPECT_EQ(item->ParamError(), qrnErrorCharSet);
  EXPECT_EQ(item->ParamState(), state);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)", "ParameterChange(1)"}));
}

TEST_F(Items, TheCallersFlagsSurviveEditing) {
  const auto callers = qrnStateNeeded | qrnStateOtherError | qrnStateDataDirty | qrnStateInitValue |
                       qrnStateDynamic | qrnStateDynOffline;
  const auto item = parameter(qrnTypeLong);
  item->Control().SetValueRule("0..10");
  item->SetParamValue(Variant(5));
  item->SetParamState(callers | qrnStateReadOnly);
  item->Control().SetLocked(false);  // so that it can be edited at all
  type(*item, "99");
  EXPECT_EQ(item->ParamState(),
            callers | qrnStateReadOnly | qrnStateChanged | qrnStateError | qrnStateRangeError);
  item->Control().SetLocked(false);
  type(*item, "5");
  EXPECT_EQ(item->ParamState(), callers | qrnStateReadOnly);
}

TEST_F(Items, FlagsOfErrorsAndChangesThatTheCallerSetGiveWayToTheEditor) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  item->SetParamState(qrnStateChanged | qrnStateError | qrnStateRangeError);
  user->focuses(item->Control());
  user->focuses(panel().ControlsContainer());  // the end of editing looks at the editor
  EXPECT_EQ(item->ParamState(), qrnStateNormal);
}

TEST_F(Items, AcceptingTheEditedValueClearsTheChange) {
  const auto item = parameter();
  item->SetParamValue(Variant("a"));
  type(*item, "b");
  startListening();
  item->Control().SetValueChanged(false);
  EXPECT_EQ(item->ParamState(), qrnStateNormal);
  EXPECT_EQ(events(), (Events{"ParameterStatusChange(1)"}));
}

}  // namespace
}  // namespace qrn::test
