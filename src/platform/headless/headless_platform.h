#pragma once

#include <deque>
#include <map>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "host/platform.h"
#include "host/site.h"
#include "platform/common/window_table.h"
#include "platform/headless/manual_clock.h"
#include "platform/headless/recording_surface.h"

namespace qrn::headless {

/// Every character as wide as every other one.
class FixedMetrics final : public host::FontMetrics {
 public:
  double advance(std::string_view text) override;
  double height() const override { return textHeight; }
  double ascent() const override { return textHeight - 3; }

  double characterWidth = 6;
  double textHeight = 13;
  int measured = 0;
};

/// The peer of a control without a display: it only counts what it is told.
class HeadlessPeer final : public host::Peer {
 public:
  explicit HeadlessPeer(int& alive) : alive_(alive) { ++alive_; }
  HeadlessPeer(const HeadlessPeer&) = delete;
  HeadlessPeer& operator=(const HeadlessPeer&) = delete;
  ~HeadlessPeer() override { --alive_; }

  void changed(host::Aspect) override { ++changes; }
  void invalidate(const Rect& area) override { invalidated.push_back(area); }
  void takeFocus() override { ++focused; }
  void accessibleChanged(host::Control& control, host::Aspect aspect) override;

  int changes = 0;
  int focused = 0;
  std::vector<Rect> invalidated;
  /// Of a surface: whose changes tools would hear of.
  std::vector<std::pair<std::string, host::Aspect>> toldTools;

 private:
  int& alive_;
};

/// A machine without a display, whose time, text sizes and menu choices a test sets.
class HeadlessPlatform final : public host::Platform {
 public:
  std::unique_ptr<host::Peer> realise(host::Control& control) override;
  host::FontMetrics& metrics(const host::Font& font) override;
  host::FontPtr defaultFont() override { return font_; }
  WindowTable& windows() override { return windows_; }
  ManualClock& clock() override { return clock_; }
  std::optional<int> popUp(host::PopupMenu& menu, Point screen) override;
  Point cursor() const override { return cursor_; }
  Point screenPosition(const host::Control&) const override { return {}; }
  host::Color system(host::SystemColor which) const override;
  void paintControl(host::Surface& surface, const host::Control& control) override;
  double scrollBarWidth() const override { return 16; }
  double comboBoxHeight(const host::Font& font) override { return metrics(font).height() + 8; }
  void beep() override { ++beeps_; }
  std::shared_ptr<host::AutomationObject> createObject(std::string_view progId) override;
  std::string applicationName() const override { return "headless"; }

  // ---- what a test sets and looks at ----

  /// For all fonts, in logical pixels.
  void setTextSize(double characterWidth, double height);
  int measuredTexts() const;
  int peers() const { return peers_; }
  int beeps() const { return beeps_; }
  void setCursor(Point at) { cursor_ = at; }
  /// What the user will choose in the next menu that pops up; none closes it.
  void willChoose(std::optional<int> entry) { choices_.push_back(entry); }
  /// Where menus popped up, with the captions of the entries that could be seen.
  struct ShownMenu {
    Point at;
    std::vector<std::string> captions;
  };
  const std::vector<ShownMenu>& shownMenus() const { return menus_; }
  using ObjectFactory = std::function<std::shared_ptr<host::AutomationObject>()>;
  void provideObject(std::string progId, ObjectFactory factory) {
    objects_[std::move(progId)] = std::move(factory);
  }
  void processMessages() {
    while (windows_.hasPosted()) windows_.deliverPosted();
  }

 private:
  host::FontPtr font_ = std::make_shared<host::Font>("Sans", 9);
  std::vector<std::pair<host::Font, std::unique_ptr<FixedMetrics>>> metrics_;
  FixedMetrics model_;
  WindowTable windows_;
  ManualClock clock_;
  Point cursor_;
  int peers_ = 0;
  int beeps_ = 0;
  std::deque<std::optional<int>> choices_;
  std::vector<ShownMenu> menus_;
  std::map<std::string, ObjectFactory, std::less<>> objects_;
};

/// A site for controls that stand alone: the ambient properties are there to be set.
class HeadlessSite : public host::Site {
 public:
  explicit HeadlessSite(host::Platform& platform) : platform_(platform) {}
  host::Platform& platform() const override { return platform_; }
  host::Ambient ambient() const override { return ambientProperties; }
  void propertyChanged(host::UserControl&, std::string_view key) override { changedKeys.emplace_back(key); }

  host::Ambient ambientProperties;
  std::vector<std::string> changedKeys;

 private:
  host::Platform& platform_;
};

}  // namespace qrn::headless
