#include "richtext/open_groups.h"

namespace verlume::richtext {
namespace {

// Longer ones are left out, so that text remains the most of what is handed on.
constexpr std::size_t kLongestTables = 64 * 1024;

bool IsOfDocument(Action action) {
  return action == Action::kCodePageOf || action == Action::kCodePage ||
         action == Action::kDefaultFont;
}

}  // namespace

void OpenGroups::Open(const char* brace) {
  if (groups_.size() < limits::kMaxGroupDepth) {
    groups_.push_back({brace, FallbackCount()});
  } else {
    ++excessDepth_;
  }
}

void OpenGroups::Close(const char* end) {
  if (excessDepth_ != 0) {
    --excessDepth_;
    return;
  }
  if (groups_.empty()) return;
  const Group& group = groups_.back();
  const auto length = static_cast<std::size_t>(end - group.brace);
  const bool isKept = group.holds == Holds::Table && tables_.size() + length <= kLongestTables;
  if (isKept) tables_.append(group.brace, length);
  groups_.pop_back();
}

void OpenGroups::Note(const ControlToken& token) {
  if (excessDepth_ != 0 || groups_.empty() || groups_.back().holds == Holds::NothingShown) return;
  if (IsOfDocument(token.word->action)) return NoteIn(wordsOfDocument_, token);
  if (token.word->action == Action::kFallbackCount) {
    groups_.back().fallbackCount =
        std::clamp(token.ParameterOr(1), 0, limits::kMaxFallbackCharacters);
  }
  NoteIn(groups_.back().words, token);
}

void OpenGroups::NoteTable(const ControlToken& table) {
  Note(table);
  if (excessDepth_ == 0 && !groups_.empty()) groups_.back().holds = Holds::Table;
}

void OpenGroups::NoteUnshown() {
  if (excessDepth_ == 0 && !groups_.empty()) groups_.back().holds = Holds::NothingShown;
}

void OpenGroups::NoteIn(Words& words, const ControlToken& token) {
  std::erase_if(words, [&](const ControlToken& noted) { return noted.word == token.word; });
  words.push_back(token);
}

std::string OpenGroups::OpeningAt(const char* place) const {
  std::string rtf;
  for (const Group& group : groups_) {
    const auto length = static_cast<std::size_t>(place - group.brace);
    if (group.holds == Holds::Table && length <= kLongestTables) {
      return rtf.append(group.brace, length);
    }
    rtf += '{';
    if (&group == &groups_.front()) {
      rtf += R"(\rtf1 )";
      Write(wordsOfDocument_, rtf);
      rtf += tables_;
    }
    Write(group.words, rtf);
    // Nobody knows such a word.
    if (group.holds == Holds::NothingShown) rtf += R"(\*\x )";
  }
  return rtf;
}

void OpenGroups::Write(const Words& words, std::string& rtf) {
  for (const ControlToken& token : words) {
    rtf += '\\';
    rtf += token.word->name;
    if (token.hasParameter) rtf += std::to_string(token.parameter);
    rtf += ' ';
  }
}

}  // namespace verlume::richtext
