#include "shell/ScreenInformation.h"

namespace gp {
namespace {

struct Depth {
  int bits;
  const char* text;
};

constexpr Depth kDepths[] = {
    {4, "4 BPP (16 Color)"},     {8, "8 BPP (256 Color)"},    {16, "16 BPP (High color)"},
    {24, "24 BPP (True color)"}, {32, "32 BPP (True color)"},
};

// Depths without a name, such as 30, are shown as a number.
std::string depthText(int bits) {
  for (const Depth& depth : kDepths)
    if (depth.bits == bits) return depth.text;
  return std::to_string(bits) + " BPP";
}

}  // namespace

std::string screenInformation(SystemInfo& system) {
  return "Total RAM (KB):         " + std::to_string(system.totalMemoryKb()) +
         "\nScreen Width (Pixel):   " + std::to_string(system.physicalScreenWidth()) +
         "\nScreen Height (Pixel):  " + std::to_string(system.physicalScreenHeight()) +
         "\nBPP Set:   " + depthText(system.GetScreenBPP()) +
         "\nPixels/Inch Set:   " + std::to_string(system.GetPixelsPerInch());
}

}  // namespace gp
