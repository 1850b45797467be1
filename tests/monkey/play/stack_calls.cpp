#include "actions.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

std::int32_t anyPage(Stage& stage, Numbers& numbers) {
  return static_cast<std::int32_t>(numbers.below(static_cast<std::size_t>(stage.stack()->Count()))) + 1;
}

void addPage(Stage& stage, Numbers& numbers) {
  QRNDisplayStack& stack = *stage.stack();
  if (stack.Count() >= PageBook::kMost) return;
  static const std::string names[] = {"", "", "", "", "A", "a", "Page2", "imlImages"};
  const bool modal = numbers.oneIn(3);
  const std::string name = numbers.oneOf(names), title = anyCaption(numbers);
  const auto rows = static_cast<std::int32_t>(numbers.below(8));
  stage.note("AddPage(", quoted(name), ", ", quoted(title), ", ", shown(modal), "), with ", rows, " rows");
  stage.pages().willFill(rows);
  const std::int32_t before = stack.Count();
  const WeakRef<QRNDisplay> added(stack.AddPage(name, title, modal));
  stage.pages().willFill(0);
  if (!stage.stack() || !stage.undisturbed()) return;
  if (stack.Count() != before + (added ? 1 : 0))
    stage.complain("a page that is answered is there", std::to_string(stack.Count()));
  if (!added) return;
  if (added.get() != &stack.Pages(Variant(before + 1)))
    stage.complain("the page that is answered lies on top", added->Name());
  if (name.empty() ? !added->Name().starts_with("Page") : added->Name() != name)
    stage.complain("a page bears the name that it was given, or a made one", added->Name());
  if (added->Title() != title) stage.complain("a page bears its title", added->Title());
  stage.turnTo(added.get());
}

void activatePage(Stage& stage, Numbers& numbers) {
  const auto index =
      static_cast<std::int32_t>(numbers.below(static_cast<std::size_t>(stage.stack()->Count()) + 2));
  stage.note("ActivatePage(", index, ")");
  stage.stack()->ActivatePage(index);
}

// What the next steps are about; mostly the page on top.
void turnToPage(Stage& stage, Numbers& numbers) {
  if (stage.stack()->Count() == 0) return;
  const std::int32_t index = numbers.oneIn(2) ? anyPage(stage, numbers) : stage.stack()->Count();
  stage.note("the page with the index ", index, ":");
  stage.turnTo(&stage.stack()->Pages(Variant(index)));
}

void setIndent(Stage& stage, Numbers& numbers) {
  QRNDisplayStack& stack = *stage.stack();
  const std::int32_t length = anyLength(numbers);
  const bool left = anyFlag(numbers);
  const std::int32_t before = left ? stack.LeftIndent() : stack.TopIndent();
  stage.note(left ? "SetLeftIndent(" : "SetTopIndent(", length, ")");
  if (left)
    stack.SetLeftIndent(length);
  else
    stack.SetTopIndent(length);
  if (length != before && stage.undisturbed()) stage.pages().allPlaced();
}

void resizeStack(Stage& stage, Numbers& numbers) {
  const Size size{200.0 + static_cast<double>(numbers.below(400)),
                  100.0 + static_cast<double>(numbers.below(400))};
  const Size before = stage.surface()->pixelSize();
  stage.note("the window becomes ", size.width, " by ", size.height);
  stage.hands().resize(size);
  if (stage.stack() && stage.undisturbed() && stage.surface()->pixelSize() != before)
    stage.pages().allPlaced();
}

void setLook(Stage& stage, Numbers& numbers) {
  QRNDisplayStack& stack = *stage.stack();
  const bool on = anyFlag(numbers);
  switch (numbers.below(4)) {
    case 0:
      stage.note("SetFont(…)");
      // A dialog's least size follows from its font when it is laid out next.
      stage.pages().hostSetsAll(Own::Place);
      stack.SetFont(anyFont(numbers));
      break;
    case 1: stage.note("SetBackColor(…)"), stack.SetBackColor(host::rgb(on ? 255 : 0, 9, 9)); break;
    case 2: stage.note("SetEnabled(", shown(on), ")"), stack.SetEnabled(on); break;
    default: stage.note("SetHideDisabledControls(", shown(on), ")"), stack.SetHideDisabledControls(on);
  }
}

void enableAgain(Stage& stage, Numbers&) {
  stage.note("SetEnabled(true)");
  stage.stack()->SetEnabled(true);
}

void keepPage(Stage& stage, Numbers& numbers) {
  const auto after = static_cast<std::uint32_t>(numbers.below(3));
  stage.note("the listener, after ", after, " more questions, keeps a page");
  stage.pages().willKeep(after);
}

void selectNothing(Stage& stage, Numbers& numbers) {
  const Variant selector = numbers.oneIn(2) ? Variant("no such page") : Variant(0);
  stage.note("Pages(", shown(selector), ")");
  static_cast<void>(stage.stack()->Pages(selector));
  stage.complain("there is no page that was not added", shown(selector));
}

// ---- the user ----

void clickAt(Stage& stage, Point at) {
  stage.note("user.clicksAt({", at.x, ", ", at.y, "})");
  stage.hands().press(at, host::MouseButton::Left);
  if (stage.surface()) stage.hands().release(at, host::MouseButton::Left);
}

// Of a covered page the edges at the left and at the top are seen.
void clickPage(Stage& stage, Numbers& numbers) {
  if (stage.stack()->Count() == 0) return;
  const Rect place = stage.stack()->Pages(Variant(anyPage(stage, numbers))).onSurface();
  const double in = 4 + static_cast<double>(numbers.below(4));
  clickAt(stage, numbers.oneIn(2) ? Point{place.left + in, place.top + place.height / 2}
                                  : Point{place.left + place.width / 2, place.top + in});
}

// An icon of a title bar, whether it can be seen or not.
void clickIcon(Stage& stage, Numbers& numbers) {
  if (stage.stack()->Count() == 0) return;
  QRNDisplay& page =
      stage.stack()->Pages(Variant(numbers.oneIn(3) ? anyPage(stage, numbers) : stage.stack()->Count()));
  const Rect icon = (anyFlag(numbers) ? page.imgMaxRst() : page.imgClose()).onSurface();
  clickAt(stage, {icon.left + icon.width / 2, icon.top + icon.height / 2});
}

void clickAnywhere(Stage& stage, Numbers& numbers) {
  clickAt(stage,
          {static_cast<double>(numbers.below(420)) - 10, static_cast<double>(numbers.below(320)) - 10});
}

}  // namespace

void addStackCalls(Actions& to) {
  const auto add = [&](std::string_view name, std::size_t weight, Actor actor,
                       void (*make)(Stage&, Numbers&)) {
    to.push_back({name, weight, actor, make, Needs::Surface});
  };
  add("AddPage", 90, Actor::Host, addPage);
  add("ActivatePage", 25, Actor::Host, activatePage);
  add("TurnToPage", 40, Actor::Host, turnToPage);
  add("SetIndent", 10, Actor::Host, setIndent);
  add("ResizeStack", 15, Actor::Host, resizeStack);
  add("SetLook", 12, Actor::Host, setLook);
  add("EnableAgain", 12, Actor::Host, enableAgain);
  add("KeepPage", 15, Actor::Host, keepPage);
  add("SelectNothing", 3, Actor::Host, selectNothing);
  add("ClickPage", 25, Actor::User, clickPage);
  add("ClickIcon", 40, Actor::User, clickIcon);
  add("ClickAnywhere", 15, Actor::User, clickAnywhere);
}

}  // namespace qrn::monkey
