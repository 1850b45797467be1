#pragma once

#include <gtest/gtest.h>

#include <QApplication>
#include <QWidget>
#include <functional>
#include <string>
#include <vector>

#include "host/check_box.h"
#include "host/class_table.h"
#include "host/combo_box.h"
#include "host/list_box.h"
#include "host/picture_box.h"
#include "host/text_box.h"
#include "host/user_control.h"
#include "host/v_scroll_bar.h"
#include "platform/qt/qt_platform.h"
#include "platform/qt/qt_site.h"

namespace qrn::qt {

/// A user control with one editor of each kind in a scrolled box, two text boxes among them, and a scroll
/// bar. What it hears is noted as text; a listener may do something at any of it.
class TestPanel final : public host::UserControl {
 public:
  static constexpr double kRow = 22;
  static constexpr double kLeft = 20, kWidth = 140;

  std::string_view typeName() const override { return "TestPanel"; }
  const host::ClassTable& classTable() const override;

  host::PictureBox& box() { return box_; }
  host::TextBox& text() { return *text_; }
  host::TextBox& second() { return *second_; }
  host::CheckBox& check() { return *check_; }
  host::ComboBox& combo() { return *combo_; }
  host::ListBox& list() { return *list_; }
  host::VScrollBar& bar() { return *bar_; }
  using UserControl::setBackColor;

  std::vector<std::string> heard;
  std::function<void(const std::string&)> listener;
  /// What becomes of a character that is typed.
  std::function<std::int16_t(std::int16_t)> typed;
  /// Keys that are used up.
  std::int16_t swallowedKey = 0;
  bool scrollsByWheel = true;

  void paint(host::Surface& surface, Size size) override;
  bool wheel(double notches) override;
  void mouseDown(host::MouseButton button, std::int16_t, Point at) override;
  void mouseUp(host::MouseButton button, std::int16_t, Point at) override;
  void doubleClick(Point) override { note("panel DblClick"); }
  void keyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  void childChanged(host::Control& child) override;
  void childClicked(host::Control& child) override { note(child.Name() + " Click"); }
  void childItemChecked(host::Control& child, std::int16_t item) override {
    note(child.Name() + " ItemCheck " + std::to_string(item));
  }
  void childGotFocus(host::Control& child) override { note(child.Name() + " GotFocus"); }
  void childLostFocus(host::Control& child) override { note(child.Name() + " LostFocus"); }
  void childKeyDown(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override;
  void childKeyPress(host::Control& child, std::int16_t& keyAscii) override;
  void childKeyUp(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override;
  host::Control* nextTabStop(host::Control* from, bool forward) override;

 protected:
  void initialize() override;

 private:
  template <class T>
  T& add(std::string_view name, double top, double height);
  void note(std::string what);

  host::PictureBox& box_ = *new host::PictureBox;
  host::TextBox* text_ = nullptr;
  host::TextBox* second_ = nullptr;
  host::CheckBox* check_ = nullptr;
  host::ComboBox* combo_ = nullptr;
  host::ListBox* list_ = nullptr;
  host::VScrollBar* bar_ = nullptr;
};

/// A panel in a window with a plain line edit of Qt before and one after it.
class PanelTest : public testing::Test {
 protected:
  PanelTest();
  ~PanelTest() override;

  /// The middle of a control in pixels of the canvas.
  static QPoint middle(const host::Control& control);
  /// Presses and releases the left button on the canvas, as Qt does for whatever lies there.
  void click(const host::Control& control) { clickAt(middle(control)); }
  void clickAt(QPoint at);
  /// A widget that the canvas shows now, or null.
  template <class T>
  T* shown() {
    for (T* found : canvas->findChildren<T*>(Qt::FindDirectChildrenOnly))
      if (found->isVisible()) return found;
    return nullptr;
  }
  int shownWidgets() const;
  bool heard(const std::string& what) const;

  QtPlatform platform;
  QtSite site{platform};
  host::Owned<TestPanel> panel = host::create<TestPanel>(site);
  std::unique_ptr<QWidget> window = std::make_unique<QWidget>();
  QWidget* before = nullptr;
  QWidget* after = nullptr;
  QWidget* canvas = nullptr;
};

}  // namespace qrn::qt
