#include "richtext/rtf_text_replacer.h"

#include <algorithm>
#include <vector>

namespace verlume::richtext {
namespace {

bool IsLetter(char16_t c) {
  return (c >= u'a' && c <= u'z') || (c >= u'A' && c <= u'Z');
}

bool IsDigit(char16_t c) {
  return c >= u'0' && c <= u'9';
}

// Groups whose content is not text of the document.
bool BeginsHiddenGroup(std::u16string_view rtf) {
  constexpr std::u16string_view kHidden[] = {u"{\\*",          u"{\\fonttbl", u"{\\colortbl",
                                             u"{\\stylesheet", u"{\\info",    u"{\\pict"};
  return std::any_of(std::begin(kHidden), std::end(kHidden),
                     [rtf](std::u16string_view opening) { return rtf.starts_with(opening); });
}

// The length of the group that the text begins with, to its closing brace.
std::size_t GroupLength(std::u16string_view rtf) {
  std::size_t depth = 0;
  for (std::size_t i = 0; i < rtf.size(); ++i) {
    if (rtf[i] == u'\\') {
      ++i;
    } else if (rtf[i] == u'{') {
      ++depth;
    } else if (rtf[i] == u'}' && --depth == 0) {
      return i + 1;
    }
  }
  return rtf.size();
}

struct Control {
  std::size_t length = 0;
  bool needsDelimiter = false;  // text put right behind it would become part of it
};

// The control word or symbol that the text begins with.
Control ReadControl(std::u16string_view rtf) {
  if (rtf.size() < 2 || !IsLetter(rtf[1])) {
    const std::size_t length = rtf.starts_with(u"\\'") ? 4 : 2;
    return {std::min(length, rtf.size()), false};
  }
  std::size_t end = 1;
  while (end < rtf.size() && IsLetter(rtf[end])) ++end;
  if (end + 1 < rtf.size() && rtf[end] == u'-' && IsDigit(rtf[end + 1])) ++end;
  while (end < rtf.size() && IsDigit(rtf[end])) ++end;
  if (end < rtf.size() && rtf[end] == u' ') return {end + 1, false};
  return {end, true};
}

class Replacer {
 public:
  Replacer(std::u16string_view rtf, std::span<const RtfReplacement> list)
      : rest_(rtf), list_(list), used_(list.size(), false) {
    for (const RtfReplacement& each : list) {
      if (notable_.find(each.pattern.front()) == notable_.npos) notable_ += each.pattern.front();
    }
  }

  std::u16string Run() {
    result_.reserve(rest_.size());
    while (!rest_.empty()) {
      if (rest_.front() == u'\\') {
        const Control control = ReadControl(rest_);
        Copy(control.length);
        afterOpenControl_ = control.needsDelimiter;
      } else if (BeginsHiddenGroup(rest_)) {
        Copy(GroupLength(rest_));
      } else if (!ReplaceHere()) {
        Copy(std::min(rest_.find_first_of(notable_, 1), rest_.size()));
      }
    }
    return std::move(result_);
  }

 private:
  void Copy(std::size_t length) {
    result_ += rest_.substr(0, length);
    rest_.remove_prefix(length);
    afterOpenControl_ = false;
  }

  bool ReplaceHere() {
    for (std::size_t i = 0; i < list_.size(); ++i) {
      const RtfReplacement& each = list_[i];
      if (!rest_.starts_with(each.pattern) || (each.firstOnly && used_[i])) continue;
      used_[i] = true;
      if (afterOpenControl_) result_ += u' ';
      result_ += each.with;
      rest_.remove_prefix(each.pattern.size());
      afterOpenControl_ = false;
      return true;
    }
    return false;
  }

  std::u16string_view rest_;
  std::span<const RtfReplacement> list_;
  std::vector<bool> used_;
  std::u16string notable_ = u"\\{";  // what begins markup or a pattern
  std::u16string result_;
  bool afterOpenControl_ = false;
};

}  // namespace

std::u16string ReplaceInRtfText(std::u16string_view rtf, std::span<const RtfReplacement> list) {
  return Replacer(rtf, list).Run();
}

}  // namespace verlume::richtext
