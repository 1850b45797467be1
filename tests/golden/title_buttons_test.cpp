#include "golden/golden_sheet.h"

namespace qrn::golden {
namespace {

constexpr int kWidth = 124;
constexpr int kHeight = 30;

struct BarState {
  const char* name;
  void (*apply)(QRNDisplay&);
};

const BarState kBarStates[] = {
    {"normal", [](QRNDisplay&) {}},
    {"hovered", [](QRNDisplay& panel) { hover(panel.imgClose()); }},
    {"", [](QRNDisplay& panel) { hover(panel.imgMaxRst()); }},
    {"pressed", [](QRNDisplay& panel) { press(panel.imgClose()); }},
    {"", [](QRNDisplay& panel) { press(panel.imgMaxRst()); }},
    {"inactive", [](QRNDisplay& panel) { panel.SetActive(false); }},
    {"no close", [](QRNDisplay& panel) { panel.SetIconCloseHidden(true); }},
    {"no max.", [](QRNDisplay& panel) { panel.SetIconMaxRstHidden(true); }},
    {"disabled", [](QRNDisplay& panel) { panel.SetEnabled(false); }},
};

QImage pictureOfBar(const BarState& state, qrnTitleStyle style, bool maximized) {
  ShownPanel shown(kWidth, kHeight);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(qrnEdgeNone);
  panel.SetTitleStyle(style);
  panel.SetTitle("Device");
  panel.SetMaximized(maximized);
  shown.picture();  // arranged when it is shown first
  state.apply(panel);
  return shown.picture();
}

Sheet titleButtons() {
  Sheet sheet({"standard", "maximised", "dialog", "maximised"}, kWidth);
  for (const BarState& state : kBarStates) {
    QList<QImage> row;
    for (const qrnTitleStyle style : {qrnTitleStandard, qrnTitleDialog}) {
      for (const bool maximized : {false, true}) row.append(pictureOfBar(state, style, maximized));
    }
    sheet.addRow(state.name, row, kHeight);
  }
  return sheet;
}

class TitleButtonSheet : public GoldenSheet {};

TEST_P(TitleButtonSheet, StatesOfTheButtons) { compareSheet("title_buttons", titleButtons); }

INSTANTIATE_TEST_SUITE_P(All, TitleButtonSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
