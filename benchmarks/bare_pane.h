// For comparison: Qt's own widget without any code of the program. Each line has the same text in
// the same formats, and is inserted at once.
#pragma once

#include <QPlainTextEdit>
#include <QTextCharFormat>
#include <cstdint>

namespace verlume {

class BarePane {
 public:
  explicit BarePane(std::int64_t lines);

  void WriteLine();
  void Resize(int width, int height) { pane_.resize(width, height); }

 private:
  QPlainTextEdit pane_;
  QTextCharFormat stamp_;
  QTextCharFormat tag_;
  QTextCharFormat message_;
};

BarePane& BarePaneOf(std::int64_t lines);

}  // namespace verlume
