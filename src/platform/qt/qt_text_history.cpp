#include "platform/qt/qt_text_history.h"

#include <utility>

namespace qrn::qt {

void TextHistory::startWith(TextState state) {
  states_.assign(1, std::move(state));
  current_ = 0;
  goesOn_ = Kind::Other;
}

void TextHistory::edited(TextState state) {
  if (state.text == states_[current_].text) return caretMoved(state.caret);
  const Kind kind = kindOf(states_[current_], state);
  const bool sameStep = kind != Kind::Other && kind == goesOn_;
  states_.resize(current_ + (sameStep ? 0 : 1));
  states_.push_back(std::move(state));
  current_ = states_.size() - 1;
  goesOn_ = kind;
}

void TextHistory::caretMoved(int caret) {
  if (std::exchange(states_[current_].caret, caret) != caret) goesOn_ = Kind::Other;
}

TextState TextHistory::undo() {
  goesOn_ = Kind::Other;
  if (canUndo()) --current_;
  return states_[current_];
}

TextState TextHistory::redo() {
  goesOn_ = Kind::Other;
  if (canRedo()) ++current_;
  return states_[current_];
}

TextHistory::Kind TextHistory::kindOf(const TextState& before, const TextState& after) {
  const auto grown = after.text.size() - before.text.size();
  if (grown > 0 && after.caret - before.caret == grown) return Kind::Typed;
  return grown < 0 && after.caret <= before.caret ? Kind::Erased : Kind::Other;
}

}  // namespace qrn::qt
