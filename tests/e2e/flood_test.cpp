// A peer that sends as fast as the loopback allows, and arbitrary content. The window must keep
// answering, nothing may be lost, and memory may grow only with what is shown.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <future>
#include <iostream>

#include "answer_watch.h"
#include "copy.h"
#include "raw_peer.h"

namespace verlume::e2e {
namespace {

using namespace std::string_literals;

constexpr double kMebibyte = 1 << 20;

// The window has to answer within 100 ms, in a build without sanitizers, which slow it down.
#if defined(__SANITIZE_ADDRESS__)
constexpr double kSlowness = 10;
constexpr int kLimit = 120'000;
constexpr std::size_t kShare = 32;  // divides the sizes that are sent
#else
constexpr double kSlowness = 1;
constexpr int kLimit = 240'000;
constexpr std::size_t kShare = 1;
#endif
constexpr double kLongestAnswer = 100 * kSlowness;
// The sanitizer keeps freed memory for a while.
constexpr double kMostMemory = (kSlowness == 1 ? 48 : 512) * kMebibyte;
constexpr double kMostMemoryPerCharacter = 4 * kSlowness;

std::string Repeat(std::string_view piece, std::size_t size) {
  std::string text;
  text.reserve(size + piece.size());
  while (text.size() < size) text += piece;
  return text;
}

std::string Line(int number) {
  return R"({\rtf1\ansi\ansicpg1253\deff0{\fonttbl{\f0\fnil\fcharset161 Tahoma;}}{\colortbl ;)"
         R"(\red0\green0\blue255;}\viewkind4\uc1\pard\cf1\f0\fs17 <)" +
         std::to_string(number) + R"(> \'ea\'e1\'eb\'e7\'ec\'dd\'f1\'e1, hello there\par})";
}

const QString kTextOfLine =
    u"<%1> \u03BA\u03B1\u03BB\u03B7\u03BC\u03AD\u03C1\u03B1, hello there"_qs;

// How many of "<1>", "<2>"... the text has in order, up to the first that is missing.
int CountInOrder(const QString& text) {
  int count = 0;
  qsizetype at = 0;
  while ((at = text.indexOf('<' + QString::number(count + 1) + '>', at)) >= 0) ++count;
  return count;
}

class Flood : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(WaitUntil([&] {
      copy.Activate();
      return copy.IsActive();
    }));
    copy.TypeLine("/CALL 127.0.0.1 " + peer.Port());
    ASSERT_TRUE(peer.TakeCall("Eve"));
    ASSERT_TRUE(WaitUntil([&] { return copy.Log("Eve").contains("Active connection."); }));
    memoryBefore = ProcessValue("VmRSS");
  }

  // Sends the bytes and watches the window until all of them are shown.
  void SendAndWatch(const std::string& bytes) {
    const int last = --lastNumber_;
    AnswerWatch watch(copy.Window().toUInt(), static_cast<pid_t>(copy.Process()));
    auto sent =
        std::async(std::launch::async, [&] { return peer.Send(bytes) && peer.Send(Line(last)); });
    EXPECT_TRUE(WaitUntil(
        [&] { return copy.EndOfLog("Eve").contains('<' + QString::number(last) + '>'); }, kLimit));
    WaitUntil([&] { return IsAtRest(); }, kLimit);
    const AnswerWatch::Answers answers = watch.Stop();
    EXPECT_TRUE(sent.get());
    std::cout << "worst answer " << answers.worst << " ms, of its own " << answers.worstOfItsOwn
              << " ms, of " << answers.count << "; memory " << Growth() / kMebibyte << " MiB more, "
              << ProcessValue("VmHWM") / kMebibyte << " MiB at most\n";
    EXPECT_GT(answers.count, 10);
    EXPECT_LT(answers.worstOfItsOwn, kLongestAnswer);
  }

  // Whether the main thread does next to nothing for a while.
  bool IsAtRest() {
    const double before = BusyTime();
    QElapsedTimer timer;
    timer.start();
    WaitUntil([&] { return timer.elapsed() > 300; });
    return BusyTime() - before < 60;
  }

  double Growth() const { return ProcessValue("VmRSS") - memoryBefore; }
  double ProcessValue(const QByteArray& name) const {
    QFile file(QString("/proc/%1/status").arg(copy.Process()));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    for (const QByteArray& line : file.readAll().split('\n')) {
      if (line.startsWith(name)) return line.simplified().split(' ').at(1).toDouble() * 1024;
    }
    return 0;
  }
  // How long the main thread has run or been ready to run, in milliseconds.
  double BusyTime() const {
    QFile file(QString("/proc/%1/task/%1/schedstat").arg(copy.Process()));
    if (!file.open(QIODevice::ReadOnly)) return 0;
    const QList<QByteArray> times = file.readAll().split(' ');
    return (times.at(0).toDouble() + times.at(1).toDouble()) / 1e6;
  }

  Copy copy{"Ann", false};
  RawPeer peer;
  double memoryBefore = 0;

 private:
  int lastNumber_ = 0;  // of the last line sent, which marks the end
};

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
  text += kTextOfLine.arg(-1);
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
