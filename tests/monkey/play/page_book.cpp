#include "page_book.h"

#include <algorithm>
#include <utility>

#include "stage.h"

namespace qrn::monkey {

QRNDisplayStack& PageBook::stack() const { return *stage_.stack(); }

void PageBook::open(QRNDisplayStack& stack) {
  const auto meddle = [this] { stage_.audience().meddle(nullptr, 0); };
  connections_.push_back(stack.PageLayout.connect([this, meddle](std::int32_t index) {
    laidOut(index);
    meddle();
  }));
  connections_.push_back(stack.PageActivate.connect([this, meddle](std::int32_t index) {
    activated(index);
    meddle();
  }));
  connections_.push_back(stack.PageDeactivate.connect([this, meddle](std::int32_t index) {
    deactivated(index);
    meddle();
  }));
  connections_.push_back(stack.PageClose.connect([this, meddle](std::int32_t index, bool& cancel) {
    asked(index, cancel);
    meddle();
  }));
  connections_.push_back(
      stack.ObjectEvent.connect([this, meddle](std::string_view name, host::EventArgs arguments) {
        relayed(name, arguments);
        meddle();
      }));
}

void PageBook::close() {
  connections_.clear();
  pages_.clear();
  heard_.clear();
  keeps_.clear();
  countBefore_ = 0;
  rows_ = 0;
}

void PageBook::stepBegins() {
  heard_.clear();
  wish_ = {};
  for (Page& one : pages_) one.released = false;
  countBefore_ = stage_.stack() ? stack().Count() : 0;
}

PageBook::Page* PageBook::find(const QRNDisplay& page) {
  const auto found =
      std::find_if(pages_.begin(), pages_.end(), [&](const Page& one) { return one.control.get() == &page; });
  return found == pages_.end() ? nullptr : &*found;
}

void PageBook::hostSets(const QRNDisplay& page, Own what) {
  if (Page* one = find(page)) one->own |= static_cast<unsigned>(what);
}

void PageBook::hostSetsAll(Own what) {
  for (Page& one : pages_) one.own |= static_cast<unsigned>(what);
}

void PageBook::allPlaced() {
  for (Page& one : pages_) one.own &= ~static_cast<unsigned>(Own::Place);
}

// No page goes without a question.
void PageBook::sweep() {
  for (const Page& one : pages_) {
    if (!one.control && !one.released) stage_.complain("every page that goes was asked for", one.name);
  }
  std::erase_if(pages_, [](const Page& one) { return !one.control; });
}

// ---- events of pages ----

bool PageBook::expectTop(std::string_view event, std::int32_t index) {
  if (index >= 1 && index == stack().Count()) return true;
  stage_.complain("a page event is about the page on top", std::string(event) + " " + std::to_string(index) +
                                                               " of " + std::to_string(stack().Count()));
  return false;
}

void PageBook::laidOut(std::int32_t index) {
  heard_.push_back({'L', index});
  if (!expectTop("PageLayout", index)) return;
  QRNDisplay& page = stack().Pages(Variant(index));
  pages_.push_back({WeakRef<QRNDisplay>(&page), page.Name(), page.TitleStyle() == qrnTitleDialog});
  stage_.audience().sitsDown(page);
  fill(page);
}

void PageBook::fill(QRNDisplay& page) {
  const std::int32_t rows = std::exchange(rows_, 0);
  const WeakRef<QRNDisplay> there(&page);
  for (std::int32_t i = 0; there && i < rows; ++i)
    there->Items().AddParameter("", static_cast<qrnValueType>(i));
  if (there) there->LayoutControls(false);
}

void PageBook::activated(std::int32_t index) {
  heard_.push_back({'A', index});
  if (!expectTop("PageActivate", index)) return;
  QRNDisplay& page = stack().Pages(Variant(index));
  Page* known = find(page);
  if (!known) return stage_.complain("a page is laid out before it is activated", page.Name());
  if (!page.Active() && !known->has(Own::Active))
    stage_.complain("the page that is activated is active", page.Name());
  if (!page.ControlsContainer().Visible())
    stage_.complain("the page that is activated shows its items", page.Name());
  known->hidden = false;
}

void PageBook::deactivated(std::int32_t index) {
  heard_.push_back({'D', index});
  if (index < 1 || index >= stack().Count())
    return stage_.complain("a page that is deactivated lies under another one", std::to_string(index));
  QRNDisplay& page = stack().Pages(Variant(index));
  Page* known = find(page);
  if (!known) return;
  // One that was covered before has not been uncovered when another page came where one was closed.
  const bool hides = known->hidden || stack().HideDisabledControls();
  known->hidden = !page.ControlsContainer().Visible();
  if (page.Active()) stage_.complain("a page that is deactivated is not active", page.Name());
  if (stage_.audience().meddledInThisStep()) return;
  if (known->hidden != hides)
    stage_.complain("a covered page hides its items as the stack says", page.Name());
  if (page.hasFocus()) stage_.complain("a page that is deactivated has no focus", page.Name());
}

void PageBook::asked(std::int32_t index, bool& cancel) {
  if (cancel) stage_.complain("nobody keeps a page before the listener is asked", std::to_string(index));
  for (std::size_t i = 0; i < keeps_.size(); ++i) {
    if (keeps_[i]-- > 0) continue;
    keeps_.erase(keeps_.begin() + static_cast<std::ptrdiff_t>(i));
    cancel = true;
    break;
  }
  heard_.push_back({cancel ? 'K' : 'C', index});
  if (!expectTop("PageClose", index)) return;
  if (Page* known = find(stack().Pages(Variant(index)))) known->released |= !cancel;
}

// The position of an item belongs to the page whose index is in front of it. The page of an edit that ends
// may have lost the item.
void PageBook::relayed(std::string_view name, host::EventArgs arguments) {
  if (arguments.empty() || stage_.audience().meddledInThisStep()) return;
  const std::int32_t index = arguments[0].asLong();
  if (index < 1 || index > stack().Count())
    return stage_.complain("an event carries its page's index",
                           std::string(name) + " " + std::to_string(index));
  const bool ofItem = name.starts_with("Item") || name.starts_with("Action") || name.starts_with("Parameter");
  if (!ofItem || name == "ParameterEndEdit") return;
  const std::int32_t item = arguments[1].asLong(), count = stack().Pages(Variant(index)).Items().Count();
  if (item < 1 || item > count)
    stage_.complain("an event of a page carries its item's position",
                    std::string(name) + " " + std::to_string(index) + ", " + std::to_string(item));
}

}  // namespace qrn::monkey
