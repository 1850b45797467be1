#pragma once

#include <cstdint>
#include <optional>
#include <string>

#include "hooks/clsSubClass.h"
#include "host/rich_text_box.h"
#include "host/user_control.h"

namespace qrn {

/// Help in formatted text, in a rich text box that fills the control. Whoever shows one decides where it
/// lies and when it goes; in a container it is hidden until then.
class QRNToolTip final : public host::UserControl {
 public:
  std::string_view typeName() const override { return "QRNToolTip"; }
  const host::ClassTable& classTable() const override;

  /// The host's own: what the help is about.
  const Variant& RelatedControl() const { return relatedControl_; }
  void SetRelatedControl(const Variant& related) { relatedControl_ = related; }
  /// The box itself, for all that has no name of its own here.
  host::RichTextBox& RichTextControl() { return rtfInfo_; }

  /// All of it without formats; setting it removes them.
  std::string Text() const { return rtfInfo_.Text(); }
  void SetText(const std::string& text) { rtfInfo_.SetText(text); }
  /// All of it as RTF. What is no RTF is taken as plain text.
  std::string TextRTF() const { return rtfInfo_.TextRTF(); }
  void SetTextRTF(const std::string& rtf) { rtfInfo_.SetTextRTF(rtf); }

  // What is selected in the box; null where that differs. Errors as of the box.
  /// Of what is selected, as the Font and Paragraph properties below: Null where that differs. Errors: 13 for
  /// a value of a wrong type, 94 for Null, 380 for one beyond the limits.
  Variant FontName() const { return rtfInfo_.SelFontName(); }
  void SetFontName(const Variant& name) { rtfInfo_.SetSelFontName(name); }
  /// In points, kept in halves.
  Variant FontSize() const { return rtfInfo_.SelFontSize(); }
  void SetFontSize(const Variant& points) { rtfInfo_.SetSelFontSize(points); }
  /// Whether what is selected is bold.
  Variant FontBold() const { return rtfInfo_.SelBold(); }
  void SetFontBold(const Variant& bold) { rtfInfo_.SetSelBold(bold); }
  /// Whether it is italic.
  Variant FontItalic() const { return rtfInfo_.SelItalic(); }
  void SetFontItalic(const Variant& italic) { rtfInfo_.SetSelItalic(italic); }
  /// Whether it is underlined.
  Variant FontUnderline() const { return rtfInfo_.SelUnderline(); }
  void SetFontUnderline(const Variant& underline) { rtfInfo_.SetSelUnderline(underline); }
  /// Whether it is struck through.
  Variant FontStrikethru() const { return rtfInfo_.SelStrikeThru(); }
  void SetFontStrikethru(const Variant& strikeThrough) { rtfInfo_.SetSelStrikeThru(strikeThrough); }
  /// Above the line, or below it if negative; kept in half points.
  Variant FontCharOffset() const { return rtfInfo_.SelCharOffset(); }
  void SetFontCharOffset(const Variant& offset) { rtfInfo_.SetSelCharOffset(offset); }
  /// Of the letters; the system's text colour takes away one that they have of their own.
  Variant FontColor() const { return rtfInfo_.SelColor(); }
  void SetFontColor(const Variant& color) { rtfInfo_.SetSelColor(color); }
  /// 0 left, 1 right, 2 centre.
  Variant ParagraphAlignment() const { return rtfInfo_.SelAlignment(); }
  void SetParagraphAlignment(const Variant& alignment) { rtfInfo_.SetSelAlignment(alignment); }
  /// Of a paragraph's first line, in pixels.
  Variant ParagraphIndent() const { return rtfInfo_.SelIndent(); }
  void SetParagraphIndent(const Variant& indent) { rtfInfo_.SetSelIndent(indent); }
  /// Of its other lines, from where the first one starts.
  Variant ParagraphHangingIndent() const { return rtfInfo_.SelHangingIndent(); }
  void SetParagraphHangingIndent(const Variant& indent) { rtfInfo_.SetSelHangingIndent(indent); }
  /// Of all its lines.
  Variant ParagraphRightIndent() const { return rtfInfo_.SelRightIndent(); }
  void SetParagraphRightIndent(const Variant& indent) { rtfInfo_.SetSelRightIndent(indent); }
  /// Whether a bullet stands before the paragraph.
  Variant ParagraphBullet() const { return rtfInfo_.SelBullet(); }
  void SetParagraphBullet(const Variant& bullet) { rtfInfo_.SetSelBullet(bullet); }

  /// Whether the text is to be seen; it becomes True when the tip is shown. Run time only. Errors: 394 when
  /// read and 383 when set at design time.
  bool Redraw() const;
  void SetRedraw(bool redraw);

  /// A file of code page 1252, with U+FFFD for the bytes that this does not use; empty for one that can't be
  /// read.
  std::string GetFileAsString(const std::string& FileName) const;
  /// Puts a value in the place of a variable, wherever it stands in the RTF. Both are plain text.
  void RTFReplace(std::string& aRichText, const std::string& aVariable, const std::string& aValue) const;
  /// Inserts plain text, in the format of what is in front of it; at the end if no position is given.
  void AddText(const std::string& Str, const std::optional<std::int32_t>& InsertPos = {});

  /// The user has gone to another application while the tip is shown.
  Event<> AppLostFocus;
  /// The user has pressed Escape.
  Event<> TTClose;

  // For whoever shows the tip and may remove it now: raised when all the others have heard, or failed.
  Event<> afterAppLostFocus;
  Event<> afterTTClose;

  /// The box, or the control itself while the box is hidden.
  host::Control* focusTarget() override;
  void keyDown(std::int16_t& keyCode, std::int16_t& shift) override;
  /// Tools read the help as one text.
  void tellFactsOf(const host::Control& inside, host::AccessibleFacts& facts) const override;
  void childKeyDown(host::Control&, std::int16_t& keyCode, std::int16_t& shift) override {
    keyDown(keyCode, shift);
  }

 protected:
  void initialize() override;
  void placed() override;
  void resize() override { rtfInfo_.Move(0, 0, ScaleWidth(), ScaleHeight()); }
  void show() override;
  void hide() override { watch_.reset(); }
  void terminate() override { watch_.reset(); }

 private:
  struct ApplicationWatch {
    clsSubClass application;
    Connection left;
  };

  void showBox(bool shown);
  void tell(Event<>& event, std::string_view name, const Event<>& after);

  host::RichTextBox rtfInfo_;
  Variant relatedControl_;
  std::unique_ptr<ApplicationWatch> watch_;  // while the control is shown
  bool redraw_ = false;
};

}  // namespace qrn
