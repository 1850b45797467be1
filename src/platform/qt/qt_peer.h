#pragma once

#include <QObject>
#include <QPointer>
#include <QWidget>

#include "host/platform.h"
#include "platform/qt/qt_guard.h"

namespace qrn::host {
class Control;
}

namespace qrn::qt {

class QtCanvas;

/// What every peer with a widget has. The peer belongs to the control and the widget to its Qt parent: either
/// may go first. A peer may be dropped by what its own widget reports, so the widget is only put away then
/// and deleted by the event loop that the report came from; after reporting anything, a peer may be gone.
class QtPeer : public host::Peer {
 public:
  QtPeer(const QtPeer&) = delete;
  QtPeer& operator=(const QtPeer&) = delete;
  ~QtPeer() override;

  /// Null once the Qt parent has deleted it.
  QWidget* widget() const { return widget_; }
  /// The part of the widget that mouse events are sent to.
  virtual QWidget* mouseReceiver() const { return widget_; }

  void changed(host::Aspect aspect) final;
  void invalidate(const Rect& area) override;
  void takeFocus() override;

 protected:
  explicit QtPeer(QWidget* widget) : widget_(widget) {}

  /// Brings the widget up to date; what it signals meanwhile is not reported.
  virtual void apply(host::Aspect aspect) = 0;

  /// Connections with this context end with the peer.
  QObject* context() { return &context_; }
  template <class Call>
  void report(Call&& call) {
    if (!applying_) guarded(std::forward<Call>(call));
  }
  bool applying() const { return applying_; }

 private:
  QPointer<QWidget> widget_;
  const std::uint64_t handlersBefore_ = Handling::begun();
  QObject context_;
  bool applying_ = false;
};

}  // namespace qrn::qt
