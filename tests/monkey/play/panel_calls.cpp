#include "actions.h"
#include "property_bags.h"
#include "rules.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

Size anySize(Numbers& numbers) {
  static const Size sizes[] = {{400, 300}, {600, 800}, {250, 120}, {90, 60}, {10, 10}, {400, 100}};
  return numbers.oneOf(sizes);
}

void openPanel(Stage& stage, Numbers& numbers) {
  const Size size = anySize(numbers);
  const bool realised = !numbers.oneIn(5);
  const std::size_t rows = numbers.below(16);
  stage.note("a new ", stage.stack() ? "stack" : "panel", " of ", size.width, " by ", size.height,
             realised ? ", realised" : ", not realised", ", with a row of each of the types 0 to ", rows,
             " - 1");
  stage.open(size, realised);
  if (stage.stack()) {
    stage.pages().willFill(static_cast<std::int32_t>(rows));
    stage.stack()->AddPage("", "First", false);
    return;
  }
  for (std::size_t i = 0; i < rows; ++i) stage.items().AddParameter("", static_cast<qrnValueType>(i));
  stage.panel()->LayoutControls(false);
}

void closePanel(Stage& stage, Numbers&) {
  stage.note(stage.stack() ? "the stack" : "the panel", " is destroyed");
  stage.close();
  const std::string left = stage.hands().leftBehind();
  if (!left.empty()) stage.complain("what goes leaves nothing behind", left);
}

void realise(Stage& stage, Numbers&) {
  stage.note("the window gets a surface");
  stage.hands().show(*stage.surface());
}

void loseSurface(Stage& stage, Numbers&) {
  stage.note("the surface goes");
  stage.hands().close();
}

void resize(Stage& stage, Numbers& numbers) {
  const Size size = anySize(numbers);
  stage.note("the window becomes ", size.width, " by ", size.height);
  stage.hands().resize(size);
}

void setLength(Stage& stage, Numbers& numbers) {
  using Set = void (QRNDisplay::*)(std::int32_t);
  static const std::pair<const char*, Set> lengths[] = {
      {"SetVerticalSpacing", &QRNDisplay::SetVerticalSpacing},
      {"SetHorizontalSpacing", &QRNDisplay::SetHorizontalSpacing},
      {"SetMenuItemHeight", &QRNDisplay::SetMenuItemHeight},
      {"SetLeftMargin", &QRNDisplay::SetLeftMargin},
      {"SetTopMargin", &QRNDisplay::SetTopMargin},
      {"SetRightMargin", &QRNDisplay::SetRightMargin},
      {"SetBottomMargin", &QRNDisplay::SetBottomMargin}};
  const auto& [name, set] = numbers.oneOf(lengths);
  const std::int32_t length = anyLength(numbers);
  stage.note(name, "(", length, ")");
  // How large a dialog is at least follows from it.
  if (set == &QRNDisplay::SetMenuItemHeight) stage.pages().hostSets(*stage.panel(), Own::Place);
  (stage.panel()->*set)(length);
}

void setFlag(Stage& stage, Numbers& numbers) {
  using Set = void (*)(QRNDisplay&, bool);
  struct Flag {
    const char* name;
    Set set;
    std::optional<Own> own = {};
  };
  static const Flag flags[] = {
      {"SetMaximized", [](QRNDisplay& one, bool on) { one.SetMaximized(on); }, Own::Place},
      {"SetActive", [](QRNDisplay& one, bool on) { one.SetActive(on); }, Own::Active},
      {"SetIconCloseHidden", [](QRNDisplay& one, bool on) { one.SetIconCloseHidden(on); }},
      {"SetIconMaxRstHidden", [](QRNDisplay& one, bool on) { one.SetIconMaxRstHidden(on); }},
      {"SetEnabled", [](QRNDisplay& one, bool on) { one.SetEnabled(on); }, Own::Enabled},
      {"SetEnabled", [](QRNDisplay& one, bool) { one.SetEnabled(true); }, Own::Enabled},
      {"SetRedraw", [](QRNDisplay& one, bool on) { one.SetRedraw(on); }},
      {"SetVisible", [](QRNDisplay& one, bool on) { one.SetVisible(on); }},
      {"SetVisible", [](QRNDisplay& one, bool) { one.SetVisible(true); }},
      {"SetTallContent", [](QRNDisplay& one, bool on) { one.SetTallContent(on); }}};
  const Flag& flag = numbers.oneOf(flags);
  const bool on = anyFlag(numbers);
  stage.note(flag.name, "(", shown(on), ")");
  if (flag.own) stage.pages().hostSets(*stage.panel(), *flag.own);
  flag.set(*stage.panel(), on);
}

void setTitle(Stage& stage, Numbers& numbers) {
  QRNDisplay& panel = *stage.panel();
  const std::string text = anyCaption(numbers);
  const auto style = static_cast<qrnTitleStyle>(numbers.below(3));
  switch (numbers.below(6)) {
    case 0: stage.note("SetTitle(", quoted(text), ")"), panel.SetTitle(text); break;
    case 1:
      stage.note("SetTitleStyle(", style, ")");
      // A page becomes a dialog by it, or none any more.
      stage.pages().hostSetsAll(Own::Enabled);
      stage.pages().hostSets(panel, Own::Place);
      panel.SetTitleStyle(style);
      break;
    case 2: stage.note("SetCloseButtonToolTip(…)"), panel.SetCloseButtonToolTip(text); break;
    case 3: stage.note("SetMaxButtonToolTip(…)"), panel.SetMaxButtonToolTip(text); break;
    case 4:
      stage.note("SetFont(…)");
      stage.pages().hostSets(panel, Own::Place);
      panel.SetFont(anyFont(numbers));
      break;
    default: {
      const auto edge = static_cast<qrnEdgeType>(numbers.below(5));
      stage.note("SetBorderStyle(", edge, ")"), panel.SetBorderStyle(edge);
    }
  }
}

void changeImages(Stage& stage, Numbers& numbers) {
  QRNDisplay& panel = *stage.panel();
  const auto id = static_cast<qrnImageId>(numbers.below(20));
  switch (numbers.below(3)) {
    case 0:
      stage.note("ImageList().SetImage(", id, ", …)");
      panel.ImageList().SetImage(id, anyPicture(numbers));
      break;
    case 1: {
      stage.note("SetImageList(a list that goes at once)");
      const auto list = host::create<QRNImageList>(stage.hands().site());
      panel.SetImageList(list.get());
      break;
    }
    default: stage.note("SetImageList(nullptr)"), panel.SetImageList(nullptr); break;
  }
}

void savePanel(Stage& stage, Numbers&) {
  stage.note("writeProperties(bag), and a new panel from it");
  checkRestored<QRNDisplay>(stage, *stage.panel());
}

void paint(Stage& stage, Numbers&) {
  stage.note("the panel is painted");
  stage.hands().paint();
}

void displayToolTip(Stage& stage, Numbers& numbers) {
  static const float estimates[] = {1, 4, 0, 100};
  const auto item = static_cast<std::int32_t>(numbers.below(10));
  const float lines = numbers.oneOf(estimates);
  stage.note("DisplayToolTip(", item, ", ", lines, ")");
  stage.panel()->DisplayToolTip(Variant(item), lines);
}

void removeToolTip(Stage& stage, Numbers& numbers) {
  const bool restoresFocus = anyFlag(numbers);
  stage.note("RemoveToolTip(", shown(restoresFocus), ")");
  stage.panel()->RemoveToolTip(restoresFocus);
}

}  // namespace

void addPanelCalls(Actions& to) {
  to.push_back({"OpenPanel", 6, Actor::Host, openPanel});
  to.push_back({"ClosePanel", 3, Actor::Host, closePanel});
  to.push_back({"Realise", 8, Actor::Host, realise});
  to.push_back({"LoseSurface", 4, Actor::Host, loseSurface});
  to.push_back({"Resize", 12, Actor::Host, resize});
  to.push_back({"SetLength", 12, Actor::Host, setLength});
  to.push_back({"SetFlag", 15, Actor::Host, setFlag});
  to.push_back({"SetTitle", 8, Actor::Host, setTitle});
  to.push_back({"ChangeImages", 6, Actor::Host, changeImages});
  to.push_back({"SavePanel", 3, Actor::Host, savePanel});
  to.push_back({"DisplayToolTip", 12, Actor::Host, displayToolTip});
  to.push_back({"RemoveToolTip", 6, Actor::Host, removeToolTip});
  to.push_back({"Paint", 12, Actor::User, paint});
}

}  // namespace qrn::monkey
