#include "richtext/rtf_reading.h"

#include <gtest/gtest.h>

#include "richtext/document_dump.h"
#include "richtext/document_join.h"
#include "richtext/rtf_reader.h"

namespace verlume::richtext {
namespace {

const std::u16string kRtfHeader =
    u"{\\rtf1\\ansi\\deff1{\\fonttbl{\\f0 A;}{\\f1\\fcharset161 B;}}{\\colortbl;\\red1;}\\fs20 ";

Document Join(std::u16string_view rtf, std::size_t length) {
  RtfReading reading{std::u16string(rtf)};
  Document joined;
  while (!reading.IsDone()) Append(joined, reading.Next(length));
  return joined;
}

void ExpectSameInParts(const std::u16string& rtf) {
  const std::string whole = Dump(ReadRtf(rtf));
  for (std::size_t length = 1; length < rtf.size() + 2; length += 1 + length / 8) {
    EXPECT_EQ(Dump(Join(rtf, length)), whole) << "in parts of " << length;
  }
  std::u16string text = u"before";
  AppendRtfText(rtf, text);
  EXPECT_EQ(text, u"before" + ReadRtf(rtf).text);
}

TEST(RtfReading, PartsJoinedAreTheWhole) {
  ExpectSameInParts(kRtfHeader + u"plain {\\b bold\\i\\f0  and more} \\'e1\\'e2\\cf1 red\\tab x}");
  ExpectSameInParts(kRtfHeader + u"a\\par b\\par\\par c\\line\\par}");
  ExpectSameInParts(kRtfHeader + u"\\uc2\\u945 ??\\u946 {?}\\u947 ?? x{\\pict 00{\\x}}{\\*\\y z}w");
  ExpectSameInParts(kRtfHeader + u"x\\bin5 }}}}}y}behind the document");
}

TEST(RtfReading, PlainTextComesInPartsToo) {
  ExpectSameInParts(u"a\r\nb\rc\nd\r\n\r\n");
  ExpectSameInParts(u"plain {\\rtf1 and still plain}");
  ExpectSameInParts(u"");
}

TEST(RtfReading, NoPairOfSurrogatesIsInTwoParts) {
  for (const std::u16string rtf :
       {u"{\\rtf1 \U0001F600\U0001F600}", u"{\\rtf1\\uc0\\u55357\\u56832\\u55357 \\u56832}",
        u"\U0001F600\U0001F600"}) {
    RtfReading reading(rtf);
    std::u16string text;
    while (!reading.IsDone()) {
      const std::u16string part = reading.Next(1).text;
      EXPECT_FALSE(part.ends_with(u'\xD83D'));
      text += part;
    }
    EXPECT_EQ(text, u"\U0001F600\U0001F600");
  }
}

TEST(RtfReading, APartIsNotMuchLongerThanItWasAskedFor) {
  RtfReading reading(kRtfHeader + std::u16string(1'000'000, u'x'));
  EXPECT_LE(reading.Next(1'000).text.size(), 1'000u);
  RtfReading plain(std::u16string(1'000'000, u'x'));
  EXPECT_EQ(plain.Next(1'000).text.size(), 1'000u);
}

}  // namespace
}  // namespace verlume::richtext
