#include "platform/qt/qt_combo_box_peer.h"

#include <QKeyEvent>
#include <QWheelEvent>

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {

void LockableComboBox::showPopup() {
  if (!locked_) QComboBox::showPopup();
}

void LockableComboBox::keyPressEvent(QKeyEvent* event) {
  if (locked_)
    event->ignore();
  else
    QComboBox::keyPressEvent(event);
}

// The canvas below scrolls then.
void LockableComboBox::wheelEvent(QWheelEvent* event) {
  if (locked_)
    event->ignore();
  else
    QComboBox::wheelEvent(event);
}

QtComboBoxPeer::QtComboBoxPeer(QtCanvas& canvas, host::ComboBox& box)
    : QtEditorPeer(canvas, box, new LockableComboBox(&canvas)),
      box_(box),
      widget_(static_cast<LockableComboBox&>(*widget())) {
  bringUpToDate();
  QObject::connect(&widget_, &QComboBox::activated, context(),
                   [this](int index) { report([this, index] { box_.userSelected(index); }); });
}

void QtComboBoxPeer::applyContent() { widget_.setCurrentIndex(box_.ListIndex()); }

void QtComboBoxPeer::applyEnabled() {
  QtEditorPeer::applyEnabled();
  widget_.setLocked(box_.Locked());
}

void QtComboBoxPeer::applyEntries() {
  QStringList texts;
  for (int i = 0; i < box_.ListCount(); ++i) texts.append(toQString(box_.List(i)));
  widget_.clear();
  widget_.addItems(texts);
  applyContent();
}

}  // namespace qrn::qt
