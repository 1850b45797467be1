#pragma once

#include <cstdint>

#include "base/event.h"

namespace qrn {

/// The events of a row. Most rows are heard by their panel only, by the names of the events, and go without.
class RowEvents {
 public:
  /// What the editor shows has changed.
  Event<> Change;
  /// An entry of a bit field was ticked or unticked; entries count from 0.
  Event<std::int16_t& /*Item*/> ItemCheck;
  /// The row was clicked where no part is.
  Event<> BackgroundClick;
  /// The caption was clicked.
  Event<> LabelClick;
  /// The unit was clicked.
  Event<> UnitClick;
  /// The first icon was clicked, in another mode than qrnbuttonNone.
  Event<> Icon1Click;
  /// The second icon was clicked, in another mode than qrnbuttonNone.
  Event<> Icon2Click;
  /// An entry of the context menu was chosen; the host's own count from 1.
  Event<std::int16_t& /*Index*/> MenuClick;
  /// A check box, drop list or bit list was clicked.
  Event<> Click;
  /// The user has gone into the editor, which is not locked.
  Event<> StartEdit;
  /// The user has left the editor, or the application; tells ValueChanged.
  Event<bool& /*bChanged*/> EndEdit;
  /// A key has gone down in the editor; setting its code to 0 takes it away.
  Event<std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyDown;
  /// A character was typed in the editor; setting it to 0 takes it away.
  Event<std::int16_t& /*KeyAscii*/> KeyPress;
  /// A key has come up in the editor.
  Event<std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyUp;
  /// The host has accepted a changed value, with ValueChanged.
  Event<> StatusChange;
};

}  // namespace qrn
