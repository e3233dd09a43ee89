#include "platform_qt/os/local_text.h"

#include <gmock/gmock.h>

namespace verlume::qt {
namespace {

TEST(LocalTextTest, ATextComesBackAsItWasWritten) {
  for (const std::u16string_view text :
       {u"", u"plain", u"αβγ\r\nΆλφα\r\n", u"naïve αβγ", u"日本語", u"\U0001F600", u"Î±Î²", u"Ã©",
        u"one\nα\nÎ±\n", u"\u00A5\u2212\uFF5E", u"\r\r\n\n\n"}) {
    EXPECT_EQ(DecodeLocal(EncodeLocal(text)), text);
  }
}

TEST(LocalTextTest, ALongTextComesBackWithItsPairsWhole) {
  for (const std::size_t length : {16383u, 16384u, 16385u, 200'000u}) {
    const std::u16string before(length, u'α');
    const std::u16string text = before + u"\U0001F600" + before;
    EXPECT_EQ(DecodeLocal(EncodeLocal(text)), text) << length;
    EXPECT_EQ(DecodeLocal(EncodeLocal(before)), before) << length;
  }
}

TEST(LocalTextTest, HalfAPairBecomesAQuestionMark) {
  const std::u16string halves = {u'a', 0xD800, u'b', 0xDC00, 0xDC00, 0xD800};
  EXPECT_EQ(EncodeLocal(halves), "a?b???");
  EXPECT_EQ(EncodeLocal(u"日" + halves),
            "\xE6\x97\xA5"
            "a?b???");
}

TEST(LocalTextTest, Utf8IsRead) {
  EXPECT_EQ(DecodeLocal("\xCE\xB1\xF0\x9F\x98\x80"), u"α\U0001F600");
  EXPECT_EQ(DecodeLocal("\xEF\xBB\xBF\xCE\xB1"), u"α") << "without its mark";
  EXPECT_EQ(DecodeLocal("\xEF\xBB\xBF"), u"");
}

}  // namespace
}  // namespace verlume::qt
