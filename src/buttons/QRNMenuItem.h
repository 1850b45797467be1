#pragma once

#include <memory>
#include <string>

#include "base/first_error.h"
#include "buttons/context_menu.h"
#include "buttons/hover_watch.h"
#include "enums/enumerations.h"
#include "host/picture.h"
#include "host/user_control.h"

namespace qrn {

/// A push button that draws itself: caption, icon, a frame that depends on its mode, and a menu that pops up.
class QRNMenuItem final : public host::UserControl {
 public:
  QRNMenuItem();
  std::string_view typeName() const override { return "QRNMenuItem"; }
  const host::ClassTable& classTable() const override;

  /// Broken into lines between words where it is too wide.
  const std::string& Caption() const { return caption_; }
  void SetCaption(const std::string& caption) { store(caption_, caption, "Caption"); }
  /// Of the whole button.
  host::Color BackColor() const { return backColor(); }
  void SetBackColor(host::Color color);
  /// Of the caption.
  const host::FontPtr& Font() const { return font(); }
  void SetFont(host::FontPtr font);
  /// Of the caption, while the button is enabled.
  host::Color ForeColor() const { return foreColor(); }
  void SetForeColor(host::Color color);
  /// Of the caption: 0 left, 1 right, 2 centre.
  std::int32_t Alignment() const { return alignment_; }
  void SetAlignment(std::int32_t alignment) { store(alignment_, alignment, "Alignment"); }
  /// Whether the focus shows as a dotted rectangle however it came; without this an embossed button shows it
  /// when it came by a key.
  bool ShowFocusRect() const { return showFocusRect_; }
  void SetShowFocusRect(bool show) { store(showFocusRect_, show, "ShowFocusRect"); }
  /// Pixels on the left and right of icon and caption; half of it is around the rectangle of the focus.
  std::int32_t Margin() const { return margin_; }
  void SetMargin(std::int32_t margin) { store(margin_, margin, "Margin"); }
  /// 0 none, 1 a single line.
  std::int16_t BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(std::int16_t style) { store(borderStyle_, style, "BorderStyle"); }
  void SetEnabled(bool enabled) override;
  /// Whether it can be clicked, and how it frames itself.
  qrnButtonMode ButtonMode() const { return buttonMode_; }
  void SetButtonMode(qrnButtonMode mode);
  /// Beside the caption, as high as it is itself.
  const host::PicturePtr& Icon() const { return icon_; }
  void SetIcon(host::PicturePtr icon);
  /// In the icon's place while the button is disabled; the icon stays where this is none.
  const host::PicturePtr& IconDisabled() const { return iconDisabled_; }
  void SetIconDisabled(host::PicturePtr icon);
  /// Where the icon lies: 0 left, 1 right, 2 centre.
  std::int32_t IconAlignment() const { return iconAlignment_; }
  void SetIconAlignment(std::int32_t alignment) { store(iconAlignment_, alignment, "IconAlignment"); }
  /// Whether the icon is washed out while the button is disabled.
  bool AutoShadeIcon() const { return autoShadeIcon_; }
  void SetAutoShadeIcon(bool shade) { store(autoShadeIcon_, shade, "AutoShadeIcon"); }

  /// Setting it to True repaints; it becomes True when the button is shown. Run time only. Errors: 394 when
  /// read and 383 when set at design time.
  bool Redraw() const;
  void SetRedraw(bool redraw);

  /// Adds an entry to the context menu, whose index is the number of entries so far, from 1 on. Null when
  /// that is taken, as it can be after entries were removed from the middle.
  std::shared_ptr<host::MenuEntry> AddMenuItem(std::string_view MenuCaption) {
    return menu_.add(MenuCaption);
  }
  /// 0 is the template of all others, which is never shown. Null for an index where nothing is loaded.
  std::shared_ptr<host::MenuEntry> GetMenuItem(std::int32_t Index) { return menu_.entry(Index); }
  /// Ignored for 0 and for an index where nothing is loaded.
  void RemoveMenuItem(std::int32_t Index) { menu_.remove(Index); }
  /// Removes all entries; without any nothing pops up.
  void RemoveMenu() { menu_.removeAll(); }

  /// The button was clicked, or chosen with Space, or with Enter where a key brought the focus.
  Event<> Click;
  /// An entry of the context menu was chosen; the host's own count from 1.
  Event<std::int16_t& /*Index*/> MenuClick;
  /// A key has gone down while the button has the focus; Shift+F10 opens the menu instead.
  Event<std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyDown;
  /// A character was typed while the button has the focus.
  Event<std::int16_t& /*KeyAscii*/> KeyPress;
  /// A key has come up while the button has the focus.
  Event<std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyUp;

  /// Breaks a text into lines no wider than a width, between words where that is possible.
  std::string WrapCaption(std::string text, double width) const;

  /// What a panel does while it moves the button: as Redraw, but in a designer too.
  void switchRedraw(bool redraw);

  void paint(host::Surface& surface, Size size) override;
  bool acceptsFocus() const override { return Enabled() && Visible(); }

  void mouseDown(host::MouseButton button, std::int16_t shift, Point at) override;
  void mouseMove(std::int16_t buttons, std::int16_t shift, Point at) override;
  void mouseUp(host::MouseButton button, std::int16_t shift, Point at) override;
  void keyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  void keyPress(std::int16_t& keyAscii) override;
  void keyUp(std::int16_t& keyCode, std::int16_t& shift) override;

 protected:
  void tellFacts(host::AccessibleFacts& facts) const override;
  void accessibleAct(std::int32_t) override;
  void initProperties() override;
  void resize() override { invalidate(); }
  void show() override;
  void hide() override { release(); }
  void terminate() override;
  void gotFocus() override;
  void lostFocus() override;

 private:
  friend struct QRNMenuItemTable;

  template <class T>
  void store(T& field, const T& value, std::string_view key) {
    if (field == value) return;
    field = value;
    changed(key);
  }
  void changed(std::string_view key) {
    if (propertyChanged(key)) invalidate();
  }

  bool takesClicks() const { return buttonMode_ != qrnbuttonNone; }
  bool isCursorOver();
  void lookAgain();
  bool doClick(FirstError& error);
  void release();
  void showContextMenu(bool atKeyboard);

  void paintInside(host::Surface& surface, Size size);
  const host::PicturePtr& shownIcon() const;
  double paintIcon(host::Surface& surface, Size size, double lineHeight);
  void paintCaption(host::Surface& surface, Size size, double iconSlotWidth, double lineHeight);
  void paintFrame(host::Surface& surface, Size size);
  void paintFocus(host::Surface& surface, Size size);

  std::string caption_ = "Menu";
  host::PicturePtr icon_;
  host::PicturePtr iconDisabled_;
  ContextMenu menu_;
  HoverWatch hover_;
  std::int32_t alignment_ = 0;
  std::int32_t iconAlignment_ = 0;
  std::int32_t margin_ = 6;
  qrnButtonMode buttonMode_ = qrnButtonFlat;
  std::int16_t borderStyle_ = 0;
  bool showFocusRect_ = false;
  bool autoShadeIcon_ = false;
  bool redraw_ = false;
  bool mouseOver_ = false;
  bool leftButtonDown_ = false;
  bool rightButtonDown_ = false;
  bool spacePressed_ = false;
  bool hasFocus_ = false;
  bool keyboardFocus_ = false;
};

}  // namespace qrn
