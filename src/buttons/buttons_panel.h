#pragma once

#include <cstdint>
#include <memory>

#include "base/weak_ref.h"
#include "host/picture_box.h"
#include "host/posted_call.h"
#include "host/user_control.h"

namespace qrn {

/// What footer buttons need of the panel that they stand on.
class ButtonsPanel {
 public:
  virtual Anchor& anchor() = 0;
  /// Whose control collection holds the buttons and their timer, and in whose font they are measured.
  virtual host::UserControl& control() = 0;
  virtual host::PictureBox& ButtonsContainer() = 0;
  virtual std::unique_ptr<host::CallPoster> makePoster() = 0;

  // By the position of the button.
  virtual void buttonNeedsLayout(std::int32_t index) = 0;
  virtual void buttonClicked(std::int32_t index) = 0;
  /// There are more or fewer than before.
  virtual void buttonsChanged() = 0;

 protected:
  ~ButtonsPanel() = default;
};

}  // namespace qrn
