#include "actions.h"

namespace qrn::monkey {

const Actions& actions() {
  static const Actions all = [] {
    Actions made;
    for (const auto add : {addItemCalls, addRowCalls, addValueCalls, addPanelCalls, addFooterCalls,
                           addMouseActions, addKeyActions, addMeddling})
      add(made);
    return made;
  }();
  return all;
}

}  // namespace qrn::monkey
