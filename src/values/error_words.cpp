#include "values/error_words.h"

namespace qrn {

std::string_view errorInWords(qrnErrorCode error) {
  switch (error) {
    case qrnErrorNone: return {};
    case qrnErrorTypeMismatch: return "The value is of the wrong kind.";
    case qrnErrorSyntax: return "The value does not have the required form.";
    case qrnErrorRange: return "The value is out of range.";
    case qrnErrorLength: return "The text is too long.";
    case qrnErrorCharSet: return "The text contains a character that is not allowed.";
    default: return "The value is not valid.";
  }
}

}  // namespace qrn
