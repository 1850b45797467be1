#include "platform/qt/qt_list_box_peer.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QStyleOption>
#include <utility>

#include "platform/qt/qt_canvas.h"
#include "platform/qt/qt_field_frame.h"
#include "platform/qt/qt_geometry.h"
#include "platform/qt/qt_keys.h"
#include "platform/qt/qt_list_item.h"
#include "platform/qt/qt_text.h"

namespace qrn::qt {

CheckListWidget::CheckListWidget(QWidget* parent) : QListWidget(parent) {
  setItemDelegate(new QtListItemDelegate(this));
  setUniformItemSizes(true);
  setVerticalScrollMode(ScrollPerPixel);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  setEditTriggers(NoEditTriggers);
  setViewportMargins(kListMargin, kListMargin, kListMargin, kListMargin);
}

// The list paints its frame only; its entries are the viewport's.
bool CheckListWidget::event(QEvent* event) {
  if (event->type() == QEvent::EnabledChange || event->type() == QEvent::Hide) forgetPress();
  if (event->type() != QEvent::Paint) return QListWidget::event(event);
  QPainter painter(this);
  QStyleOption option;
  option.initFrom(this);
  drawFieldFrame(painter, option);
  return true;
}

// A view that gets the focus makes its first entry current by itself, but does not mark it.
void CheckListWidget::focusInEvent(QFocusEvent* event) {
  QListWidget::focusInEvent(event);
  setCurrentRow(currentRow(), QItemSelectionModel::ClearAndSelect);
}

void CheckListWidget::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && event->modifiers() == Qt::NoModifier)
    tick(currentRow());
  else
    QListWidget::keyPressEvent(event);
}

// Letters typed in a hurry spell an entry; but the same letter again is no double one, it means the next
// entry that begins with it.
void CheckListWidget::keyboardSearch(const QString& search) {
  const int before = currentRow();
  QListWidget::keyboardSearch(search);
  const QListWidgetItem* current = currentItem();
  if (search.isEmpty() || currentRow() != before || !current || !entryTypedTo) return;
  if (current->text().startsWith(search, Qt::CaseInsensitive))
    setCurrentRow(entryTypedTo(search.at(0).unicode()));
}

void CheckListWidget::mousePressEvent(QMouseEvent* event) {
  pressedRow_ = event->button() == Qt::LeftButton ? row(itemAt(event->pos())) : -1;
  QListWidget::mousePressEvent(event);
  tellMouse(*event);
}

void CheckListWidget::mouseReleaseEvent(QMouseEvent* event) {
  QListWidget::mouseReleaseEvent(event);
  const int pressed = std::exchange(pressedRow_, -1);
  if (event->button() == Qt::LeftButton && pressed == row(itemAt(event->pos()))) tick(pressed);
  tellMouse(*event);
}

void CheckListWidget::tellMouse(const QMouseEvent& event) {
  if (const auto listener = onMouse) listener(event);
}

void CheckListWidget::tick(int row) {
  // A copy, as the peer that listens may go meanwhile.
  if (const auto listener = onTicked; listener && row >= 0) listener(row);
}

QtListBoxPeer::QtListBoxPeer(QtCanvas& canvas, host::ListBox& box)
    : QtEditorPeer(canvas, box, new CheckListWidget(&canvas)),
      box_(box),
      list_(static_cast<CheckListWidget&>(*widget())) {
  bringUpToDate();
  list_.onTicked = [this](int row) { reportTick(row); };
  list_.entryTypedTo = [this](char32_t letter) { return box_.indexTypedTo(letter); };
  list_.onMouse = [this](const QMouseEvent& event) { reportMouse(event); };
  QObject::connect(&list_, &QListWidget::currentRowChanged, context(),
                   [this](int row) { report([this, row] { box_.userMovedTo(row); }); });
}

QtListBoxPeer::~QtListBoxPeer() {
  if (!widget()) return;
  list_.onTicked = nullptr;
  list_.onMouse = nullptr;
  list_.entryTypedTo = nullptr;
}

QWidget* QtListBoxPeer::mouseReceiver() const { return widget() ? list_.viewport() : nullptr; }

void QtListBoxPeer::applyEntries() {
  list_.forgetPress();
  list_.clear();
  for (int i = 0; i < box_.ListCount(); ++i) {
    auto* item = new QListWidgetItem(toQString(box_.List(i)), &list_);
    // The list ticks its entries itself, so that a click ticks wherever it hits them.
    item->setFlags(Qt::ItemIsEnabled | Qt::ItemIsSelectable);
  }
  applyContent();
}

void QtListBoxPeer::applyContent() {
  for (int i = 0; i < box_.ListCount() && i < list_.count(); ++i)
    list_.item(i)->setCheckState(box_.Selected(i) ? Qt::Checked : Qt::Unchecked);
  list_.setCurrentRow(box_.ListIndex());
}

void QtListBoxPeer::reportTick(int row) {
  const QPointer<QObject> alive(context());
  report([this, row] { box_.userChecked(static_cast<std::int16_t>(row)); });
  if (alive) changed(host::Aspect::Content);
}

void QtListBoxPeer::reportMouse(const QMouseEvent& event) {
  const auto button = mouseButton(event.button());
  // The canvas tells of the right one when a menu is asked for.
  if (!button || button == host::MouseButton::Right) return;
  const Point at = fromQt(QPointF(list_.viewport()->mapTo(&list_, event.position().toPoint())));
  if (event.type() == QEvent::MouseButtonPress)
    report([&] { box_.userPressed(*button, at); });
  else
    report([&] { box_.userReleased(*button, at); });
}

}  // namespace qrn::qt
