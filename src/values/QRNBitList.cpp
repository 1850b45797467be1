#include "values/QRNBitList.h"

#include "host/class_table_entries.h"

namespace qrn {

const host::ClassTable& QRNBitList::classTable() const {
  static const host::ClassTable table{
      .name = "QRNBitList",
      .progId = "QRNV16Controls2.QRNBitList",
      .properties = {host::property<&QRNBitList::ScaleMode, &QRNBitList::SetScaleMode>("ScaleMode", 1)
                         .startsAs(3)
                         .notifies(host::Notify::Never)},
      .readingOrder = {},
      .writingOrder = {},
      .methods = {"List"},
      .events = {}};
  return table;
}

}  // namespace qrn
