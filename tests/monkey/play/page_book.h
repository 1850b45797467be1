#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "base/event.h"
#include "base/weak_ref.h"
#include "display/QRNDisplay.h"

namespace qrn {
class QRNDisplayStack;
}

namespace qrn::monkey {

class Stage;

/// What a host may set on a page although the stack sets it, too; a page that it has set it on has it its
/// way.
enum class Own : std::uint8_t { Active = 1, Enabled = 2, Place = 4 };

/// Listens to a stack: checks what its events promise, one by one, and writes down what became of each page.
class PageBook {
 public:
  static constexpr std::int32_t kMost = 6;  // pages, so that a step stays cheap

  struct Page {
    WeakRef<QRNDisplay> control;
    std::string name;
    bool modal = false;
    bool released = false;  // asked for in this step, and not kept
    bool hidden = false;    // the items, since it was covered
    unsigned own = 0;       // bits of Own

    bool has(Own what) const { return (own & static_cast<unsigned>(what)) != 0; }
  };
  /// An event of a page, the first letter of its name telling which: PageLayout, PageActivate,
  /// PageDeactivate, PageClose, or 'K' for a PageClose that ended with the page being kept.
  struct Heard {
    char what;
    std::int32_t index;
    friend bool operator==(const Heard&, const Heard&) = default;
  };

  explicit PageBook(Stage& stage) : stage_(stage) {}

  void open(QRNDisplayStack& stack);
  void close();
  void stepBegins();

  /// Those that have been laid out and are still there, from below.
  const std::vector<Page>& pages() const { return pages_; }
  /// The events of this step, and the number of pages before it.
  const std::vector<Heard>& heard() const { return heard_; }
  std::int32_t countBefore() const { return countBefore_; }

  /// The next page gets rows of that many types when it is laid out.
  void willFill(std::int32_t rows) { rows_ = rows; }
  /// The listener keeps a page after so many that it lets go.
  void willKeep(std::uint32_t after) { keeps_.push_back(after); }
  void hostSets(const QRNDisplay& page, Own what);
  void hostSetsAll(Own what);
  /// The user wants a page to be as large as the stack, or as large as before.
  void asksForSize(const WeakRef<QRNDisplay>& page, bool maximized) { wish_ = {page, maximized}; }
  struct Wish {
    WeakRef<QRNDisplay> page;
    bool maximized = false;
  };
  /// The last one of this step, if any.
  const Wish& wish() const { return wish_; }
  /// The stack has just laid out all of its pages.
  void allPlaced();
  void sweep();

 private:
  QRNDisplayStack& stack() const;
  Page* find(const QRNDisplay& page);
  bool expectTop(std::string_view event, std::int32_t index);
  void laidOut(std::int32_t index);
  void activated(std::int32_t index);
  void deactivated(std::int32_t index);
  void asked(std::int32_t index, bool& cancel);
  void relayed(std::string_view name, host::EventArgs arguments);
  void fill(QRNDisplay& page);

  Stage& stage_;
  std::vector<Connection> connections_;
  std::vector<Page> pages_;
  std::vector<Heard> heard_;
  std::vector<std::uint32_t> keeps_;
  Wish wish_;
  std::int32_t countBefore_ = 0;
  std::int32_t rows_ = 0;
};

}  // namespace qrn::monkey
