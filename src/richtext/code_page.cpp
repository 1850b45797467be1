#include "richtext/code_page.h"

#include "richtext/code_page_tables.h"

namespace qrn::richtext {

char32_t characterOf(unsigned char byte, int page) {
  if (byte < 0x80) return byte;
  for (const CodePage& known : kCodePages) {
    if (known.number == page) return known.upper[byte - 0x80U];
  }
  return 0xFFFD;
}

int pageOfCharset(int charset, int usual) {
  switch (charset) {
    case 77: return kMacPage;
    case 128: return 932;
    case 129: return 949;
    case 134: return 936;
    case 136: return 950;
    case 161: return 1253;
    case 162: return 1254;
    case 163: return 1258;
    case 177: return 1255;
    case 178: return 1256;
    case 186: return 1257;
    case 204: return 1251;
    case 222: return 874;
    case 238: return 1250;
    case 254: return kDosPage;
    default: return usual;
  }
}

}  // namespace qrn::richtext
