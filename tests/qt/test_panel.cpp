#include "test_panel.h"

#include <QLineEdit>
#include <QTest>
#include <algorithm>

#include "platform/qt/qt_geometry.h"

namespace qrn::qt {

const host::ClassTable& TestPanel::classTable() const {
  static const host::ClassTable table{"TestPanel", "Test.Panel", {}, {}, {}, {}, {}};
  return table;
}

template <class T>
T& TestPanel::add(std::string_view name, double top, double height) {
  T& added = *new T;
  controls().add(host::Owned<host::Control>(&added), name, box_);
  added.Move(kLeft, top, kWidth, height);
  return added;
}

void TestPanel::initialize() {
  controls().add(host::Owned<host::Control>(&box_), "box", *this);
  Move(0, 0, 220, 200);
  box_.Move(0, 0, 200, 190);
  text_ = &add<host::TextBox>("text", 10, kRow);
  second_ = &add<host::TextBox>("second", 40, kRow);
  check_ = &add<host::CheckBox>("check", 70, kRow);
  combo_ = &add<host::ComboBox>("combo", 100, kRow);
  list_ = &add<host::ListBox>("list", 130, 3 * 16 + 5);
  text_->SetText("alpha beta");
  for (const char* entry : {"one", "two", "three"}) {
    combo_->AddItem(entry);
    list_->AddItem(entry);
  }
  combo_->SetListIndex(0);
  bar_ = new host::VScrollBar;
  controls().add(host::Owned<host::Control>(bar_), "bar", *this);
  bar_->Move(200, 0, 20, 200);
  bar_->SetMax(100);
}

void TestPanel::note(std::string what) {
  heard.push_back(what);
  // A copy, as the listener may remove the panel.
  if (const auto call = listener) call(what);
}

void TestPanel::paint(host::Surface& surface, Size size) {
  surface.fill({0, 0, size.width, size.height}, backColor());
}

bool TestPanel::wheel(double notches) {
  note("panel Wheel " + std::to_string(static_cast<int>(notches)));
  return scrollsByWheel;
}

void TestPanel::mouseDown(host::MouseButton, std::int16_t, Point) { note("panel MouseDown"); }

void TestPanel::mouseUp(host::MouseButton, std::int16_t, Point) { note("panel MouseUp"); }

void TestPanel::keyDown(std::int16_t& keyCode, std::int16_t&) {
  note("panel KeyDown " + std::to_string(keyCode));
}

void TestPanel::childChanged(host::Control& child) {
  if (const auto* changed = dynamic_cast<host::TextBox*>(&child))
    note(child.Name() + " Change \"" + changed->Text() + '"');
  else if (&child == bar_)
    box_.scrollTo(bar_->Value()), note("bar Change " + std::to_string(bar_->Value()));
  else if (&child != &box_)
    note(child.Name() + " Change");
}

void TestPanel::childKeyDown(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) {
  const std::int16_t given = keyCode;
  if (keyCode == swallowedKey) keyCode = 0;
  note(child.Name() + " KeyDown " + std::to_string(given) + " " + std::to_string(shift));
}

void TestPanel::childKeyPress(host::Control& child, std::int16_t& keyAscii) {
  const std::int16_t given = keyAscii;
  if (typed) keyAscii = typed(keyAscii);
  note(child.Name() + " KeyPress " + std::to_string(given));
}

void TestPanel::childKeyUp(host::Control& child, std::int16_t& keyCode, std::int16_t&) {
  note(child.Name() + " KeyUp " + std::to_string(keyCode));
}

host::Control* TestPanel::nextTabStop(host::Control* from, bool forward) {
  std::vector<host::Control*> stops;
  for (host::Control* control : box_.contained())
    if (control->acceptsFocus()) stops.push_back(control);
  if (!forward) std::reverse(stops.begin(), stops.end());
  if (!from) return stops.empty() ? nullptr : stops.front();
  const auto at = std::find(stops.begin(), stops.end(), from);
  return at == stops.end() || at + 1 == stops.end() ? nullptr : *(at + 1);
}

PanelTest::PanelTest() {
  before = new QLineEdit(window.get());
  canvas = platform.widget(*panel);
  canvas->setParent(window.get());
  after = new QLineEdit(window.get());
  window->resize(240, 300);
  before->setGeometry(0, 0, 100, 22);
  canvas->setGeometry(0, 30, 220, 200);
  after->setGeometry(0, 240, 100, 22);
  QWidget::setTabOrder(before, canvas);
  QWidget::setTabOrder(canvas, after);
  window->show();
  window->activateWindow();  // without a window manager nobody else does
  EXPECT_TRUE(QTest::qWaitForWindowActive(window.get()));
  before->setFocus();
}

PanelTest::~PanelTest() {
  panel.reset();
  window.reset();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QPoint PanelTest::middle(const host::Control& control) { return toPixels(control.onSurface()).center(); }

void PanelTest::clickAt(QPoint at) {
  // Through the window, so that Qt finds the widget itself.
  QTest::mouseClick(window->windowHandle(), Qt::LeftButton, Qt::NoModifier, canvas->mapTo(window.get(), at));
}

int PanelTest::shownWidgets() const {
  const auto children = canvas->findChildren<QWidget*>(Qt::FindDirectChildrenOnly);
  return static_cast<int>(
      std::count_if(children.begin(), children.end(), [](const QWidget* w) { return w->isVisible(); }));
}

bool PanelTest::heard(const std::string& what) const {
  return std::find(panel->heard.begin(), panel->heard.end(), what) != panel->heard.end();
}

}  // namespace qrn::qt
