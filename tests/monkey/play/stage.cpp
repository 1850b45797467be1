#include "stage.h"

#include <utility>

#include "library/library.h"

namespace qrn::monkey {

Stage::Stage(Hands& hands, Notes notes) : hands_(hands), notes_(std::move(notes)) {
  registerControls();
  hands_.siteHeard = [this](std::string_view) { audience_.heardOfSite(); };
}

Stage::~Stage() { hands_.siteHeard = nullptr; }

void Stage::open(Size size, bool realised) {
  close();
  columns = {};
  panel_ = host::create<QRNDisplay>(hands_.site());
  panel_->Move(0, 0, size.width, size.height);
  audience_.sitsDown(*panel_);
  if (realised) hands_.show(*panel_);
}

void Stage::close() {
  // Nobody finds the panel here any more while it goes.
  const host::Owned<QRNDisplay> gone = std::move(panel_);
  audience_.standsUp();
}

template <class Item>
std::shared_ptr<Item> Stage::any(Numbers& numbers) {
  const auto count = static_cast<std::size_t>(items().Count());
  const std::size_t first = numbers.below(count);
  for (std::size_t i = 0; i < count; ++i) {
    const auto position = static_cast<std::int32_t>((first + i) % count) + 1;
    if (auto found = std::dynamic_pointer_cast<Item>(items().Item(Variant(position)))) return found;
  }
  return nullptr;
}

PanelItemPtr Stage::anyItem(Numbers& numbers) { return any<PanelItem>(numbers); }
std::shared_ptr<clsQRNParam> Stage::anyParameter(Numbers& numbers) { return any<clsQRNParam>(numbers); }
std::shared_ptr<clsQRNAction> Stage::anyAction(Numbers& numbers) { return any<clsQRNAction>(numbers); }

ButtonPtr Stage::anyButton(Numbers& numbers) {
  clsQRNButtons& buttons = panel_->Buttons();
  if (buttons.Count() == 0) return nullptr;
  const auto position = static_cast<std::int32_t>(numbers.below(static_cast<std::size_t>(buttons.Count())));
  return buttons.Item(Variant(position + 1));
}

void Stage::complain(std::string rule, std::string details) {
  if (!complaint_) complaint_ = Complaint{std::move(rule), std::move(details)};
}

}  // namespace qrn::monkey
