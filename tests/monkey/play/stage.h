#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include "audience.h"
#include "display/QRNDisplay.h"
#include "game.h"
#include "hands.h"
#include "page_book.h"
#include "stack/QRNDisplayStack.h"
#include "step.h"

namespace qrn::monkey {

/// A broken promise: a few words that name the rule, and what was seen.
struct Complaint {
  std::string rule;
  std::string details;
};

/// Where the monkey plays: one surface at a time in front of one user, what listens to it, and what the
/// monkey remembers of it. The surface is a panel, or a stack of them.
class Stage {
 public:
  /// With `notes`, every action tells what it is about to do.
  using Notes = std::function<void(const std::string&)>;
  Stage(Hands& hands, Game game, Notes notes = {});
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  Hands& hands() { return hands_; }
  Game game() const { return game_; }
  /// Null once somebody has closed it.
  host::UserControl* surface() { return surface_.get(); }
  /// The stack of a game with one.
  QRNDisplayStack* stack();
  /// The panel that a step is about: of a stack the page that was turned to, or the top one. Null without
  /// any.
  QRNDisplay* panel();
  std::vector<QRNDisplay*> panels();
  clsQRNCollection& items() { return panel()->Items(); }
  Audience& audience() { return audience_; }
  PageBook& pages() { return pages_; }
  /// The column layout of the panel as it was set last.
  ColumnWeights& columns() { return audience_.seatOf(*panel()).columns; }

  /// A new surface instead of the one that is there, realised or not.
  void open(Size size, bool realised);
  void close();
  void turnTo(QRNDisplay* page) { page_ = WeakRef<QRNDisplay>(page); }

  // ---- what actions pick from; null where there is nothing ----
  PanelItemPtr anyItem(Numbers& numbers);
  std::shared_ptr<clsQRNParam> anyParameter(Numbers& numbers);
  std::shared_ptr<clsQRNAction> anyAction(Numbers& numbers);
  ButtonPtr anyButton(Numbers& numbers);

  // ---- the words that a failure is told in ----
  template <class... Parts>
  void note(const Parts&... parts) {
    if (!notes_) return;
    std::ostringstream line;
    (line << ... << parts);
    notes_(line.str());
  }

  /// Only the first complaint counts: what follows may follow from it.
  void complain(std::string rule, std::string details);
  const std::optional<Complaint>& complaint() const { return complaint_; }

  void stepBegins();
  /// A call that a step made ended with an error.
  void errorCame() { errorCame_ = true; }
  /// Whether nobody interfered with what the step did.
  bool undisturbed() const { return !errorCame_ && !audience_.meddledInThisStep(); }

  /// An item that a host has kept, and that may have gone since, with its panel even.
  PanelItemPtr kept;
  /// What had the focus, and in which item, when the present step began.
  WeakRef<host::Control> focusBefore;
  PanelItemPtr itemBefore;

 private:
  template <class Item>
  std::shared_ptr<Item> any(Numbers& numbers);

  Hands& hands_;
  Game game_;
  Notes notes_;
  host::Owned<host::UserControl> surface_;
  WeakRef<QRNDisplay> page_;
  Audience audience_{*this};
  PageBook pages_{*this};
  bool errorCame_ = false;
  std::optional<Complaint> complaint_;
};

}  // namespace qrn::monkey
