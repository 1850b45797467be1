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
#include "hands.h"
#include "step.h"

namespace qrn::monkey {

/// A broken promise: a few words that name the rule, and what was seen.
struct Complaint {
  std::string rule;
  std::string details;
};

/// Where the monkey plays: one panel at a time in front of one user, what listens to it, and what the monkey
/// remembers of it.
class Stage {
 public:
  /// With `notes`, every action tells what it is about to do.
  using Notes = std::function<void(const std::string&)>;
  explicit Stage(Hands& hands, Notes notes = {});
  ~Stage();
  Stage(const Stage&) = delete;
  Stage& operator=(const Stage&) = delete;

  Hands& hands() { return hands_; }
  QRNDisplay* panel() { return panel_.get(); }
  clsQRNCollection& items() { return panel_->Items(); }
  Audience& audience() { return audience_; }

  /// A new panel instead of the one that is there, realised or not.
  void open(Size size, bool realised);
  void close();

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

  /// An item that a host has kept, and that may have gone since, with its panel even.
  PanelItemPtr kept;
  /// The column layout as it was set last.
  ColumnWeights columns;
  /// What had the focus, and in which item, when the present step began.
  WeakRef<host::Control> focusBefore;
  PanelItemPtr itemBefore;

 private:
  template <class Item>
  std::shared_ptr<Item> any(Numbers& numbers);

  Hands& hands_;
  Notes notes_;
  host::Owned<QRNDisplay> panel_;
  Audience audience_{*this};
  std::optional<Complaint> complaint_;
};

}  // namespace qrn::monkey
