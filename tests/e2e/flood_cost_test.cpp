// Content that is made to cost more than it should: time of the window, and memory.
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>
#include <future>
#include <iostream>

#include "flood.h"

namespace verlume::e2e {
namespace {

using FloodCost = Flood;

constexpr std::size_t kFlood = (2 << 20) / kShare;

// What is promised, and what the program keeps whatever it has shown: fonts, mostly. The sanitizer
// keeps freed memory for a while.
constexpr double kMostPerByte = 12 * kSlowness;
constexpr double kMostKept = (kSlowness == 1 ? 32 : 512) * kMebibyte;

std::string Document(const std::string& content) {
  return R"({\rtf1\ansi )" + content + "}";
}

// The shortest documents there are, each with a look of its own or none at all.
TEST_F(FloodCost, TinyDocumentsGluedTogether) {
  SendAndWatch(Repeat(R"({\rtf1 a})", kFlood));
  SendAndWatch(Repeat(R"({\rtf1\b a}{\rtf1\i b})", kFlood));
  std::string bytes;
  for (int i = 0; bytes.size() < kFlood; ++i) {
    bytes += R"({\rtf1{\fonttbl{\f0 N)" + std::to_string(i) + ";}}a}";
  }
  SendAndWatch(bytes);
}

TEST_F(FloodCost, LoneSurrogates) {
  SendAndWatch(Document(R"(\uc0 )" + Repeat(R"(\u55357 )", kFlood)));
}

// One installed family under many names: a foundry in brackets, and letters of either case.
TEST_F(FloodCost, FamiliesWithAFoundry) {
  std::string fonts;
  std::string text;
  for (int i = 0; i < 500; ++i) {
    const std::string number = std::to_string(i);
    fonts += R"({\f)" + number + " DejaVu Sans [f" + number + "];}";
    text += R"(\f)" + number + " a";
  }
  SendAndWatch(Document(R"({\fonttbl)" + fonts + "}" + Repeat(text, kFlood / 4)));
}

TEST_F(FloodCost, FindingWhileALongLineComesIn) {
  SendAndWatch(Repeat(R"({\rtf1 a})", kFlood));
  copy.Activate();
  copy.PressKeys("ctrl+f");
  Watch([&] {
    const int last = --lastNumber;
    auto sent = std::async(std::launch::async, [&] {
      return peer.Send(Document(Repeat(R"(\b a\b0 b)", kFlood - 100))) && peer.Send(Line(last));
    });
    EXPECT_TRUE(WaitUntil([&] { return copy.Log("Eve").contains("abab"); }));
    copy.Type("ab");
    copy.PressKeys("Return");
    EXPECT_TRUE(WaitUntil([&] { return IsShown(last); }, kLimit));
    EXPECT_TRUE(sent.get());
  });
}

TEST_F(FloodCost, FindingInMuchText) {
  SendAndWatch(Document(Repeat(R"(some words \par )", kFlood)));
  SendAndWatch(Repeat("some words ", 4 * kFlood));
  copy.Activate();
  copy.PressKeys("ctrl+f");
  Watch([&] {
    copy.Type("words");
    copy.PressKeys("Return");
  });
}

// What is left of a long line is dropped, and the program is at rest at once.
TEST_F(FloodCost, ClosingDropsWhatIsStillToBeShown) {
  Watch([&] {
    auto sent = std::async(std::launch::async, [&] {
      peer.Send(Document(Repeat(R"(\b a\b0 b)", kFlood - 100)));
      peer.Send(Repeat(R"({\rtf1\b a}{\rtf1\i b})", kFlood));
      return true;
    });
    EXPECT_TRUE(WaitUntil([&] { return copy.Log("Eve").contains("abab"); }));
    copy.TypeLine("/CLOSE");
    EXPECT_TRUE(WaitUntil([&] { return copy.EndOfLog("Eve").contains("Disconnected"); }));
    const double busyBefore = BusyTime();
    QElapsedTimer timer;
    timer.start();
    WaitUntil([&] { return timer.elapsed() > 1500; });
    std::cout << "busy after the close: " << BusyTime() - busyBefore << " ms; ";
    EXPECT_LT(BusyTime() - busyBefore, 200 * kSlowness);
    peer.Close();
    sent.get();
  });
}

// More paragraphs than the pane keeps: the oldest leave while new ones come.
TEST_F(FloodCost, MoreParagraphsThanThePaneKeeps) {
  constexpr double kMostPerParagraph = 1024;
  constexpr double kParagraphsKept = 200'000;
  const std::string paragraphs = Document(Repeat(R"(x\par )", 6 * 49'000 / kShare));
  for (int i = 0; i < 6; ++i) SendAndWatch(paragraphs);
  EXPECT_LT(Growth(), kMostKept + kMostPerParagraph * kParagraphsKept);
}

// Saving waits for the rest of the line, and the window answers meanwhile.
TEST_F(FloodCost, SavingWhileALongLineComesIn) {
  SendAndWatch(Document(Repeat(R"(\b some \b0 words \par )", kFlood)));
  SendAndWatch(Repeat("some words ", 4 * kFlood));
  const QTemporaryDir folder;
  const QString path = folder.filePath("saved.rtf");
  copy.TypeLine("/SAVEDIALOGUEAS");
  ASSERT_TRUE(copy.AnswerBox("Save dialogue as", "Return"));
  ASSERT_TRUE(copy.TypeInto("Save dialogue as RTF", path));
  Watch([&] {
    auto sent = std::async(std::launch::async, [&] {
      return peer.Send(Document(Repeat(R"(\b a\b0 b)", kFlood - 100)));
    });
    EXPECT_TRUE(WaitUntil([&] { return copy.Log("Eve").contains("abab"); }));
    copy.PressKeys("Return");
    EXPECT_TRUE(WaitUntil([&] { return QFile::exists(path); }));
    EXPECT_TRUE(sent.get());
  });
}

// All that had come is shown and logged, and takes no longer.
TEST_F(FloodCost, AClosingPeerIsShownToItsEnd) {
  Watch([&] {
    auto sent = std::async(std::launch::async, [&] {
      const bool isSent = peer.Send(Repeat(R"({\rtf1 a})", kFlood)) && peer.Send(Line(7));
      peer.Close();
      return isSent;
    });
    EXPECT_TRUE(WaitUntil([&] { return copy.EndOfLog("Eve").contains("Disconnected"); }, kLimit));
    EXPECT_TRUE(sent.get());
  });
  EXPECT_TRUE(copy.EndOfLog("Eve").contains(TextOfLine(7)));
  EXPECT_TRUE(copy.Dialogue().endsWith(TextOfLine(7)));
}

TEST_F(FloodCost, ANewColourForEachLetter) {
  const std::size_t size = (8 << 20) / kShare;
  std::string bytes;
  for (int shade = 0; bytes.size() < size;) {
    std::string colors;
    std::string text;
    for (int i = 1; i < 500; ++i, ++shade) {
      colors += R"(\red)" + std::to_string(shade % 256) + R"(\green)" +
                std::to_string(shade / 256 % 256) + R"(\blue)" +
                std::to_string(shade / 65536 % 256) + ";";
      text += R"(\cf)" + std::to_string(i) + " a";
    }
    bytes += Document(R"({\colortbl;)" + colors + "}" + text);
  }
  SendAndWatch(bytes);
  std::cout << Growth() / static_cast<double>(size) << " bytes of memory per byte\n";
  EXPECT_LT(Growth(), kMostKept + kMostPerByte * static_cast<double>(size));
}

TEST_F(FloodCost, AFormatForEachLetter) {
  const std::size_t size = (16 << 20) / kShare;
  SendAndWatch(Document(Repeat(R"({\b a}b)", size)));
  std::cout << Growth() / static_cast<double>(size) << " bytes of memory per byte\n";
  EXPECT_LT(Growth(), kMostKept + kMostPerByte * static_cast<double>(size));
  Watch([&] { copy.TypeLine("/CLEARDIALOGUE"); });
  EXPECT_LT(Growth(), kMostKept);
}

}  // namespace
}  // namespace verlume::e2e
