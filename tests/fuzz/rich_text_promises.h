#pragma once

#include <string>
#include <string_view>

namespace qrn::fuzz {

/// What reading a text as RTF, and changing the document that comes out, breaks of its promises; empty when
/// all of them hold.
std::string brokenRichTextPromise(std::string_view text);

}  // namespace qrn::fuzz
