#pragma once

#include "host/site.h"
#include "platform/qt/qt_platform.h"

namespace qrn::qt {

/// A site for controls in a window of Qt: they look as the application does.
class QtSite : public host::Site {
 public:
  explicit QtSite(QtPlatform& platform) : platform_(platform) {}
  QtPlatform& platform() const override { return platform_; }
  host::Ambient ambient() const override { return {}; }

 private:
  QtPlatform& platform_;
};

}  // namespace qrn::qt
