#pragma once

#include <optional>
#include <string_view>

#include "richtext/document.h"

namespace qrn::richtext {

/// Whether a text starts as RTF does; any other text is meant as it stands.
bool isRtf(std::string_view text);

/// The document that RTF describes; nothing when the text is no RTF. What is broken, cut off or unknown in it
/// is left out, in time linear in the text; nothing is thrown.
///
/// Read are fonts, sizes, bold, italic, underlined, struck out, raised and lowered characters and their
/// colours; alignment, indents, tab stops and bullets of paragraphs; line and page breaks, tabs and the named
/// characters; and characters by their Unicode number or by a byte of the code page of the font or the
/// document (see code_page.h). Cells of a table come as text with tabs, its rows as paragraphs. Hidden text
/// and everything that is no text of the document, such as pictures, headers or footnotes, is skipped.
///
/// Each paragraph is ended by \par, the last one too: one \par at the end of the text starts no other one.
std::optional<Document> readRtf(std::string_view text);

}  // namespace qrn::richtext
