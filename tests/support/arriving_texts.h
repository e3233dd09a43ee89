// Texts that could be mistaken for something else: control characters, escapes, RTF, commands,
// stamps of the log, direction marks, halves of surrogate pairs, line ends of every kind.
#pragma once

#include <random>
#include <string>
#include <string_view>

namespace verlume {

class ArrivingTexts {
 public:
  static constexpr unsigned kSeed = 20260307;
  static constexpr int kCount = 1000;

  explicit ArrivingTexts(unsigned seed = kSeed) : random_(seed) {}

  // The next text; never empty. The same seed gives the same texts.
  std::u16string Next();

 private:
  std::u16string NextPiece();
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_() % limit); }

  std::mt19937 random_;  // the standard's distributions differ from library to library
};

// How a program sends the text: what RTF could take for markup is escaped.
std::u16string SentAsRtf(std::u16string_view text);

// Whether the text can also be sent as it stands: it holds no RTF document, which would be read.
bool CanBeSentPlain(std::u16string_view text);

// What is left of the text when it is sent as it stands, in the code page of the wire.
std::u16string OnTheWire(std::u16string_view text);

// What the pane shows: each line end is one line break, and units that a text box keeps for itself
// are U+FFFD.
std::u16string ShownInPane(std::u16string_view text);

// What stands in the log: everything, in one line. Line ends and control characters are blanks,
// halves of surrogate pairs are question marks.
std::u16string ShownInLog(std::u16string_view text);

// The text with each direction mark as its escape, `\u202E`: the log may say it so. Compare both
// sides in this form. To undo the escapes would also change a text that itself says `\u202E`.
std::u16string WithDirectionMarksEscaped(std::u16string_view text);

// For the message of a test that fails: all but printable ASCII as escapes.
std::string Printable(std::u16string_view text);

}  // namespace verlume
