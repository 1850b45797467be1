#pragma once

#include "changes_question.h"

namespace qrn::eddpanel {

/// Asks in a message box over the active window. The values of the device go on moving meanwhile.
class QuestionBox final : public ChangesQuestion {
 public:
  ForChanges ask(const std::string& page, const Edits& edits) override;
};

}  // namespace qrn::eddpanel
