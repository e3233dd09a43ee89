#include "platform_qt/fonts/installed_scripts.h"

#include <QElapsedTimer>
#include <QFontDatabase>
#include <QHash>
#include <QtEndian>
#include <algorithm>
#include <array>
#include <vector>

#include "platform_qt/fonts/turn.h"

namespace verlume::qt {
namespace {

// The tags of the scripts in a font. Some have a newer tag for newer rules.
const QHash<QByteArray, QChar::Script>& Tags() {
  static const QHash<QByteArray, QChar::Script> tags = {
      {"syrc", QChar::Script_Syriac},     {"thaa", QChar::Script_Thaana},
      {"nko ", QChar::Script_Nko},        {"deva", QChar::Script_Devanagari},
      {"dev2", QChar::Script_Devanagari}, {"dev3", QChar::Script_Devanagari},
      {"beng", QChar::Script_Bengali},    {"bng2", QChar::Script_Bengali},
      {"bng3", QChar::Script_Bengali},    {"guru", QChar::Script_Gurmukhi},
      {"gur2", QChar::Script_Gurmukhi},   {"gur3", QChar::Script_Gurmukhi},
      {"gujr", QChar::Script_Gujarati},   {"gjr2", QChar::Script_Gujarati},
      {"gjr3", QChar::Script_Gujarati},   {"orya", QChar::Script_Oriya},
      {"ory2", QChar::Script_Oriya},      {"ory3", QChar::Script_Oriya},
      {"taml", QChar::Script_Tamil},      {"tml2", QChar::Script_Tamil},
      {"tml3", QChar::Script_Tamil},      {"telu", QChar::Script_Telugu},
      {"tel2", QChar::Script_Telugu},     {"tel3", QChar::Script_Telugu},
      {"knda", QChar::Script_Kannada},    {"knd2", QChar::Script_Kannada},
      {"knd3", QChar::Script_Kannada},    {"mlym", QChar::Script_Malayalam},
      {"mlm2", QChar::Script_Malayalam},  {"mlm3", QChar::Script_Malayalam},
      {"sinh", QChar::Script_Sinhala},    {"khmr", QChar::Script_Khmer}};
  return tags;
}

// A number of two bytes; 0 behind the table's end.
qsizetype NumberAt(const QByteArray& table, qsizetype at) {
  return at + 2 <= table.size() ? qFromBigEndian<quint16>(table.constData() + at) : 0;
}

QSet<QChar::Script> RulesOf(const QRawFont& font) {
  const bool hasOtherRules = !font.fontTable("morx").isEmpty() || !font.fontTable("mort").isEmpty();
  if (!hasOtherRules) return ScriptsOf(font.fontTable("GSUB"));
  // Qt takes such a font for any script.
  const QList<QChar::Script> all = Tags().values();
  return {all.begin(), all.end()};
}

// Characters of each script, spread over all that it has. Those of the scripts that every computer
// shows, and those that go with any script, are left out.
using Samples = std::array<std::vector<char32_t>, QChar::ScriptCount>;
const Samples& AllSamples() {
  static const Samples samples = [] {
    constexpr std::size_t kMostOfScript = 32;
    Samples all;
    for (char32_t c = 0; c <= QChar::LastValidCodePoint; ++c) {
      const QChar::Script script = QChar::script(c);
      if (script > QChar::Script_Cyrillic) all[static_cast<std::size_t>(script)].push_back(c);
    }
    for (std::vector<char32_t>& characters : all) {
      const std::size_t size = characters.size();
      if (size <= kMostOfScript) continue;
      for (std::size_t i = 0; i < kMostOfScript; ++i) {
        characters[i] = characters[i * size / kMostOfScript];
      }
      characters.resize(kMostOfScript);
    }
    return all;
  }();
  return samples;
}

bool HasLetters(const QRawFont& font, QChar::Script script) {
  const std::vector<char32_t>& samples = AllSamples()[static_cast<std::size_t>(script)];
  return std::any_of(samples.begin(), samples.end(),
                     [&](char32_t c) { return font.supportsCharacter(c); });
}

}  // namespace

bool NeedsOpenType(QChar::Script script) {
  return (script >= QChar::Script_Syriac && script <= QChar::Script_Sinhala) ||
         script == QChar::Script_Khmer || script == QChar::Script_Nko;
}

QSet<QChar::Script> ScriptsOf(const QByteArray& gsub) {
  constexpr qsizetype kPlaceOfList = 4;
  constexpr qsizetype kSizeOfCount = 2;
  constexpr qsizetype kSizeOfEntry = 6;
  constexpr qsizetype kSizeOfTag = 4;
  const qsizetype list = NumberAt(gsub, kPlaceOfList);
  const qsizetype count = NumberAt(gsub, list);
  QSet<QChar::Script> scripts;
  for (qsizetype i = 0; list > 0 && i < count; ++i) {
    const auto tag = Tags().constFind(gsub.mid(list + kSizeOfCount + i * kSizeOfEntry, kSizeOfTag));
    if (tag != Tags().constEnd()) scripts.insert(*tag);
  }
  return scripts;
}

InstalledScripts::InstalledScripts() : families_(QFontDatabase::families()) {
  for (int script = QChar::Script_Cyrillic + 1; script < QChar::ScriptCount; ++script) {
    withoutLetters_.append(static_cast<QChar::Script>(script));
  }
}

InstalledScripts& InstalledScripts::Instance() {
  static InstalledScripts instance;
  return instance;
}

void InstalledScripts::RunTurn() {
  QElapsedTimer turn;
  turn.start();
  while (!IsComplete() && !turn.hasExpired(kTurn.count())) {
    QFont font(families_[next_++]);
    font.setStyleStrategy(QFont::NoFontMerging);
    LookAt(QRawFont::fromFont(font));
  }
}

void InstalledScripts::LookAt(const QRawFont& font) {
  if (!font.isValid()) return;
  withRules_.unite(RulesOf(font));
  withoutLetters_.removeIf([&](QChar::Script script) { return HasLetters(font, script); });
}

bool InstalledScripts::Shows(QChar::Script script) const {
  if (NeedsOpenType(script) && !withRules_.contains(script)) return false;
  return !withoutLetters_.contains(script);
}

}  // namespace verlume::qt
