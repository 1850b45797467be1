#pragma once

#include <QObject>

#include "platform/common/window_table.h"

namespace qrn::qt {

/// The window table, with the event loop of Qt as its message loop.
class QtWindows final : public WindowTable {
 protected:
  void wake() override;

 private:
  QObject receiver_;  // what waits for it goes with the table
};

}  // namespace qrn::qt
