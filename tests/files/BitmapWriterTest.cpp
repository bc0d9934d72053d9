#include "files/BitmapWriter.h"
#include "files/IcoBuilder.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

TEST(BitmapWriter, APictureOf3By2IsByteForByteAPlainBitmap) {
  Surface surface(3, 2, kBlack);
  surface.SetPixelV(0, 0, rgb(1, 2, 3));
  surface.SetPixelV(2, 1, rgb(4, 5, 6));
  EXPECT_EQ(composeBitmap(surface),
            (Bytes{'B', 'M', 78, 0, 0, 0, 0, 0, 0, 0, 54, 0, 0, 0,                                  //
                   40,  0,   0,  0, 3, 0, 0, 0, 2, 0, 0,  0, 1, 0, 24, 0, 0, 0, 0, 0, 24, 0, 0, 0,  //
                   0,   0,   0,  0, 0, 0, 0, 0, 0, 0, 0,  0, 0, 0, 0,  0,                           //
                   0,   0,   0,  0, 0, 0, 6, 5, 4, 0, 0,  0, 3, 2, 1,  0, 0, 0, 0, 0, 0,  0, 0, 0}));
}

TEST(BitmapWriter, AFolderThatIsNotThereFails) {
  EXPECT_FALSE(writeBitmap(Surface(3, 2, kBlack), "/no/such/folder/a.bmp"));
}

}  // namespace
}  // namespace gp::test
