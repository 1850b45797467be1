#pragma once

#include <string>

#include "edd/description.h"

namespace qrn::eddpanel {

struct ScreenOptions {
  std::string pictures;  // a folder: write pictures instead of opening a window
  bool dark = false;
  bool printEvents = false;
};

/// Shows the pages in a window until it is closed, or writes their pictures. Answers the exit code.
int runOnScreen(const edd::Description& description, const ScreenOptions& options, int argc, char** argv);

}  // namespace qrn::eddpanel
