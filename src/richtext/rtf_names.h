#pragma once

#include <optional>
#include <string_view>

#include "richtext/rtf_state.h"

namespace qrn::richtext {

// Control words that stand for something by their name alone.

/// The destination that a word starts; nothing for a word that starts none.
std::optional<Destination> destinationOf(std::string_view word);
/// The character that a word stands for, 0 for none.
char32_t characterNamed(std::string_view word);
/// The code page that a word chooses for the document, 0 for none.
int codePageNamed(std::string_view word);
bool endsParagraph(std::string_view word);

}  // namespace qrn::richtext
