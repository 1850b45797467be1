#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

#include "game.h"

namespace qrn::monkey {

class Numbers;
class Stage;

/// Who acts: a host may hear of an error, a user never does.
enum class Actor : unsigned char { Host, User };

enum class Needs : unsigned char { Panel, Surface };

struct Action {
  std::string_view name;
  std::size_t weight;  // how often it is drawn, compared with the others
  Actor actor;
  void (*make)(Stage&, Numbers&);
  Needs needs = Needs::Panel;
};

using Actions = std::vector<Action>;

/// All that the monkey knows to do in a game.
const Actions& actions(Game game);

// One source file each.
void addItemCalls(Actions& to);
void addRowCalls(Actions& to);
void addValueCalls(Actions& to);
void addPanelCalls(Actions& to);
void addFooterCalls(Actions& to);
void addMouseActions(Actions& to);
void addKeyActions(Actions& to);
void addMeddling(Actions& to);
void addStackCalls(Actions& to);

}  // namespace qrn::monkey
