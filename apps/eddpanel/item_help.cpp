#include "item_help.h"

#include <algorithm>
#include <cmath>
#include <sstream>

#include "host/rich_text_box.h"
#include "richtext/rtf_writer.h"
#include "runtime/conversions.h"
#include "tooltip/QRNToolTip.h"
#include "value_mapping.h"

namespace qrn::eddpanel {
namespace {

constexpr std::int32_t kBulletIndent = 12 * richtext::kTwipsPerPoint;
constexpr double kLongestLine = 80;  // characters; no tool tip is wider

std::string rangeOf(const edd::Range& range) {
  const auto number = [](const edd::Limit& limit) { return CStr(limit.value); };
  if (range.minimum && range.maximum) return number(*range.minimum) + " … " + number(*range.maximum);
  if (range.minimum) return "≥ " + number(*range.minimum);
  return range.maximum ? "≤ " + number(*range.maximum) : "";
}

std::string rangesOf(const edd::Variable& variable) {
  std::string text;
  for (const edd::Range& range : variable.ranges) {
    const std::string one = rangeOf(range);
    if (!one.empty()) text += (text.empty() ? "" : "; ") + one;
  }
  return text.empty() || variable.unit.empty() ? text : text + ' ' + variable.unit;
}

ItemHelp helpOf(const edd::Variable& variable) {
  ItemHelp help{variable.label, variable.help, {}, {}};
  for (const edd::Enumerator& entry : variable.enumerators) {
    if (!entry.help.empty()) help.choices.push_back(entry.text + ": " + entry.help);
  }
  if (variable.type.isNumber()) help.range = rangesOf(variable);
  return help;
}

richtext::Document documentOf(const ItemHelp& help, const host::Font& font) {
  richtext::CharFormat plain;
  plain.font = font.family;
  plain.halfPoints = static_cast<std::int32_t>(std::lround(2 * font.size));
  richtext::CharFormat bold = plain;
  bold.bold = true;
  richtext::ParagraphFormat bullet;
  bullet.bullet = true;
  bullet.hangingIndent = kBulletIndent;

  std::vector<richtext::Paragraph> paragraphs;
  const auto add = [&](const std::string& text, const richtext::CharFormat& look,
                       const richtext::ParagraphFormat& format = {}) {
    if (text.empty()) return;
    const richtext::Document part = richtext::Document::plain(text, look, format);
    paragraphs.insert(paragraphs.end(), part.paragraphs().begin(), part.paragraphs().end());
  };
  add(help.caption, bold);
  add(help.text, plain);
  for (const std::string& choice : help.choices) add(choice, plain, bullet);
  add(help.range, plain);
  return richtext::Document(std::move(paragraphs));
}

// How many lines a text takes that breaks between words.
int linesOf(const std::string& text, const QRNDisplay& panel, double width) {
  const double blank = panel.TextWidth(" ");
  int lines = 1;
  double used = 0;
  std::istringstream words(text);
  for (std::string word; words >> word;) {
    const double wide = panel.TextWidth(word);
    if (used > 0 && used + blank + wide > width) {
      ++lines;
      used = 0;
    }
    used += (used > 0 ? blank : 0) + wide;
  }
  return lines;
}

int linesOf(const richtext::Document& document, QRNDisplay& panel) {
  const double margins = 2 * host::RichTextBox::kMargin;
  const double width =
      std::min(panel.ControlsContainer().Width() - margins, kLongestLine * panel.TextWidth("0"));
  int lines = 0;
  for (const richtext::Paragraph& paragraph : document.paragraphs()) {
    std::string text;
    for (const richtext::Run& run : paragraph.runs) text += run.text;
    const double indent = paragraph.format.bullet ? 2 * panel.TextWidth("00") : 0;
    lines += linesOf(text, panel, width - indent);
  }
  return lines;
}

}  // namespace

ItemHelp helpOf(const edd::Description& description, const edd::MenuItem& item) {
  switch (item.kind) {
    case edd::ItemKind::Menu: {
      const edd::Menu& menu = description.menus()[item.index];
      return {menu.label, menu.help, {}, {}};
    }
    case edd::ItemKind::Method: {
      const edd::Method& method = description.methods()[item.index];
      return {method.label, method.help, {}, {}};
    }
    default: return helpOf(description.variables()[item.index]);
  }
}

QRNToolTip* showHelp(QRNDisplay& panel, std::int32_t item, const ItemHelp& help) {
  if (help.empty()) return nullptr;
  const richtext::Document document = documentOf(help, *panel.Font());
  QRNToolTip* tip = panel.DisplayToolTip(Variant(item), static_cast<float>(linesOf(document, panel)));
  if (tip) tip->SetTextRTF(richtext::writeRtf(document));
  return tip;
}

}  // namespace qrn::eddpanel
