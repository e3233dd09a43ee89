#include "richtext/document_scan.h"

#include <string_view>

namespace verlume::richtext {
namespace {

constexpr std::string_view kBin = "bin";
// More data than any document may have; keeps the count from overflowing.
constexpr std::uint64_t kMostData = std::uint64_t{1} << 32;

bool IsLetter(char byte) {
  return (byte >= 'a' && byte <= 'z') || (byte >= 'A' && byte <= 'Z');
}

bool IsDigit(char byte) {
  return byte >= '0' && byte <= '9';
}

}  // namespace

bool DocumentScan::Feed(char byte) {
  switch (in_) {
    case In::Text:
      return FeedText(byte);
    case In::Escape:
      FeedEscape(byte);
      return false;
    case In::Word:
      return FeedWord(byte);
    case In::Parameter:
      return FeedParameter(byte);
    case In::Data:
      if (--parameter_ == 0) in_ = In::Text;
      return false;
  }
  return false;
}

bool DocumentScan::FeedText(char byte) {
  in_ = byte == '\\' ? In::Escape : In::Text;
  if (byte == '{') ++depth_;
  return byte == '}' && --depth_ == 0;
}

// The digits of \'xx are no braces, so they pass as text.
void DocumentScan::FeedEscape(char byte) {
  if (!IsLetter(byte)) {
    in_ = In::Text;
    return;
  }
  in_ = In::Word;
  letters_ = 1;
  isBin_ = byte == kBin[0];
  parameter_ = 0;
  isNegative_ = false;
}

bool DocumentScan::FeedWord(char byte) {
  if (IsLetter(byte)) {
    isBin_ = isBin_ && letters_ < 3 && byte == kBin[static_cast<std::size_t>(letters_)];
    if (letters_ < 3) ++letters_;
    return false;
  }
  isBin_ = isBin_ && letters_ == 3;
  in_ = In::Parameter;
  if (byte == '-') {
    isNegative_ = true;
    return false;
  }
  return FeedParameter(byte);
}

bool DocumentScan::FeedParameter(char byte) {
  if (!IsDigit(byte)) return EndWord(byte);
  if (parameter_ < kMostData) parameter_ = parameter_ * 10 + static_cast<unsigned>(byte - '0');
  return false;
}

// `byte` is the first one behind the word and its parameter: a blank belongs to them, any other
// byte is data or text already.
bool DocumentScan::EndWord(char byte) {
  const bool hasData = isBin_ && !isNegative_ && parameter_ > 0;
  in_ = hasData ? In::Data : In::Text;
  return byte != ' ' && Feed(byte);
}

}  // namespace verlume::richtext
