// The dictionaries of the system and the user's own words, as one.
#pragma once

#include <QStringList>
#include <functional>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform_qt/spelling/dictionary.h"

namespace verlume::qt {

class Dictionaries {
 public:
  // Takes the dictionaries of the folder that fit the locale ("el_GR").
  Dictionaries(const QString& folder, const QString& locale);

  bool HasAny() const { return greek_ || latin_; }

  enum class Verdict { Right, Wrong, NotYet };
  // NotYet while the dictionary is busy: `onReady` follows. A word of a script for which there is
  // no dictionary is right.
  Verdict Check(const QString& word, spelling::Script script);

  // As Dictionary::Suggest does.
  void Suggest(const QString& word, spelling::Script script, qsizetype most,
               Dictionary::Suggestions then);

  void SetOwnWords(const std::vector<std::u16string>& words);

  // From the event loop: a dictionary is no longer busy.
  std::function<void()> onReady;

 private:
  std::unique_ptr<Dictionary> Open(const QString& folder, spelling::Script script,
                                   const QString& locale);
  Dictionary* Of(spelling::Script script) const;

  std::unique_ptr<Dictionary> greek_;
  std::unique_ptr<Dictionary> latin_;
  std::set<QString> own_;
};

}  // namespace verlume::qt
