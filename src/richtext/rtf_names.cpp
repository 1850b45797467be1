#include "richtext/rtf_names.h"

#include <unordered_map>

#include "richtext/code_page.h"
#include "richtext/document.h"

namespace qrn::richtext {
namespace {

template <class T>
using Names = std::unordered_map<std::string_view, T>;

template <class T>
T valueOf(const Names<T>& names, std::string_view word, T otherwise) {
  const auto found = names.find(word);
  return found == names.end() ? otherwise : found->second;
}

// Destinations that began with the later versions of the format are marked by \* and need no entry here.
const Names<std::optional<Destination>>& destinations() {
  using enum Destination;
  static const Names<std::optional<Destination>> names = {
      {"fonttbl", Fonts},     {"colortbl", Colors},   {"pn", Bullet},          {"annotation", Skipped},
      {"atnauthor", Skipped}, {"atnid", Skipped},     {"bkmkend", Skipped},    {"bkmkstart", Skipped},
      {"comment", Skipped},   {"falt", Skipped},      {"filetbl", Skipped},    {"fldinst", Skipped},
      {"footer", Skipped},    {"footerf", Skipped},   {"footerl", Skipped},    {"footerr", Skipped},
      {"footnote", Skipped},  {"ftncn", Skipped},     {"ftnsep", Skipped},     {"ftnsepc", Skipped},
      {"generator", Skipped}, {"header", Skipped},    {"headerf", Skipped},    {"headerl", Skipped},
      {"headerr", Skipped},   {"info", Skipped},      {"listtext", Skipped},   {"nonshppict", Skipped},
      {"object", Skipped},    {"pict", Skipped},      {"pntext", Skipped},     {"private", Skipped},
      {"revtbl", Skipped},    {"rxe", Skipped},       {"stylesheet", Skipped}, {"tc", Skipped},
      {"txe", Skipped},       {"xe", Skipped},        {"listtable", Skipped},  {"listoverridetable", Skipped},
      {"themedata", Skipped}, {"datastore", Skipped}, {"xmlnstbl", Skipped},   {"latentstyles", Skipped},
      {"panose", Skipped},    {"shpinst", Skipped},   {"template", Skipped},   {"userprops", Skipped},
  };
  return names;
}

const Names<char32_t>& characters() {
  static const Names<char32_t> names = {
      {"tab", U'\t'},         {"cell", U'\t'},       {"line", kLineBreak},  {"page", kLineBreak},
      {"column", kLineBreak}, {"emdash", 0x2014},    {"endash", 0x2013},    {"emspace", 0x2003},
      {"enspace", 0x2002},    {"qmspace", 0x2005},   {"bullet", 0x2022},    {"lquote", 0x2018},
      {"rquote", 0x2019},     {"ldblquote", 0x201C}, {"rdblquote", 0x201D}, {"zwj", 0x200D},
      {"zwnj", 0x200C},       {"zwbo", 0x200B},      {"zwnbo", 0x2060},     {"ltrmark", 0x200E},
      {"rtlmark", 0x200F},
  };
  return names;
}

const Names<int>& codePages() {
  static const Names<int> names = {
      {"ansi", kWesternPage}, {"mac", kMacPage}, {"pc", kDosPage}, {"pca", kDosWesternPage}};
  return names;
}

}  // namespace

std::optional<Destination> destinationOf(std::string_view word) {
  return valueOf(destinations(), word, std::optional<Destination>());
}

char32_t characterNamed(std::string_view word) { return valueOf(characters(), word, char32_t{0}); }

int codePageNamed(std::string_view word) { return valueOf(codePages(), word, 0); }

bool endsParagraph(std::string_view word) { return word == "par" || word == "row" || word == "sect"; }

}  // namespace qrn::richtext
