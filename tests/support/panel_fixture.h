#pragma once

#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"
#include "platform/headless/user.h"

namespace qrn::test {

using Events = std::vector<std::string>;

/// Arguments as they look in an expectation: "3", "False".
inline std::string shown(bool value) { return value ? "True" : "False"; }
inline std::string shown(std::int32_t value) { return std::to_string(value); }
inline std::string shown(std::int16_t value) { return std::to_string(value); }

/// What every control tells its container of the focus, beside its own events.
inline bool isFocusEvent(std::string_view name) { return name == "GotFocus" || name == "LostFocus"; }

/// Writes down every event of a panel with its arguments, in the order in which they are raised.
class EventLog {
 public:
  explicit EventLog(QRNDisplay& panel) {
    connection_ = panel.ObjectEvent.connect([this](std::string_view name, host::EventArgs arguments) {
      if (isFocusEvent(name)) return;
      std::string line(name);
      if (!arguments.empty()) line += "(";
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        const bool isFlag = name == "ParameterEndEdit" && i == 1;
        line += (i ? ", " : "") + (isFlag ? shown(arguments[i].as<bool>()) : shown(arguments[i].asLong()));
      }
      if (!arguments.empty()) line += ")";
      lines.push_back(line);
    });
  }

  /// What was raised since the last call.
  Events take() { return std::exchange(lines, {}); }

  Events lines;

 private:
  Connection connection_;
};

/// A panel on the headless platform: 400 by 300, characters 6 wide and 13 high.
class PanelTest : public ::testing::Test {
 protected:
  PanelTest() {
    registerControls();
    panel_ = host::create<QRNDisplay>(site);
    panel_->Move(0, 0, 400, 300);
    log = std::make_unique<EventLog>(*panel_);
    user = std::make_unique<headless::User>(platform, *panel_);
  }

  QRNDisplay& panel() { return *panel_; }
  clsQRNCollection& items() { return panel().Items(); }
  std::shared_ptr<clsQRNParam> addParameter(const std::string& name, qrnValueType type = qrnTypeString) {
    return items().AddParameter(name, type);
  }
  QRNEdit& row(std::int32_t position) {
    return std::dynamic_pointer_cast<clsQRNParam>(items().Item(Variant(position)))->Control();
  }
  Events events() { return log->take(); }
  /// Forgets what has been raised so far.
  void startListening() { log->take(); }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  host::Owned<QRNDisplay> panel_;
  std::unique_ptr<EventLog> log;
  std::unique_ptr<headless::User> user;
};

}  // namespace qrn::test
