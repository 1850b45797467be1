#include "stack/clsDisplayPage.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <utility>

#include "stack/QRNDisplayStack.h"

namespace qrn {
namespace {

using host::EventArgs;
using Handler = void (*)(QRNDisplayStack& stack, std::string_view name, std::int32_t page,
                         EventArgs arguments);

struct Route {
  std::string_view event;
  Handler handle;
};

}  // namespace

// What the stack makes of each event of a page's panel.
struct PageRoutes {
  using S = QRNDisplayStack;

  // Raised with copies of the arguments: what a listener writes stays with the stack.
  template <auto Event, class... Args>
  static void relay(S& stack, std::string_view name, std::int32_t page, EventArgs arguments) {
    relayCopies<Event, Args...>(stack, name, page, arguments, std::index_sequence_for<Args...>());
  }
  // What a listener makes of a key of the panel itself is what the panel goes on with.
  template <auto Event, class... Args>
  static void relayBothWays(S& stack, std::string_view name, std::int32_t page, EventArgs arguments) {
    relayReferences<Event, Args...>(stack, name, page, arguments, std::index_sequence_for<Args...>());
  }

  static const Route* find(std::string_view event);

 private:
  template <auto Event, class... Args, std::size_t... I>
  static void relayCopies(S& stack, std::string_view name, std::int32_t page, EventArgs arguments,
                          std::index_sequence<I...>) {
    std::tuple<Args...> copies{arguments[I].template as<Args>()...};
    stack.raise(stack.*Event, name, page, std::get<I>(copies)...);
  }
  template <auto Event, class... Args, std::size_t... I>
  static void relayReferences(S& stack, std::string_view name, std::int32_t page, EventArgs arguments,
                              std::index_sequence<I...>) {
    stack.raise(stack.*Event, name, page, arguments[I].template as<Args>()...);
  }
};

const Route* PageRoutes::find(std::string_view event) {
  using Long = std::int32_t;
  using Integer = std::int16_t;
  static constexpr std::array kRoutes = {
      Route{"ItemGotFocus", relay<&S::ItemGotFocus, Long>},
      Route{"ItemLostFocus", relay<&S::ItemLostFocus, Long>},
      Route{"ItemMenuClick", relay<&S::ItemMenuClick, Long, Integer>},
      Route{"ItemKeyDown", relay<&S::ItemKeyDown, Long, Integer, Integer>},
      Route{"ItemKeyPress", relay<&S::ItemKeyPress, Long, Integer>},
      Route{"ItemKeyUp", relay<&S::ItemKeyUp, Long, Integer, Integer>},
      Route{"ActionLayout", relay<&S::ActionLayout, Long>},
      Route{"ActionClick", relay<&S::ActionClick, Long>},
      Route{"ParameterLayout", relay<&S::ParameterLayout, Long>},
      Route{"ParameterChange", relay<&S::ParameterChange, Long>},
      Route{"ParameterItemCheck", relay<&S::ParameterItemCheck, Long, Integer>},
      Route{"ParameterIcon1Click", relay<&S::ParameterIcon1Click, Long>},
      Route{"ParameterIcon2Click", relay<&S::ParameterIcon2Click, Long>},
      Route{"ParameterClick", relay<&S::ParameterClick, Long>},
      Route{"ParameterStartEdit", relay<&S::ParameterStartEdit, Long>},
      Route{"ParameterEndEdit", relay<&S::ParameterEndEdit, Long, bool>},
      Route{"ParameterStatusChange", relay<&S::ParameterStatusChange, Long>},
      Route{"ButtonLayout", relay<&S::ButtonLayout, Long>},
      Route{"ButtonClick", relay<&S::ButtonClick, Long>},
      Route{"KeyDown", relayBothWays<&S::KeyDown, Integer, Integer>},
      Route{"KeyPress", relayBothWays<&S::KeyPress, Integer>},
      Route{"KeyUp", relayBothWays<&S::KeyUp, Integer, Integer>},
      Route{"Click", [](S& stack, std::string_view, Long page, EventArgs) { stack.ActivatePage(page); }},
      Route{"DisplayClose",
            [](S& stack, std::string_view, Long page, EventArgs) { stack.ActivatePage(page - 1); }},
      Route{"DisplayRestore", [](S& stack, std::string_view, Long page, EventArgs) { stack.restore(page); }},
      Route{"DisplayMaximize",
            [](S& stack, std::string_view, Long page, EventArgs) { stack.maximize(page); }},
  };
  const auto found =
      std::find_if(kRoutes.begin(), kRoutes.end(), [&](const Route& r) { return r.event == event; });
  return found == kRoutes.end() ? nullptr : &*found;
}

void clsDisplayPage::Attach(QRNDisplay& control, std::int32_t PageIndex) {
  control_ = WeakRef<QRNDisplay>(&control);
  pageIndex_ = PageIndex;
  events_ = control.ObjectEvent.connect(
      [this](std::string_view name, EventArgs arguments) { displayEvent(name, arguments); });
}

void clsDisplayPage::displayEvent(std::string_view name, EventArgs arguments) {
  const Route* route = PageRoutes::find(name);
  if (!route || !control_) return;
  const auto self = shared_from_this();  // the page may be closed meanwhile
  route->handle(static_cast<QRNDisplayStack&>(*control_->Parent()), route->event, pageIndex_, arguments);
}

}  // namespace qrn
