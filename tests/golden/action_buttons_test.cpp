#include "golden/golden_sheet.h"
#include "images/built_in_pictures.h"

namespace qrn::golden {
namespace {

constexpr int kWidth = 140;
constexpr int kHeight = 48;

struct ButtonState {
  const char* name;
  void (*apply)(QRNMenuItem&);
};

const ButtonState kStates[] = {
    {"normal", [](QRNMenuItem&) {}},
    {"hovered", [](QRNMenuItem& button) { hover(button); }},
    {"pressed", [](QRNMenuItem& button) { press(button); }},
    {"focused", [](QRNMenuItem& button) { button.SetFocus(); }},
    {"wished",
     [](QRNMenuItem& button) {
       button.SetShowFocusRect(true);
       button.SetFocus();
     }},
    {"disabled", [](QRNMenuItem& button) { button.SetEnabled(false); }},
    {"shaded",
     [](QRNMenuItem& button) {
       button.SetAutoShadeIcon(true);
       button.SetEnabled(false);
     }},
    {"wrapped", [](QRNMenuItem& button) { button.SetCaption("Adjust the zero point of the sensor"); }},
    {"centred",
     [](QRNMenuItem& button) {
       button.SetCaption("Adjust the zero point");
       button.SetAlignment(host::kAlignCentre);
     }},
    {"icon right",
     [](QRNMenuItem& button) {
       button.SetAlignment(host::kAlignRight);
       button.SetIconAlignment(host::kAlignRight);
     }},
    {"border", [](QRNMenuItem& button) { button.SetBorderStyle(1); }},
    {"colours",
     [](QRNMenuItem& button) {
       button.SetBackColor(host::rgb(255, 240, 190));
       button.SetForeColor(host::rgb(120, 30, 0));
     }},
};

QImage pictureOf(const ButtonState& state, qrnButtonMode mode) {
  ShownPanel shown(kWidth, kHeight);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(qrnEdgeNone);
  panel.SetTitleStyle(qrnTitleNone);
  panel.SetLeftMargin(0);
  panel.SetTopMargin(0);
  panel.SetRightMargin(0);
  panel.SetBottomMargin(0);
  QRNMenuItem& button = panel.Items().AddAction("", ddtypeMethod)->Control();
  button.SetCaption("Zero point");
  button.SetButtonMode(mode);
  shown.picture();  // arranged when it is shown first
  button.Move(4, 4, 132, 40);
  state.apply(button);
  return shown.picture();
}

Sheet actionButtons() {
  Sheet sheet({"no button", "flat", "embossed"}, kWidth);
  for (const ButtonState& state : kStates) {
    QList<QImage> row;
    for (const qrnButtonMode mode : {qrnbuttonNone, qrnButtonFlat, qrnButtonEmbossed})
      row.append(pictureOf(state, mode));
    sheet.addRow(state.name, row, kHeight);
  }
  return sheet;
}

QImage pictureOfFooter(void (*apply)(ShownPanel&), std::int32_t alignment) {
  ShownPanel shown(400, 60);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(qrnEdgeNone);
  panel.SetTitleStyle(qrnTitleNone);
  panel.SetButtonsAlignment(alignment);
  for (const char* caption : {"&OK", "&Apply", "&Cancel"}) panel.Buttons().AddButton("", caption);
  shown.picture();
  apply(shown);
  return shown.picture();
}

Sheet footers() {
  struct FooterState {
    const char* name;
    void (*apply)(ShownPanel&);
  };
  const FooterState states[] = {
      {"normal", [](ShownPanel&) {}},
      {"focused", [](ShownPanel& shown) { shown.focusByKeyboard(); }},
      {"disabled",
       [](ShownPanel& shown) { shown.panel().Buttons().Item(Variant(2))->Control().SetEnabled(false); }},
      {"too narrow",
       [](ShownPanel& shown) { shown.panel().Buttons().AddButton("", "Write everything to the device"); }},
  };
  Sheet sheet({"left", "right", "centre"}, 400);
  for (const FooterState& state : states) {
    QList<QImage> row;
    for (const std::int32_t alignment : {0, 1, 2}) row.append(pictureOfFooter(state.apply, alignment));
    sheet.addRow(state.name, row, 60);
  }
  return sheet;
}

class ButtonSheet : public GoldenSheet {};

TEST_P(ButtonSheet, ModesAndStates) { compareSheet("action_buttons", actionButtons); }
TEST_P(ButtonSheet, Footers) { compareSheet("footers", footers); }

INSTANTIATE_TEST_SUITE_P(All, ButtonSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
