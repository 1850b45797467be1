#include "display/clsQRNCollection.h"

#include "diag/QRNErrors.h"
#include "display/QRNDisplay.h"

namespace qrn {

void clsQRNCollection::SetDisplay(QRNDisplay& panel) { owner_.set(&panel); }

QRNDisplay& clsQRNCollection::Display() const {
  QRNDisplay* panel = owner_.get();
  if (!panel) RaiseError(kObjectNotInitialized, *this);
  return *panel;
}

std::shared_ptr<clsQRNParam> clsQRNCollection::AddParameter(std::string_view CtlName, qrnValueType ParamType,
                                                            const std::optional<Variant>& AtPosition) {
  auto item = std::make_shared<clsQRNParam>();
  addItem(item, "QRNV16Controls2.QRNEdit", "Parameter", CtlName, AtPosition);
  item->SetDefaultLayout(ParamType);
  return item;
}

std::shared_ptr<clsQRNAction> clsQRNCollection::AddAction(std::string_view CtlName, ddtypeAction ActionType,
                                                          const std::optional<Variant>& AtPosition) {
  auto item = std::make_shared<clsQRNAction>();
  addItem(item, "QRNV16Controls2.QRNMenuItem", "Action", CtlName, AtPosition);
  item->SetDefaultLayout(ActionType);
  return item;
}

void clsQRNCollection::addItem(const PanelItemPtr& item, std::string_view progId, std::string_view prefix,
                               std::string_view name, const std::optional<Variant>& atPosition) {
  QRNDisplay& panel = Display();
  std::string key = name.empty() ? items_.freeKey(prefix) : std::string(name);
  auto& control = panel.ControlsCollection().add(progId, key, panel.ControlsContainer());
  items_.add(std::move(key), item, atPosition);
  panel.childMeasureChanged(control);
  item->SetControl(static_cast<host::UserControl&>(control));
}

std::int32_t clsQRNCollection::GetIndexOf(const Variant& aSelector) const {
  const std::int32_t position = items_.positionOf(aSelector);
  if (position == 0) RaiseError(kObjectNotInCollection, *this);
  return position;
}

PanelItemPtr clsQRNCollection::Item(const Variant& aSelector) const {
  return aSelector.isObject() ? items_.at(GetIndexOf(aSelector)) : items_.at(aSelector);
}

void clsQRNCollection::Remove(const Variant& aSelector) {
  if (!aSelector.isObject()) {
    removeAt(Item(aSelector)->position());
    return;
  }
  if (const std::int32_t position = items_.positionOf(aSelector)) removeAt(position);
}

void clsQRNCollection::removeAt(std::int32_t position) {
  // The control first: while it goes, the item still has its place.
  const PanelItemPtr item = items_.at(position);
  if (const host::Control* control = item->control())
    Display().ControlsCollection().remove(std::string(control->Name()));
  // A listener may have moved it, or taken it out itself.
  if (item->position() == 0) return;
  Display().itemLeaves(*item);
  items_.take(item->position());
}

void clsQRNCollection::RemoveAll() {
  while (Count() > 0) removeAt(Count());
}

}  // namespace qrn
