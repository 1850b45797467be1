#include "stage.h"

#include <utility>

#include "library/library.h"

namespace qrn::monkey {

Stage::Stage(Hands& hands, Game game, Notes notes) : hands_(hands), game_(game), notes_(std::move(notes)) {
  registerControls();
  hands_.siteHeard = [this](std::string_view) { audience_.heardOfSite(); };
}

Stage::~Stage() { hands_.siteHeard = nullptr; }

void Stage::open(Size size, bool realised) {
  close();
  if (game_ == Game::Stack)
    surface_ = host::create<QRNDisplayStack>(hands_.site());
  else
    surface_ = host::create<QRNDisplay>(hands_.site());
  surface_->Move(0, 0, size.width, size.height);
  if (game_ == Game::Stack)
    pages_.open(*stack());
  else
    audience_.sitsDown(*panel());
  if (realised) hands_.show(*surface_);
}

QRNDisplayStack* Stage::stack() {
  return game_ == Game::Stack ? static_cast<QRNDisplayStack*>(surface_.get()) : nullptr;
}

QRNDisplay* Stage::panel() {
  if (game_ == Game::Panel) return static_cast<QRNDisplay*>(surface_.get());
  if (!surface_ || stack()->Count() == 0) return nullptr;
  return page_ && page_->Container() ? page_.get() : &stack()->Pages(Variant(stack()->Count()));
}

std::vector<QRNDisplay*> Stage::panels() {
  if (game_ == Game::Panel) return {panel()};
  std::vector<QRNDisplay*> all;
  for (std::int32_t k = 1; k <= stack()->Count(); ++k) all.push_back(&stack()->Pages(Variant(k)));
  return all;
}

void Stage::stepBegins() {
  errorCame_ = false;
  audience_.stepBegins();
  pages_.stepBegins();
}

void Stage::close() {
  // Nobody finds it here any more while it goes.
  const host::Owned<host::UserControl> gone = std::move(surface_);
  audience_.standsUp();
  pages_.close();
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
  clsQRNButtons& buttons = panel()->Buttons();
  if (buttons.Count() == 0) return nullptr;
  const auto position = static_cast<std::int32_t>(numbers.below(static_cast<std::size_t>(buttons.Count())));
  return buttons.Item(Variant(position + 1));
}

void Stage::complain(std::string rule, std::string details) {
  if (!complaint_) complaint_ = Complaint{std::move(rule), std::move(details)};
}

}  // namespace qrn::monkey
