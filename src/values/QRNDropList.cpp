#include "values/QRNDropList.h"

#include "host/class_table.h"

namespace qrn {

// The height is the drop list's own, whatever the control's is.
void QRNDropList::resize() {
  const double height = platform().comboBoxHeight(*cboValue_.Font()) / pixelsPerUnit().y;
  cboValue_.Move(0, 0, ScaleWidth(), height);
}

const host::ClassTable& QRNDropList::classTable() const {
  static const host::ClassTable table{.name = "QRNDropList",
                                      .progId = "QRNV16Controls2.QRNDropList",
                                      .properties = {},
                                      .readingOrder = {},
                                      .writingOrder = {},
                                      .methods = {"Combo"},
                                      .events = {}};
  return table;
}

}  // namespace qrn
