#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "display/clsHiddenRef.h"
#include "display/clsQRNAction.h"
#include "display/clsQRNParam.h"
#include "enums/enumerations.h"
#include "runtime/keyed_list.h"

namespace qrn {

/// The items of a panel, in the order in which they are laid out. A selector is an item object, a key, whose
/// case does not count, or a 1-based position.
class clsQRNCollection final : public Object {
 public:
  std::string_view typeName() const override { return "clsQRNCollection"; }

  /// Makes an item and its control under a name, or under a made one if that is empty, in front of the item
  /// that AtPosition selects, or else at the end. Null when no control could be made. Errors: 727 for a name
  /// that a control of the panel has, 457 for a key in use.
  std::shared_ptr<clsQRNParam> AddParameter(std::string_view CtlName, qrnValueType ParamType,
                                            const std::optional<Variant>& AtPosition = {});
  std::shared_ptr<clsQRNAction> AddAction(std::string_view CtlName, ddtypeAction ActionType,
                                          const std::optional<Variant>& AtPosition = {});

  /// Errors: 5 for an unknown key, 9 for a position outside; an object that is not here is left alone.
  void Remove(const Variant& aSelector);
  void RemoveAll();
  std::int32_t Count() const { return items_.count(); }
  /// Errors: 0x80040003 when nothing is selected.
  std::int32_t GetIndexOf(const Variant& aSelector) const;
  /// Errors: 5, 9, and 0x80040003 for an object that is not here.
  PanelItemPtr Item(const Variant& aSelector) const;

  /// Over the items in their order.
  class Iterator {
   public:
    using Inner = decltype(std::declval<const KeyedList<PanelItemPtr>&>().begin());
    explicit Iterator(Inner at) : at_(at) {}
    const PanelItemPtr& operator*() const { return (*at_)->value; }
    Iterator& operator++() {
      ++at_;
      return *this;
    }
    friend bool operator==(const Iterator&, const Iterator&) = default;

   private:
    Inner at_;
  };
  Iterator begin() const { return Iterator(items_.begin()); }
  Iterator end() const { return Iterator(items_.end()); }

 private:
  friend class QRNDisplay;

  void SetDisplay(QRNDisplay& panel);
  QRNDisplay& Display() const;

  std::shared_ptr<PanelItem> addItem(std::shared_ptr<PanelItem> item, std::string_view progId,
                                     std::string_view prefix, std::string_view name,
                                     const std::optional<Variant>& atPosition);
  std::string madeKey(std::string_view prefix) const;
  const PanelItem* objectOf(const Variant& aSelector) const;
  void removeAt(std::int32_t position);

  clsHiddenRef owner_;
  KeyedList<PanelItemPtr> items_;
};

}  // namespace qrn
