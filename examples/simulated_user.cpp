#include <iostream>

#include "display/QRNDisplay.h"
#include "library/library.h"
#include "platform/headless/user.h"

int main() {
  qrn::registerControls();
  qrn::headless::HeadlessPlatform platform;
  qrn::headless::HeadlessSite site(platform);
  const auto panel = qrn::host::create<qrn::QRNDisplay>(site);
  const auto damping = panel->Items().AddParameter("damping", qrn::qrnTypeDouble);
  panel->LayoutControls(false);

  qrn::headless::User user(platform, *panel);
  user.focuses(damping->Control());
  user.types("2.5");
  user.switchesAway();  // to another application, which ends the edit
  std::cout << "damping is now " << damping->Control().ValueText() << std::endl;
  return damping->Control().ValueText() == "2.5" ? 0 : 1;
}
