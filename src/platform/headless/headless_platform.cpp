#include "platform/headless/headless_platform.h"

#include "base/text.h"
#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "host/control.h"
#include "host/list_box.h"
#include "host/popup_menu.h"
#include "host/text_box.h"
#include "host/v_scroll_bar.h"

namespace qrn::headless {

double FixedMetrics::advance(std::string_view text) {
  ++measured;
  return characterWidth * static_cast<double>(text::length(text));
}

void HeadlessPeer::accessibleChanged(host::Control& control, host::Aspect aspect) {
  toldTools.emplace_back(control.Name(), aspect);
}

std::unique_ptr<host::Peer> HeadlessPlatform::realise(host::Control& control) {
  if (control.peerPolicy() == host::PeerPolicy::Never) return nullptr;
  return std::make_unique<HeadlessPeer>(peers_);
}

host::FontMetrics& HeadlessPlatform::metrics(const host::Font& font) {
  for (auto& [known, metrics] : metrics_) {
    if (known == font) return *metrics;
  }
  auto added = std::make_unique<FixedMetrics>();
  added->characterWidth = model_.characterWidth;
  added->textHeight = model_.textHeight;
  return *metrics_.emplace_back(font, std::move(added)).second;
}

void HeadlessPlatform::setTextSize(double characterWidth, double height) {
  model_.characterWidth = characterWidth;
  model_.textHeight = height;
  for (auto& [font, metrics] : metrics_) {
    metrics->characterWidth = characterWidth;
    metrics->textHeight = height;
  }
}

int HeadlessPlatform::measuredTexts() const {
  int sum = 0;
  for (const auto& [font, metrics] : metrics_) sum += metrics->measured;
  return sum;
}

std::optional<int> HeadlessPlatform::popUp(host::PopupMenu& menu, Point screen) {
  ShownMenu shown{screen, {}};
  for (int i = 0; i < menu.size(); ++i) {
    if (const auto entry = menu.entry(i); entry && entry->Visible())
      shown.captions.push_back(entry->Caption());
  }
  menus_.push_back(std::move(shown));
  if (choices_.empty()) return std::nullopt;
  const auto choice = choices_.front();
  choices_.pop_front();
  const auto chosen = choice ? menu.entry(*choice) : nullptr;
  return chosen && chosen->Visible() && chosen->Enabled() ? choice : std::nullopt;
}

host::Color HeadlessPlatform::system(host::SystemColor which) const {
  using enum host::SystemColor;
  switch (which) {
    case WindowBackground:
    case ButtonHighlight:
    case HighlightText:
    case ActiveCaptionText: return host::rgb(255, 255, 255);
    case ButtonFace: return host::rgb(240, 240, 240);
    case ButtonShadow:
    case InactiveCaption: return host::rgb(160, 160, 160);
    case GrayText: return host::rgb(109, 109, 109);
    case Highlight:
    case ActiveCaption: return host::rgb(0, 120, 215);
    default: return host::rgb(0, 0, 0);
  }
}

void HeadlessPlatform::paintControl(host::Surface& surface, const host::Control& control) {
  std::string state;
  if (const auto* box = dynamic_cast<const host::TextBox*>(&control)) {
    state = '"' + box->shownText() + '"';
  } else if (const auto* check = dynamic_cast<const host::CheckBox*>(&control)) {
    state = check->Value() ? "ticked" : "blank";
  } else if (const auto* combo = dynamic_cast<const host::ComboBox*>(&control)) {
    state = '"' + combo->Text() + '"';
  } else if (const auto* list = dynamic_cast<const host::ListBox*>(&control)) {
    for (int i = 0; i < list->ListCount(); ++i) state += list->Selected(i) ? '1' : '0';
  } else if (const auto* button = dynamic_cast<const host::CommandButton*>(&control)) {
    state = '"' + button->Caption() + '"';
  } else if (const auto* bar = dynamic_cast<const host::VScrollBar*>(&control)) {
    state = std::to_string(bar->Value()) + "/" + std::to_string(bar->Max());
  }
  const Size size = control.pixelSize();
  static_cast<RecordingSurface&>(surface).record(control.typeName(), {0, 0, size.width, size.height}, state);
}

std::shared_ptr<host::AutomationObject> HeadlessPlatform::createObject(std::string_view progId) {
  const auto found = objects_.find(progId);
  return found == objects_.end() ? nullptr : found->second();
}

}  // namespace qrn::headless
