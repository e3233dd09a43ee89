// A program that writes for as long as it lives, and reports what it has done.
#pragma once

#include <QString>
#include <string>

namespace verlume::qt {

// What the program has come back from: line `number` was shown, is the nickname, and so on.
struct Report {
  enum Kind : int { Ready, Shown, Named, Saved, MacroSaved };
  Kind kind;
  int number;
};

// The text of a line: of one byte and of several pages, by its number.
std::string LineText(int number);

// Runs the program in `folder`, in conversation: it says the line of this number, takes a nickname
// with it, saves the dialogue and a macro, and goes on with the next number. The reports go to this
// descriptor.
[[noreturn]] void WriteFrom(int number, const QString& folder, int reports);

}  // namespace verlume::qt
