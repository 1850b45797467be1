#pragma once

#include <algorithm>
#include <cstdint>
#include <memory>
#include <string_view>
#include <vector>

#include "base/event.h"
#include "base/weak_ref.h"
#include "display/QRNDisplay.h"
#include "display/column_layout.h"

namespace qrn::monkey {

class Stage;

/// What a listener does in the middle of an event, once.
struct Deed {
  std::size_t kind = 0;      // of meddling.h
  std::uint32_t events = 0;  // how many events it lets pass first
  std::uint32_t number = 0;  // what it picks with
};

/// Listens to every event of every panel: first it checks what the order of events promises, and then it may
/// do something that the event was not prepared for.
class Audience {
 public:
  /// What it knows of one panel.
  struct Seat {
    WeakRef<QRNDisplay> panel;
    ColumnWeights columns;
    bool isEditing = false;  // an edit cycle has begun and not ended
    std::weak_ptr<PanelItem> edited;
    std::vector<Connection> connections;
  };

  explicit Audience(Stage& stage) : stage_(stage) {}

  void sitsDown(QRNDisplay& panel);
  Seat& seatOf(const QRNDisplay& panel);
  void standsUp();
  /// Listens to one row as well, in front of the panel and behind it.
  void leansOver(QRNDisplay& panel, QRNEdit& row, std::int32_t position);

  void prepare(const Deed& deed) { deeds_.push_back(deed); }
  void heardOfSite();
  /// Does the deeds that are due, at an event of a panel or, with null, of what holds it.
  void meddle(QRNDisplay* panel, std::int32_t index);

  // ---- what was heard in the present step ----
  void stepBegins();
  bool meddledInThisStep() const { return deedsDone_ != deedsBefore_; }
  bool heardOfFocus(const PanelItem& item) const { return contains(gotFocus_, item); }
  bool heardOfLostFocus(const PanelItem& item) const { return contains(lostFocus_, item); }

 private:
  template <class... Args>
  void listen(Seat& seat, Event<Args...>& event, std::string_view name);
  void heard(Seat& seat, std::string_view name, std::int32_t index);
  void checkPosition(Seat& seat, std::string_view name, std::int32_t index);
  void checkEditCycle(Seat& seat, std::string_view name, std::int32_t index);
  void noteFocus(Seat& seat, std::string_view name, std::int32_t index);
  using Heard = std::vector<const PanelItem*>;
  static bool contains(const Heard& heard, const PanelItem& item) {
    return std::find(heard.begin(), heard.end(), &item) != heard.end();
  }

  Stage& stage_;
  std::vector<std::unique_ptr<Seat>> seats_;
  std::vector<Deed> deeds_;
  int deedsDone_ = 0;
  int deedsBefore_ = 0;
  Heard gotFocus_;
  Heard lostFocus_;
};

}  // namespace qrn::monkey
