#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <string>

#include "base/first_error.h"
#include "base/weak_ref.h"
#include "display/QRNDisplay.h"
#include "host/user_control.h"
#include "images/QRNImageList.h"
#include "runtime/selectable_list.h"
#include "runtime/variant.h"
#include "stack/clsDisplayPage.h"

namespace qrn {

/// A stack of panels. Pages are put on top, each a little further down and to the right, and taken off again
/// by going back to one below; only the top one is active. A modal page disables all those below it.
/// Everything that happens on a page is an event of the stack, with the page's 1-based index in front.
class QRNDisplayStack final : public host::UserControl {
 public:
  QRNDisplayStack() = default;
  std::string_view typeName() const override { return "QRNDisplayStack"; }
  const host::ClassTable& classTable() const override;

  /// The panel of a page, by its index or name. Errors: 5 for an unknown name, 9 for an index outside.
  QRNDisplay& Pages(const Variant& aSelector) const;
  /// The number of pages, which is the index of the one on top.
  std::int32_t Count() const { return pages_.count(); }

  /// By how many pixels each page is further to the right than the one below.
  std::int32_t LeftIndent() const { return leftIndent_; }
  void SetLeftIndent(std::int32_t indent) { storeIndent(leftIndent_, indent, "LeftIndent"); }
  /// By how many pixels each page is further down than the one below.
  std::int32_t TopIndent() const { return topIndent_; }
  void SetTopIndent(std::int32_t indent) { storeIndent(topIndent_, indent, "TopIndent"); }
  /// Whether a page that is covered shows its frame and title only.
  bool HideDisabledControls() const { return hideDisabledControls_; }
  void SetHideDisabledControls(bool hide);

  /// Closes the pages above one, the top one first; 0 closes all of them. A listener of PageClose may keep a
  /// page, and with it those below. Nothing happens for the top page, or an index above it.
  void ActivatePage(std::int32_t PageIndex);
  /// Puts a page on top, under a made name if the given one is empty; PageLayout is where it gets its items.
  /// Null when there can be no control of that name, or a listener has closed the page at once.
  QRNDisplay* AddPage(const std::string& PageName, const std::string& Title, bool bModal);

  using Control::Enabled;
  void SetEnabled(bool enabled) override;
  /// Of the stack and of every page there is.
  const host::FontPtr& Font() const { return font(); }
  void SetFont(host::FontPtr font);
  /// Of the stack and of every page there is.
  host::Color BackColor() const { return backColor(); }
  void SetBackColor(host::Color color);
  /// The host's own; the stack does nothing with it.
  const Variant& ExtraData() const { return extraData_; }
  void SetExtraData(const Variant& data) { extraData_ = data; }

  // The first argument is the page's index.
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ItemGotFocus;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ItemLostFocus;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/, std::int16_t& /*MenuItemIndex*/>
      ItemMenuClick;
  /// A key has gone down in a row or button, which goes on with it whatever a listener makes of it here.
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/, std::int16_t& /*KeyCode*/,
        std::int16_t& /*Shift*/>
      ItemKeyDown;
  /// A character was typed in a row or button, which goes on with it whatever a listener makes of it here.
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/, std::int16_t& /*KeyAscii*/> ItemKeyPress;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/, std::int16_t& /*KeyCode*/,
        std::int16_t& /*Shift*/>
      ItemKeyUp;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ActionLayout;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ActionClick;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterLayout;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterChange;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/, std::int16_t& /*Item*/> ParameterItemCheck;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterIcon1Click;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterIcon2Click;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterClick;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterStartEdit;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/, bool& /*bChanged*/> ParameterEndEdit;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ItemIndex*/> ParameterStatusChange;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ButtonIndex*/> ButtonLayout;
  Event<std::int32_t& /*PageIndex*/, std::int32_t& /*ButtonIndex*/> ButtonClick;
  /// A key has gone down on the page itself. What a listener makes of it is what the page goes on with.
  Event<std::int32_t& /*PageIndex*/, std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyDown;
  /// A character was typed on the page itself. What a listener makes of it is what the page goes on with.
  Event<std::int32_t& /*PageIndex*/, std::int16_t& /*KeyAscii*/> KeyPress;
  /// A key has come up on the page itself.
  Event<std::int32_t& /*PageIndex*/, std::int16_t& /*KeyCode*/, std::int16_t& /*Shift*/> KeyUp;
  /// A page was put on top and is still empty: the time to add its items.
  Event<std::int32_t /*PageIndex*/> PageLayout;
  /// The page is on top now, after it was added or those above it were closed.
  Event<std::int32_t /*PageIndex*/> PageActivate;
  /// The page was covered by a new one.
  Event<std::int32_t /*PageIndex*/> PageDeactivate;
  /// The page is about to be closed; setting bCancel to True keeps it.
  Event<std::int32_t /*PageIndex*/, bool& /*bCancel*/> PageClose;

  void mouseDown(host::MouseButton button, std::int16_t shift, Point at) override;
  void mouseUp(host::MouseButton button, std::int16_t shift, Point at) override;
  host::Control* nextTabStop(host::Control* from, bool forward) override;
  const host::ContainerControl& keyboardArea() const override;

  /// Tools see the pages, the lowest one first.
  std::int32_t accessibleCount() const override { return Count(); }
  host::AccessibleNode accessibleChild(std::int32_t index) override;
  void tellFactsOf(const host::Control& inside, host::AccessibleFacts& facts) const override;

 protected:
  void tellFacts(host::AccessibleFacts& facts) const override;
  void initialize() override;
  void resize() override { layOutAll(); }
  void show() override;
  void terminate() override;
  void controlRemoved(std::string_view name) override;
  void realised() override { settleScrollBars(); }

 private:
  friend class clsDisplayPage;
  friend struct PageRoutes;
  friend struct QRNDisplayStackTable;
  using Page = std::shared_ptr<clsDisplayPage>;

  void storeIndent(std::int32_t& field, std::int32_t indent, std::string_view key);
  const Page& page(std::int32_t index) const { return pages_.at(index); }
  bool isTop(const clsDisplayPage& page) const { return page.isOpen() && page.PageIndex() == Count(); }
  QRNDisplay* top() const { return Count() > 0 ? page(Count())->Control() : nullptr; }
  /// Whether there is a page that takes all input until it is closed.
  bool hasDialog() const;
  /// What is done to a page may let listeners run, which may do anything: each page is looked up when its
  /// turn comes, and an error of one is no reason to leave out the others. Answers whether the stack is still
  /// there.
  using PageWork = std::function<void(clsDisplayPage&)>;
  bool forPages(std::int32_t first, std::int32_t last, const PageWork& work, FirstError& error);

  // ---- places ----
  void layOut(clsDisplayPage& page, bool maximized);
  void layOutAll();
  void maximize(std::int32_t index);
  void restore(std::int32_t index);
  void settleScrollBars();

  // ---- pages come and go (QRNDisplayStack_pages.cpp) ----
  Page makePage(const std::string& name);
  void dress(QRNDisplay& display, std::int32_t index, const std::string& title, bool modal);
  // An error of a listener is raised when everything is in order again.
  void putOnTop(const Page& added, bool modal, FirstError& error);
  void cover(const Page& below, const Page& above, FirstError& error);
  enum class Closed : std::uint8_t { Nothing, Some, SomeUnderAnother };
  Closed closeAbove(std::int32_t index, FirstError& error);
  void closeTop();
  void removeTop();
  void enableDownToDialog();
  void uncoverTop(FirstError& error);

  SelectableList<clsDisplayPage> pages_;
  WeakRef<QRNImageList> imageList_;  // without it, each page has its own
  Variant extraData_;
  std::int32_t leftIndent_ = 10;
  std::int32_t topIndent_ = 20;
  bool hideDisabledControls_ = true;
  bool pressed_ = false;
};

}  // namespace qrn
