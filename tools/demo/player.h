// Types a script into the program. Its lines are carried out one after the other:
//
//   > TEXT     types the text into the command pane, key by key, and presses Enter
//   yes        waits for a question and answers Yes
//   connected  waits for the other side's nickname
//   lines N    waits until the dialogue pane holds N lines
//   print TEXT prints the text, for a script that waits for it
//
// After the last line the program is left to the user.
#pragma once

#include <QObject>
#include <QStringList>
#include <QTimer>

namespace verlume::demo {

class Player : public QObject {
 public:
  explicit Player(const QString& scriptFile);

 private:
  void Step();
  bool Do(const QString& line);  // false if not yet possible

  QStringList script_;
  QTimer timer_;
};

}  // namespace verlume::demo
