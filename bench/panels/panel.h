#pragma once

#include <memory>
#include <vector>

#include "display/QRNDisplay.h"
#include "panels/form.h"

namespace qrn::bench {

/// The library's own form, whatever platform shows it.
class Panel {
 public:
  Panel(host::Site& site, const FormOptions& options);

  QRNDisplay& display() { return *display_; }
  void setCaption(int row, const std::string& caption);
  int captionWidth() const { return items_[0]->Control().LabelWidth(); }
  void write(int row, int generation);

  int changes = 0;  // that the panel has told of

 private:
  void addRow(int row, bool dynamic);

  host::Owned<QRNDisplay> display_;
  std::vector<std::shared_ptr<clsQRNParam>> items_;
  std::vector<Connection> connections_;
};

}  // namespace qrn::bench
