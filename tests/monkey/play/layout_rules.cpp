#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "display/button_row.h"
#include "rules.h"
#include "stage.h"

namespace qrn::monkey {
namespace {

constexpr double kNarrowest = 80;  // of an item, whatever the panel's width

// Stacks the items as LayoutControls has to, from what the rows say of themselves.
class Column {
 public:
  explicit Column(Stage& stage) : stage_(stage), panel_(*stage.panel()) {}

  void check() {
    widths_ = fit();
    for (const PanelItemPtr& item : panel_.Items()) {
      if (const auto action = std::dynamic_pointer_cast<clsQRNAction>(item))
        checkAction(action->Control());
      else
        checkRow(static_cast<clsQRNParam&>(*item).Control());
    }
  }

 private:
  ColumnWidths fit() const {
    ColumnFit fit(stage_.columns());
    for (const PanelItemPtr& item : panel_.Items()) {
      const auto parameter = std::dynamic_pointer_cast<clsQRNParam>(item);
      if (!parameter) continue;
      const QRNEdit& row = parameter->Control();
      fit.add({row.GetMinLabelWidth(), row.GetMinValueWidth(), row.GetMinUnitWidth()});
    }
    return fit.widths();
  }

  void checkAction(const QRNMenuItem& button) {
    if (!button.Visible()) return;
    const double height = panel_.GetMenuItemHeight();
    if (y_ > 0 && gap_ >= 1) y_ += gap_;
    expect(button, {0, y_, std::max(room() - spacing(), kNarrowest), height});
    y_ += height;
    gap_ = 0;
  }

  void checkRow(const QRNEdit& row) {
    if (!row.Visible()) return;
    const double width = std::max(room() - 2 * spacing(), kNarrowest), height = row.GetMinHeight();
    if (y_ > 0) y_ += std::max<double>(gap_, panel_.GetVerticalSpacing());
    expect(row, {spacing(), y_, width, height});
    checkColumns(row, width);
    y_ += height;
    gap_ = panel_.GetVerticalSpacing();
  }

  void checkColumns(const QRNEdit& row, double width) {
    ColumnWidths wished = widths_;
    double free = width - row.GetMinBruttoWidth();
    for (int i = 0; i < kColumns; ++i) {
      if (stage_.columns().isAutomatic(i)) free -= wished[static_cast<std::size_t>(i)];
    }
    for (std::size_t i = 0; i < kColumns; ++i) {
      if (stage_.columns().isAutomatic(static_cast<int>(i))) continue;
      const auto weight = static_cast<double>(stage_.columns().weight[i]);
      wished[i] = static_cast<std::int32_t>(std::floor(weight * std::max(free, 1.0)));
    }
    if (!row.UnitVisible()) wished[1] += wished[2];
    // A value without an editor takes no width.
    if (!row.hasEditor()) wished[1] = 0;
    const ColumnWidths has{row.LabelWidth(), row.ValueWidth(), row.UnitWidth()};
    if (has != wished)
      stage_.complain("columns are as wide as the layout makes them",
                      row.Name() + " has " + shown(has) + " instead of " + shown(wished));
  }

  void expect(const host::Control& control, const Rect& place) {
    ++tab_;
    if (control.TabIndex() != tab_)
      stage_.complain("visible items have the tab indexes 1, 2, 3 …",
                      control.Name() + " has " + std::to_string(control.TabIndex()) + " instead of " +
                          std::to_string(tab_));
    if (!(control.bounds() == place))
      stage_.complain("items lie where the layout puts them",
                      control.Name() + " lies at " + shown(control.bounds()) + " instead of " + shown(place));
  }

  double room() const {
    return std::trunc(panel_.ControlsContainer().ScaleWidth() - panel_.sbrVertical().Width());
  }
  double spacing() const { return panel_.GetHorizontalSpacing(); }

  static std::string shown(const ColumnWidths& widths) {
    return std::to_string(widths[0]) + ", " + std::to_string(widths[1]) + ", " + std::to_string(widths[2]);
  }
  static std::string shown(const Rect& place) {
    return std::to_string(place.left) + ", " + std::to_string(place.top) + ", " +
           std::to_string(place.width) + ", " + std::to_string(place.height);
  }

  Stage& stage_;
  QRNDisplay& panel_;
  ColumnWidths widths_{};
  double y_ = 0;
  double gap_ = 0;
  std::int32_t tab_ = 0;
};

}  // namespace

void checkItemsLieWhereTheyBelong(Stage& stage) {
  if (stage.panel()) Column(stage).check();
}

void checkButtonsLieWhereTheyBelong(Stage& stage) {
  QRNDisplay& panel = *stage.panel();
  clsQRNButtons& buttons = panel.Buttons();
  if (buttons.Count() == 0) return;
  std::vector<ButtonWidths> widths;
  for (const ButtonPtr& button : buttons) widths.push_back({button->MinWidth(), button->StdWidth()});
  const auto places = placeButtons(widths, buttons.Item(Variant(1))->Control().Height(),
                                   panel.ButtonsContainer().ScaleWidth(), panel.ButtonsAlignment());
  std::int32_t position = 0;
  for (const ButtonPtr& button : buttons) {
    const ButtonPlace& place = places[static_cast<std::size_t>(position++)];
    const host::CommandButton& control = button->Control();
    if (control.Left() != place.left || control.Width() != place.width || control.Top() != 0)
      stage.complain("footer buttons lie where their row puts them", control.Name());
    if (control.TabIndex() != panel.Items().Count() + position)
      stage.complain("footer buttons come behind the items", control.Name());
  }
}

}  // namespace qrn::monkey
