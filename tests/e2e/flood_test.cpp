// A peer that sends as fast as the loopback allows, and arbitrary content. The window must keep
// answering, nothing may be lost, and memory may grow only with what is shown.
#include <iostream>

#include "flood.h"

namespace verlume::e2e {
namespace {

using namespace std::string_literals;

// The sanitizer keeps freed memory for a while.
constexpr double kMostMemory = (kSlowness == 1 ? 48 : 512) * kMebibyte;
constexpr double kMostMemoryPerCharacter = 4 * kSlowness;

// How many of "<1>", "<2>"... the text has in order, up to the first that is missing.
int CountInOrder(const QString& text) {
  int count = 0;
  qsizetype at = 0;
  while ((at = text.indexOf('<' + QString::number(count + 1) + '>', at)) >= 0) ++count;
  return count;
}

TEST_F(Flood, LinesAreShownOnceAndInOrder) {
  const int lines = 10'000 / static_cast<int>(kShare);
  std::string bytes;
  for (int i = 1; i <= lines; ++i) bytes += Line(i);
  SendAndWatch(bytes);
  EXPECT_EQ(CountInOrder(copy.Log("Eve")), lines);
  EXPECT_EQ(copy.Log("Eve").count("hello there"), lines + 1);
  EXPECT_EQ(CountInOrder(copy.Dialogue()), lines);
}

// What Eve has sent, without the tags of the lines. `text` is the pane's or the log's, which has
// other lines too.
QString LinesOfEve(const QString& text) {
  const QString tag = "<Eve>";
  QString lines;
  for (QString line : text.split('\n')) {
    const qsizetype at = line.indexOf(tag);
    if (at >= 0) lines += line.remove('\r').sliced(at + tag.size());
  }
  return lines;
}

TEST_F(Flood, ALineOfFiveMebibytesIsShownWhole) {
  std::string content;
  QString text;
  for (int i = 0; content.size() < 5 << 20; ++i) {
    const std::string number = std::to_string(i);
    content += number + R"( w\'efrds, \u945?{ and \u-10179?\u-8704? more; })";
    text += QString::fromStdString(number);
    text += QStringView(u" w\u03BFrds, \u03B1 and \U0001F600 more; ");
  }
  SendAndWatch(R"({\rtf1\ansi\ansicpg1253 )" + content + "}");
  text += TextOfLine(-1);
  EXPECT_TRUE(LinesOfEve(copy.Log("Eve")) == text);
  EXPECT_TRUE(LinesOfEve(copy.Dialogue()) == text);
}

TEST_F(Flood, AWordOfFourMebibytes) {
  SendAndWatch(R"({\rtf1\ansi )" + std::string((4 << 20) - 100, 'x') + "}");
}

TEST_F(Flood, AnEndlessLine) {
  const std::size_t size = (64 << 20) / kShare;
  SendAndWatch(R"({\rtf1\ansi )" + std::string(size, 'x') + "}");
  EXPECT_LT(Growth(), kMostMemory + kMostMemoryPerCharacter * static_cast<double>(size));
}

TEST_F(Flood, AnEndlessPlainLine) {
  const std::size_t size = (64 << 20) / kShare;
  SendAndWatch(std::string(size, 'x'));
  EXPECT_LT(Growth(), kMostMemory + kMostMemoryPerCharacter * static_cast<double>(size));
}

// One line each, full of what is slowest to read or to lay out.
std::vector<std::pair<const char*, std::string>> CostlyLines() {
  constexpr std::size_t kSize = (3 << 20) / kShare;
  std::string fonts;
  std::string inAllFonts;
  std::string inAllColors = R"({\colortbl)";
  std::string inAllSizes;
  std::string allCharacters = R"(\uc0 )";
  for (int i = 0; i < 512; ++i) {
    const std::string number = std::to_string(i);
    fonts += R"({\f)" + number + " No such font " + number + ";}";
    inAllFonts += R"(\f)" + number + " a";
    inAllColors += R"(\red)" + std::to_string(i % 256) + R"(\green)" + std::to_string(i / 2) + ";";
  }
  inAllColors += "}";
  for (int i = 0; i < 512; ++i) inAllColors += R"(\cf)" + std::to_string(i) + " a";
  for (int i = 2; i <= 144; ++i) {
    inAllSizes += R"(\b\i0\fs)" + std::to_string(i) + R"( a\b0 b\i c)";
  }
  for (int i = 0x20; i < 0xD800; i += 7) allCharacters += R"(\u)" + std::to_string(i) + " ";
  return {
      {"groups", Repeat("{", kSize / 2) + "x" + Repeat("}", kSize / 2)},
      {"short pieces", Repeat(R"(\b a\b0 b)", kSize)},
      {"line breaks", Repeat(R"(\line )", kSize)},
      {"paragraphs", Repeat(R"(\par )", kSize)},
      {"line feeds", Repeat("\\\n", kSize)},
      {"tabs", Repeat(R"(\tab )", kSize)},
      {"blanks", Repeat("                ", kSize)},
      {"great letters", R"(\fs144 )" + Repeat("some words ", kSize)},
      {"small letters", R"(\fs2 )" + Repeat("some words ", kSize)},
      {"small word", R"(\fs2 )" + Repeat("x", kSize)},
      {"marks over one letter", R"(\uc0 a)" + Repeat(R"(\u768 \u819 )", kSize)},
      {"marks over letters", R"(\uc0 )" + Repeat(R"(a\u768 \u819 \u1160 )", kSize)},
      {"right to left", R"(\uc0 )" + Repeat(R"(\u1488 \u1489 12 a )", kSize)},
      {"joined letters", R"(\uc0 )" + Repeat(R"(\u1576 \u1604 \u1575 )", kSize)},
      {"directions", R"(\uc0 )" + Repeat(R"(\u8238 a\u8237 b\u8296 c)", kSize)},
      {"joiners", R"(\uc0 )" + Repeat(R"(\u8205 \u-10179 \u-8704 )", kSize)},
      {"no characters", R"(\uc0 )" + Repeat(R"(\u0 \u-1 \u-4 \u55296 )", kSize)},
      {"all characters", Repeat(allCharacters, kSize)},
      {"fonts", R"({\fonttbl)" + fonts + "}" + Repeat(inAllFonts, kSize)},
      {"colours", Repeat(inAllColors, kSize)},
      {"sizes", Repeat(inAllSizes, kSize)},
      {"data", R"(\bin)" + std::to_string(kSize) + " " + std::string(kSize, '{')},
      {"fallbacks", Repeat(R"(\uc255\u945 )", kSize)},
      {"pictures", Repeat(R"({\pict 00})", kSize)},
  };
}

TEST_F(Flood, TheWindowAnswersWhileCostlyLinesAreInserted) {
  for (const auto& [name, content] : CostlyLines()) {
    SCOPED_TRACE(name);
    std::cout << name << ": ";
    SendAndWatch(R"({\rtf1\ansi )" + content + "}");
  }
}

}  // namespace
}  // namespace verlume::e2e
