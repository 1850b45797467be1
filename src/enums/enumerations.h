#pragma once

#include <cstdint>

namespace qrn {

// The numbers and spellings are what callers store and pass; they never change. No setter rejects a number
// outside the lists: it takes the "otherwise" branch of whoever looks at it.

/// The type of a parameter's value: selects the editor and the conversions.
enum qrnValueType : std::int32_t {
  qrnTypeString = 0,
  qrnTypeInteger = 1,
  qrnTypeLong = 2,
  qrnTypeBoolean = 3,
  qrnTypeDouble = 4,
  qrnTypeDecimal = 5,
  qrnTypeDate = 6,
  qrnTypeCurrency = 7,
  qrnTypeList = 8,
  qrnTypeBitfield = 9,
  qrnTypeArray = 10,
  qrnTypeHexadecimal = 11,
};

/// State flags of a parameter; a state is any combination of them.
enum qrnParamState : std::int32_t {
  qrnStateNormal = 0,
  qrnStateReadOnly = 1,
  qrnStateDynamic = 2,
  qrnStateChanged = 4,
  qrnStateNeeded = 8,
  qrnStateError = 16,
  qrnStateRangeError = 32,
  qrnStateOtherError = 64,
  qrnStateDataDirty = 128,
  qrnStateInitValue = 256,
  qrnStateDynOffline = 512,
};

constexpr qrnParamState operator|(qrnParamState a, qrnParamState b) {
  return static_cast<qrnParamState>(static_cast<std::int32_t>(a) | static_cast<std::int32_t>(b));
}
constexpr qrnParamState operator&(qrnParamState a, qrnParamState b) {
  return static_cast<qrnParamState>(static_cast<std::int32_t>(a) & static_cast<std::int32_t>(b));
}
constexpr qrnParamState operator~(qrnParamState a) {
  return static_cast<qrnParamState>(~static_cast<std::int32_t>(a));
}

/// The result of reading back and checking a typed value.
enum qrnErrorCode : std::int32_t {
  qrnErrorNone = 0,
  qrnErrorUnknown = 1,
  qrnErrorTypeMismatch = 2,
  qrnErrorSyntax = 3,
  qrnErrorRange = 4,
  qrnErrorLength = 5,
  qrnErrorCharSet = 6,
};

/// Numbers of the built-in pictures of an image list.
enum qrnImageId : std::int32_t {
  qrnImageBlank = 0,
  qrnImageFolder = 1,
  qrnImageMethod = 2,
  qrnImageDialog = 3,
  qrnImageInfo = 4,
  qrnImageLocked = 5,
  qrnImageInitValue = 6,
  qrnImageChanged = 7,
  qrnImageDynamic1 = 8,
  qrnImageDynamic2 = 9,
  qrnImageDynOffline = 10,
  qrnImageNeeded = 11,
  qrnImageError = 12,
  qrnImageRangeErr = 13,
  qrnImageInputErr = 14,
  qrnImageCritical = 15,
  qrnImageExclamation = 16,
  qrnImageQuestion = 17,
  qrnImageInformation = 18,
};

/// How a clickable picture or button frames itself.
enum qrnButtonMode : std::int32_t {
  qrnbuttonNone = 0,
  qrnButtonFlat = 1,
  qrnButtonEmbossed = 2,
};

/// The kind of an action item.
enum ddtypeAction : std::int32_t {
  ddtypeMenu = 0,
  ddtypeMethod = 1,
  ddtypeEditBox = 2,
};

/// The border of a display panel.
enum qrnEdgeType : std::int32_t {
  qrnEdgeNone = 0,
  qrnEdgeSimple = 1,
  qrnEdgeSunken = 2,
  qrnEdgeEngraved = 3,
  qrnEdgeBorder = 4,
};

/// The title bar of a display panel.
enum qrnTitleStyle : std::int32_t {
  qrnTitleNone = 0,
  qrnTitleStandard = 1,
  qrnTitleDialog = 2,
};

}  // namespace qrn
