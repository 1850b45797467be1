#include "edd/chain.h"

namespace qrn::edd {

std::string chain(const std::vector<std::string_view>& names) {
  constexpr std::size_t shown = 8;
  std::string text;
  for (std::size_t i = 0; i < names.size(); ++i) {
    if (i > 0) text += " -> ";
    if (names.size() > shown && i == shown / 2) {
      text += "... -> ";
      i = names.size() - shown / 2;
    }
    text += names[i];
  }
  return text;
}

}  // namespace qrn::edd
