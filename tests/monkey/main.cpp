#include <gtest/gtest.h>

#include "headless_hands.h"
#include "play/command_line.h"

int main(int argc, char** argv) {
  if (const auto code = qrn::monkey::playFromCommandLine(argc, argv, qrn::monkey::makeHeadlessHands))
    return *code;
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
