// A spell checker in memory.
#pragma once

#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/spell_checker.h"

namespace verlume::fake {

class FakeSpellChecker : public SpellChecker {
 public:
  bool HasDictionary() const override { return hasDictionary; }
  void SetOn(bool value) override { on = value; }
  bool IsOn() const override { return on; }
  void SetOwnWords(std::vector<std::u16string> words) override { ownWords = std::move(words); }
  void SetCaption(SpellingEntry entry, std::u16string_view caption) override {
    captions[entry] = caption;
  }

  bool hasDictionary = true;
  bool on = false;
  std::vector<std::u16string> ownWords;
  std::map<SpellingEntry, std::u16string> captions;
};

}  // namespace verlume::fake
