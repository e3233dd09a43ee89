#include "platform_qt/spelling/dictionary.h"

#include <hunspell.hxx>
#include <string>
#include <utility>

#include "platform_qt/os/dictionaries.h"

namespace verlume::qt {
namespace {

// From U+0384 to U+03CE, ISO 8859-7 has the characters of Unicode in the same order.
constexpr char16_t kFirstGreek = 0x0384;
constexpr char16_t kLastGreek = 0x03CE;
constexpr char16_t kGreekOffset = 0x02D0;

std::optional<std::string> InGreek(const QString& word) {
  std::string bytes;
  for (const QChar letter : word) {
    const char16_t unit = letter.unicode();
    const bool isGreek = kFirstGreek <= unit && unit <= kLastGreek;
    if (unit >= 0x80 && !isGreek) return std::nullopt;
    bytes += static_cast<char>(isGreek ? unit - kGreekOffset : unit);
  }
  return bytes;
}

QString FromGreek(const std::string& bytes) {
  QString word;
  for (const char byte : bytes) {
    const auto unit = static_cast<unsigned char>(byte);
    word += QChar(unit < 0x80 ? unit : unit + kGreekOffset);
  }
  return word;
}

std::optional<std::string> InLatin1(const QString& word) {
  for (const QChar letter : word) {
    if (letter.unicode() > 0xFF) return std::nullopt;
  }
  return word.toLatin1().toStdString();
}

}  // namespace

Dictionary::Dictionary(DictionaryFiles files) : files_(std::move(files)) {}

Dictionary::~Dictionary() {
  if (work_.valid()) work_.wait();
}

void Dictionary::Work(std::function<void()> work, std::function<void()> then) {
  busy_ = true;
  const auto end = [this, then = std::move(then)] {
    busy_ = false;
    then();
    if (onReady) onReady();
  };
  work_ = std::async(std::launch::async, [this, work = std::move(work), end] {
    work();
    QMetaObject::invokeMethod(&thisThread_, end, Qt::QueuedConnection);
  });
}

void Dictionary::Load() {
  isLoaded_ = true;
  const auto load = [this] {
    words_ = std::make_unique<Hunspell>(HunspellPath(files_.affixes.toStdString()).c_str(),
                                        HunspellPath(files_.words.toStdString()).c_str());
    const std::string& name = words_->get_dict_encoding();
    if (name == "UTF-8") encoding_ = Encoding::Utf8;
    if (name == "ISO8859-1") encoding_ = Encoding::Latin1;
    if (name == "ISO8859-7") encoding_ = Encoding::Greek;
  };
  Work(load, [] {});
}

std::optional<std::string> Dictionary::Encoded(const QString& word) const {
  switch (encoding_) {
    case Encoding::Utf8:
      return word.toStdString();
    case Encoding::Latin1:
      return InLatin1(word);
    case Encoding::Greek:
      return InGreek(word);
    case Encoding::Unknown:
      break;
  }
  return std::nullopt;
}

QString Dictionary::Decoded(const std::string& word) const {
  if (encoding_ == Encoding::Utf8) return QString::fromStdString(word);
  return encoding_ == Encoding::Greek ? FromGreek(word) : QString::fromLatin1(word);
}

std::optional<bool> Dictionary::Knows(const QString& word) {
  if (!isLoaded_) Load();
  if (IsBusy()) return std::nullopt;
  const std::optional<std::string> bytes = Encoded(word);
  return !bytes || words_->spell(*bytes);
}

void Dictionary::Suggest(const QString& word, qsizetype most, Suggestions then) {
  const std::optional<std::string> bytes = IsBusy() ? std::nullopt : Encoded(word);
  if (!bytes) return then({});
  const auto found = std::make_shared<QStringList>();
  const auto search = [this, bytes = *bytes, most, found] {
    for (const std::string& one : words_->suggest(bytes)) {
      if (found->size() < most) found->append(Decoded(one));
    }
  };
  Work(search, [found, then = std::move(then)] { then(*found); });
}

}  // namespace verlume::qt
