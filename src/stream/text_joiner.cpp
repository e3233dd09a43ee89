#include "stream/text_joiner.h"

#include <utility>

#include "stream/utf8_text.h"

namespace verlume::stream {
namespace {

// Nothing here depends on the time: a text that is not complete waits for its parts.
constexpr TimePoint kNow{};

}  // namespace

void TextJoiner::Add(std::string_view part, bool isEnd) {
  text_ += part;
  isWhole_ = isEnd;
  if (text_.size() >= ArrivalAssembler::kLongestHeldBack && !isEnd && !pieces_) pieces_.emplace();
  if (!pieces_) return;
  // A character whose rest is still to come stays.
  const std::size_t known = isEnd ? text_.size() : WholeUtf8(text_).size();
  pieces_->Add(std::string_view(text_).substr(0, known), kNow);
  text_.erase(0, known);
}

std::optional<std::u16string> TextJoiner::Take() {
  const auto bytes = TakeBytes();
  if (!bytes) return std::nullopt;
  return DecodeUtf8(*bytes);
}

std::optional<std::string> TextJoiner::TakeBytes() {
  if (pieces_) {
    if (auto piece = pieces_->Take(kNow)) return piece;
    if (!isWhole_) return std::nullopt;
    auto rest = pieces_->Flush();
    pieces_.reset();
    isWhole_ = false;
    if (rest) return rest;
    return std::nullopt;
  }
  if (!std::exchange(isWhole_, false)) return std::nullopt;
  return std::exchange(text_, {});
}

}  // namespace verlume::stream
