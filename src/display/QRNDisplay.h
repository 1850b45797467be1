#pragma once

#include <cstdint>
#include <string>

#include "base/weak_ref.h"
#include "buttons/clsQRNButtons.h"
#include "display/clsQRNCollection.h"
#include "display/column_layout.h"
#include "enums/enumerations.h"
#include "host/image.h"
#include "host/label.h"
#include "host/picture_box.h"
#include "host/user_control.h"
#include "host/v_scroll_bar.h"
#include "images/QRNImageList.h"

namespace qrn {

class QRNToolTip;

/// A panel of parameter rows and action buttons, with a title bar, a frame, a scroll bar and a footer of push
/// buttons.
/// Lengths are in pixels; −1 as a spacing or height means one that follows from the font.
class QRNDisplay final : public host::UserControl, public host::CallTarget, private ButtonsPanel {
 public:
  QRNDisplay();
  ~QRNDisplay() override;
  std::string_view typeName() const override { return "QRNDisplay"; }
  const host::ClassTable& classTable() const override;
  Anchor& anchor() override { return UserControl::anchor(); }

  /// The host's own; the panel does nothing with it.
  const Variant& ExtraData() const { return extraData_; }
  void SetExtraData(const Variant& data) { extraData_ = data; }
  /// The parameters and actions, in the order in which they are laid out.
  clsQRNCollection& Items() { return *items_; }
  /// The controls of the panel by name, those of the items among them.
  host::Controls& ControlsCollection() { return controls(); }
  /// What the items stand on, and scrolls.
  host::PictureBox& ControlsContainer() { return pbxContainer_; }
  /// What the buttons of the footer stand on.
  host::PictureBox& ButtonsContainer() override { return buttonsContainer_; }
  /// The panel's own list, made when it is first read, unless the caller has set another one.
  QRNImageList& ImageList();
  void SetImageList(QRNImageList* list) { imageList_ = WeakRef<QRNImageList>(list); }

  /// The text of the title bar.
  const std::string& Title() const { return lblTitle_.Caption(); }
  void SetTitle(const std::string& title);
  /// Of the panel, and of items that are added from then on.
  host::Color BackColor() const { return backColor(); }
  void SetBackColor(host::Color color);
  /// Of the title of an active panel in standard style, and of items that are added from then on.
  host::Color ForeColor() const { return foreColor(); }
  void SetForeColor(host::Color color);
  /// Of title and footer, and of items that are added from then on; automatic sizes follow from it.
  const host::FontPtr& Font() const { return font(); }
  void SetFont(host::FontPtr font);
  /// The frame around everything.
  qrnEdgeType BorderStyle() const { return borderStyle_; }
  void SetBorderStyle(qrnEdgeType style) { store(borderStyle_, style, "BorderStyle", After::Repaint); }
  using Control::Enabled;
  /// A title bar in dialog style shows it.
  void SetEnabled(bool enabled) override;
  /// Whether the title's button shows "restore" instead of "maximise". The host sets it; the panel never
  /// changes its size itself.
  bool Maximized() const { return maximized_; }
  void SetMaximized(bool maximized) { store(maximized_, maximized, "Maximized", After::TitleLook); }
  /// Whether the title bar goes without its close button.
  bool IconCloseHidden() const { return iconCloseHidden_; }
  void SetIconCloseHidden(bool hidden) {
    store(iconCloseHidden_, hidden, "IconCloseHidden", After::TitleLook);
  }
  /// Whether the title bar goes without its button to maximise and restore.
  bool IconMaxRstHidden() const { return iconMaxRstHidden_; }
  void SetIconMaxRstHidden(bool hidden) {
    store(iconMaxRstHidden_, hidden, "IconMaxRstHidden", After::TitleLook);
  }
  /// Whether there is a title bar, and how it looks.
  qrnTitleStyle TitleStyle() const { return titleStyle_; }
  void SetTitleStyle(qrnTitleStyle style);
  /// While False the panel is not arranged when its size or a property changes, but once when it becomes
  /// True, as it does when the panel is shown. `LayoutControls` lays the items out nevertheless. Run time
  /// only. Errors: 394 when read and 383 when set at design time.
  bool Redraw() const;
  void SetRedraw(bool redraw);
  /// Of the title's button while it means "maximise".
  const std::string& MaxButtonToolTip() const { return maxButtonToolTip_; }
  void SetMaxButtonToolTip(const std::string& text) {
    store(maxButtonToolTip_, text, "MaxButtonToolTip", After::TitleLook);
  }
  /// Of the title's button while it means "restore".
  const std::string& RstButtonToolTip() const { return rstButtonToolTip_; }
  void SetRstButtonToolTip(const std::string& text) {
    store(rstButtonToolTip_, text, "RstButtonToolTip", After::TitleLook);
  }
  /// Of the title's close button.
  const std::string& CloseButtonToolTip() const { return imgClose_.ToolTipText(); }
  void SetCloseButtonToolTip(const std::string& text);
  /// Between the panel's edge and the items.
  std::int32_t LeftMargin() const { return leftMargin_; }
  void SetLeftMargin(std::int32_t margin) { store(leftMargin_, margin, "LeftMargin", After::Arrange); }
  std::int32_t TopMargin() const { return topMargin_; }
  void SetTopMargin(std::int32_t margin) { store(topMargin_, margin, "TopMargin", After::Arrange); }
  std::int32_t RightMargin() const { return rightMargin_; }
  void SetRightMargin(std::int32_t margin) { store(rightMargin_, margin, "RightMargin", After::Arrange); }
  std::int32_t BottomMargin() const { return bottomMargin_; }
  void SetBottomMargin(std::int32_t margin) { store(bottomMargin_, margin, "BottomMargin", After::Arrange); }
  /// Between two rows, from the next LayoutControls on; GetVerticalSpacing has what −1 means.
  std::int32_t VerticalSpacing() const { return verticalSpacing_; }
  void SetVerticalSpacing(std::int32_t spacing) {
    store(verticalSpacing_, spacing, "VerticalSpacing", After::Nothing);
  }
  /// Between the parts of a row, from the next LayoutControls on; GetHorizontalSpacing has what −1 means.
  std::int32_t HorizontalSpacing() const { return horizontalSpacing_; }
  void SetHorizontalSpacing(std::int32_t spacing) {
    store(horizontalSpacing_, spacing, "HorizontalSpacing", After::Nothing);
  }
  /// Of an action button, from the next LayoutControls on; GetMenuItemHeight has what −1 means.
  std::int32_t MenuItemHeight() const { return menuItemHeight_; }
  void SetMenuItemHeight(std::int32_t height) {
    store(menuItemHeight_, height, "MenuItemHeight", After::Nothing);
  }
  /// Whether the title bar looks active.
  bool Active() const { return active_; }
  void SetActive(bool active) { store(active_, active, "Active", After::TitleLook); }
  /// The buttons of the footer, made when they are first read: without any there is no footer.
  clsQRNButtons& Buttons();
  /// Of the footer's buttons: 0 left, 1 right, 2 centre.
  std::int32_t ButtonsAlignment() const { return buttonsAlignment_; }
  void SetButtonsAlignment(std::int32_t alignment) {
    store(buttonsAlignment_, alignment, "ButtonsAlignment", After::LayoutButtons);
  }

  /// Content taller than the 16 bits of the classic scroll range raises error 6 after everything has been
  /// placed, unless this is set. Not persisted.
  bool tallContent() const { return tallContent_; }
  void SetTallContent(bool tall) { tallContent_ = tall; }

  /// Removes all items, last first, and hides the scroll bar.
  void RemoveControls();
  /// Stacks the visible items and sets the tab order; True lays out only if a row has become too narrow, or
  /// all of a column too wide. Errors: 6 after that, for content taller than the container by more than 32767
  /// pixels, unless tallContent is set.
  void LayoutControls(bool bAdjustParamsOnly);
  /// Places the footer's buttons in a row; where it is too short, the first ones give up width first.
  void LayoutButtons();
  /// Weights above 0 share the room that the others, as wide as they need to be, leave. The tolerance's
  /// integer part is the absolute slack of those, its fraction the relative one.
  void SetColumnLayout(std::int32_t nLabelWeight, std::int32_t nValueWeight, std::int32_t nUnitWeight,
                       float Tolerance);
  /// HorizontalSpacing, or else the width of a "0".
  std::int32_t GetHorizontalSpacing() const;
  /// VerticalSpacing, or else a third of the height of a line, rounded up.
  std::int32_t GetVerticalSpacing() const;
  /// MenuItemHeight, or else twice the height of a line, rounded up.
  std::int32_t GetMenuItemHeight() const;
  /// Gives the focus to the item, or to the item container when none is selected.
  void SetItemFocus(const Variant& aItemSelector);
  /// The position of the item with the focus, or else, if wished, of the last one under the mouse; 0 for
  /// none.
  std::int32_t GetActiveItem(bool bAcceptMouseHit);

  /// Shows an empty tool tip beside an item that a selector names, or beside any control (see
  /// host::referenceTo), and gives it the focus; the edit of the row that had it ends no sooner than the tip
  /// has gone. Null when there can be none, or a listener has removed it already.
  QRNToolTip* DisplayToolTip(const Variant& RelatedControl, float nEstimatedLines);
  /// Takes the tool tip away, if there is one, and gives the focus back to the item that it was about if
  /// wished. Nothing that goes wrong there keeps it.
  void RemoveToolTip(bool bRestoreFocus);

  /// The focus has come to a row or button, which has been scrolled into view.
  Event<std::int32_t& /*ItemIndex*/> ItemGotFocus;
  /// The focus has left a row or button.
  Event<std::int32_t& /*ItemIndex*/> ItemLostFocus;
  /// An entry of a row's or button's context menu was chosen; the host's own count from 1.
  Event<std::int32_t& /*ItemIndex*/, std::int16_t& /*MenuItemIndex*/> ItemMenuClick;
  /// A key has gone down in a row or button; setting its code to 0 takes it away.
  Event<std::int32_t& /*ItemIndex*/, std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> ItemKeyDown;
  /// A character was typed in a row or button; setting it to 0 takes it away.
  Event<std::int32_t& /*ItemIndex*/, std::int16_t& /*KeyAscii*/> ItemKeyPress;
  /// A key has come up in a row or button.
  Event<std::int32_t& /*ItemIndex*/, std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> ItemKeyUp;
  /// An action was added and has its default look, which the host may change now.
  Event<std::int32_t& /*ItemIndex*/> ActionLayout;
  /// An action button was clicked, or chosen with Space or Enter.
  Event<std::int32_t& /*ItemIndex*/> ActionClick;
  /// A parameter was added and has its default look: the time to set its caption, unit and rules.
  Event<std::int32_t& /*ItemIndex*/> ParameterLayout;
  /// What the editor of a row shows has changed, with every character that is typed.
  Event<std::int32_t& /*ItemIndex*/> ParameterChange;
  /// An entry of a bit field was ticked or unticked; entries count from 0.
  Event<std::int32_t& /*ItemIndex*/, std::int16_t& /*Item*/> ParameterItemCheck;
  /// The first icon of a row was clicked.
  Event<std::int32_t& /*ItemIndex*/> ParameterIcon1Click;
  /// The second icon of a row, the one for its state, was clicked.
  Event<std::int32_t& /*ItemIndex*/> ParameterIcon2Click;
  /// A check box, drop list or bit list was clicked.
  Event<std::int32_t& /*ItemIndex*/> ParameterClick;
  /// The user has gone into a row. The edit of another one has ended before.
  Event<std::int32_t& /*ItemIndex*/> ParameterStartEdit;
  /// The user has left a row; bChanged tells whether its value is another one than was accepted last. Held
  /// back while a tool tip is shown.
  Event<std::int32_t& /*ItemIndex*/, bool& /*bChanged*/> ParameterEndEdit;
  /// The state or the error of a parameter is another one.
  Event<std::int32_t& /*ItemIndex*/> ParameterStatusChange;
  /// A button was added to the footer and has its default look.
  Event<std::int32_t& /*ButtonIndex*/> ButtonLayout;
  /// A button of the footer was clicked or has clicked itself. Raised after the code that led to it has
  /// returned.
  Event<std::int32_t& /*ButtonIndex*/> ButtonClick;
  /// A key has gone down on the panel itself. Escape that closes a tool tip is not told.
  Event<std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyDown;
  /// A character was typed on the panel itself. Escape is not told where there is a close button or tool tip.
  Event<std::int16_t& /*KeyAscii*/> KeyPress;
  /// A key has come up on the panel itself.
  Event<std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyUp;
  /// The title, the background, or a caption, unit or button that takes no clicks was clicked.
  Event<> Click;
  /// The close button was clicked; the host takes the panel away.
  Event<> DisplayClose;
  /// The title was clicked twice, or its button once, while Maximized; the host restores the size.
  Event<> DisplayRestore;
  /// The title was clicked twice, or its button once, while not Maximized; the host makes the panel larger.
  Event<> DisplayMaximize;

  // ---- the parts, for tests and platforms ----
  host::Label& lblTitle() { return lblTitle_; }
  host::Image& imgMaxRst() { return imgMaxRst_; }
  host::Image& imgClose() { return imgClose_; }
  host::VScrollBar& sbrVertical() { return sbrVertical_; }

  /// The user has gone elsewhere: removes the tool tip and ends the edit that it has held back.
  void leave();

  void paint(host::Surface& surface, Size size) override;
  void mouseDown(host::MouseButton button, std::int16_t shift, Point at) override;
  void mouseMove(std::int16_t, std::int16_t, Point) override { hover(nullptr); }
  void mouseUp(host::MouseButton button, std::int16_t shift, Point at) override;
  void mouseLeft() override { hover(nullptr); }
  bool wheel(double notches) override;
  void keyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  void keyPress(std::int16_t& keyAscii) override;
  void keyUp(std::int16_t& keyCode, std::int16_t& shift) override;
  void childChanged(host::Control& child) override;
  void childMouseDown(host::Control& child, host::MouseButton button, std::int16_t shift, Point at) override;
  void childMouseMove(host::Control& child, std::int16_t buttons, std::int16_t shift, Point at) override;
  void childMouseUp(host::Control& child, host::MouseButton button, std::int16_t shift, Point at) override;
  void childDoubleClick(host::Control& child, Point at) override;
  void childKeyDown(host::Control&, std::int16_t& keyCode, std::int16_t& shift) override {
    keyDown(keyCode, shift);
  }
  void childKeyPress(host::Control&, std::int16_t& keyAscii) override { keyPress(keyAscii); }
  void childKeyUp(host::Control&, std::int16_t& keyCode, std::int16_t& shift) override {
    keyUp(keyCode, shift);
  }
  host::Control* nextTabStop(host::Control* from, bool forward) override;
  void childMeasureChanged(host::Control&) override { columnsFit_ = false; }

  std::int32_t accessibleCount() const override;
  host::AccessibleNode accessibleChild(std::int32_t index) override;
  std::int32_t accessibleIndexOf(const host::AccessibleNode& child) override;
  void childPressed(host::Control& child) override;
  void tellFactsOf(const host::Control& inside, host::AccessibleFacts& facts) const override;

 protected:
  void tellFacts(host::AccessibleFacts& facts) const override;
  void initialize() override;
  /// A new panel has colours of its own, not those of the container.
  void initProperties() override {}
  void resize() override { arrange(); }
  void show() override;
  void realised() override { sbrVertical_.realiseWithSurface(); }

 private:
  friend class clsQRNAction;
  friend class clsQRNCollection;
  friend class clsQRNParam;
  friend class PanelItem;
  friend struct QRNDisplayTable;

  enum class After : std::uint8_t { Nothing, Repaint, Arrange, LayoutButtons, TitleLook };
  template <class T>
  void store(T& field, const T& value, std::string_view key, After after) {
    if (field == value) return;
    field = value;
    if (apply(after)) propertyChanged(key);
  }
  /// What a changed property leads to. Rows that are laid out end their edits, and who hears of that may do
  /// anything: answers whether the panel is still there.
  bool apply(After after);

  // ---- arrangement and layout (QRNDisplay_layout.cpp) ----
  void arrange();
  QRNImageList& ownImageList();
  double arrangeTitle();
  void placeItems(const ColumnWidths& automatic);
  /// What is the same for all the items of one layout.
  struct ItemMeasures {
    ColumnWidths automatic;
    double room;
    std::int32_t horizontalSpacing;
    std::int32_t verticalSpacing;
    std::int32_t actionHeight;
  };
  double placeAction(QRNMenuItem& button, const ItemMeasures& all, double y, double gap);
  double placeRow(QRNEdit& row, const ItemMeasures& all, double y, double gap);
  void setUpScrollBar(double contentHeight);
  void applyScroll();
  double containerWidth() const;
  std::int32_t scrollNumber(double value) const;

  // ---- the footer (QRNDisplay_buttons.cpp) ----
  std::int32_t footerButtons() const { return buttons_ ? buttons_->Count() : 0; }
  bool hasButtons() const { return footerButtons() > 0; }
  double firstButtonHeight() const;
  bool showButtons();
  double arrangeButtons();
  host::UserControl& control() override { return *this; }
  std::unique_ptr<host::CallPoster> makePoster() override;
  void buttonNeedsLayout(std::int32_t index) override { raise(ButtonLayout, "ButtonLayout", index); }
  void buttonClicked(std::int32_t index) override { raise(ButtonClick, "ButtonClick", index); }
  void buttonsChanged() override;
  /// A call posted to the panel itself.
  void Callback(Variant& Code) override;

  // ---- events (QRNDisplay_events.cpp) ----
  void raiseItem(Event<std::int32_t&>& event, std::string_view name, const PanelItem& item);
  void itemGotFocus(const PanelItem& item);
  void bringIntoView(const host::Control& control);
  void startEditCycle(const PanelItem& item);
  void endEditCycle(const PanelItem& item, bool changed);
  void releaseEditCycle();
  void applicationLeft();
  bool isEdited(const PanelItem& item) const { return editing_ && edited_.lock().get() == &item; }
  void itemLeaves(const PanelItem& item);
  void passiveClick();
  void toggleMaximized();
  void hover(const host::Control* titleButton);
  void clickOn(host::Control& child);

  // ---- the tool tip (QRNDisplay_tooltip.cpp) ----
  QRNToolTip* toolTip() const;
  void createToolTip();
  void placeToolTip();
  /// What a tool tip is about; null when that has gone.
  host::Control* relatedTo(const QRNToolTip& tip) const;
  bool holdsEditsBack() const;
  host::Control* shownHelp() const;

  /// Null for what is no item's control.
  const PanelItem* itemOf(const host::Control& control) const;

  // ---- painting (QRNDisplay_paint.cpp) ----
  void paintTitle(host::Surface& surface, Size size);
  void paintTitleButton(host::Surface& surface, const host::Image& button);
  void paintEdge(host::Surface& surface, Size size);
  void applyTitleLook();

  host::Label lblTitle_;
  host::Image imgMaxRst_;
  host::Image imgClose_;
  host::PictureBox pbxContainer_;
  host::VScrollBar sbrVertical_;
  host::PictureBox buttonsContainer_;
  std::shared_ptr<clsQRNCollection> items_;
  std::unique_ptr<clsQRNButtons> buttons_;
  WeakRef<QRNImageList> imageList_;

  Variant extraData_;
  std::string maxButtonToolTip_;
  std::string rstButtonToolTip_;
  ColumnWeights columns_;
  std::int32_t leftMargin_ = 5;
  std::int32_t topMargin_ = 5;
  std::int32_t rightMargin_ = 5;
  std::int32_t bottomMargin_ = 5;
  std::int32_t verticalSpacing_ = -1;
  std::int32_t horizontalSpacing_ = -1;
  std::int32_t menuItemHeight_ = -1;
  std::int32_t buttonsAlignment_ = 1;
  std::unique_ptr<struct ShownToolTip> toolTip_;
  double estimatedLines_ = 1;              // of the tool tip's text
  std::weak_ptr<const PanelItem> edited_;  // while it is in the panel
  std::int32_t editIndex_ = 0;             // where it was then
  qrnEdgeType borderStyle_ = qrnEdgeEngraved;
  qrnTitleStyle titleStyle_ = qrnTitleStandard;
  double titleHeight_ = 0;
  const host::Control* pressed_ = nullptr;  // the part that a left press went down on
  const host::Control* hovered_ = nullptr;  // the title button under the mouse
  bool maximized_ = false;
  bool iconCloseHidden_ = false;
  bool iconMaxRstHidden_ = false;
  bool active_ = true;
  bool redraw_ = false;
  bool tallContent_ = false;
  bool columnsFit_ = false;     // as far as nothing has changed that they depend on
  std::uint32_t placings_ = 0;  // of the items, so far
  bool editing_ = false;
  bool editChanged_ = false;   // of an end that is held back
  bool toolTipShown_ = false;  // and no row has heard since that the application has been left
};

}  // namespace qrn
