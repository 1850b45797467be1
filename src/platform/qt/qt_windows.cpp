#include "platform/qt/qt_windows.h"

#include <QMetaObject>

#include "platform/qt/qt_guard.h"

namespace qrn::qt {

void QtWindows::wake() {
  QMetaObject::invokeMethod(
      &receiver_, [this] { guarded([this] { deliverPosted(); }); }, Qt::QueuedConnection);
}

}  // namespace qrn::qt
