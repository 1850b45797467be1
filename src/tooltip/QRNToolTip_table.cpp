#include "host/class_table_entries.h"
#include "tooltip/QRNToolTip.h"

namespace qrn {
namespace {

// No bag keeps anything of a tool tip.
template <auto Get, auto Set>
host::Property transient(std::string_view name, std::int32_t id) {
  return host::property<Get, Set>(name, id).notifies(host::Notify::Never);
}

host::ClassTable makeTable() {
  using C = QRNToolTip;
  host::ClassTable table;
  table.name = "QRNToolTip";
  table.progId = "QRNV16Controls2.QRNToolTip";
  table.properties = {
      transient<&C::RelatedControl, &C::SetRelatedControl>("RelatedControl", 1),
      transient<&C::Text, &C::SetText>("Text", 3),
      transient<&C::TextRTF, &C::SetTextRTF>("TextRTF", 4),
      transient<&C::FontName, &C::SetFontName>("FontName", 5),
      transient<&C::FontSize, &C::SetFontSize>("FontSize", 6),
      transient<&C::FontBold, &C::SetFontBold>("FontBold", 7),
      transient<&C::FontItalic, &C::SetFontItalic>("FontItalic", 8),
      transient<&C::FontUnderline, &C::SetFontUnderline>("FontUnderline", 9),
      transient<&C::FontStrikethru, &C::SetFontStrikethru>("FontStrikethru", 10),
      transient<&C::FontCharOffset, &C::SetFontCharOffset>("FontCharOffset", 11),
      transient<&C::FontColor, &C::SetFontColor>("FontColor", 12),
      transient<&C::ParagraphAlignment, &C::SetParagraphAlignment>("ParagraphAlignment", 13),
      transient<&C::ParagraphIndent, &C::SetParagraphIndent>("ParagraphIndent", 14),
      transient<&C::ParagraphHangingIndent, &C::SetParagraphHangingIndent>("ParagraphHangingIndent", 15),
      transient<&C::ParagraphRightIndent, &C::SetParagraphRightIndent>("ParagraphRightIndent", 16),
      transient<&C::ParagraphBullet, &C::SetParagraphBullet>("ParagraphBullet", 17),
      transient<&C::Redraw, &C::SetRedraw>("Redraw", 18),
      host::readOnly<&host::Control::hwnd>("hwnd", 19),
  };
  table.methods = {"RichTextControl", "GetFileAsString", "RTFReplace", "AddText"};
  table.events = {"AppLostFocus", "TTClose"};
  return table;
}

}  // namespace

const host::ClassTable& QRNToolTip::classTable() const {
  static const host::ClassTable table = makeTable();
  return table;
}

}  // namespace qrn
