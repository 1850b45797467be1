#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "base/event.h"
#include "base/weak_ref.h"
#include "host/event_args.h"
#include "runtime/object.h"
#include "runtime/selectable_list.h"

namespace qrn {

class QRNDisplay;
class QRNDisplayStack;

/// A page of a stack: its panel, and the number that it keeps for as long as it is there. Hears every event
/// of the panel and hands it to the stack, which raises it with that number in front or acts on it.
class clsDisplayPage final : public Object, public std::enable_shared_from_this<clsDisplayPage> {
 public:
  std::string_view typeName() const override { return "clsDisplayPage"; }

  /// Null once the page has been closed.
  QRNDisplay* Control() const { return control_.get(); }
  void Attach(QRNDisplay& control, std::int32_t PageIndex);
  /// 1-based.
  std::int32_t PageIndex() const { return pageIndex_; }
  /// Whether the page is in a stack.
  bool isOpen() const { return entry_ != nullptr && control_; }

 private:
  friend class SelectableList<clsDisplayPage>;

  void displayEvent(std::string_view name, host::EventArgs arguments);

  WeakRef<QRNDisplay> control_;
  Connection events_;
  const SelectableList<clsDisplayPage>::Entry* entry_ = nullptr;  // the page's own place in the stack
  std::int32_t pageIndex_ = 0;
};

}  // namespace qrn
