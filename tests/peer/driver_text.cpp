#include "peer/driver_text.h"

#include <QDir>
#include <QFile>
#include <algorithm>
#include <array>

namespace verlume::peer {
namespace {

template <std::size_t size, typename Value>
QString NameOf(const std::array<const char*, size>& names, Value value) {
  return QString::fromLatin1(names.at(static_cast<std::size_t>(value)));
}

}  // namespace

QString Escaped(std::u16string_view text) {
  QString escaped;
  for (const char16_t character : text) {
    if (character >= u' ' && character <= u'~' && character != u'\\')
      escaped += QChar(character);
    else
      escaped += QStringLiteral("\\u%1").arg(ushort{character}, 4, 16, QLatin1Char('0'));
  }
  return escaped;
}

std::u16string Unescaped(const QString& text) {
  std::u16string plain;
  for (qsizetype i = 0; i < text.size(); ++i) {
    if (text[i] == u'\\') {
      plain += static_cast<char16_t>(text.mid(i + 2, 4).toUShort(nullptr, 16));
      i += 5;
    } else {
      plain += static_cast<char16_t>(text[i].unicode());
    }
  }
  return plain;
}

QString Hex(const std::optional<KeyFingerprint>& key) {
  if (!key) return QStringLiteral("-");
  QByteArray bytes;
  std::copy(key->begin(), key->end(), std::back_inserter(bytes));
  return QString::fromLatin1(bytes.toHex());
}

std::optional<KeyFingerprint> FromHex(const QString& text) {
  const QByteArray bytes = QByteArray::fromHex(text.toLatin1());
  KeyFingerprint key{};
  if (bytes.size() != static_cast<qsizetype>(key.size())) return std::nullopt;
  std::copy(bytes.begin(), bytes.end(), key.begin());
  return key;
}

QString Name(Privacy state) {
  return NameOf(std::array{"None", "Becoming", "Private", "Clear"}, state);
}

QString Name(PrivacyFailure failure) {
  return NameOf(std::array{"None", "NotOffered", "OtherKey", "Broken", "Late", "NoKey"}, failure);
}

QString Name(OwnKey key) {
  return NameOf(std::array{"Ready", "Unreadable", "Unwritable", "Unavailable"}, key);
}

PrivacyOffer OfferOf(const QString& name) {
  if (name == QStringLiteral("only")) return PrivacyOffer::Only;
  return name == QStringLiteral("never") ? PrivacyOffer::Never : PrivacyOffer::WhenPossible;
}

QString Resources() {
  QFile status(QStringLiteral("/proc/self/status"));
  QString memory;
  if (status.open(QIODevice::ReadOnly)) {
    for (const QByteArray& line : status.readAll().split('\n'))
      if (line.startsWith("VmRSS:")) memory = QString::fromLatin1(line.simplified().split(' ')[1]);
  }
  const auto descriptors = QDir(QStringLiteral("/proc/self/fd")).entryList(QDir::Files).size();
  return QStringLiteral("%1 %2").arg(memory).arg(descriptors);
}

}  // namespace verlume::peer
