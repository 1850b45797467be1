#include "page_text.h"

#include <algorithm>
#include <ostream>
#include <string>

#include "base/text.h"

namespace qrn::eddpanel {
namespace {

std::string padded(std::string_view text, std::size_t width) {
  const std::size_t length = text::length(text);
  return std::string(text) + std::string(width - std::min(width, length), ' ');
}

std::string bitsAsText(QRNEdit& row) {
  std::string result;
  const Variant value = row.Value();
  const std::string* bits = value.get<std::string>();
  for (std::int32_t i = 0; bits && i < row.ValueCount(); ++i) {
    if ((*bits)[bits->size() - 1 - static_cast<std::size_t>(i)] != '1') continue;
    if (!result.empty()) result += ", ";
    result += row.ValueNames(i);
  }
  return "{" + result + "}";
}

std::string valueOf(QRNEdit& row) {
  switch (row.ValueType()) {
    case qrnTypeBoolean: return row.ValueText() == "True" ? "[x]" : "[ ]";
    case qrnTypeBitfield: return bitsAsText(row);
    case qrnTypeHexadecimal: return "0x" + static_cast<host::TextBox*>(row.CurrentEditor())->Text();
    default: break;
  }
  if (row.Password()) return std::string(text::length(row.ValueText()), '*');
  return row.ValueText();
}

std::string notesOf(const clsQRNParam& parameter) {
  std::string notes;
  if ((parameter.ParamState() & qrnStateReadOnly) != 0) notes += " locked";
  if ((parameter.ParamState() & qrnStateDynamic) != 0) notes += " dynamic";
  return notes;
}

}  // namespace

void printPage(std::ostream& out, MenuPage& page) {
  out << "== " << page.menu().label << " ==\n";
  std::size_t labels = 0;
  clsQRNCollection& items = page.panel().Items();
  for (std::int32_t i = 1; i <= items.Count(); ++i) {
    if (QRNEdit* row = page.row(i)) labels = std::max(labels, text::length(row->LabelText()));
  }
  for (std::int32_t i = 1; i <= items.Count(); ++i) {
    if (QRNEdit* row = page.row(i)) {
      out << "  " << padded(row->LabelText(), labels) << "  " << valueOf(*row);
      if (!row->UnitText().empty()) out << ' ' << row->UnitText();
      out << notesOf(static_cast<clsQRNParam&>(*items.Item(Variant(i)))) << '\n';
    } else {
      auto& button = static_cast<clsQRNAction&>(*items.Item(Variant(i))).Control();
      const bool isMenu = page.entry(i).kind == edd::ItemKind::Menu;
      out << (isMenu ? "  > " : "  ! ") << button.Caption() << '\n';
    }
  }
  out << ' ';
  for (const ButtonPtr& button : page.panel().Buttons())
    out << " (" << text::replaced(button->Control().Caption(), "&", "") << ')';
  out << '\n';
}

}  // namespace qrn::eddpanel
