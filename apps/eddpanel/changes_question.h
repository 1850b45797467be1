#pragma once

#include <cstdint>
#include <string>

#include "menu_page.h"

namespace qrn::eddpanel {

/// What is to become of edited values whose page is about to close.
enum class ForChanges : std::uint8_t { Apply, Discard, KeepOpen };

/// Asks the user, who has to answer before anything else happens.
class ChangesQuestion {
 public:
  virtual ~ChangesQuestion() = default;
  virtual ForChanges ask(const std::string& page, const Edits& edits) = 0;
};

/// "1 value", "2 values", with what has become of them behind it.
std::string counted(int count, const std::string& what);
/// What the user has to know to answer.
std::string questionText(const std::string& page, const Edits& edits);

}  // namespace qrn::eddpanel
