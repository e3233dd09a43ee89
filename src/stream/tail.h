// What a program can do, as it says behind the nickname of its first message: the tail. Standard
// C++ only.
//
// A tail is '+', words separated by single blanks, NUL. What stands behind a nickname was always
// ignored, so that a peer that knows nothing of tails notices nothing.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace verlume::stream {

// With '+' and NUL, in bytes.
inline constexpr std::size_t kLongestTail = 64;

// The first messages of the two sides.
enum class Greeting : char {
  Start = 'S',    // of the side that was called
  Confirm = 'C',  // the answer of the caller
};

// The tail of a program that can make the conversation private.
std::string PrivacyTail();

// `marker, kind, nickname, NUL` and that tail, or without it.
std::string WriteGreeting(Greeting greeting, std::string_view nickname, bool withTail);

// Whether the bytes begin like a whole greeting of this kind.
bool IsGreeting(std::string_view bytes, Greeting greeting);

// What the first bytes that the peer has sent say.
struct FirstWords {
  enum class Tail {
    None,        // it can do nothing special
    Incomplete,  // the bytes end inside the marker or the tail
    Private,     // it can make the conversation private
  };
  Tail tail = Tail::None;
  std::string_view nickname = {};  // of a greeting of the wanted kind; "" otherwise
  std::size_t length = 0;          // with Private: where the tail ends
};
FirstWords ReadFirstWords(std::string_view bytes, Greeting wanted);

}  // namespace verlume::stream
