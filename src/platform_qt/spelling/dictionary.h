// One dictionary of the system. Loading it and finding suggestions take long: both are done on a
// thread of their own, one after the other, and everything else on the user-interface thread.
#pragma once

#include <QObject>
#include <QStringList>
#include <functional>
#include <future>
#include <memory>
#include <optional>

#include "platform_qt/spelling/dictionary_files.h"

class Hunspell;

namespace verlume::qt {

class Dictionary {
 public:
  // Not loaded before it is asked for a word.
  explicit Dictionary(DictionaryFiles files);
  // Waits for what is being done.
  ~Dictionary();

  // Whether the word is in it; none while it is busy, and then `onReady` follows. What it cannot
  // write in its character set, and every word if it could not be loaded, counts as known.
  std::optional<bool> Knows(const QString& word);

  // Hands over at most `most` words that are like this one, from the event loop. While another
  // search is under way it hands over none.
  using Suggestions = std::function<void(QStringList)>;
  void Suggest(const QString& word, qsizetype most, Suggestions then);

  // Raised when it is no longer busy, from the event loop.
  std::function<void()> onReady;

 private:
  std::optional<std::string> Encoded(const QString& word) const;
  QString Decoded(const std::string& word) const;
  // Does the work on the other thread, and then `then` on this one.
  void Work(std::function<void()> work, std::function<void()> then);
  void Load();
  bool IsBusy() const { return busy_; }

  enum class Encoding { Unknown, Utf8, Latin1, Greek };

  const DictionaryFiles files_;
  std::unique_ptr<Hunspell> words_;
  Encoding encoding_ = Encoding::Unknown;
  bool isLoaded_ = false;
  bool busy_ = false;  // the other thread has `words_`
  QObject thisThread_;
  std::future<void> work_;
};

}  // namespace verlume::qt
