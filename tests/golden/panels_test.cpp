#include "golden/golden_sheet.h"

namespace qrn::golden {
namespace {

constexpr int kWidth = 124;
constexpr int kHeight = 44;

struct Named {
  const char* name;
  qrnEdgeType edge;
};

constexpr Named kEdges[] = {{"none", qrnEdgeNone},
                            {"simple", qrnEdgeSimple},
                            {"sunken", qrnEdgeSunken},
                            {"engraved", qrnEdgeEngraved},
                            {"border", qrnEdgeBorder}};
constexpr qrnTitleStyle kTitles[] = {qrnTitleNone, qrnTitleStandard, qrnTitleDialog};

QImage pictureOfPanel(qrnEdgeType edge, qrnTitleStyle style, bool active, const char* title) {
  ShownPanel shown(kWidth, kHeight);
  QRNDisplay& panel = shown.panel();
  panel.SetBorderStyle(edge);
  panel.SetTitleStyle(style);
  panel.SetActive(active);
  panel.SetTitle(title);
  return shown.picture();
}

QList<QImage> panelsWith(qrnEdgeType edge, const char* title) {
  QList<QImage> row;
  for (const qrnTitleStyle style : kTitles) {
    for (const bool active : {true, false}) row.append(pictureOfPanel(edge, style, active, title));
  }
  return row;
}

Sheet panels() {
  Sheet sheet({"none", "inactive", "standard", "inactive", "dialog", "inactive"}, kWidth);
  for (const auto& [name, edge] : kEdges) sheet.addRow(name, panelsWith(edge, "Device"), kHeight);
  sheet.addRow("long title", panelsWith(qrnEdgeEngraved, "Pressure transmitter"), kHeight);
  return sheet;
}

class PanelSheet : public GoldenSheet {};

TEST_P(PanelSheet, EdgesAndTitles) { compareSheet("panels", panels); }

INSTANTIATE_TEST_SUITE_P(All, PanelSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
