#include "stream/text_joiner.h"

#include <gtest/gtest.h>

#include "richtext/rtf_reader.h"
#include "stream/utf8_text.h"

namespace verlume::stream {
namespace {

using Text = std::optional<std::u16string>;

constexpr std::size_t kPart = 64 << 10;

class TextJoinerTest : public testing::Test {
 protected:
  // Adds a text in parts, and takes whatever is ready.
  std::vector<std::u16string> Join(std::string_view bytes, std::size_t length = kPart) {
    std::vector<std::u16string> texts;
    for (bool isEnd = false; !isEnd;) {
      const std::string_view part = bytes.substr(0, length);
      bytes.remove_prefix(part.size());
      isEnd = bytes.empty();
      joiner.Add(part, isEnd);
      while (auto text = joiner.Take()) texts.push_back(std::move(*text));
    }
    return texts;
  }

  TextJoiner joiner;
};

TEST_F(TextJoinerTest, ATextIsHandedOnWhenItIsWhole) {
  joiner.Add("{\\rtf1 he", false);
  EXPECT_EQ(joiner.Take(), std::nullopt);
  joiner.Add("llo} and {\\rtf1 more", true);
  EXPECT_EQ(joiner.Take(), Text(u"{\\rtf1 hello} and {\\rtf1 more"));
  EXPECT_EQ(joiner.Take(), std::nullopt);
}

TEST_F(TextJoinerTest, AnEmptyTextIsAText) {
  joiner.Add("", true);
  EXPECT_EQ(joiner.Take(), Text(u""));
  EXPECT_EQ(joiner.Take(), std::nullopt);
}

TEST_F(TextJoinerTest, ACharacterMayBeSplit) {
  EXPECT_EQ(Join("a\xF0\x9F\x98\x80", 2), std::vector<std::u16string>{u"a\U0001F600"});
}

TEST_F(TextJoinerTest, ALongDocumentComesInDocuments) {
  const std::string content(5 << 20, 'x');
  std::u16string shown;
  const auto texts = Join("{\\rtf1 " + content + "}");
  EXPECT_GT(texts.size(), 1u);
  for (const std::u16string& text : texts) {
    EXPECT_LT(text.size(), std::size_t{4 << 20});
    EXPECT_TRUE(text.starts_with(u"{\\rtf"));
    shown += richtext::ReadRtf(text).text;
  }
  EXPECT_EQ(shown.size(), content.size());
  EXPECT_EQ(Join("next"), std::vector<std::u16string>{u"next"});
}

TEST_F(TextJoinerTest, ALongPlainTextComesInPiecesThatSplitNoCharacter) {
  std::u16string text(3'000'000, u'\u03B1');
  std::u16string joined;
  const auto texts = Join(EncodeUtf8(text), kPart - 1);
  EXPECT_GT(texts.size(), 1u);
  for (const std::u16string& piece : texts) joined += piece;
  EXPECT_TRUE(joined == text);
}

}  // namespace
}  // namespace verlume::stream
