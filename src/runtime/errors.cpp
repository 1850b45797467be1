#include "runtime/errors.h"

namespace qrn {

std::string_view runTimeErrorText(std::int32_t number) {
  switch (number) {
    case kInvalidProcedureCall: return "Invalid procedure call or argument";
    case kOverflow: return "Overflow";
    case kSubscriptOutOfRange: return "Subscript out of range";
    case kTypeMismatch: return "Type mismatch";
    case kFileNotFound: return "File not found";
    case kInvalidPatternString: return "Invalid pattern string";
    case kInvalidUseOfNull: return "Invalid use of Null";
    case kInvalidFileFormat: return "Invalid file format";
    case kControlArrayElementMissing: return "Control array element doesn't exist";
    case kInvalidPropertyValue: return "Invalid property value";
    case kObjectRequired: return "Object required";
    case kCannotCreateObject: return "The object can't be created";
    case kKeyAlreadyUsed: return "This key is already associated with an element of this collection";
    case kControlNotFound: return "Control not found";
    case kControlNameUsed: return "There is already a control with that name";
    default: return {};
  }
}

void raiseRunTimeError(std::int32_t number, std::string_view source,
                       std::optional<std::string_view> description) {
  throw RunTimeError(number, std::string(source),
                     std::string(description.value_or(runTimeErrorText(number))));
}

}  // namespace qrn
