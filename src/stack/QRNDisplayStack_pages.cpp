#include <algorithm>

#include "diag/DebugTrace.h"
#include "runtime/errors.h"
#include "stack/QRNDisplayStack.h"

namespace qrn {
namespace {

constexpr std::int32_t kTraceLevel = 0;

}  // namespace

// ---- a page comes ----

QRNDisplay* QRNDisplayStack::AddPage(const std::string& PageName, const std::string& Title, bool bModal) {
  const Page added = makePage(PageName.empty() ? pages_.freeKey("Page") : PageName);
  if (!added) return nullptr;
  const std::int32_t index = added->PageIndex();
  const WeakRef<Control> self(this);
  // Whoever hears of it may close the page, or put another one on it.
  const auto there = [&] { return self && added->isOpen(); };

  FirstError error;
  dress(*added->Control(), index, Title, bModal);
  error.of([&] { raise(PageLayout, "PageLayout", index); });
  if (there()) putOnTop(added, bModal, error);
  error.raise();
  return there() ? added->Control() : nullptr;
}

void QRNDisplayStack::putOnTop(const Page& added, bool modal, FirstError& error) {
  const WeakRef<Control> self(this);
  const std::int32_t index = added->PageIndex();
  if (isTop(*added)) bringToFront(*added->Control());
  if (index > 1)
    cover(page(index - 1), added, error);
  else
    error.of([&] { layOut(*added, false); });
  if (!self || !added->isOpen()) return;
  if (modal) {
    for (std::int32_t k = 1; k < index; ++k) page(k)->Control()->SetEnabled(false);
  }
  settleScrollBars();
  if (isTop(*added)) error.of([&] { raise(PageActivate, "PageActivate", index); });
}

QRNDisplayStack::Page QRNDisplayStack::makePage(const std::string& name) {
  host::Control* control = nullptr;
  auto page = std::make_shared<clsDisplayPage>();
  const bool made = ignoringErrors([&] {
    control = &controls().add("QRNV16Controls2.QRNDisplay", name, *this);
    pages_.add(name, page, {});
  });
  if (made) {
    page->Attach(static_cast<QRNDisplay&>(*control), Count());
    return page;
  }
  if (control) controls().remove(name);
  return nullptr;
}

// The first page has nowhere to go back to, and nothing to be larger than.
void QRNDisplayStack::dress(QRNDisplay& display, std::int32_t index, const std::string& title, bool modal) {
  display.SetImageList(imageList_.get());
  display.SetIconCloseHidden(index == 1 && !modal);
  display.SetIconMaxRstHidden(index == 1);
  display.SetTitle(title);
  display.SetBorderStyle(modal ? qrnEdgeBorder : qrnEdgeEngraved);
  display.SetTitleStyle(modal ? qrnTitleDialog : qrnTitleStandard);
}

void QRNDisplayStack::cover(const Page& below, const Page& above, FirstError& error) {
  const WeakRef<Control> self(this);
  const Page covered = below;
  QRNDisplay& display = *covered->Control();
  // Covered as long as the page above is there: when that goes, this one is uncovered again.
  const auto there = [&] { return self && covered->isOpen() && above->isOpen(); };
  error.of([&] { layOut(*above, display.Maximized()); });
  if (!there()) return;
  // The keyboard leaves what it can't come back to, be it still in sight or not, and so do tool tips.
  if (hasFocus() && !host::reachedByKeyboard(*input().focus())) error.of([&] { input().setFocus(nullptr); });
  if (there()) error.of([&] { display.leave(); });
  if (there() && hideDisabledControls_) error.of([&] { display.ControlsContainer().SetVisible(false); });
  if (!there()) return;
  display.SetActive(false);
  error.of([&] { raise(PageDeactivate, "PageDeactivate", covered->PageIndex()); });
}

// ---- pages go ----

void QRNDisplayStack::ActivatePage(std::int32_t PageIndex) {
  if (PageIndex >= Count()) return;
  const WeakRef<Control> self(this);
  FirstError error;
  const Closed closed = closeAbove(PageIndex, error);
  if (self && closed != Closed::Nothing && Count() > 0) {
    enableDownToDialog();
    if (closed == Closed::Some) uncoverTop(error);
  }
  error.raise();
}

// Each page is asked once. A listener may have closed it itself, and then its turn is over; or it has put
// another page on it or in its place, and then everything stays where it is. One that fails has not let go of
// what is left.
QRNDisplayStack::Closed QRNDisplayStack::closeAbove(std::int32_t index, FirstError& error) {
  const WeakRef<Control> self(this);
  Closed closed = Closed::Nothing;
  for (std::int32_t k = Count(); k > std::max(index, 0); --k) {
    if (k > Count()) continue;
    const Page asked = page(k);
    bool cancel = false;
    if (!error.of([&] { raise(PageClose, "PageClose", k, cancel); })) cancel = true;
    if (!self) return closed;
    const bool another = Count() >= k && !isTop(*asked);
    if (another) return closed == Closed::Nothing ? closed : Closed::SomeUnderAnother;
    if (cancel) return closed;
    if (!asked->isOpen()) continue;
    closeTop();
    if (!self) return closed;
    closed = Closed::Some;
  }
  return closed;
}

void QRNDisplayStack::closeTop() {
  const WeakRef<Control> self(this);
  DebugTrace("Close Page =" + std::to_string(Count()) + " " + std::string(top()->Name()), kTraceLevel);
  removeTop();
  if (!self) return;
  settleScrollBars();
  DebugTrace("Close Page done", kTraceLevel);
}

// Nobody finds a page any more that is about to go.
void QRNDisplayStack::removeTop() {
  const Page top = pages_.take(Count());
  if (top->Control()) controls().remove(std::string(top->Control()->Name()));
}

// The host, or a page itself, may remove the control of a page; those above can't stay without it.
void QRNDisplayStack::controlRemoved(std::string_view name) {
  const std::int32_t index = pages_.positionOf(Variant(name));
  if (index == 0) return;
  const WeakRef<Control> self(this);
  while (self && Count() >= index) removeTop();
  if (!self || Count() == 0) return;
  settleScrollBars();
  enableDownToDialog();
  FirstError error;
  uncoverTop(error);
  error.raise();
}

// Those below the uppermost dialog stay as they are.
void QRNDisplayStack::enableDownToDialog() {
  for (std::int32_t k = Count(); k >= 1; --k) {
    QRNDisplay& display = *page(k)->Control();
    display.SetEnabled(true);
    if (display.TitleStyle() == qrnTitleDialog) return;
  }
}

void QRNDisplayStack::uncoverTop(FirstError& error) {
  const WeakRef<Control> self(this);
  const Page top = page(Count());
  const auto there = [&] { return self && isTop(*top); };
  top->Control()->SetActive(true);
  top->Control()->ControlsContainer().SetVisible(true);
  error.of([&] { top->Control()->SetItemFocus(Variant(0)); });
  if (!there()) return;
  DebugTrace("RaiseEvent PageActivate", kTraceLevel);
  error.of([&] { raise(PageActivate, "PageActivate", top->PageIndex()); });
  DebugTrace("RaiseEvent PageActivate DONE", kTraceLevel);
}

void QRNDisplayStack::terminate() {
  while (Count() > 0) removeTop();
}

}  // namespace qrn
