#include "stack/clsDisplayPage.h"

#include <algorithm>
#include <array>
#include <tuple>
#include <type_traits>
#include <utility>

#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "stack/QRNDisplayStack.h"

namespace qrn {
namespace {

using host::EventArg;
using host::EventArgs;
using Handler = void (*)(QRNDisplayStack& stack, std::string_view name, std::int32_t page,
                         EventArgs arguments);

struct Route {
  std::string_view event;
  Handler handle;
};

template <class T>
T converted(const Variant& value) {
  if constexpr (std::is_same_v<T, bool>)
    return CBool(value);
  else if constexpr (std::is_same_v<T, std::int16_t>)
    return CInt(value);
  else
    return CLng(value);
}

// Whoever raises an event by its name may give arguments of other types.
template <class T>
T valueOf(const EventArg& argument) {
  return argument.visit([](const auto& value) { return converted<T>(Variant(value)); });
}

template <class T>
void give(const EventArg& argument, T value) {
  argument.visit([&](auto& target) { target = converted<std::decay_t<decltype(target)>>(Variant(value)); });
}

}  // namespace

// What the stack makes of each event of a page's panel.
struct PageRoutes {
  using S = QRNDisplayStack;
  enum class Back : std::uint8_t { Nothing, All };  // of what a listener writes

  /// Raises an event of the stack, unless its arguments can't be had.
  template <auto Event, Back WriteBack, class... Args>
  static void raise(S& stack, std::string_view name, std::int32_t page, EventArgs arguments) {
    raise<Event, WriteBack, Args...>(stack, name, page, arguments, std::index_sequence_for<Args...>());
  }
  template <auto Event, class... Args>
  static constexpr Handler relay = raise<Event, Back::Nothing, Args...>;
  // What a listener makes of a key of the panel itself is what the panel goes on with.
  template <auto Event, class... Args>
  static constexpr Handler relayBothWays = raise<Event, Back::All, Args...>;

  static const Route* find(std::string_view event);

 private:
  template <auto Event, Back WriteBack, class... Args, std::size_t... I>
  static void raise(S& stack, std::string_view name, std::int32_t page, EventArgs arguments,
                    std::index_sequence<I...>) {
    std::tuple<Args...> values;
    if (arguments.size() < sizeof...(Args)) return;
    if (!ignoringErrors([&] { values = {valueOf<Args>(arguments[I])...}; })) return;
    stack.raise(stack.*Event, name, page, std::get<I>(values)...);
    if constexpr (WriteBack == Back::All)
      ignoringErrors([&] { (give(arguments[I], std::get<I>(values)), ...); });
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
