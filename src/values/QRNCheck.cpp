#include "values/QRNCheck.h"

#include "host/class_table.h"

namespace qrn {

const host::ClassTable& QRNCheck::classTable() const {
  static const host::ClassTable table{.name = "QRNCheck",
                                      .progId = "QRNV16Controls2.QRNCheck",
                                      .properties = {},
                                      .readingOrder = {},
                                      .writingOrder = {},
                                      .methods = {"Check"},
                                      .events = {}};
  return table;
}

}  // namespace qrn
