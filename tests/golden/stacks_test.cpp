#include "golden/golden_sheet.h"

namespace qrn::golden {
namespace {

constexpr int kWidth = 400;
constexpr int kHeight = 300;

QRNDisplay& addPage(QRNDisplayStack& stack, const std::string& title, bool modal = false) {
  QRNDisplay& page = *stack.AddPage("", title, modal);
  // More than there is room for on the first page: what is covered may have a scroll bar.
  for (int i = stack.Count() == 1 ? 9 : 1; i >= 0; --i) {
    QRNEdit& row = page.Items().AddParameter("", qrnTypeDouble)->Control();
    row.SetLabelText("Damping " + std::to_string(i));
    row.SetUnitText("s");
    row.SetValue(12.5);
  }
  page.Items().AddAction("", ddtypeMethod)->Control().SetCaption("Self test");
  page.LayoutControls(false);
  return page;
}

void addCascade(QRNDisplayStack& stack) {
  for (const char* title : {"Device", "Basic setup", "Sensor", "Limits"}) addPage(stack, title);
}

void addQuestion(QRNDisplayStack& stack) {
  addPage(stack, "Device");
  addPage(stack, "Basic setup");
  QRNDisplay& question = addPage(stack, "Write to the device?", true);
  question.Buttons().AddButton("", "&Yes");
  question.Buttons().AddButton("", "&No");
}

struct Scene {
  const char* name;
  void (*set)(QRNDisplayStack&);
};

const Scene kScenes[] = {
    {"cascade", addCascade},
    {"dialog", addQuestion},
    {"maximised",
     [](QRNDisplayStack& stack) {
       addCascade(stack);
       QRNDisplay& top = stack.Pages(Variant(4));
       press(top.imgMaxRst());
       release(top.imgMaxRst());
       hover(top.lblTitle());
     }},
    {"gone back",
     [](QRNDisplayStack& stack) {
       addQuestion(stack);
       stack.ActivatePage(2);
     }},
};

enum class Covered : std::uint8_t { Empty, WithItems };

QImage pictureOf(const Scene& scene, Covered covered) {
  ShownStack shown(kWidth, kHeight);
  if (covered == Covered::WithItems) {
    shown.stack().SetHideDisabledControls(false);
    shown.stack().SetLeftIndent(80);
    shown.stack().SetTopIndent(40);
  }
  shown.picture();  // laid out in its size
  scene.set(shown.stack());
  return shown.picture();
}

Sheet stacks() {
  Sheet sheet({"covered pages empty", "far apart, covered pages with their items"}, kWidth);
  for (const Scene& scene : kScenes)
    sheet.addRow(scene.name, {pictureOf(scene, Covered::Empty), pictureOf(scene, Covered::WithItems)},
                 kHeight);
  return sheet;
}

class StackSheet : public GoldenSheet {};

TEST_P(StackSheet, PagesOnEachOther) { compareSheet("stacks", stacks); }

INSTANTIATE_TEST_SUITE_P(All, StackSheet, allLooks(), nameOfLook);

}  // namespace
}  // namespace qrn::golden
