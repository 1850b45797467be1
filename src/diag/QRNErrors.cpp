#include "diag/QRNErrors.h"

#include "runtime/conversions.h"

namespace qrn {
namespace {

std::string textOf(const Variant& value) {
  const ObjectPtr* object = value.get<ObjectPtr>();
  if (!object) return CStr(value);
  return *object ? std::string((*object)->typeName()) : std::string("Nothing");
}

}  // namespace

ErrorArgument::ErrorArgument(const Variant& value) : text_(textOf(value)) {}

std::string_view ErrorText(std::int32_t Number) {
  switch (Number) {
    case kObjectNotInitialized: return "Object is not initialized.";
    case kObjectAlreadyInitialized: return "Object is already initialized.";
    case kObjectNotInCollection: return "Object not in collection.";
    case kSetNotAtRunTime: return "Let/Set not supported at run time.";
    case kSetNotAtDesignTime: return "Let/Set not supported at design time.";
    case kGetNotAtRunTime: return "Get not supported at run time.";
    case kGetNotAtDesignTime: return "Get not supported at design time.";
    default: return {};
  }
}

void RaiseError(std::int32_t Number, const ErrorArgument& Source, const ErrorArgument& Description) {
  raiseRunTimeError(Number, Source.text().value_or(""),
                    Description.text() ? std::string_view(*Description.text()) : ErrorText(Number));
}

}  // namespace qrn
