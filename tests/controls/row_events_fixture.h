#pragma once

#include <memory>

#include "row_fixture.h"

namespace qrn::test {

inline constexpr auto kRight = host::MouseButton::Right;

/// A row of 400 by 21 with two icons of 16 by 16, whose events are taken down.
class RowEvents : public RowTest {
 protected:
  RowEvents() {
    useType(qrnTypeString);
    row().SetWidth(400);
    row().SetIcon1Picture(picture(16, 16));
    row().SetIcon2Picture(picture(16, 16));
    raised();
  }
  host::Timer* timer() { return dynamic_cast<host::Timer*>(row().controls().find("tmrHit")); }
};

/// The same events of a row in a panel, where it can have the focus and lose it.
class RowFocus : public PanelTest {
 protected:
  RowFocus() {
    addParameter("first");
    addParameter("second");
    log_ = std::make_unique<RowLog>(row(1));
  }
  Events raised() { return log_->take(); }
  void leave() { panel().input().setFocus(nullptr); }

 private:
  std::unique_ptr<RowLog> log_;
};

}  // namespace qrn::test
