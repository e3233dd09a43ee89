#include "platform_qt/spelling/dictionaries.h"

#include <utility>

#include "platform_qt/convert/text.h"

namespace verlume::qt {

Dictionaries::Dictionaries(const QString& folder, const QString& locale)
    : greek_(Open(folder, spelling::Script::Greek, locale)),
      latin_(Open(folder, spelling::Script::Latin, locale)) {}

std::unique_ptr<Dictionary> Dictionaries::Open(const QString& folder, spelling::Script script,
                                               const QString& locale) {
  const std::optional<DictionaryFiles> files = FindDictionary(folder, script, locale);
  if (!files) return nullptr;
  auto dictionary = std::make_unique<Dictionary>(*files);
  dictionary->onReady = [this] {
    if (onReady) onReady();
  };
  return dictionary;
}

Dictionary* Dictionaries::Of(spelling::Script script) const {
  return script == spelling::Script::Greek ? greek_.get() : latin_.get();
}

Dictionaries::Verdict Dictionaries::Check(const QString& word, spelling::Script script) {
  Dictionary* dictionary = Of(script);
  if (!dictionary || own_.contains(word) || own_.contains(word.toLower())) return Verdict::Right;
  const std::optional<bool> knows = dictionary->Knows(word);
  if (!knows) return Verdict::NotYet;
  return *knows ? Verdict::Right : Verdict::Wrong;
}

void Dictionaries::Suggest(const QString& word, spelling::Script script, qsizetype most,
                           Dictionary::Suggestions then) {
  Dictionary* dictionary = Of(script);
  if (!dictionary) return then({});
  dictionary->Suggest(word, most, std::move(then));
}

void Dictionaries::SetOwnWords(const std::vector<std::u16string>& words) {
  own_.clear();
  for (const std::u16string& word : words) own_.insert(ToQt(word));
}

}  // namespace verlume::qt
