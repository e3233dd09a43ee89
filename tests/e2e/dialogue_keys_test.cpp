// What is typed while the dialogue pane has the keyboard, with the keys of a real keyboard.
#include <gtest/gtest.h>

#include <QProcess>

#include "copy.h"

namespace verlume::e2e {
namespace {

class DialogueKeys : public testing::Test {
 protected:
  ~DialogueKeys() override { UseLayout("us"); }

  static void UseLayout(const QString& layout) { QProcess::execute("setxkbmap", {layout}); }

  Copy copy{"Ann", true};
};

TEST_F(DialogueKeys, ThatTypeGoToTheCommandPaneAlsoWithADeadKey) {
  constexpr double kWithinDialogue = 0.25;
  copy.ClickAt(0.5, kWithinDialogue);
  UseLayout("gr");
  QProcess::execute("xdotool", {"key", "--delay", "100", "dead_acute", "Greek_alpha", "Greek_nu",
                                "space", "Greek_nu", "Greek_alpha", "Greek_iota"});
  UseLayout("us");
  copy.PressKeys("Return");
  EXPECT_TRUE(WaitUntil([&] { return copy.Dialogue() == "<Ann>άν ναι"; }))
      << copy.Dialogue().toStdString();
}

}  // namespace
}  // namespace verlume::e2e
