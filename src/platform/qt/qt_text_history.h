#pragma once

#include <QString>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace qrn::qt {

/// A text that is edited and where its caret is.
struct TextState {
  QString text;
  int caret = 0;
};

/// What a user did to a text, to be taken back and done again step by step. Characters typed one behind the
/// other are one step, and so are those erased in one go.
class TextHistory {
 public:
  /// Nothing of what was before can be taken back.
  void startWith(TextState state);
  void edited(TextState state);
  /// What follows is another step.
  void caretMoved(int caret);

  bool canUndo() const { return current_ > 0; }
  bool canRedo() const { return current_ + 1 < states_.size(); }
  TextState undo();
  TextState redo();

 private:
  enum class Kind : std::uint8_t { Other, Typed, Erased };
  static Kind kindOf(const TextState& before, const TextState& after);

  std::vector<TextState> states_{{}};  // the one before each step and the one after the last
  std::size_t current_ = 0;
  Kind goesOn_ = Kind::Other;  // what the last step was, while nothing has ended it
};

}  // namespace qrn::qt
