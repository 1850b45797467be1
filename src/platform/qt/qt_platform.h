#pragma once

#include <array>
#include <deque>
#include <optional>
#include <utility>

#include "host/platform.h"
#include "platform/qt/qt_accessible_events.h"
#include "platform/qt/qt_application_watch.h"
#include "platform/qt/qt_clock.h"
#include "platform/qt/qt_editor_painter.h"
#include "platform/qt/qt_font_metrics.h"
#include "platform/qt/qt_palettes.h"
#include "platform/qt/qt_picture_cache.h"
#include "platform/qt/qt_windows.h"

class QWidget;

namespace qrn::host {
class UserControl;
}

namespace qrn::qt {

/// Controls on widgets of Qt. Needs the application object, and must outlive the controls.
class QtPlatform final : public host::Platform {
 public:
  QtPlatform();

  /// The widget that shows a control, made on the first call. The caller lays it out and may hand it to a
  /// parent; it goes with the control or with that parent, whichever goes first.
  QWidget* widget(host::UserControl& control);

  std::unique_ptr<host::Peer> realise(host::Control& control) override;
  QtFontMetrics& metrics(const host::Font& font) override;
  host::FontPtr defaultFont() override { return defaultFont_; }
  QtWindows& windows() override { return windows_; }
  QtClock& clock() override { return clock_; }
  std::optional<int> popUp(host::PopupMenu& menu, Point screen) override;
  Point cursor() const override;
  Point screenPosition(const host::Control& control) const override;
  host::Color system(host::SystemColor which) const override;
  void paintControl(host::Surface& surface, const host::Control& control) override;
  double scrollBarWidth() const override;
  double comboBoxHeight(const host::Font& font) override;
  void beep() override;
  /// Nothing can be made by its ProgID here.
  std::shared_ptr<host::AutomationObject> createObject(std::string_view) override { return nullptr; }
  std::string applicationName() const override;

  QtPalettes& palettes() { return palettes_; }
  QtPictureCache& pictures() { return pictures_; }
  const QtEditorPainter& editorPainter() const { return editorPainter_; }
  int menusShown() const { return menusShown_; }
  QtAccessibleEvents& accessibleEvents() { return accessibleEvents_; }
  /// Palette, style or scale of the application are others now.
  void appearanceChanged();

 private:
  host::Color systemNow(host::SystemColor which) const;

  host::FontPtr defaultFont_;
  std::deque<std::pair<host::Font, QtFontMetrics>> metrics_;
  QtWindows windows_;
  QtApplicationWatch applicationWatch_{windows_};
  QtClock clock_;
  QtPalettes palettes_;
  QtPictureCache pictures_;
  QtAccessibleEvents accessibleEvents_;
  QtEditorPainter editorPainter_;
  int menusShown_ = 0;
  // The system's colours that were asked for, and of which palette of the application they are.
  static constexpr std::size_t kSystemColors = 32;
  mutable qint64 palette_ = 0;
  mutable std::array<std::optional<host::Color>, kSystemColors> systemColors_;
};

}  // namespace qrn::qt
