#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "base/clsHiddenRef.h"
#include "display/clsQRNAction.h"
#include "display/clsQRNParam.h"
#include "enums/enumerations.h"
#include "runtime/selectable_list.h"

namespace qrn {

/// The items of a panel, in the order in which they are laid out. A selector is an item object, a key, whose
/// case does not count, or a 1-based position. A range-based for goes over all of them.
class clsQRNCollection final : public Object {
 public:
  std::string_view typeName() const override { return "clsQRNCollection"; }

  /// Makes an item and its control under a name, or under a made one if that is empty, in front of the item
  /// that AtPosition selects, or else at the end. Errors: 727 for a name that a control of the panel has, 457
  /// for a key in use, 429 while the controls' classes are not registered.
  std::shared_ptr<clsQRNParam> AddParameter(std::string_view CtlName, qrnValueType ParamType,
                                            const std::optional<Variant>& AtPosition = {});
  /// The same with a button. Errors: as above.
  std::shared_ptr<clsQRNAction> AddAction(std::string_view CtlName, ddtypeAction ActionType,
                                          const std::optional<Variant>& AtPosition = {});

  /// Removes an item and its control. Errors: 5 for an unknown key, 9 for a position outside; an object that
  /// is not here is left alone.
  void Remove(const Variant& aSelector);
  /// Removes all items, last first.
  void RemoveAll();
  /// The number of items.
  std::int32_t Count() const { return items_.count(); }
  /// The position of an item. Errors: 0x80040003 when nothing is selected.
  std::int32_t GetIndexOf(const Variant& aSelector) const;
  /// The item that is selected. Errors: 5, 9, and 0x80040003 for an object that is not here.
  PanelItemPtr Item(const Variant& aSelector) const;

  /// Over the items in their order.
  using Iterator = SelectableList<PanelItem>::Iterator;
  Iterator begin() const { return items_.begin(); }
  std::default_sentinel_t end() const { return {}; }

 private:
  friend class QRNDisplay;

  using Walk = SelectableList<PanelItem>::Walk;

  void SetDisplay(QRNDisplay& panel);
  QRNDisplay& Display() const;

  void addItem(const PanelItemPtr& item, std::string_view progId, std::string_view prefix,
               std::string_view name, const std::optional<Variant>& atPosition);
  void removeAt(std::int32_t position);
  const PanelItem& at(std::int32_t position) const { return *items_.at(position); }

  clsHiddenRef<QRNDisplay> owner_;
  SelectableList<PanelItem> items_;
};

}  // namespace qrn
