#include "meddling.h"

#include "actions.h"
#include "deeds.h"
#include "diag/QRNErrors.h"
#include "runtime/errors.h"
#include "stage.h"

namespace qrn::monkey {
namespace {

void removeItsItem(const Scene& at) {
  if (at.itsItem()) at.items().Remove(Variant(at.index));
}
void removeAnItem(const Scene& at) {
  if (at.items().Count() > 0) at.items().Remove(Variant(at.anyPosition()));
}
void insertBefore(const Scene& at) {
  if (at.items().Count() < 30) at.items().AddParameter("", at.anyType(), Variant(at.index));
}
void lockItsRow(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->Control().SetLocked(true);
}
void makeReadOnly(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->SetParamState(qrnStateReadOnly);
}
void acceptTheValue(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->Control().SetValueChanged(false);
}
void setTheValue(const Scene& at) {
  if (const auto parameter = at.itsParameter())
    parameter->SetParamValue(Variant(static_cast<std::int32_t>(at.number % 100)));
}
void changeTheType(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->Control().SetValueType(at.anyType());
}
void hideItsItem(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->Control().SetVisible(false);
}
void hideItsValue(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->Control().SetValueVisible(false);
}
void disableItsItem(const Scene& at) {
  if (const auto parameter = at.itsParameter()) parameter->Control().SetEnabled(false);
}
void focusAnItem(const Scene& at) {
  if (at.items().Count() > 0) at.panel().SetItemFocus(Variant(at.anyPosition()));
}
void takeTheFocus(const Scene& at) { at.panel().input().setFocus(nullptr); }
void layOut(const Scene& at) { at.panel().LayoutControls(at.number % 2 == 1); }
void resize(const Scene& at) {
  at.panel().Move(0, 0, 100 + at.number % 400, 300);
  at.stage.pages().hostSets(at.panel(), Own::Place);
}
void addAButton(const Scene& at) { at.panel().Buttons().AddButton("", "Button"); }
void removeTheButtons(const Scene& at) { at.panel().Buttons().RemoveAll(); }
void removeAll(const Scene& at) { at.items().RemoveAll(); }
void loseTheSurface(const Scene& at) { at.stage.hands().close(); }
void showHelp(const Scene& at) { at.panel().DisplayToolTip(Variant(at.index), 3); }
void removeHelp(const Scene& at) { at.panel().RemoveToolTip(at.number % 2 == 1); }
void disableThePanel(const Scene& at) {
  at.stage.pages().hostSets(at.panel(), Own::Enabled);
  at.panel().SetEnabled(false);
}
void raise(const Scene&) { RaiseError(kListenersError, "listener", kListenersText); }
void closeTheSurface(const Scene& at) { at.stage.close(); }

constexpr NamedDeed kDeeds[] = {
    {"removes its item", removeItsItem},
    {"inserts an item before", insertBefore},
    {"removes an item", removeAnItem},
    {"locks its row", lockItsRow},
    {"makes its row read-only", makeReadOnly},
    {"accepts the value", acceptTheValue},
    {"sets the value", setTheValue},
    {"changes the value type", changeTheType},
    {"hides its row", hideItsItem},
    {"hides its value", hideItsValue},
    {"disables its row", disableItsItem},
    {"gives an item the focus", focusAnItem},
    {"takes the focus away", takeTheFocus},
    {"lays out", layOut},
    {"resizes the panel", resize},
    {"adds a footer button", addAButton},
    {"removes the footer buttons", removeTheButtons},
    {"removes all items", removeAll},
    {"shows help", showHelp},
    {"removes the help", removeHelp},
    {"disables the panel", disableThePanel},
    {"lets the surface go", loseTheSurface},
    {"raises an error", raise},
    {"closes the window", closeTheSurface},
};

const NamedDeed& deedOf(std::size_t kind) {
  return kind < std::size(kDeeds) ? kDeeds[kind] : stackDeeds()[kind - std::size(kDeeds)];
}

void prepareDeed(Stage& stage, Numbers& numbers) {
  const std::size_t kinds =
      std::size(kDeeds) + (stage.game() == Game::Stack ? stackDeeds().size() : std::size_t{0});
  const Deed deed{numbers.below(kinds), static_cast<std::uint32_t>(numbers.below(6)), numbers.next() % 1000};
  stage.note("the listener, after ", deed.events, " more events, ", deedOf(deed.kind).name, " (", deed.number,
             ")");
  stage.audience().prepare(deed);
}

void listenToRow(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const std::int32_t position = stage.items().GetIndexOf(Variant(parameter));
  stage.note("the listener listens to row(", position, ") too");
  stage.audience().leansOver(*stage.panel(), parameter->Control(), position);
}

}  // namespace

void doDeed(Stage& stage, const Deed& deed, QRNDisplay* panel, std::int32_t index) {
  const NamedDeed& what = deedOf(deed.kind);
  const Scene scene{stage, panel ? panel : stage.panel(), index, deed.number};
  if (!scene.its && what.needs == Needs::Panel) return;
  stage.note("    in an event of ", index, " the listener ", what.name);
  // A listener keeps the errors that it meets to itself, and raises those that it means to raise.
  if (what.act == raise) raise(scene);
  ignoringErrors([&] { what.act(scene); });
}

void addMeddling(Actions& to) {
  to.push_back({"PrepareDeed", 50, Actor::Host, prepareDeed});
  to.push_back({"ListenToRow", 12, Actor::Host, listenToRow});
}

}  // namespace qrn::monkey
