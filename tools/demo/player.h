// Plays a script at the program's keyboard. Its lines, done one after the other:
//
//   > TEXT     types the text into the command pane, key by key, and presses Enter
//   yes        waits for a question and answers Yes
//   connected  waits for the other side's nickname
//   lines N    waits until the dialogue pane holds N lines
//   print TEXT prints the text, for whoever waits for it
//
// The last line done, it leaves the program to the user.
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
  bool Do(const QString& line);  // false: not yet possible

  QStringList script_;
  QTimer timer_;
};

}  // namespace verlume::demo
