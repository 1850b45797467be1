#pragma once

#include <memory>

#include "buttons/context_menu.h"
#include "hooks/clsQRNEDitSubClass.h"
#include "row/focus_watch.h"
#include "row/icon_tracking.h"
#include "values/clsQRNArray.h"

namespace qrn {

/// What few rows have.
struct RowExtras {
  std::unique_ptr<clsQRNArray> array;
  ContextMenu menu;
  std::unique_ptr<IconTracking> tracking;
  std::unique_ptr<FocusWatch> focusWatch;          // while the row has the focus
  std::unique_ptr<clsQRNEDitSubClass> editorHook;  // from the moment on when the editor has a window
};

}  // namespace qrn
