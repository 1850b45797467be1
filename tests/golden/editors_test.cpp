#include "golden/golden_sheet.h"

namespace qrn::golden {
namespace {

constexpr int kRowWidth = 184;

struct Kind {
  const char* name;
  qrnValueType type;
  int height;
  void (*fill)(QRNEdit&);
};

void fillEntries(QRNEdit& row) {
  std::int32_t i = 0;
  for (const char* name : {"low", "high", "both"}) {
    row.SetValueNames(i, name);
    row.SetValueItems(i, 1 << i);
    ++i;
  }
}

const Kind kKinds[] = {
    {"text", qrnTypeString, 28, [](QRNEdit& row) { row.SetValue("PT-101"); }},
    {"number", qrnTypeDouble, 28,
     [](QRNEdit& row) {
       row.SetValueAlignment(host::kAlignRight);
       row.SetValue(12.5);
     }},
    {"check", qrnTypeBoolean, 28, [](QRNEdit& row) { row.SetValue(true); }},
    {"drop list", qrnTypeList, 28,
     [](QRNEdit& row) {
       fillEntries(row);
       row.SetValue(2);
     }},
    {"bit list", qrnTypeBitfield, 64,
     [](QRNEdit& row) {
       fillEntries(row);
       row.SetValue("010");
     }},
    {"password", qrnTypeString, 28,
     [](QRNEdit& row) {
       row.SetPassword(true);
       row.SetValue("secret");
     }},
};

struct EditorState {
  const char* name;
  void (*apply)(ShownPanel&, clsQRNParam&);
};

const EditorState kEditorStates[] = {
    {"normal", [](ShownPanel&, clsQRNParam&) {}},
    {"focused", [](ShownPanel& shown, clsQRNParam&) { shown.focusByKeyboard(); }},
    {"locked", [](ShownPanel&, clsQRNParam& item) { item.SetParamState(qrnStateReadOnly); }},
    {"disabled", [](ShownPanel&, clsQRNParam& item) { item.Control().SetEnabled(false); }},
    {"in error", [](ShownPanel&, clsQRNParam& item) { item.SetParamState(qrnStateError); }},
};

QImage pictureOfEditor(const Kind& kind, const EditorState& state) {
  ShownPanel shown(kRowWidth, kind.height);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(qrnEdgeNone);
  panel.SetTitleStyle(qrnTitleNone);
  panel.SetLeftMargin(0);
  panel.SetRightMargin(0);
  panel.SetTopMargin(2);
  panel.SetBottomMargin(0);
  const std::shared_ptr<clsQRNParam> item = panel.Items().AddParameter("", kind.type);
  QRNEdit& row = item->Control();
  row.SetLabelText("Tag");
  row.SetUnitText("bar");
  kind.fill(row);
  shown.picture();
  panel.SetColumnLayout(0, 1, 0, 0);
  state.apply(shown, *item);
  return shown.picture();
}

Sheet editors() {
  QStringList states;
  for (const EditorState& state : kEditorStates) states.append(state.name);
  Sheet sheet(states, kRowWidth);
  for (const Kind& kind : kKinds) {
    QList<QImage> row;
    for (const EditorState& state : kEditorStates) row.append(pictureOfEditor(kind, state));
    sheet.addRow(kind.name, row, kind.height);
  }
  return sheet;
}

class EditorSheet : public GoldenSheet {};

TEST_P(EditorSheet, KindsAndStates) { compareSheet("editors", editors); }

INSTANTIATE_TEST_SUITE_P(All, EditorSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
