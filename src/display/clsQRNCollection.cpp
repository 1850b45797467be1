#include "display/clsQRNCollection.h"

#include "diag/QRNErrors.h"
#include "display/QRNDisplay.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"

namespace qrn {

void clsQRNCollection::SetDisplay(QRNDisplay& panel) { owner_.set(&panel); }

QRNDisplay& clsQRNCollection::Display() const {
  host::Control* panel = owner_.get();
  if (!panel) RaiseError(kObjectNotInitialized, *this);
  return static_cast<QRNDisplay&>(*panel);
}

std::shared_ptr<clsQRNParam> clsQRNCollection::AddParameter(std::string_view CtlName, qrnValueType ParamType,
                                                            const std::optional<Variant>& AtPosition) {
  auto item = std::make_shared<clsQRNParam>();
  if (!addItem(item, "QRNV16Controls2.QRNEdit", "Parameter", CtlName, AtPosition)) return nullptr;
  item->SetDefaultLayout(ParamType);
  return item;
}

std::shared_ptr<clsQRNAction> clsQRNCollection::AddAction(std::string_view CtlName, ddtypeAction ActionType,
                                                          const std::optional<Variant>& AtPosition) {
  auto item = std::make_shared<clsQRNAction>();
  if (!addItem(item, "QRNV16Controls2.QRNMenuItem", "Action", CtlName, AtPosition)) return nullptr;
  item->SetDefaultLayout(ActionType);
  return item;
}

PanelItemPtr clsQRNCollection::addItem(PanelItemPtr item, std::string_view progId, std::string_view prefix,
                                       std::string_view name, const std::optional<Variant>& atPosition) {
  QRNDisplay& panel = Display();
  const std::string key = name.empty() ? madeKey(prefix) : std::string(name);
  auto& control = panel.ControlsCollection().add(progId, key, panel.ControlsContainer());
  std::int32_t before = 0;
  if (atPosition) ignoringErrors([&] { before = GetIndexOf(*atPosition); });
  item->entry_ = &items_.add(key, item, before);
  item->SetControl(static_cast<host::UserControl&>(control));
  return item;
}

std::string clsQRNCollection::madeKey(std::string_view prefix) const {
  std::string key;
  std::int32_t n = Count();
  do {
    key = std::string(prefix) + std::to_string(++n);
  } while (items_.find(key));
  return key;
}

// The item that a selector names, or null.
const PanelItem* clsQRNCollection::objectOf(const Variant& aSelector) const {
  if (const auto* object = aSelector.get<ObjectPtr>()) return dynamic_cast<const PanelItem*>(object->get());
  const PanelItem* found = nullptr;
  ignoringErrors([&] { found = Item(aSelector).get(); });
  return found;
}

std::int32_t clsQRNCollection::GetIndexOf(const Variant& aSelector) const {
  const PanelItem* item = objectOf(aSelector);
  // The item knows its place; that the same item stands there proves that it is one of ours.
  const std::int32_t position = item ? item->position() : 0;
  if (position < 1 || position > Count() || items_.at(position).value.get() != item) {
    RaiseError(kObjectNotInCollection, *this);
  }
  return position;
}

PanelItemPtr clsQRNCollection::Item(const Variant& aSelector) const {
  if (aSelector.isObject()) return items_.at(GetIndexOf(aSelector)).value;
  if (const auto* key = aSelector.get<std::string>()) return items_.at(std::string_view(*key)).value;
  return items_.at(CLng(aSelector)).value;
}

void clsQRNCollection::Remove(const Variant& aSelector) {
  if (!aSelector.isObject()) {
    removeAt(Item(aSelector)->position());
    return;
  }
  std::int32_t position = 0;
  if (ignoringErrors([&] { position = GetIndexOf(aSelector); })) removeAt(position);
}

void clsQRNCollection::removeAt(std::int32_t position) {
  // The control first: while it goes, the item still has its place.
  const PanelItemPtr item = items_.at(position).value;
  if (const host::Control* control = item->control())
    Display().ControlsCollection().remove(std::string(control->Name()));
  item->entry_ = nullptr;
  items_.take(position);
}

void clsQRNCollection::RemoveAll() {
  while (Count() > 0) removeAt(Count());
}

}  // namespace qrn
