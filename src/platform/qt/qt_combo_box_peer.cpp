#include "platform/qt/qt_combo_box_peer.h"

#include <QKeyEvent>
#include <QStylePainter>
#include <QWheelEvent>

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_field_frame.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {

void LockableComboBox::setLocked(bool locked) {
  locked_ = locked;
  update();
}

void LockableComboBox::paintEvent(QPaintEvent* event) {
  if (!locked_) return QComboBox::paintEvent(event);
  QStylePainter painter(this);
  QStyleOptionComboBox option;
  initStyleOption(&option);
  option.state |= QStyle::State_ReadOnly;
  drawFieldFrame(painter, option);
  painter.setPen(palette().color(QPalette::Text));
  painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}

void LockableComboBox::showPopup() {
  if (!locked_) QComboBox::showPopup();
}

void LockableComboBox::keyPressEvent(QKeyEvent* event) {
  if (locked_)
    event->ignore();
  else
    QComboBox::keyPressEvent(event);
}

// Without the keyboard it is only passed by: the canvas below scrolls then.
void LockableComboBox::wheelEvent(QWheelEvent* event) {
  if (locked_ || !hasFocus())
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
  widget_.setLocked(box_.Locked());
  QtEditorPeer::applyEnabled();
}

void QtComboBoxPeer::applyEntries() {
  QStringList texts;
  for (int i = 0; i < box_.ListCount(); ++i) texts.append(toQString(box_.List(i)));
  widget_.clear();
  widget_.addItems(texts);
  applyContent();
}

}  // namespace qrn::qt
