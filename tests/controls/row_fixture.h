#pragma once

#include <functional>
#include <ostream>
#include <string_view>

#include "host/class_table.h"
#include "runtime/conversions.h"
#include "runtime/locale.h"
#include "support/error_of.h"
#include "support/panel_fixture.h"

namespace qrn {

inline void PrintTo(const Rect& rect, std::ostream* out) {
  *out << rect.left << "," << rect.top << " " << rect.width << "x" << rect.height;
}

inline void PrintTo(const Variant& value, std::ostream* out) {
  *out << typeName(value.type()) << " ";
  if (!value.isNull() && !value.isObject()) *out << CStr(value);
}

}  // namespace qrn

namespace qrn::test {

inline host::PicturePtr picture(int width, int height) {
  const auto pixels = static_cast<std::size_t>(width * height);
  return std::make_shared<host::Picture>(
      std::vector<host::Picture::Bitmap>{{width, height, std::vector<std::uint32_t>(pixels, 0xFF000000)}});
}

/// The events of one row with their arguments.
class RowLog {
 public:
  explicit RowLog(QRNEdit& row) {
    connection_ = row.ObjectEvent.connect([this](std::string_view name, host::EventArgs arguments) {
      if (isFocusEvent(name)) return;
      std::string line(name);
      for (std::size_t i = 0; i < arguments.size(); ++i) {
        line += i ? ", " : "(";
        line += name == "EndEdit" ? shown(arguments[i].as<bool>()) : shown(arguments[i].asLong());
      }
      lines_.push_back(arguments.empty() ? line : line + ")");
    });
  }
  Events take() { return std::exchange(lines_, {}); }

 private:
  Events lines_;
  Connection connection_;
};

/// A row that stands alone: 320 by 21, characters 6 wide and 13 high.
class RowTest : public ::testing::Test {
 protected:
  RowTest() {
    registerControls();
    qrn::setCurrentLocale(qrn::enUS());
    row_ = host::create<QRNEdit>(site);
    user = std::make_unique<headless::User>(platform, *row_);
    log_ = std::make_unique<RowLog>(*row_);
  }
  ~RowTest() override { setCurrentLocale(enUS()); }

  QRNEdit& row() { return *row_; }
  void useType(qrnValueType type) { row().SetValueType(type); }
  void useBag(const host::PropertyBag& bag) {
    log_.reset();
    row_ = host::create<QRNEdit>(site, &bag);
    user = std::make_unique<headless::User>(platform, *row_);
    log_ = std::make_unique<RowLog>(*row_);
  }
  host::PropertyBag saved() {
    host::PropertyBag bag;
    row().writeProperties(bag);
    return bag;
  }

  host::TextBox& textBox() { return dynamic_cast<host::TextBox&>(*row().CurrentEditor()); }
  host::CheckBox& checkBox() { return dynamic_cast<host::CheckBox&>(*row().CurrentEditor()); }
  host::ComboBox& dropList() { return dynamic_cast<host::ComboBox&>(*row().CurrentEditor()); }
  host::ListBox& bitList() { return dynamic_cast<host::ListBox&>(*row().CurrentEditor()); }
  void addEntries(std::initializer_list<const char*> names) {
    for (const char* name : names) row().SetValueNames(-1, name);
  }
  /// As if it had been typed, without the keys.
  void type(std::string_view text) { textBox().userTyped(text, 0); }

  Events raised() { return log_->take(); }
  /// The keys of the properties that have changed since the last call.
  Events notified() { return std::exchange(site.changedKeys, {}); }
  /// Whether an action lays the row out: a text that was pushed aside comes back.
  bool laysOut(const std::function<void()>& action) {
    constexpr double kAside = -1000;
    row().lblLabel().SetLeft(kAside);
    row().lblUnit().SetLeft(kAside);
    action();
    return row().lblLabel().Left() != kAside || row().lblUnit().Left() != kAside;
  }
  std::vector<std::string> painted(std::string_view kind) {
    headless::RecordingSurface surface(platform, row().pixelSize());
    row().paintTree(surface);
    return surface.operations(kind);
  }

  headless::HeadlessPlatform platform;
  headless::HeadlessSite site{platform};
  host::Owned<QRNEdit> row_;
  std::unique_ptr<headless::User> user;

 private:
  std::unique_ptr<RowLog> log_;
};

}  // namespace qrn::test
