// Texts in files where they are UTF-8.
#include <gmock/gmock.h>

#include "platform_qt/os/local_text.h"

namespace verlume::qt {
namespace {

TEST(LocalTextPosixTest, TextIsWrittenAsUtf8) {
  EXPECT_EQ(EncodeLocal(u"aα\U0001F600"), "a\xCE\xB1\xF0\x9F\x98\x80");
}

TEST(LocalTextPosixTest, BytesThatAreNoUtf8AreGreekEachByItself) {
  EXPECT_EQ(DecodeLocal("\xE1\xE2\n\xCE\xB1\xE1"), u"αβ\nαα");
}

}  // namespace
}  // namespace verlume::qt
