// The groups of a document that are open at some place, and what is in force in them: what a
// document has to begin with to go on from there.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "richtext/rtf_tokens.h"

namespace verlume::richtext {

// Groups beyond the depth that is kept count for nothing.
class OpenGroups {
 public:
  // At this brace.
  void Open(const char* brace);
  // Behind the brace before `end`.
  void Close(const char* end);
  bool IsEmpty() const { return groups_.empty(); }

  // A word of format or of the document.
  void Note(const ControlToken& token);
  void NoteTable(const ControlToken& table);
  // The rest of the innermost group is not shown.
  void NoteUnshown();

  int FallbackCount() const { return groups_.empty() ? 1 : groups_.back().fallbackCount; }

  // RTF that opens a document and so many groups, with the tables of the document where they are
  // not long, and the same in force. The document has been read to `place`.
  std::string OpeningAt(const char* place) const;
  // Closes them all.
  std::string Closing() const { return std::string(groups_.size(), '}'); }

 private:
  using Words = std::vector<ControlToken>;  // each once, the last one last
  enum class Holds { Text, Table, NothingShown };
  struct Group {
    const char* brace;
    int fallbackCount;
    Holds holds = Holds::Text;
    Words words = {};
  };

  static void NoteIn(Words& words, const ControlToken& token);
  static void Write(const Words& words, std::string& rtf);

  std::vector<Group> groups_;
  std::size_t excessDepth_ = 0;
  Words wordsOfDocument_;
  std::string tables_;  // as they were written
};

}  // namespace verlume::richtext
