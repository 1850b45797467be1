#pragma once

#include <cstdint>
#include <memory>
#include <string>

#include "enums/enumerations.h"
#include "host/text_box.h"
#include "values/QRNBitList.h"
#include "values/QRNCheck.h"
#include "values/QRNDropList.h"

namespace qrn {

/// The editor of a row. It becomes a control when somebody looks at it, since most rows of a large panel are
/// never seen; until then what it would show is kept here. Only a bit list, whose entries decide how high the
/// row is, has to be made at once.
class ValueEditor {
 public:
  enum class Kind : std::uint8_t { None, TextBox, Check, DropList, BitList, Array };

  static Kind kindFor(qrnValueType type);

  Kind kind() const { return kind_; }
  /// There is something to enter a value in, be it a control already or not.
  bool exists() const { return kind_ != Kind::None && kind_ != Kind::Array; }

  /// An empty one of a kind, where there is none. There is none either whose class is not known.
  void begin(Kind kind);
  /// Answers the control, which goes with it; null if there is none yet.
  host::Owned<host::Control> end();
  /// Makes the control in the row, with its content and colour. Errors: 429 when the class is not known any
  /// more.
  void make(host::UserControl& row);

  /// The control of the row, null until it has been made: the text box itself, or the user control around the
  /// others.
  host::Control* frame() const { return control_.get(); }
  /// In which the value is entered.
  host::Editor* inner() const;
  host::TextBox* textBox() const { return made<host::TextBox>(Kind::TextBox); }
  QRNCheck* check() const { return made<QRNCheck>(Kind::Check); }
  QRNDropList* dropList() const { return made<QRNDropList>(Kind::DropList); }
  QRNBitList* bitList() const { return made<QRNBitList>(Kind::BitList); }
  CompositeEditor* composite() const {
    return kind_ == Kind::TextBox ? nullptr : static_cast<CompositeEditor*>(control_.get());
  }

  // ---- what it shows ----
  /// Of a text box.
  const std::string& text() const { return textBox() ? textBox()->Text() : text_; }
  void setText(std::string_view text);
  /// Of a check box: 0 or 1.
  std::int16_t ticked() const { return check() ? check()->Check().Value() : ticked_; }
  void setTicked(std::int16_t ticked);
  /// The entries of a drop list or bit list; null for the others.
  host::ListEntries* list() const;
  /// Nothing entered, ticked or chosen.
  void empty();

  host::Color foreColor() const { return inner() ? inner()->ForeColor() : foreColor_; }
  void setForeColor(host::Color color);

 private:
  // Of a drop list that is no control yet.
  struct Entries final : host::ListEntries {
    std::string_view listName() const override { return "ComboBox"; }
  };

  template <class T>
  T* made(Kind kind) const {
    return kind_ == kind ? static_cast<T*>(control_.get()) : nullptr;
  }

  host::Owned<host::Control> control_;
  std::string text_;
  std::unique_ptr<Entries> entries_;
  host::Color foreColor_ = host::kWindowText;
  std::int16_t ticked_ = 0;
  Kind kind_ = Kind::None;
};

}  // namespace qrn
