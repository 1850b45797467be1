#include "platform/qt/qt_check_box_peer.h"

#include "platform/qt/qt_canvas.h"

namespace qrn::qt {
namespace {

// There is no text beside the mark to click at: the whole place of the control counts.
class WholeCheckBox final : public QCheckBox {
 public:
  using QCheckBox::QCheckBox;

 protected:
  bool hitButton(const QPoint& at) const override { return rect().contains(at); }
};

}  // namespace

QtCheckBoxPeer::QtCheckBoxPeer(QtCanvas& canvas, host::CheckBox& box)
    : QtEditorPeer(canvas, box, new WholeCheckBox(&canvas)),
      box_(box),
      widget_(static_cast<QCheckBox&>(*widget())) {
  bringUpToDate();
  QObject::connect(&widget_, &QCheckBox::clicked, context(), [this] { reportToggle(); });
}

void QtCheckBoxPeer::applyContent() { widget_.setChecked(box_.Value() != 0); }

void QtCheckBoxPeer::reportToggle() {
  const QPointer<QObject> alive(context());
  report([this] { box_.userToggled(); });
  if (alive) changed(host::Aspect::Content);
}

}  // namespace qrn::qt
