#include "actions.h"

namespace qrn::monkey {

const Actions& actions(Game game) {
  static const Actions ofPanel = [] {
    Actions made;
    for (const auto add : {addItemCalls, addRowCalls, addValueCalls, addPanelCalls, addFooterCalls,
                           addMouseActions, addKeyActions, addMeddling})
      add(made);
    return made;
  }();
  // Whatever can be done to a panel can be done to a page.
  static const Actions ofStack = [] {
    Actions made = ofPanel;
    addStackCalls(made);
    return made;
  }();
  return game == Game::Stack ? ofStack : ofPanel;
}

}  // namespace qrn::monkey
