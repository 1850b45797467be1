#include "changes_question.h"

namespace qrn::eddpanel {

std::string counted(int count, const std::string& what) {
  return std::to_string(count) + (count == 1 ? " value " : " values ") + what;
}

std::string questionText(const std::string& page, const Edits& edits) {
  const bool one = edits.count == 1;
  std::string text = '"' + page + "\" has " +
                     (one ? "a value that has" : std::to_string(edits.count) + " values that have") +
                     " not been written to the device.";
  if (edits.wrong > 0)
    text += (one ? " It has"
                 : ' ' + std::to_string(edits.wrong) + " of them " + (edits.wrong == 1 ? "has" : "have")) +
            std::string(" to be corrected first.");
  return text;
}

}  // namespace qrn::eddpanel
