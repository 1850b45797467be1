#pragma once

#include <cstdint>
#include <string_view>

namespace qrn::host {

using WindowHandle = std::intptr_t;

/// Messages keep the numbers and meanings of the Win32 interface.
namespace wm {
inline constexpr std::uint32_t Activate = 0x0006;
inline constexpr std::uint32_t Close = 0x0010;
inline constexpr std::uint32_t ActivateApp = 0x001C;
inline constexpr std::uint32_t NcHitTest = 0x0084;
inline constexpr std::uint32_t GetDlgCode = 0x0087;
inline constexpr std::uint32_t KeyDown = 0x0100;
inline constexpr std::uint32_t KeyUp = 0x0101;
inline constexpr std::uint32_t User = 0x0400;
}  // namespace wm

/// Answers to GetDlgCode: the keys that a window wants for itself.
namespace dlgc {
inline constexpr std::intptr_t WantArrows = 0x01;
inline constexpr std::intptr_t WantTab = 0x02;
inline constexpr std::intptr_t WantAllKeys = 0x04;
inline constexpr std::intptr_t HasSetSel = 0x08;
inline constexpr std::intptr_t WantChars = 0x80;
inline constexpr std::intptr_t Button = 0x2000;
}  // namespace dlgc

/// Bits of a window's style that mean something to the standard controls.
namespace style {
inline constexpr std::intptr_t EditUpperCase = 0x0008;
inline constexpr std::intptr_t ComboUpperCase = 0x2000;
}  // namespace style

inline constexpr int kGwlWndProc = -4;
inline constexpr int kGwlStyle = -16;
inline constexpr int kGwlUserData = -21;
inline constexpr std::intptr_t kHitNowhere = 0;
inline constexpr std::intptr_t kHitClient = 1;

struct Message {
  std::uint32_t number = 0;
  std::intptr_t wParam = 0;
  std::intptr_t lParam = 0;
};

/// What stands behind a window: answers the messages that no installed procedure kept to itself.
class WindowOwner {
 public:
  virtual ~WindowOwner() = default;
  virtual std::intptr_t windowMessage(const Message& message) = 0;
  virtual bool windowEnabled() const = 0;
  virtual WindowHandle parentWindow() const = 0;
  virtual std::string_view windowTitle() const = 0;
  virtual void windowInvalidated() = 0;
  /// The style with the bits that the owner keeps itself.
  virtual std::intptr_t windowStyle(std::intptr_t style) const { return style; }
  virtual void windowStyleChanged(std::intptr_t /*style*/) {}
};

/// The part of the window interface that the controls use. A handle that is stale, or never was one, is
/// answered with 0 and does nothing.
class Windows {
 public:
  using Procedure = std::intptr_t (*)(WindowHandle, std::uint32_t, std::intptr_t, std::intptr_t);

  virtual ~Windows() = default;

  virtual WindowHandle create(WindowOwner& owner) = 0;
  virtual void destroy(WindowHandle window) = 0;

  virtual std::intptr_t getLong(WindowHandle window, int index) = 0;
  /// Answers the value that was there before.
  virtual std::intptr_t setLong(WindowHandle window, int index, std::intptr_t value) = 0;
  virtual std::intptr_t callProcedure(std::intptr_t procedure, WindowHandle window,
                                      const Message& message) = 0;

  virtual std::intptr_t property(WindowHandle window, std::string_view name) = 0;
  virtual void setProperty(WindowHandle window, std::string_view name, std::intptr_t value) = 0;
  virtual std::intptr_t removeProperty(WindowHandle window, std::string_view name) = 0;

  virtual WindowHandle parent(WindowHandle window) = 0;
  /// The first window without a parent that has exactly this title.
  virtual WindowHandle findByTitle(std::string_view title) = 0;
  virtual bool isEnabled(WindowHandle window) = 0;
  virtual void invalidate(WindowHandle window) = 0;

  virtual std::intptr_t send(WindowHandle window, const Message& message) = 0;
  /// Delivered by the message loop, after the code that is running now, in the order of posting.
  virtual void post(WindowHandle window, const Message& message) = 0;
};

}  // namespace qrn::host
