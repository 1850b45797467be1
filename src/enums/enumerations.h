#pragma once

#include <cstdint>

namespace qrn {

// The numbers and spellings are what callers store and pass; they never change. No setter rejects a number
// outside the lists: it takes the "otherwise" branch of whoever looks at it.

/// The type of a parameter's value: selects the editor and the conversions.
enum qrnValueType : std::int32_t {
  qrnTypeString = 0,        // a text box
  qrnTypeInteger = 1,       // a text box; 16 bits
  qrnTypeLong = 2,          // a text box; 32 bits
  qrnTypeBoolean = 3,       // a check box
  qrnTypeDouble = 4,        // a text box
  qrnTypeDecimal = 5,       // a text box; 96 bits and a decimal point
  qrnTypeDate = 6,          // a text box; a day and a time of it
  qrnTypeCurrency = 7,      // a text box; four decimals
  qrnTypeList = 8,          // a drop-down list; the value is the index of the entry, from 0
  qrnTypeBitfield = 9,      // a list of check marks; the value is a text of 0 and 1, bit 0 last
  qrnTypeArray = 10,        // no editor; the value is the current element
  qrnTypeHexadecimal = 11,  // a text box; 32 bits
};

/// State flags of a parameter; a state is any combination of them. They choose the colour of the value and
/// the status icon; of several, errors come first, then what is needed, changed, live, initial and read-only.
enum qrnParamState : std::int32_t {
  qrnStateNormal = 0,        // black
  qrnStateReadOnly = 1,      // black; the row is locked, whatever else it is
  qrnStateDynamic = 2,       // green; a live value, whose icon ticks
  qrnStateChanged = 4,       // blue; edited and not accepted yet, set by the editor
  qrnStateNeeded = 8,        // green; has to be filled in
  qrnStateError = 16,        // red; cannot be read, set by the editor
  qrnStateRangeError = 32,   // red; out of range, set by the editor
  qrnStateOtherError = 64,   // red
  qrnStateDataDirty = 128,   // blue; not written yet
  qrnStateInitValue = 256,   // black; has its initial value
  qrnStateDynOffline = 512,  // green; a live value without connection
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
  qrnErrorUnknown = 1,       // no value for another reason
  qrnErrorTypeMismatch = 2,  // no number, or no date
  qrnErrorSyntax = 3,        // not as the rule of texts wants it
  qrnErrorRange = 4,         // in no range of the rule, or beyond the type
  qrnErrorLength = 5,        // too long
  qrnErrorCharSet = 6,       // a character that is not allowed
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
  qrnbuttonNone = 0,      // takes no clicks
  qrnButtonFlat = 1,      // a frame under the mouse, or with the focus of the keyboard
  qrnButtonEmbossed = 2,  // always a frame
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
