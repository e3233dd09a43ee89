// Marks words of the command pane that are in no dictionary, with a wave below them, and offers
// others for them in the pane's menu. The marks are no part of the text or of its format.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace verlume {

// The entries that it adds to the pane's menu besides the words to choose from.
enum class SpellingEntry { Searching, NoSuggestion, AddWord };

class SpellChecker {
 public:
  virtual ~SpellChecker() = default;
  // Whether the system has a dictionary of any language that is checked.
  virtual bool HasDictionary() const = 0;
  // Off at first. Dictionaries are loaded in the background when a word of theirs is first met;
  // words are marked once they are there.
  virtual void SetOn(bool on) = 0;
  virtual bool IsOn() const = 0;
  // Words that are right besides those of the dictionaries. Letters that are small in one of them
  // may be capitals in the text.
  virtual void SetOwnWords(std::vector<std::u16string> words) = 0;
  virtual void SetCaption(SpellingEntry entry, std::u16string_view caption) = 0;

  // The user wants the word to be right from now on.
  std::function<void(std::u16string_view word)> onAddWord;
};

}  // namespace verlume
