#include "richtext/rtf_text_replacer.h"

#include <algorithm>
#include <vector>

#include "richtext/rtf_parser.h"

namespace verlume::richtext {
namespace {

class Replacer {
 public:
  Replacer(std::u16string_view rtf, std::span<const RtfReplacement> list)
      : end_(rtf.data() + rtf.size()),
        parser_(rtf.data(), end_),
        copied_(rtf.data()),
        list_(list),
        isUsed_(list.size(), false) {
    for (const RtfReplacement& each : list) {
      if (starts_.find(each.pattern.front()) == starts_.npos) starts_ += each.pattern.front();
    }
    result_.reserve(rtf.size());
  }

  std::u16string Run() {
    while (parser_.At() != end_) ReadToken();
    CopyTo(end_);
    return std::move(result_);
  }

 private:
  void ReadToken();
  void NoteUndelimitedWord(const char16_t* place);
  void ReplaceIn(std::u16string_view text);
  void ReplaceAt(const char16_t* place);
  void CopyTo(const char16_t* place);

  const char16_t* const end_;
  RtfParser<char16_t, RtfState> parser_;
  const char16_t* copied_;                     // what stands before has been copied or replaced
  const char16_t* undelimitedWord_ = nullptr;  // where a control word ends without a blank
  std::span<const RtfReplacement> list_;
  std::vector<bool> isUsed_;
  std::u16string starts_;  // what the patterns begin with
  std::u16string result_;
};

void Replacer::ReadToken() {
  const char16_t* begin = parser_.At();
  const bool isShown = !parser_.IsSkipping() && parser_.GetListener().InBody();
  const int fallbackLeft = parser_.FallbackLeft();
  NoteUndelimitedWord(begin);
  parser_.ReadToken();
  std::u16string_view text(begin, parser_.At());
  // What is put right behind a stray backslash would become part of an escape.
  const bool hasStrayBackslash = text.size() > 1 && text[0] == u'\\' && !IsAscii(text[1]);
  if (hasStrayBackslash) text.remove_prefix(1);
  if (!isShown || IsMarkup(text.front())) return;
  const auto unsearched = static_cast<std::size_t>(std::max<int>(fallbackLeft, hasStrayBackslash));
  ReplaceIn(text.substr(std::min(unsearched, text.size())));
}

// Text put right behind such a word would become part of it.
void Replacer::NoteUndelimitedWord(const char16_t* place) {
  RtfTokens<char16_t> tokens(place, end_);
  if (!tokens.AtControlWord()) return;
  tokens.Skip(1);
  tokens.ReadControlWord();
  if (tokens.At()[-1] != u' ') undelimitedWord_ = tokens.At();
}

// A pattern may reach beyond the text that it begins in.
void Replacer::ReplaceIn(std::u16string_view text) {
  for (std::size_t i = text.find_first_of(starts_); i != text.npos;
       i = text.find_first_of(starts_, i + 1)) {
    const char16_t* place = text.data() + i;
    if (place >= copied_) ReplaceAt(place);
  }
}

// Copies what stands before, puts in the first of the list that fits.
void Replacer::ReplaceAt(const char16_t* place) {
  const std::u16string_view rest(place, end_);
  for (std::size_t i = 0; i < list_.size(); ++i) {
    const RtfReplacement& each = list_[i];
    if (!rest.starts_with(each.pattern) || (each.firstOnly && isUsed_[i])) continue;
    isUsed_[i] = true;
    CopyTo(place);
    if (place == undelimitedWord_) result_ += u' ';
    result_ += each.with;
    copied_ = place + each.pattern.size();
    return;
  }
}

void Replacer::CopyTo(const char16_t* place) {
  result_.append(copied_, place);
  copied_ = place;
}

}  // namespace

std::u16string ReplaceInRtfText(std::u16string_view rtf, std::span<const RtfReplacement> list) {
  return Replacer(rtf, list).Run();
}

}  // namespace verlume::richtext
