#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "enums/enumerations.h"
#include "host/editor.h"
#include "host/popup_menu.h"
#include "host/user_control.h"
#include "row/row_events.h"
#include "row/row_parts.h"
#include "row/value_editor.h"
#include "row/value_settings.h"

namespace qrn {

class clsQRNArray;
class FirstError;

/// One parameter of a device as a row: caption, value editor, unit and up to two status icons.
/// Lengths are in the row's own scale (pixels unless ScaleMode says otherwise).
class QRNEdit final : public host::UserControl {
 public:
  QRNEdit();
  ~QRNEdit() override;
  std::string_view typeName() const override { return "QRNEdit"; }
  const host::ClassTable& classTable() const override;

  // ---- the row ----
  /// The unit of all lengths of the row: 1 twips, 2 points, 3 pixels, 4 characters, 5 inches, 6 millimetres,
  /// 7 centimetres, 8 hundredths of a millimetre.
  std::int16_t ScaleMode() const { return scaleMode(); }
  void SetScaleMode(std::int16_t mode);
  /// Of the row, and of a check box in it.
  host::Color BackColor() const { return backColor(); }
  void SetBackColor(host::Color color);
  /// Of caption and unit; that of the value is ValueForeColor.
  host::Color ForeColor() const { return foreColor(); }
  void SetForeColor(host::Color color);
  using Control::Enabled;
  /// The editor follows; a check box stays disabled while it is locked.
  void SetEnabled(bool enabled) override;
  /// Of all parts.
  const host::FontPtr& Font() const { return font(); }
  void SetFont(host::FontPtr font);
  /// Between neighbouring parts.
  std::int32_t HorizontalSpacing() const { return horizontalSpacing_; }
  void SetHorizontalSpacing(std::int32_t spacing) {
    storeAndLayOut(horizontalSpacing_, spacing, "HorizontalSpacing");
  }
  /// How the parts lie in the width of the row: 0 left, 1 right, 2 centre.
  std::int32_t Alignment() const { return alignment_; }
  void SetAlignment(std::int32_t alignment) { storeAndLayOut(alignment_, alignment, "Alignment"); }
  /// While False nothing is laid out; it becomes True when the row is shown. Run time only: 394 when read and
  /// 383 when set at design time.
  bool Redraw() const;
  void SetRedraw(bool redraw);

  // ---- the caption ----
  /// Of the caption's column; the panel sets it.
  std::int32_t LabelWidth() const { return wholeWidth(labelWidth_); }
  void SetLabelWidth(std::int32_t width) { setWidth(labelWidth_, width, "LabelWidth"); }
  /// Of the text in its column: 0 left, 1 right, 2 centre.
  std::int32_t LabelAlignment() const { return label_.alignment; }
  void SetLabelAlignment(std::int32_t alignment);
  /// What shows when the mouse rests there.
  const std::string& LabelToolTip() const { return toolTip(&RowToolTips::label); }
  void SetLabelToolTip(const std::string& text) { setToolTip(&RowToolTips::label, text, "LabelToolTip"); }
  /// The text itself. Nothing is laid out for another one.
  const std::string& LabelText() const { return label_.text; }
  void SetLabelText(const std::string& text) { setText(label_, text, "LabelText"); }
  /// Whether it takes part in the row.
  bool LabelVisible() const { return labelVisible_; }
  void SetLabelVisible(bool visible) { storeAndLayOut(labelVisible_, visible, "LabelVisible"); }

  // ---- the icons ----
  /// 1 before the caption, 2 before the value, 3 before the unit, 4 behind it; below 1 nowhere.
  std::int32_t Icon1Column() const { return icon1_.column; }
  void SetIcon1Column(std::int32_t column) { storeAndLayOut(icon1_.column, column, "Icon1Column"); }
  /// What shows when the mouse rests on the icon.
  const std::string& Icon1ToolTip() const { return toolTip(&RowToolTips::icon1); }
  void SetIcon1ToolTip(const std::string& text) { setToolTip(&RowToolTips::icon1, text, "Icon1ToolTip"); }
  /// None leaves no room for the icon but a spacing.
  const host::PicturePtr& Icon1Picture() const { return icon1_.picture; }
  void SetIcon1Picture(host::PicturePtr picture) {
    setIconPicture(icon1_, std::move(picture), "Icon1Picture");
  }
  /// Whether the icon takes part in the row.
  bool Icon1Visible() const { return icon1_.visible; }
  void SetIcon1Visible(bool visible) { storeAndLayOut(icon1_.visible, visible, "Icon1Visible"); }
  /// Not drawn, but its room stays.
  bool Icon1Hidden() const { return icon1_.hidden; }
  void SetIcon1Hidden(bool hidden) { setIconHidden(icon1_, hidden, "Icon1Hidden"); }
  /// Whether the icon can be clicked, and how it frames itself.
  qrnButtonMode Icon1ButtonMode() const { return icon1_.mode; }
  void SetIcon1ButtonMode(qrnButtonMode mode) { setIconMode(icon1_, mode, "Icon1ButtonMode"); }
  std::int32_t Icon2Column() const { return icon2_.column; }
  void SetIcon2Column(std::int32_t column) { storeAndLayOut(icon2_.column, column, "Icon2Column"); }
  const std::string& Icon2ToolTip() const { return toolTip(&RowToolTips::icon2); }
  void SetIcon2ToolTip(const std::string& text) { setToolTip(&RowToolTips::icon2, text, "Icon2ToolTip"); }
  const host::PicturePtr& Icon2Picture() const { return icon2_.picture; }
  void SetIcon2Picture(host::PicturePtr picture) {
    setIconPicture(icon2_, std::move(picture), "Icon2Picture");
  }
  bool Icon2Visible() const { return icon2_.visible; }
  void SetIcon2Visible(bool visible) { storeAndLayOut(icon2_.visible, visible, "Icon2Visible"); }
  bool Icon2Hidden() const { return icon2_.hidden; }
  void SetIcon2Hidden(bool hidden) { setIconHidden(icon2_, hidden, "Icon2Hidden"); }
  qrnButtonMode Icon2ButtonMode() const { return icon2_.mode; }
  void SetIcon2ButtonMode(qrnButtonMode mode) { setIconMode(icon2_, mode, "Icon2ButtonMode"); }

  // ---- the value ----
  /// Chooses the editor and the conversions. One that needs another editor begins empty, with the colour,
  /// tool tip and width of the one before.
  qrnValueType ValueType() const { return valueType_; }
  void SetValueType(qrnValueType type);
  /// Of the editor's column; 0 while there is no editor.
  std::int32_t ValueWidth() const;
  void SetValueWidth(std::int32_t width);
  /// The value as the editor shows it; a hexadecimal row answers the decimal digits.
  std::string ValueText() const;
  void SetValueText(const std::string& text) { SetValue(Variant(text)); }
  /// The typed value; Null where ValueError answers why.
  Variant Value() const;
  void SetValue(const Variant& value);
  /// Why what was entered is no value.
  qrnErrorCode ValueError() const;
  /// Whether the editor shows something else than was accepted last; always True for an array.
  bool ValueChanged() const;
  /// Setting it to False takes the editor's content as the new accepted value.
  void SetValueChanged(bool changed);
  /// What shows when the mouse rests on the editor.
  const std::string& ValueToolTip() const;
  void SetValueToolTip(const std::string& text);
  /// Of the text in its editor: 0 left, 1 right, 2 centre.
  std::int32_t ValueAlignment() const { return valueAlignment_; }
  void SetValueAlignment(std::int32_t alignment);
  /// Whether the user can not change the value, but still select and copy it.
  bool Locked() const { return locked_; }
  void SetLocked(bool locked);
  /// Whether the editor takes part in the row.
  bool ValueVisible() const { return valueVisible_; }
  void SetValueVisible(bool visible) { storeAndLayOut(valueVisible_, visible, "ValueVisible"); }
  /// Of the text in the editor.
  host::Color ValueForeColor() const { return editor_.foreColor(); }
  void SetValueForeColor(host::Color color);
  /// Whether what is typed becomes upper case.
  bool ValueUpperCase() const { return valueUpperCase_; }
  void SetValueUpperCase(bool upperCase);
  /// In characters, 0 for no limit; anything outside 0 to 65535 is taken as 65535.
  std::int32_t ValueMaxLength() const { return valueMaxLength_; }
  void SetValueMaxLength(std::int32_t length);
  /// Whether a text box shows stars.
  bool Password() const { return password_; }
  void SetPassword(bool password);
  /// What a value has to keep to: for texts a Like pattern ("###-??"), for numbers a list of ranges
  /// ("..-1;1..100") with decimal points. Empty allows everything.
  const std::string& ValueRule() const { return settings_.rule(); }
  void SetValueRule(const std::string& rule);
  /// The characters that a text may have, as in the brackets of a Like pattern ("0-9A-F"). Empty allows all.
  const std::string& ValueCharSet() const { return settings_.charSet(); }
  void SetValueCharSet(const std::string& charSet);
  /// The pattern in which numbers and dates are shown, as of Format ("0.00"). Empty shows them as they are.
  const std::string& ValueFormat() const { return settings_.format(); }
  void SetValueFormat(const std::string& format);

  // The entries of a list or bit field. Errors at design time: 394, and 383 when names and items are set.
  /// The number of entries of a list or bit field: new ones are empty, 0 or less removes all. Errors: 394 at
  /// design time.
  std::int16_t ValueCount() const;
  void SetValueCount(std::int16_t count);
  /// The text of an entry, counted from 0; one set outside the list becomes a new last entry. Errors: 394
  /// when read and 383 when set at design time, 380 when read outside the list.
  std::string ValueNames(std::int32_t i) const;
  void SetValueNames(std::int32_t i, const std::string& name);
  /// The number of an entry, counted from 0, which means something to the host only. Errors: 394 when read
  /// and 383 when set at design time, 380 outside the list.
  std::int32_t ValueItems(std::int32_t i) const;
  void SetValueItems(std::int32_t i, std::int32_t item);

  // The elements of an array.
  /// Of the elements; kept for the host only. Ignored before ArraySize is set.
  qrnValueType ArrayType() const;
  void SetArrayType(qrnValueType type);
  /// Set above 0, all elements are Empty.
  std::int32_t ArraySize() const;
  void SetArraySize(std::int32_t size);
  /// An element, counted from 0: Null outside the array. One that is set becomes the current one and is kept
  /// as the text that ValueFormat makes of it; ignored before ArraySize is set.
  Variant ArrayValue(std::int32_t Index) const;
  void SetArrayValue(std::int32_t Index, const Variant& value);
  /// The element that Value is about, counted from 0; −1 for none.
  std::int32_t CurrentArrayValueIndex() const;
  void SetCurrentArrayValueIndex(std::int32_t index);
  /// The first element when the current index lies outside. Errors: 9 while there are no elements.
  Variant CurrentArrayValue() const;
  void SetCurrentArrayValue(const Variant& value);

  // ---- the unit ----
  std::int32_t UnitWidth() const { return wholeWidth(unitWidth_); }
  void SetUnitWidth(std::int32_t width) { setWidth(unitWidth_, width, "UnitWidth"); }
  const std::string& UnitText() const { return unit_.text; }
  void SetUnitText(const std::string& text) { setText(unit_, text, "UnitText"); }
  const std::string& UnitToolTip() const { return toolTip(&RowToolTips::unit); }
  void SetUnitToolTip(const std::string& text) { setToolTip(&RowToolTips::unit, text, "UnitToolTip"); }
  std::int32_t UnitAlignment() const { return unit_.alignment; }
  void SetUnitAlignment(std::int32_t alignment);
  bool UnitVisible() const { return unitVisible_; }
  void SetUnitVisible(bool visible) { storeAndLayOut(unitVisible_, visible, "UnitVisible"); }

  // ---- sizes ----
  /// The height of a line with what is around it, or of all entries of a bit list.
  std::int32_t GetMinHeight() const;
  /// The width of the picture, with its frame if it can be clicked.
  std::int32_t GetIcon1Width() const { return iconWidth(icon1_); }
  std::int32_t GetIcon2Width() const { return iconWidth(icon2_); }
  /// The width of the text, rounded up.
  std::int32_t GetMinLabelWidth() const;
  /// The width of the text or of the widest entry, with what the editor needs around it, rounded up; 0
  /// without an editor.
  std::int32_t GetMinValueWidth() const;
  std::int32_t GetMinUnitWidth() const;
  /// The width of all parts; with nothing visible minus one spacing. Hidden icons count, invisible parts do
  /// not.
  std::int32_t GetMinWidth() const;
  /// The width beside caption, value and unit.
  std::int32_t GetMinBruttoWidth() const { return widthBesideParts(horizontalSpacing_); }
  /// The same with another spacing.
  std::int32_t widthBesideParts(std::int32_t spacing) const;

  /// Selects so many characters of the text box, from a position that counts from 0.
  void SetSelection(std::int32_t StartSel, std::int32_t SelLength);
  /// Adds an entry to the context menu, whose index is the number of entries so far, from 1 on. Null when
  /// that is taken, as it can be after entries were removed from the middle.
  std::shared_ptr<host::MenuEntry> AddMenuItem(std::string_view MenuCaption);
  /// 0 is the template of all others, which is never shown. Null for an index where nothing is loaded.
  std::shared_ptr<host::MenuEntry> GetMenuItem(std::int32_t Index);
  /// Ignored for 0 and for an index where nothing is loaded.
  void RemoveMenuItem(std::int32_t Index);
  /// Removes all entries; without any nothing pops up.
  void RemoveMenu();

  /// Made when somebody first asks for them: most rows are heard by their panel only, which listens by names.
  RowEvents& events();

  /// Where a panel puts the row, and how wide it wants the parts.
  struct RowPlace {
    Rect bounds;
    std::int32_t spacing;
    std::int32_t label;
    std::int32_t value;
    std::int32_t unit;
  };
  /// The same as setting all of it and Redraw to True at the end, in a designer too, but nobody is notified.
  void place(const RowPlace& place);

  // ---- the parts, for tests and platforms ----
  host::Label& lblLabel() { return seenParts().lblLabel; }
  host::Label& lblUnit() { return seenParts().lblUnit; }
  host::Image& imgIcon1() { return seenParts().imgIcon1; }
  host::Image& imgIcon2() { return seenParts().imgIcon2; }
  bool isEditor(const host::Control& inside) const { return &inside == editor_.inner(); }
  bool isIcon2(const host::Control& inside) const { return parts_ && &inside == &parts_->imgIcon2; }
  /// The control in which the value is edited, made when it is first asked for; null where the type has none.
  host::Editor* CurrentEditor() const;
  /// Whether there is one, or would be if it was asked for.
  bool hasEditor() const { return editor_.exists(); }

  /// Makes the parts first: nothing else in the row may have one of their names.
  host::Controls& controls() override;
  void paint(host::Surface& surface, Size size) override;
  host::Control* focusTarget() override;
  bool acceptsFocus() const override { return false; }

  void mouseDown(host::MouseButton button, std::int16_t shift, Point at) override;
  void mouseUp(host::MouseButton button, std::int16_t shift, Point at) override;
  void childMeasureChanged(host::Control& part) override;
  void childWindowMade(host::Control& child) override;
  void childChanged(host::Control& child) override;
  void childClicked(host::Control& child) override;
  void childItemChecked(host::Control& child, std::int16_t item) override;
  void childMouseDown(host::Control& child, host::MouseButton button, std::int16_t shift, Point at) override;
  void childMouseMove(host::Control& child, std::int16_t buttons, std::int16_t shift, Point at) override;
  void childMouseUp(host::Control& child, host::MouseButton button, std::int16_t shift, Point at) override;
  void childKeyDown(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override;
  void childKeyPress(host::Control& child, std::int16_t& keyAscii) override;
  void childKeyUp(host::Control& child, std::int16_t& keyCode, std::int16_t& shift) override;

  // Tools see the editor, which has the caption and the unit for a name, and the icons that say something.
  std::int32_t accessibleCount() const override;
  host::AccessibleNode accessibleChild(std::int32_t index) override;
  void childPressed(host::Control& child) override;
  void tellFactsOf(const host::Control& inside, host::AccessibleFacts& facts) const override;

 protected:
  void tellFacts(host::AccessibleFacts& facts) const override;
  void initialize() override;
  void resize() override { layOut(); }
  void show() override;
  void hide() override { redraw_ = false; }
  void terminate() override;
  void gotFocus() override;
  void lostFocus() override;

 private:
  friend struct QRNEditTable;

  // The width that each part needs: measured once, and again after a change.
  struct Measures {
    static constexpr std::int32_t kUnknown = -1;
    std::int32_t label = kUnknown;
    std::int32_t value = kUnknown;
    std::int32_t unit = kUnknown;
  };
  struct ReadResult {
    Variant value = Null();
    qrnErrorCode error = qrnErrorNone;
  };

  // ---- setters (QRNEdit.cpp) ----
  void switchRedraw(bool redraw);
  template <class T>
  void storeAndLayOut(T& field, const T& value, std::string_view key) {
    if (field == value) return;
    field = value;
    if (propertyChanged(key)) layOut();
  }
  template <class T>
  void storeAndApply(T& field, const T& value, std::string_view key, void (QRNEdit::*apply)()) {
    if (field == value) return;
    field = value;
    (this->*apply)();
    propertyChanged(key);
  }
  void rescaleParts(Point pixelsBefore);
  static std::int32_t wholeWidth(double width);
  void setWidth(double& part, std::int32_t width, std::string_view key);
  const std::string& toolTip(std::string RowToolTips::*part) const;
  RowToolTips& toolTips();
  void setToolTip(std::string RowToolTips::*part, const std::string& text, std::string_view key);
  void setText(RowText& part, const std::string& text, std::string_view key);
  void applyToolTips();
  void setTextAlignment(RowText& part, std::int32_t alignment, std::string_view key);
  void setIconPicture(RowIcon& icon, host::PicturePtr picture, std::string_view key);
  void setIconHidden(RowIcon& icon, bool hidden, std::string_view key);
  void setIconMode(RowIcon& icon, qrnButtonMode mode, std::string_view key);

  // ---- the editor (QRNEdit_editor.cpp) ----
  bool takeFocusFromEditor(qrnValueType nextType);
  void switchEditor(qrnValueType type);
  void removeEditor();
  void makeEditor();
  void applySettings();
  void applyAlignment();
  void applyLocked();
  void applyUpperCase();
  void applyMaxLength();
  void applyPassword();
  void applyEnabled();
  void applyFont();
  void passFont();
  void applyValueToolTip(const std::string& text);
  host::ListEntries* entriesToChange();
  /// The type has an editor, but there is none: no type was assigned yet, or its class is not known.
  bool lacksEditor() const { return ValueEditor::kindFor(valueType_) != editor_.kind(); }

  // ---- the array (QRNEdit_array.cpp) ----
  clsQRNArray* array() const;
  clsQRNArray& neededArray();

  // ---- the value (QRNEdit_value.cpp) ----
  void showValue(const Variant& value);
  void showInEditor(const Variant& value);
  void enterText(std::string_view text);
  void showText(std::string shown);
  void showCheck(bool ticked);
  void showList(const Variant& value);
  void showBits(const Variant& value);
  void showHexadecimal(const Variant& value);
  std::string formatted(const Variant& value) const;
  std::string numberText(const Variant& value) const;
  std::string readText() const;
  ReadResult readValue() const;
  ReadResult readTyped() const;
  ReadResult checkedNumber(const Variant& value) const;
  std::string bitsOfEditor() const;
  std::optional<Variant> editorContent() const;
  bool differs(const Variant& content) const;
  void correctDecimalSeparator();

  // ---- for assistive tools (QRNEdit_accessible.cpp) ----
  std::string accessibleName() const;
  const std::string& accessibleDescription() const;
  bool isSeenByTools(const RowIcon& icon) const;
  host::Control* accessiblePart(std::int32_t index);

  // ---- layout (QRNEdit_layout.cpp) ----
  void layOut();
  void showEditor(FirstError& error);
  void arrangeInside() override;
  RowParts& seenParts();
  void makeParts();
  host::Label& labelOf(const RowText& text) { return &text == &label_ ? parts_->lblLabel : parts_->lblUnit; }
  host::Image& imageOf(const RowIcon& icon) const {
    return &icon == &icon1_ ? parts_->imgIcon1 : parts_->imgIcon2;
  }
  void applyWidths();
  double placeParts(double x, bool move);
  double placeEditor(double x, bool move);
  double placeIcons(std::int32_t column, double x, bool move);
  double pictureWidth(const RowIcon& icon) const;
  std::int32_t iconWidth(const RowIcon& icon) const;
  std::int32_t measuredValueWidth() const;
  double valueTextWidth(std::string_view text) const;
  double widestEntry() const;
  void forgetMeasure(std::int32_t Measures::*part);
  double overhead(double spacing) const;
  std::int32_t textHeight() const;
  std::int32_t rowHeight() const;

  // ---- events (QRNEdit_events.cpp) ----
  struct RowExtras& extras();
  template <class... Args>
  void raise(Event<Args...> RowEvents::*event, std::string_view name, std::type_identity_t<Args>... args) {
    if (events_)
      Control::raise((*events_).*event, name, args...);
    else
      raiseByName<Args...>(name, args...);
  }
  bool beginEdit();
  bool endEdit();
  void watchApplication();
  const RowIcon* iconOf(const host::Control& child) const;
  void clickOn(host::Control& child);
  bool isTracked(const RowIcon& icon) const;
  void trackIcon(const RowIcon& icon);
  void stopTracking();
  void paintIconFrame(host::Surface& surface, const RowIcon& icon);
  void showContextMenu(bool atKeyboard);

  // What every layout of a panel touches.
  double labelWidth_ = 100;
  double valueWidth_ = 0;
  double unitWidth_ = 100;
  mutable Measures minimum_;
  mutable std::int32_t textHeight_ = Measures::kUnknown;
  std::int32_t horizontalSpacing_ = 4;
  bool labelVisible_ = true;
  bool valueVisible_ = true;
  bool unitVisible_ = true;
  bool redraw_ = false;

  // A panel has thousands of rows: where one of these structures ends within a word, what comes behind it
  // begins there.
  [[no_unique_address]] RowText label_;
  std::int32_t alignment_ = 0;
  [[no_unique_address]] RowText unit_;
  std::int32_t valueAlignment_ = 0;
  [[no_unique_address]] RowIcon icon1_{{}, 1};
  bool editorShown_ = true;  // the last that the editor was told
  bool makingEditor_ = false;
  bool handlingChange_ = false;  // of the editor
  bool locked_ = false;
  bool valueUpperCase_ = false;
  bool password_ = false;
  [[no_unique_address]] RowIcon icon2_{{}, 4};
  bool editing_ = false;
  bool leftPressed_ = false;
  std::unique_ptr<RowToolTips> toolTips_;
  std::unique_ptr<RowParts> parts_;
  ValueEditor editor_;

  Variant storedValue_;
  Variant displayBaseline_;
  ValueSettings settings_;
  std::unique_ptr<RowEvents> events_;
  std::unique_ptr<struct RowExtras> extras_;

  qrnValueType valueType_ = qrnTypeString;
  std::int32_t valueMaxLength_ = 65535;
};

}  // namespace qrn
