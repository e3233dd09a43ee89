#include "richtext/document_scan.h"

namespace verlume::richtext {

bool DocumentScan::Feed(char byte) {
  switch (in_) {
    case In::Text:
      return FeedText(byte);
    case In::Escape:
      FeedEscape(byte);
      return false;
    case In::Word:
      return FeedWord(byte);
    case In::Number:
      return FeedNumber(byte);
    case In::Data:
      if (--number_ == 0) in_ = In::Text;
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
  if (!IsAsciiLetter(byte)) {
    in_ = In::Text;
    return;
  }
  in_ = In::Word;
  letters_[0] = byte;
  letterCount_ = 1;
  number_ = 0;
  isNegative_ = false;
}

bool DocumentScan::FeedWord(char byte) {
  if (IsAsciiLetter(byte)) {
    if (letterCount_ < letters_.size()) letters_[letterCount_++] = byte;
    return false;
  }
  in_ = In::Number;
  if (byte != '-') return FeedNumber(byte);
  isNegative_ = true;
  return false;
}

bool DocumentScan::FeedNumber(char byte) {
  if (!IsAsciiDigit(byte)) return EndWord(byte);
  number_ = WithDigit(number_, byte);
  return false;
}

// `byte` is the first one behind the word and its number: a blank belongs to them, any other byte
// is data or text already.
bool DocumentScan::EndWord(char byte) {
  number_ = ControlNumber(number_);
  in_ = IsData() ? In::Data : In::Text;
  return byte != ' ' && Feed(byte);
}

// Whether data comes behind the word.
bool DocumentScan::IsData() const {
  if (isNegative_ || number_ == 0) return false;
  const char* letters = letters_.data();
  const auto name = ControlWordName::Read(letters, letters + letterCount_);
  return FindControlWord(name).action == Action::kBinary;
}

}  // namespace verlume::richtext
