#include "stack/page_place.h"

#include <algorithm>

#include "runtime/rounding.h"

namespace qrn {
namespace {

constexpr double kLeastDialogWidth = 10;  // in menu items
constexpr double kLeastDialogHeight = 7;

struct Span {
  double start;
  double length;
};

Span fromIndent(double indent, double room) { return {indent, roundHalfEven(room - indent)}; }

Span indentedTwice(Span span, double least) {
  if (span.length - span.start >= least) return {span.start, span.length - span.start};
  const double missing = least - span.length;
  if (missing <= 0) return {span.start, least};
  if (missing < span.start) return {span.start - missing, least};
  return {0, span.length + span.start};
}

}  // namespace

Rect placePage(const PagePlace& page, Size stack) {
  Span across = fromIndent(page.maximized ? 0 : page.leftIndent, stack.width);
  Span down = fromIndent(page.maximized ? 0 : page.topIndent, stack.height);
  if (page.dialog && !page.maximized) {
    across = indentedTwice(across, kLeastDialogWidth * page.menuItemHeight);
    down = indentedTwice(down, kLeastDialogHeight * page.menuItemHeight);
  }
  return {across.start, down.start, std::max(across.length, 1.0), std::max(down.length, 1.0)};
}

}  // namespace qrn
