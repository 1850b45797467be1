#pragma once

#include <utility>

#include "base/weak_ref.h"
#include "host/user_control.h"
#include "platform/headless/headless_platform.h"

namespace qrn::test {

/// The window of a control on the headless platform: it can go while the control stays.
class HeadlessWindow {
 public:
  explicit HeadlessWindow(headless::HeadlessPlatform& machine) : machine_(machine) {}

  void show(host::UserControl& surface) {
    surface_ = WeakRef<host::Control>(&surface);
    surface.realise();
  }
  /// As when a host closes its form.
  void close() {
    if (!isOpen()) return;
    surface()->input().surfaceLostFocus();
    if (surface_) dropPeers(*surface());
  }
  /// What was shown last; null when it has gone.
  host::UserControl* surface() const { return static_cast<host::UserControl*>(surface_.get()); }
  bool isOpen() const { return surface_ && surface_->peer(); }

  /// Whether anything of it is waiting to be painted; forgets that.
  bool takeInvalidated() {
    return isOpen() &&
           !std::exchange(static_cast<headless::HeadlessPeer&>(*surface_->peer()).invalidated, {}).empty();
  }
  void paint() {
    if (!isOpen()) return;
    headless::RecordingSurface paper(machine_, surface_->pixelSize());
    surface()->paintTree(paper);
  }

 private:
  static void dropPeers(host::ContainerControl& container) {
    for (host::Control* control : container.contained()) {
      control->dropPeer();
      if (auto* inner = dynamic_cast<host::ContainerControl*>(control)) dropPeers(*inner);
    }
    container.dropPeer();
  }

  headless::HeadlessPlatform& machine_;
  WeakRef<host::Control> surface_;
};

}  // namespace qrn::test
