#include "platform/qt/qt_child_peer.h"

#include "host/editor.h"
#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_platform.h"

namespace qrn::qt {

QtChildPeer::QtChildPeer(QtCanvas& canvas, host::Control& control, QWidget* widget)
    : QtPeer(widget), control_(control), canvas_(canvas) {}

void QtChildPeer::bringUpToDate() {
  using enum host::Aspect;
  for (const auto aspect : {Look, Entries, Range, Content, Enabled, Place}) changed(aspect);
  widget()->show();
}

void QtChildPeer::apply(host::Aspect aspect) {
  switch (aspect) {
    case host::Aspect::Place: return applyPlace();
    case host::Aspect::Enabled: return applyEnabled();
    case host::Aspect::Look: return applyLook();
    case host::Aspect::Content: return applyContent();
    case host::Aspect::Entries: return applyEntries();
    case host::Aspect::Range: return applyRange();
  }
}

// Out of view a widget is clipped, never hidden: hiding would cost it the focus.
void QtChildPeer::applyPlace() {
  const QRect whole = toPixels(control_.onSurface());
  const QRect seen = toPixels(control_.visibleOnSurface()) & whole;
  widget()->setGeometry(whole);
  if (seen == whole)
    widget()->clearMask();
  else if (seen.isEmpty())
    widget()->setMask(QRegion(-2, -2, 1, 1));  // an empty mask would be none
  else
    widget()->setMask(seen.translated(-whole.topLeft()));
}

// Disabling the widget that has the focus would send the focus on to the next one. The control keeps it and
// the canvas keeps it for the widget.
void QtChildPeer::applyEnabled() {
  const bool enabled = control_.enabledUpToSurface();
  if (!enabled) canvas_.takeFocusFrom(*widget());
  widget()->setEnabled(enabled);
  if (enabled && control_.input().focus() == &control_) canvas_.giveFocusTo(*widget());
}

QtEditorPeer::QtEditorPeer(QtCanvas& canvas, host::Editor& editor, QWidget* widget)
    : QtChildPeer(canvas, editor, widget), editor_(editor), canvas_(canvas) {
  // Tab goes by the order of the controls, which the canvas knows.
  widget->setFocusPolicy(Qt::ClickFocus);
  canvas.watch(*widget);
}

// The colours of one that can't be used are others.
void QtEditorPeer::applyEnabled() {
  QtChildPeer::applyEnabled();
  applyLook();
}

void QtEditorPeer::applyLook() {
  QtPlatform& platform = canvas_.platform();
  widget()->setFont(platform.metrics(*editor_.Font()).font());
  widget()->setPalette(platform.palettes().of(editor_));
}

}  // namespace qrn::qt
