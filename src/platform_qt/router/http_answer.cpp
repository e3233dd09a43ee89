#include "platform_qt/router/http_answer.h"

#include <algorithm>
#include <charconv>

namespace verlume::qt {
namespace {

constexpr std::string_view kHeadEnd = "\r\n\r\n";

char Lower(char c) {
  return c >= 'A' && c <= 'Z' ? static_cast<char>(c | 0x20) : c;
}

bool IsSameWord(std::string_view a, std::string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(),
                    [](char x, char y) { return Lower(x) == Lower(y); });
}

std::string_view WithoutBlanks(std::string_view text) {
  const auto first = text.find_first_not_of(" \t\r");
  if (first == text.npos) return {};
  return text.substr(first, text.find_last_not_of(" \t\r") - first + 1);
}

std::optional<std::size_t> Number(std::string_view text, int base) {
  std::size_t number = 0;
  const char* end = text.data() + text.size();
  const auto [last, error] = std::from_chars(text.data(), end, number, base);
  if (error != std::errc() || last != end) return std::nullopt;
  return number;
}

}  // namespace

std::optional<std::string_view> HeadField(std::string_view head, std::string_view name) {
  while (!head.empty()) {
    const std::string_view line = head.substr(0, head.find('\n'));
    head.remove_prefix(std::min(line.size() + 1, head.size()));
    const auto colon = line.find(':');
    if (colon == line.npos || !IsSameWord(line.substr(0, colon), name)) continue;
    return WithoutBlanks(line.substr(colon + 1));
  }
  return std::nullopt;
}

int HeadStatus(std::string_view head) {
  constexpr std::string_view kStart = "HTTP/1.";
  constexpr std::size_t kPlace = 9;  // behind "HTTP/1.1 "
  if (!head.starts_with(kStart) || head.size() < kPlace + 3) return 0;
  return static_cast<int>(Number(head.substr(kPlace, 3), 10).value_or(0));
}

bool HttpReader::Add(std::string_view bytes) {
  if (state_ == State::Whole || state_ == State::Broken) return false;
  if (bytes.size() > kLongestAnswer - bytes_.size()) {
    state_ = State::Broken;
    return false;
  }
  bytes_ += bytes;
  if (state_ == State::Head) ReadHead();
  if (state_ == State::Body) ReadBody();
  return state_ == State::Head || state_ == State::Body;
}

void HttpReader::ReadHead() {
  const auto end = bytes_.find(kHeadEnd);
  if (end == bytes_.npos) return;
  const std::string_view head = std::string_view(bytes_).substr(0, end);
  bodyStart_ = end + kHeadEnd.size();
  answer_.status = HeadStatus(head);
  isChunked_ = IsSameWord(HeadField(head, "Transfer-Encoding").value_or(""), "chunked");
  state_ = answer_.status == 0 ? State::Broken : State::Body;
  if (const auto length = HeadField(head, "Content-Length"); length && !isChunked_) {
    length_ = Number(*length, 10);
    if (!length_ || *length_ > kLongestAnswer) state_ = State::Broken;
  }
}

void HttpReader::ReadBody() {
  if (isChunked_) {
    while (state_ == State::Body && TakeChunk()) {
    }
  } else if (length_ && bytes_.size() - bodyStart_ >= *length_) {
    answer_.body = bytes_.substr(bodyStart_, *length_);
    state_ = State::Whole;
  }
}

// A chunk is its length in hexadecimal, a line end, so many bytes, a line end; the last one is
// empty. False while it is not all there.
bool HttpReader::TakeChunk() {
  const std::string_view rest = std::string_view(bytes_).substr(bodyStart_);
  const auto lineEnd = rest.find("\r\n");
  if (lineEnd == rest.npos) return false;
  const std::string_view line = rest.substr(0, lineEnd);
  const auto length = Number(WithoutBlanks(line.substr(0, line.find(';'))), 16);
  if (!length || *length > kLongestAnswer) {
    state_ = State::Broken;
    return false;
  }
  const std::size_t start = lineEnd + 2;
  if (*length == 0) {
    state_ = State::Whole;
    return true;
  }
  if (rest.size() < start + *length + 2) return false;
  answer_.body += rest.substr(start, *length);
  bodyStart_ += start + *length + 2;
  return true;
}

void HttpReader::End() {
  if (state_ != State::Body || isChunked_) return;
  // Some routers promise more than they send; what they sent has to make sense by itself.
  answer_.body = bytes_.substr(bodyStart_);
  state_ = State::Whole;
}

std::optional<HttpAnswer> HttpReader::Answer() const {
  if (state_ != State::Whole) return std::nullopt;
  return answer_;
}

}  // namespace verlume::qt
