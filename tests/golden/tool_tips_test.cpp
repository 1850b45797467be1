#include "golden/golden_sheet.h"
#include "host/control_ref.h"
#include "tooltip/QRNToolTip.h"

namespace qrn::golden {
namespace {

constexpr int kWidth = 700;
constexpr int kHeight = 170;

constexpr const char* kHelp = R"({\rtf1\ansi\deff0{\fonttbl{\f0 DejaVu Sans;}}
{\colortbl ;\red200\green0\blue0;}\fs18
\b Damping\b0  smooths the output.\par
\pard{\*\pn\pnlvlblt}\li300\fi-300 \i short\i0  times follow a jump at once\par
{\pntext\'b7\tab}\cf1 long times hide it\cf0 \par
})";

void fill(QRNDisplay& panel) {
  for (const char* label : {"Damping", "Lower limit", "Upper limit", "Zero", "Gain"}) {
    QRNEdit& row = panel.Items().AddParameter("", qrnTypeDouble)->Control();
    row.SetLabelText(label);
    row.SetUnitText("bar");
    row.SetValue(12.5);
  }
  panel.LayoutControls(false);
}

enum class Beside : std::uint8_t { Row, Unit };

QImage pictureOf(std::int32_t position, Beside beside, float lines) {
  ShownPanel shown(kWidth, kHeight);
  QRNDisplay& panel = shown.panel();
  panel.SetTitle("Device");
  shown.picture();  // laid out in its size
  fill(panel);
  QRNEdit& row = std::dynamic_pointer_cast<clsQRNParam>(panel.Items().Item(Variant(position)))->Control();
  const Variant related = beside == Beside::Row ? Variant(position) : host::referenceTo(row.lblUnit());
  panel.DisplayToolTip(related, lines)->SetTextRTF(kHelp);
  return shown.picture();
}

Sheet toolTips() {
  Sheet sheet({"beside a row or its unit, as tall as it needs to be or too tall for the panel"}, kWidth);
  const auto add = [&](const char* name, std::int32_t position, Beside beside, float lines) {
    sheet.addRow(name, {pictureOf(position, beside, lines)}, kHeight);
  };
  add("top left", 1, Beside::Row, 3);
  add("top right", 1, Beside::Unit, 3);
  add("low left", 5, Beside::Row, 3);
  add("low right", 5, Beside::Unit, 3);
  add("tall", 2, Beside::Unit, 30);
  add("tall, low", 4, Beside::Row, 30);
  return sheet;
}

class ToolTipSheet : public GoldenSheet {};

TEST_P(ToolTipSheet, PlacesInsideThePanel) { compareSheet("tool_tips", toolTips); }

INSTANTIATE_TEST_SUITE_P(All, ToolTipSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
