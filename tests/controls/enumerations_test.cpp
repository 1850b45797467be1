#include "enums/enumerations.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <type_traits>
#include <vector>

#include "images/built_in_pictures.h"
#include "support/panel_fixture.h"

namespace qrn::test {
namespace {

// Callers store and pass the numbers, so a member that moves breaks them without any other sign.
template <class Enum>
std::vector<std::int32_t> numbersOf(std::initializer_list<Enum> members) {
  static_assert(std::is_same_v<std::underlying_type_t<Enum>, std::int32_t>);
  std::vector<std::int32_t> numbers;
  for (const Enum member : members) numbers.push_back(static_cast<std::int32_t>(member));
  return numbers;
}

using Numbers = std::vector<std::int32_t>;

Numbers countedTo(std::int32_t last) {
  Numbers numbers;
  for (std::int32_t i = 0; i <= last; ++i) numbers.push_back(i);
  return numbers;
}

TEST(Enumerations, ValueTypesKeepTheirNumbers) {
  EXPECT_EQ(numbersOf({qrnTypeString, qrnTypeInteger, qrnTypeLong, qrnTypeBoolean, qrnTypeDouble,
                       qrnTypeDecimal, qrnTypeDate, qrnTypeCurrency, qrnTypeList, qrnTypeBitfield,
                       qrnTypeArray, qrnTypeHexadecimal}),
            countedTo(11));
}

TEST(Enumerations, ParameterStatesAreSingleBits) {
  EXPECT_EQ(numbersOf({qrnStateNormal, qrnStateReadOnly, qrnStateDynamic, qrnStateChanged, qrnStateNeeded,
                       qrnStateError, qrnStateRangeError, qrnStateOtherError, qrnStateDataDirty,
                       qrnStateInitValue, qrnStateDynOffline}),
            (Numbers{0, 1, 2, 4, 8, 16, 32, 64, 128, 256, 512}));
}

TEST(Enumerations, ErrorCodesKeepTheirNumbers) {
  EXPECT_EQ(numbersOf({qrnErrorNone, qrnErrorUnknown, qrnErrorTypeMismatch, qrnErrorSyntax, qrnErrorRange,
                       qrnErrorLength, qrnErrorCharSet}),
            countedTo(6));
}

TEST(Enumerations, PictureNumbersKeepTheirNumbers) {
  EXPECT_EQ(numbersOf({qrnImageBlank, qrnImageFolder, qrnImageMethod, qrnImageDialog, qrnImageInfo,
                       qrnImageLocked, qrnImageInitValue, qrnImageChanged, qrnImageDynamic1, qrnImageDynamic2,
                       qrnImageDynOffline, qrnImageNeeded, qrnImageError, qrnImageRangeErr, qrnImageInputErr,
                       qrnImageCritical, qrnImageExclamation, qrnImageQuestion, qrnImageInformation}),
            countedTo(18));
}

TEST(Enumerations, TheSmallOnesKeepTheirNumbers) {
  EXPECT_EQ(numbersOf({qrnbuttonNone, qrnButtonFlat, qrnButtonEmbossed}), countedTo(2));
  EXPECT_EQ(numbersOf({ddtypeMenu, ddtypeMethod, ddtypeEditBox}), countedTo(2));
  EXPECT_EQ(numbersOf({qrnEdgeNone, qrnEdgeSimple, qrnEdgeSunken, qrnEdgeEngraved, qrnEdgeBorder}),
            countedTo(4));
  EXPECT_EQ(numbersOf({qrnTitleNone, qrnTitleStandard, qrnTitleDialog}), countedTo(2));
}

TEST(Enumerations, TheNormalStateHasNoBitThatCouldBeTested) {
  for (const qrnParamState state : {qrnStateNormal, qrnStateReadOnly, qrnStateError | qrnStateChanged}) {
    EXPECT_EQ(state & qrnStateNormal, 0);
  }
}

class EnumerationUsers : public PanelTest {};

TEST_F(EnumerationUsers, AStateOfTwoFlagsIsShownByTheMoreImportantOne) {
  const auto item = addParameter("A");
  item->SetParamState(qrnStateError | qrnStateChanged);
  EXPECT_EQ(item->ParamState(), 20);
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageInputErr));
  EXPECT_EQ(item->Control().ValueForeColor(), host::rgb(255, 0, 0));
}

TEST_F(EnumerationUsers, AStateOfUnlistedBitsIsKeptAndLooksNormal) {
  const auto item = addParameter("A");
  item->SetParamState(static_cast<qrnParamState>(1 << 20));
  EXPECT_EQ(item->ParamState(), 1 << 20);
  EXPECT_EQ(item->Control().Icon2Picture(), builtInPicture(qrnImageInfo));
}

TEST_F(EnumerationUsers, NoSetterRejectsAnUnlistedNumber) {
  panel().SetBorderStyle(static_cast<qrnEdgeType>(77));
  panel().SetTitleStyle(static_cast<qrnTitleStyle>(-3));
  panel().SetButtonsAlignment(9);
  const auto action = items().AddAction("B", ddtypeMenu);
  action->Control().SetButtonMode(static_cast<qrnButtonMode>(5));
  const auto parameter = addParameter("A", static_cast<qrnValueType>(99));

  EXPECT_EQ(panel().BorderStyle(), 77);
  EXPECT_EQ(panel().TitleStyle(), -3);
  EXPECT_EQ(panel().ButtonsAlignment(), 9);
  EXPECT_EQ(action->Control().ButtonMode(), 5);
  EXPECT_EQ(parameter->Control().ValueType(), 99);
}

TEST_F(EnumerationUsers, AnUnlistedBorderDrawsNoFrame) {
  panel().SetTitleStyle(qrnTitleNone);
  panel().SetBorderStyle(static_cast<qrnEdgeType>(77));
  headless::RecordingSurface surface(platform, {400, 300});
  panel().paint(surface, {400, 300});
  EXPECT_EQ(surface.operations("line"), Events{});
}

}  // namespace
}  // namespace qrn::test
