#pragma once

#include <cstdint>
#include <memory>
#include <string_view>

#include "base/event.h"
#include "base/weak_ref.h"
#include "host/event_args.h"
#include "host/user_control.h"
#include "runtime/selectable_list.h"
#include "runtime/variant.h"

namespace qrn {

class QRNDisplay;
class QRNEdit;

/// What the two kinds of items have in common: free caller data, the control, and the events of the control,
/// which reach the panel with the item's position.
class PanelItem : public Object,
                  public std::enable_shared_from_this<PanelItem>,
                  private host::ControlFollower {
 public:
  ~PanelItem() override;
  /// The host's own.
  const Variant& Tag() const;
  void SetTag(const Variant& tag);

 protected:
  friend class clsQRNCollection;
  friend class QRNDisplay;
  friend class SelectableList<PanelItem>;

  virtual void SetControl(host::UserControl& control);
  void controlEvent(std::string_view name, host::EventArgs arguments) override = 0;
  /// What the item knows of its control, or of one inside that.
  virtual void tellFacts(const host::Control& /*inside*/, host::AccessibleFacts&) const {}

  host::UserControl* control() const { return control_; }
  /// The same where it is a parameter's; null for an action.
  virtual QRNEdit* row() const { return nullptr; }
  /// Errors: 0x80040001 once the control has gone.
  host::UserControl& requireControl() const;
  /// The panel whose control collection made the control; null once that has gone.
  QRNDisplay* panel() const;
  /// 1-based, 0 once the item is out of its collection.
  std::int32_t position() const { return entry_ ? entry_->position : 0; }

  /// A listener may remove the item that is raising.
  std::shared_ptr<PanelItem> keepAlive() { return shared_from_this(); }
  /// What both kinds do with keys, menus and the focus; false for an event of one kind only.
  bool commonEvent(QRNDisplay& panel, std::string_view name, host::EventArgs arguments);

 private:
  void controlGone() override { control_ = nullptr; }

  std::unique_ptr<Variant> tag_;  // none until the first is set
  host::UserControl* control_ = nullptr;
  const SelectableList<PanelItem>::Entry* entry_ = nullptr;  // the item's own place in its collection
};

using PanelItemPtr = std::shared_ptr<PanelItem>;

}  // namespace qrn
