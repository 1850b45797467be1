#include "values/QRNBitList.h"

#include "host/class_table.h"

namespace qrn {

const host::ClassTable& QRNBitList::classTable() const {
  static const host::ClassTable table{.name = "QRNBitList",
                                      .progId = "QRNV16Controls2.QRNBitList",
                                      .properties = {},
                                      .readingOrder = {},
                                      .writingOrder = {},
                                      .methods = {"List"},
                                      .events = {}};
  return table;
}

}  // namespace qrn
