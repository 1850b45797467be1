#include "values/QRNArray.h"

#include "host/class_table.h"

namespace qrn {

const host::ClassTable& QRNArray::classTable() const {
  static const host::ClassTable table{.name = "QRNArray",
                                      .progId = "QRNV16Controls2.QRNArray",
                                      .properties = {},
                                      .readingOrder = {},
                                      .writingOrder = {},
                                      .methods = {"FlexGrid", "TextBox"},
                                      .events = {}};
  return table;
}

}  // namespace qrn
