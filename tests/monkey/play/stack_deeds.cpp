#include "deeds.h"

namespace qrn::monkey {
namespace {

QRNDisplayStack& stackOf(const Scene& at) { return *at.stage.stack(); }
std::int32_t anyPage(const Scene& at) {
  return static_cast<std::int32_t>(at.number) % (stackOf(at).Count() + 1);
}

void addAPage(const Scene& at) {
  if (stackOf(at).Count() < PageBook::kMost) stackOf(at).AddPage("", "Another", false);
}
void addADialog(const Scene& at) {
  if (stackOf(at).Count() < PageBook::kMost) stackOf(at).AddPage("", "Sure?", true);
}
void goBack(const Scene& at) { stackOf(at).ActivatePage(anyPage(at)); }
void closeTheTop(const Scene& at) { stackOf(at).ActivatePage(stackOf(at).Count() - 1); }
void closeAll(const Scene& at) { stackOf(at).ActivatePage(0); }
void changeTheIndents(const Scene& at) {
  stackOf(at).SetLeftIndent(static_cast<std::int32_t>(at.number) % 40);
  if (at.stage.stack()) stackOf(at).SetTopIndent(static_cast<std::int32_t>(at.number) % 30);
}
void resizeTheStack(const Scene& at) { stackOf(at).Move(0, 0, 100 + at.number % 400, 300); }
void disableTheStack(const Scene& at) { stackOf(at).SetEnabled(at.number % 2 == 1); }
void toggleHiding(const Scene& at) { stackOf(at).SetHideDisabledControls(at.number % 2 == 1); }

constexpr NamedDeed kDeeds[] = {
    {"adds a page", addAPage, Needs::Surface},
    {"adds a modal page", addADialog, Needs::Surface},
    {"goes back to a page", goBack, Needs::Surface},
    {"closes the top page", closeTheTop, Needs::Surface},
    {"closes all pages", closeAll, Needs::Surface},
    {"changes the indents", changeTheIndents, Needs::Surface},
    {"resizes the stack", resizeTheStack, Needs::Surface},
    {"disables or enables the stack", disableTheStack, Needs::Surface},
    {"hides covered items from now on, or not", toggleHiding, Needs::Surface},
};

}  // namespace

std::span<const NamedDeed> stackDeeds() { return kDeeds; }

}  // namespace qrn::monkey
