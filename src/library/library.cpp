#include "library/library.h"

#include "buttons/QRNMenuItem.h"
#include "display/QRNDisplay.h"
#include "host/prog_ids.h"
#include "images/QRNImageList.h"
#include "row/QRNEdit.h"
#include "stack/QRNDisplayStack.h"
#include "tooltip/QRNToolTip.h"
#include "values/QRNArray.h"
#include "values/QRNBitList.h"
#include "values/QRNCheck.h"
#include "values/QRNDropList.h"

namespace qrn {
namespace {

template <class T>
host::Owned<host::Control> make() {
  return host::Owned<host::Control>(new T);
}

constexpr host::ProgId kClasses[] = {
    {"QRNV16Controls2.QRNEdit", make<QRNEdit>},
    {"QRNV16Controls2.QRNMenuItem", make<QRNMenuItem>},
    {"QRNV16Controls2.QRNDisplay", make<QRNDisplay>},
    {"QRNV16Controls2.QRNImageList", make<QRNImageList>},
    {"QRNV16Controls2.QRNCheck", make<QRNCheck>},
    {"QRNV16Controls2.QRNDropList", make<QRNDropList>},
    {"QRNV16Controls2.QRNBitList", make<QRNBitList>},
    {"QRNV16Controls2.QRNArray", make<QRNArray>},
    {"QRNV16Controls2.QRNToolTip", make<QRNToolTip>},
    {"QRNV16Controls2.QRNDisplayStack", make<QRNDisplayStack>},
};

}  // namespace

void registerControls() { host::setControlClasses(kClasses); }

}  // namespace qrn
