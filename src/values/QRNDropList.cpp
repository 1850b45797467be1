#include "values/QRNDropList.h"

#include "host/class_table_entries.h"

namespace qrn {

// The height is the drop list's own, whatever the control's is.
void QRNDropList::arrangeInside() {
  const double height = platform().comboBoxHeight(*cboValue_.Font()) / pixelsPerUnit().y;
  cboValue_.Move(0, 0, ScaleWidth(), height);
}

const host::ClassTable& QRNDropList::classTable() const {
  static const host::ClassTable table{
      .name = "QRNDropList",
      .progId = "QRNV16Controls2.QRNDropList",
      .properties = {host::property<&QRNDropList::ScaleMode, &QRNDropList::SetScaleMode>("ScaleMode", 1)
                         .startsAs(3)
                         .notifies(host::Notify::Never)},
      .readingOrder = {},
      .writingOrder = {},
      .methods = {"Combo"},
      .events = {}};
  return table;
}

}  // namespace qrn
