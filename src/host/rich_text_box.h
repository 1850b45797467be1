#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "host/editor.h"
#include "host/rich_text_layout.h"
#include "runtime/variant.h"

namespace qrn::host {

/// Formatted text in paragraphs. It paints itself and has no native widget; the user can scroll what is
/// taller than the box, with the wheel or the keys. Whatever `Locked` says, the user can not change it yet.
///
/// Positions and lengths count code points of `Text`, in which a paragraph end is two: "\r\n". A position
/// inside one means the place before it, one behind the end means the end.
class RichTextBox final : public Editor {
 public:
  static constexpr double kMargin = 4;  // pixels around the text

  std::string_view typeName() const override { return "RichTextBox"; }

  std::string Text() const { return document_.text(); }
  /// In the font of the box, without any other format.
  void SetText(std::string_view text);
  std::string TextRTF() const;
  /// What is no RTF is taken as plain text.
  void SetTextRTF(std::string_view rtf);
  bool Locked() const { return locked_; }
  void SetLocked(bool locked) { change(locked_, locked, Aspect::Enabled); }

  /// A thin line around the box.
  bool bordered() const { return bordered_; }
  void setBordered(bool bordered) { change(bordered_, bordered, Aspect::Look); }

  // ---- the selection; errors: 380 for a negative position or length ----

  std::int32_t SelStart() const { return static_cast<std::int32_t>(selection_.start); }
  /// Selects nothing there.
  void SetSelStart(std::int32_t start);
  std::int32_t SelLength() const { return static_cast<std::int32_t>(selection_.length); }
  void SetSelLength(std::int32_t length);
  std::string SelText() const { return document_.part(selection_).text(); }
  /// Replaces the selection, in its format; the insertion point is behind the new text then.
  void SetSelText(std::string_view text);
  std::string SelRTF() const;
  void SetSelRTF(std::string_view rtf);

  // ---- its formats ----
  // Null where what is selected differs. At an insertion point they are those of what will be inserted there,
  // until the selection is set again. Lengths are in the scale units of the holder. Errors: 13 for a value of
  // a type that makes no sense, 94 for Null, 380 for one beyond the limits.

  Variant SelFontName() const;
  void SetSelFontName(const Variant& name);
  /// In points; kept in halves.
  Variant SelFontSize() const;
  void SetSelFontSize(const Variant& points);
  Variant SelBold() const;
  void SetSelBold(const Variant& bold);
  Variant SelItalic() const;
  void SetSelItalic(const Variant& italic);
  Variant SelUnderline() const;
  void SetSelUnderline(const Variant& underline);
  Variant SelStrikeThru() const;
  void SetSelStrikeThru(const Variant& strikeThrough);
  /// Above the line, or below it if negative; kept in half points.
  Variant SelCharOffset() const;
  void SetSelCharOffset(const Variant& offset);
  /// The colour of the box for text that has none of its own; the system's text colour takes it away.
  Variant SelColor() const;
  void SetSelColor(const Variant& color);
  /// Of kAlignLeft, kAlignRight and kAlignCentre.
  Variant SelAlignment() const;
  void SetSelAlignment(const Variant& alignment);
  /// Of a paragraph's first line.
  Variant SelIndent() const;
  void SetSelIndent(const Variant& indent);
  /// Of its other lines, from where the first one starts.
  Variant SelHangingIndent() const;
  void SetSelHangingIndent(const Variant& indent);
  Variant SelRightIndent() const;
  void SetSelRightIndent(const Variant& indent);
  Variant SelBullet() const;
  void SetSelBullet(const Variant& bullet);

  // ---- scrolling, in pixels ----

  double scrolledBy() const;
  /// As far as there is text.
  void scrollTo(double offset);
  bool wheel(double notches) override;
  bool userKeyed(std::int16_t keyCode, std::int16_t shift) override;

  PeerPolicy peerPolicy() const override { return PeerPolicy::Never; }
  void paint(Surface& surface, Size size) override;
  std::intptr_t windowMessage(const Message& message) override;

 protected:
  void placed() override { forgetMeasures(); }
  void forgetMeasures() override;

 private:
  richtext::CharFormat ownFormat() const;
  host::Font fontOf(const richtext::CharFormat& format) const;
  Color colorOf(const richtext::CharFormat& format) const;
  void show(richtext::Document document);
  void replaceSelection(const richtext::Document& by);
  void documentChanged();
  const richtext::CharFormat& insertedFormat() const;
  template <class T, class Shown>
  Variant common(T richtext::CharFormat::*field, Shown&& shown) const;
  template <class T, class Shown>
  Variant common(T richtext::ParagraphFormat::*field, Shown&& shown) const;
  template <class T>
  void format(T richtext::CharFormat::*field, const T& value);
  template <class T>
  void format(T richtext::ParagraphFormat::*field, const T& value);
  Variant commonIndent(std::int32_t richtext::ParagraphFormat::*field) const;
  void formatIndent(std::int32_t richtext::ParagraphFormat::*field, const Variant& indent);
  [[noreturn]] void refuse() const;

  const RichTextLayout& layout() const;
  double furthest() const;
  double lineHeight() const;
  void paintText(Surface& surface, Size size);
  void paintThumb(Surface& surface, Size size);

  richtext::Document document_;
  richtext::Range selection_;
  std::optional<richtext::CharFormat> inserted_;  // chosen for what comes to the insertion point
  mutable std::optional<RichTextLayout> layout_;
  double scrolledBy_ = 0;
  bool locked_ = false;
  bool bordered_ = false;
};

}  // namespace qrn::host
