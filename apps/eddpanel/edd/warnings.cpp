#include "edd/warnings.h"

namespace qrn::edd {

void Warnings::add(const Token& at, const std::string& text) {
  if (list_.size() > maximum || !given_.insert(text).second) return;
  const Place place = at.place();
  list_.push_back({place.file, place.line, list_.size() < maximum ? text : "further warnings are left out"});
}

}  // namespace qrn::edd
