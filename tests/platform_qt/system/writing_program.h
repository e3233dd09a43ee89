// A program that writes until it is killed, and reports what it has done.
#pragma once

#include <QString>
#include <string>

namespace verlume::qt {

// What the program has finished: line `number` was shown, is the nickname, and so on.
struct Report {
  enum Kind : int { Ready, Shown, Named, Saved, MacroSaved };
  Kind kind;
  int number;
};

// The text of a line: from one byte to several pages, depending on its number.
std::string LineText(int number);

// Runs the program in `folder`, in conversation: it says the line with this number, sets the
// nickname to it, saves the dialogue and a macro, and continues with the next number. Reports are
// written to this descriptor.
[[noreturn]] void WriteFrom(int number, const QString& folder, int reports);

}  // namespace verlume::qt
