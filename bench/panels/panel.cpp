#include "panels/panel.h"

#include "panels/shown_data.h"

namespace qrn::bench {
namespace {

qrnValueType typeOf(int row) {
  switch (kindOf(row)) {
    case Kind::Number: return qrnTypeDouble;
    case Kind::Choice: return qrnTypeList;
    case Kind::Flag: return qrnTypeBoolean;
    default: return qrnTypeHexadecimal;
  }
}

Variant valueOf(int row, int generation) {
  switch (kindOf(row)) {
    case Kind::Number: return numberOf(row, generation);
    case Kind::Choice: return static_cast<std::int32_t>(choiceOf(row, generation));
    case Kind::Flag: return flagOf(row, generation);
    default: return static_cast<std::int32_t>(hexadecimalOf(row, generation));
  }
}

const host::PicturePtr& disc() {
  static const host::PicturePtr made = std::make_shared<host::Picture>(
      std::vector<host::Picture::Bitmap>{{kIconSize, kIconSize, iconPixels(Icon::Disc)}});
  return made;
}

}  // namespace

Panel::Panel(host::Site& site, const FormOptions& options) : display_(host::create<QRNDisplay>(site)) {
  display_->SetTallContent(true);
  display_->SetTitle("Form");
  display_->Move(0, 0, 800, 600);
  display_->SetColumnLayout(0, 1, 0, 0);
  connections_.push_back(display_->ParameterChange.connect([this](std::int32_t&) { ++changes; }));
  connections_.push_back(display_->ParameterStatusChange.connect([this](std::int32_t&) { ++changes; }));
  items_.reserve(static_cast<std::size_t>(options.rows));
  for (int row = 0; row < options.rows; ++row) addRow(row, options.dynamic);
  display_->LayoutControls(false);
}

void Panel::addRow(int row, bool dynamic) {
  auto item = display_->Items().AddParameter("parameter" + std::to_string(row), typeOf(row));
  QRNEdit& control = item->Control();
  control.SetLabelText(captionOf(row));
  control.SetUnitText(unitOf(row));
  control.SetIcon1Column(3);
  control.SetIcon1Picture(disc());
  if (kindOf(row) == Kind::Number) control.SetValueFormat("0.000");
  if (kindOf(row) == Kind::Choice) {
    for (int i = 0; i < kChoiceCount; ++i) {
      control.SetValueNames(i, kChoices[i]);
      control.SetValueItems(i, i);
    }
  }
  item->SetParamState(dynamic ? qrnStateDynamic : row / 4 % 2 == 0 ? qrnStateInitValue : qrnStateNeeded);
  item->SetParamValue(valueOf(row, 0));
  items_.push_back(std::move(item));
}

void Panel::setCaption(int row, const std::string& caption) {
  items_[static_cast<std::size_t>(row)]->Control().SetLabelText(caption);
  display_->LayoutControls(true);
}

void Panel::write(int row, int generation) {
  items_[static_cast<std::size_t>(row)]->SetParamValue(valueOf(row, generation));
}

}  // namespace qrn::bench
