#include "shell/ScreenInformation.h"
#include "support/FakeMachine.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

TEST(ScreenInformation, FiveLinesTellOfTheMachine) {
  test::FakeSystem system;
  system.memoryKb = 4194304;
  system.pixelsPerInch = 120;
  EXPECT_EQ(screenInformation(system),
            "Total RAM (KB):         4194304\nScreen Width (Pixel):   1280\nScreen Height (Pixel):  1024\n"
            "BPP Set:   32 BPP (True color)\nPixels/Inch Set:   120");
}

TEST(ScreenInformation, EachDepthHasItsText) {
  struct {
    int bits;
    const char* text;
  } const cases[] = {{4, "4 BPP (16 Color)"},     {8, "8 BPP (256 Color)"},    {16, "16 BPP (High color)"},
                     {24, "24 BPP (True color)"}, {32, "32 BPP (True color)"}, {30, "30 BPP"}};
  test::FakeSystem system;
  for (const auto& row : cases) {
    system.bits = row.bits;
    EXPECT_NE(screenInformation(system).find(std::string("\nBPP Set:   ") + row.text + "\n"), std::string::npos);
  }
}

}  // namespace
}  // namespace gp
