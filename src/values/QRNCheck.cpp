#include "values/QRNCheck.h"

#include "host/class_table_entries.h"

namespace qrn {

const host::ClassTable& QRNCheck::classTable() const {
  static const host::ClassTable table{
      .name = "QRNCheck",
      .progId = "QRNV16Controls2.QRNCheck",
      .properties = {host::property<&QRNCheck::ScaleMode, &QRNCheck::SetScaleMode>("ScaleMode", 1)
                         .startsAs(3)
                         .notifies(host::Notify::Never)},
      .readingOrder = {},
      .writingOrder = {},
      .methods = {"Check"},
      .events = {}};
  return table;
}

}  // namespace qrn
