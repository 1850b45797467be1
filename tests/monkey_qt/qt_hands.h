#pragma once

#include "play/hands.h"

namespace qrn::monkey {

/// Hands on widgets of Qt. Needs the application object.
std::unique_ptr<Hands> makeQtHands();

}  // namespace qrn::monkey
