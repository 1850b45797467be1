#pragma once

#include "platform/qt/qt_peer.h"

namespace qrn::host {
class Control;
class Editor;
}  // namespace qrn::host

namespace qrn::qt {

/// A widget on a canvas, in the place of its control there and clipped as the control is.
class QtChildPeer : public QtPeer {
 protected:
  QtChildPeer(QtCanvas& canvas, host::Control& control, QWidget* widget);

  /// The end of every constructor: reads all that the control has.
  void bringUpToDate();
  void apply(host::Aspect aspect) override;
  virtual void applyContent() = 0;
  virtual void applyLook() {}
  virtual void applyEnabled();
  virtual void applyEntries() {}
  virtual void applyRange() {}

 private:
  void applyPlace();

  host::Control& control_;
  QtCanvas& canvas_;
};

/// The widget of the editor that has the focus.
class QtEditorPeer : public QtChildPeer {
 protected:
  QtEditorPeer(QtCanvas& canvas, host::Editor& editor, QWidget* widget);
  void applyEnabled() override;
  void applyLook() override;

 private:
  host::Editor& editor_;
  QtCanvas& canvas_;
};

}  // namespace qrn::qt
