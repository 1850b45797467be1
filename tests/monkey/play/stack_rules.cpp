#include <algorithm>
#include <cmath>
#include <string>

#include "rules.h"
#include "stage.h"

namespace qrn::monkey {
namespace {

using Page = PageBook::Page;
using Heard = PageBook::Heard;

QRNDisplay& pageAt(Stage& stage, std::int32_t index) { return stage.stack()->Pages(Variant(index)); }

std::string numbered(const QRNDisplay& page, std::int32_t index) {
  return page.Name() + " at " + std::to_string(index);
}

// Index, name and the order in which they lie on each other tell the same.
void checkPages(Stage& stage) {
  QRNDisplayStack& stack = *stage.stack();
  const auto& known = stage.pages().pages();
  std::vector<const host::Control*> onEachOther;
  for (const host::Control* control : stack.contained()) {
    if (dynamic_cast<const QRNDisplay*>(control)) onEachOther.push_back(control);
  }
  if (known.size() != static_cast<std::size_t>(stack.Count()) || onEachOther.size() != known.size())
    return stage.complain("there are as many pages as were opened and not closed",
                          std::to_string(stack.Count()) + " of " + std::to_string(known.size()));
  for (std::int32_t k = 1; k <= stack.Count(); ++k) {
    const Page& page = known[static_cast<std::size_t>(k) - 1];
    const QRNDisplay& control = pageAt(stage, k);
    if (page.control.get() != &control || &stack.Pages(Variant(page.name)) != &control)
      stage.complain("index and name select the same page", numbered(control, k));
    if (onEachOther[static_cast<std::size_t>(k) - 1] != &control)
      stage.complain("a page lies on those with a lower index", numbered(control, k));
  }
}

void checkWhatIsOnTop(Stage& stage) {
  std::int32_t k = 0;
  for (const Page& page : stage.pages().pages()) {
    const QRNDisplay& control = *page.control;
    const bool top = ++k == stage.stack()->Count();
    if (!page.has(Own::Active) && control.Active() != top)
      stage.complain("the page on top is active, and no other", numbered(control, k));
    const bool shows = top || !page.hidden;
    if (page.control->ControlsContainer().Visible() != shows)
      stage.complain(shows ? "a page shows its items" : "a covered page hides its items",
                     numbered(control, k));
  }
}

void checkDialogs(Stage& stage) {
  const auto& pages = stage.pages().pages();
  const auto isDialog = [](const Page& page) { return page.modal; };
  const auto topmost = std::find_if(pages.rbegin(), pages.rend(), isDialog);
  bool below = topmost != pages.rend();
  std::int32_t k = 0;
  for (const Page& page : pages) {
    ++k;
    if (topmost != pages.rend() && &page == &*topmost) below = false;
    if (page.has(Own::Enabled)) continue;
    if ((page.control->TitleStyle() == qrnTitleDialog) != page.modal)
      stage.complain("a page is as modal as it was opened", numbered(*page.control, k));
    if (page.control->Enabled() == below)
      stage.complain("the pages under the topmost modal one are disabled, and no others",
                     numbered(*page.control, k));
  }
}

// ---- places ----

// Away from the far edge as well, as long as there is room for the least; then what is missing is taken from
// the room at that edge, and after that from the near one.
void insetTwice(double& start, double& length, double least) {
  if (length - start >= least) {
    length -= start;
  } else if (length >= least) {
    length = least;
  } else if (least - length < start) {
    start -= least - length;
    length = least;
  } else {
    length += start;
    start = 0;
  }
}

Rect placeOf(Stage& stage, const QRNDisplay& page, std::int32_t index) {
  const QRNDisplayStack& stack = *stage.stack();
  const bool all = page.Maximized();
  Rect place;
  place.left = all ? 0.0 : static_cast<double>(stack.LeftIndent()) * (index - 1);
  place.top = all ? 0.0 : static_cast<double>(stack.TopIndent()) * (index - 1);
  place.width = std::nearbyint(stack.ScaleWidth() - place.left);
  place.height = std::nearbyint(stack.ScaleHeight() - place.top);
  if (page.TitleStyle() == qrnTitleDialog && !all) {
    insetTwice(place.left, place.width, 10.0 * page.GetMenuItemHeight());
    insetTwice(place.top, place.height, 7.0 * page.GetMenuItemHeight());
  }
  place.width = std::max(place.width, 1.0);
  place.height = std::max(place.height, 1.0);
  return place;
}

void checkPlaces(Stage& stage) {
  std::int32_t k = 0;
  for (const Page& page : stage.pages().pages()) {
    ++k;
    if (page.has(Own::Place)) continue;
    const Rect place = placeOf(stage, *page.control, k), has = page.control->bounds();
    if (has == place) continue;
    std::ostringstream otherwise;
    otherwise << numbered(*page.control, k) << " lies at " << has.left << ", " << has.top << ", " << has.width
              << ", " << has.height << " instead of " << place.left << ", " << place.top << ", "
              << place.width << ", " << place.height;
    stage.complain("pages lie where the stack puts them", otherwise.str());
  }
}

// The first page fills the stack anyway.
void checkMaximized(Stage& stage) {
  const PageBook::Wish& wish = stage.pages().wish();
  if (!wish.page || !stage.undisturbed()) return;
  std::int32_t k = 0;
  for (const Page& page : stage.pages().pages()) {
    const bool asked = page.control.get() == wish.page.get();
    if ((++k > 1 || asked) && page.control->Maximized() != wish.maximized)
      stage.complain("a page is maximised and restored with those below", numbered(*page.control, k));
    if (asked) return;
  }
}

// ---- events ----

// Reads the events of a step in which nobody interfered: pages that come, and pages that are closed from the
// top down until one is kept or the wished one is reached, which is activated then.
class Reader {
 public:
  explicit Reader(const PageBook& book) : heard_(book.heard()), count_(book.countBefore()) {}

  bool understands(std::int32_t countAfter) {
    while (at_ < heard_.size()) {
      const bool understood = heard_[at_].what == 'L' ? readsAnOpening() : readsAClosing();
      if (!understood) return false;
    }
    return count_ == countAfter;
  }

 private:
  bool readsAnOpening() {
    ++count_;
    return reads('L', count_) && (count_ == 1 || reads('D', count_ - 1)) && reads('A', count_);
  }
  bool readsAClosing() {
    const std::int32_t before = count_;
    while (count_ > 0 && reads('C', count_)) --count_;
    const bool kept = reads('K', count_);
    if (count_ == before) return kept;
    return count_ == 0 || reads('A', count_);
  }
  bool reads(char what, std::int32_t index) {
    if (at_ == heard_.size() || !(heard_[at_] == Heard{what, index})) return false;
    ++at_;
    return true;
  }

  const std::vector<Heard>& heard_;
  std::int32_t count_;
  std::size_t at_ = 0;
};

void checkPageEvents(Stage& stage) {
  if (!stage.undisturbed()) return;
  if (Reader(stage.pages()).understands(stage.stack()->Count())) return;
  std::string events;
  for (const Heard& one : stage.pages().heard()) events += one.what + std::to_string(one.index) + " ";
  stage.complain("page events come in their order", events + "from " +
                                                        std::to_string(stage.pages().countBefore()) + " to " +
                                                        std::to_string(stage.stack()->Count()) + " pages");
}

}  // namespace

void checkKeyboardStaysOnTop(Stage& stage) {
  if (!stage.stack() || !stage.undisturbed()) return;
  const host::Control* focus = stage.surface()->input().focus();
  if (!focus || focus == stage.focusBefore.get()) return;
  if (stage.stack()->Count() == 0 || !pageAt(stage, stage.stack()->Count()).hasFocus())
    stage.complain("the keyboard walks the page on top only", focus->Name());
}

void checkStack(Stage& stage) {
  stage.pages().sweep();
  checkPages(stage);
  if (stage.complaint()) return;
  checkWhatIsOnTop(stage);
  checkDialogs(stage);
  checkPlaces(stage);
  checkMaximized(stage);
  checkPageEvents(stage);
}

}  // namespace qrn::monkey
