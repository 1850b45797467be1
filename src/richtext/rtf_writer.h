#pragma once

#include <string>

#include "richtext/document.h"

namespace qrn::richtext {

/// A document as RTF, in ASCII only, which reads back as an equal one as long as its formats are ones that
/// RTF can say (see format.h).
std::string writeRtf(const Document& document);

}  // namespace qrn::richtext
