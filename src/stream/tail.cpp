#include "stream/tail.h"

#include <algorithm>

#include "platform/protocol_marker.h"

namespace verlume::stream {
namespace {

using Tail = FirstWords::Tail;

constexpr char kTailStart = '+';
constexpr std::string_view kPrivateWord = "secure/1";

bool IsWordCharacter(char byte) {
  return byte > ' ' && byte < '\x7F';
}

// The words of a tail, each separated from the next by one blank.
bool AreWords(std::string_view words) {
  bool isInWord = false;
  for (const char byte : words) {
    if (byte == ' ' ? !isInWord : !IsWordCharacter(byte)) return false;
    isInWord = byte != ' ';
  }
  return true;
}

bool HasWord(std::string_view words, std::string_view wanted) {
  while (!words.empty()) {
    const std::size_t end = std::min(words.find(' '), words.size());
    if (words.substr(0, end) == wanted) return true;
    words.remove_prefix(std::min(end + 1, words.size()));
  }
  return false;
}

// What stands behind the nickname's NUL; `length` is set with Private.
Tail ReadTail(std::string_view bytes, std::size_t& length) {
  if (!bytes.starts_with(kTailStart)) return Tail::None;
  const std::size_t end = bytes.substr(0, kLongestTail).find('\0');
  const std::string_view words = bytes.substr(1, end == bytes.npos ? end : end - 1);
  if (!AreWords(words)) return Tail::None;
  if (end == bytes.npos) return bytes.size() < kLongestTail ? Tail::Incomplete : Tail::None;
  if (words.ends_with(' ') || !HasWord(words, kPrivateWord)) return Tail::None;
  length = end + 1;
  return Tail::Private;
}

std::string MarkerAnd(Greeting greeting) {
  return std::string(kMarkerBytes) + static_cast<char>(greeting);
}

}  // namespace

std::string PrivacyTail() {
  return kTailStart + std::string(kPrivateWord) + '\0';
}

std::string WriteGreeting(Greeting greeting, std::string_view nickname, bool withTail) {
  std::string bytes = MarkerAnd(greeting);
  bytes += nickname;
  bytes += '\0';
  return withTail ? bytes + PrivacyTail() : bytes;
}

bool IsGreeting(std::string_view bytes, Greeting greeting) {
  const std::string start = MarkerAnd(greeting);
  return bytes.starts_with(start) && bytes.substr(start.size()).find('\0') != bytes.npos;
}

FirstWords ReadFirstWords(std::string_view bytes, Greeting wanted) {
  const std::string start = MarkerAnd(wanted);
  if (bytes.size() < start.size() && start.starts_with(bytes)) return {.tail = Tail::Incomplete};
  if (!IsGreeting(bytes, wanted)) return {};
  FirstWords first;
  const std::size_t end = bytes.find('\0', start.size());
  first.nickname = bytes.substr(start.size(), end - start.size());
  std::size_t tail = 0;
  first.tail = ReadTail(bytes.substr(end + 1), tail);
  first.length = end + 1 + tail;
  return first;
}

}  // namespace verlume::stream
