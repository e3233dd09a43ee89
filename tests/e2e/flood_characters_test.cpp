// Characters of every script there is, each of which may need a font of its own.
#include <QChar>
#include <algorithm>
#include <iostream>
#include <map>
#include <random>
#include <vector>

#include "flood.h"

namespace verlume::e2e {
namespace {

constexpr std::size_t kCharacterFlood = (1 << 20) / kShare;
constexpr char32_t kEnd = 0x20000;

using Characters = std::vector<char32_t>;

bool IsAssigned(char32_t c) {
  return !QChar::isSurrogate(c) && QChar::category(c) != QChar::Other_NotAssigned;
}

// Every seventh, which leaves out no script.
Characters AllCharacters() {
  Characters all;
  for (char32_t c = 0x20; c < kEnd; c += 7) {
    if (IsAssigned(c)) all.push_back(c);
  }
  return all;
}

Characters Reversed(Characters characters) {
  std::reverse(characters.begin(), characters.end());
  return characters;
}

Characters Shuffled(Characters characters) {
  std::shuffle(characters.begin(), characters.end(), std::mt19937(1));
  return characters;
}

Characters OneOfEachScript() {
  std::map<QChar::Script, char32_t> letters;
  for (char32_t c = 0x20; c < kEnd; ++c) {
    if (IsAssigned(c) && QChar::isLetter(c)) letters.emplace(QChar::script(c), c);
  }
  Characters one;
  for (const auto& [script, letter] : letters) one.push_back(letter);
  return one;
}

// Scripts whose letters Qt shows only in a font with rules for them.
Characters OfIndia() {
  return {0x0710, 0x0780, 0x07CA, 0x0915, 0x0995, 0x0A15, 0x0A95,
          0x0B15, 0x0B95, 0x0C15, 0x0C95, 0x0D15, 0x0D9A, 0x1780};
}

// Signs that go with any script, some of which no font has.
Characters Symbols() {
  return {0x2190, 0x2211, 0x25A0, 0x2603, 0x2E3A, 0xE000, 0xF8FF, 0x1F600, 0x1FAE8, 0x10FFFD};
}

std::string Escape(int unit) {
  return "\\u" + std::to_string(static_cast<std::int16_t>(unit)) + " ";
}

std::string Rtf(char32_t c) {
  if (c < 0x10000) return Escape(static_cast<int>(c));
  return Escape(QChar::highSurrogate(c)) + Escape(QChar::lowSurrogate(c));
}

std::string Rtf(const Characters& characters) {
  std::string text;
  for (const char32_t c : characters) text += Rtf(c);
  return text;
}

// Each character in a look of its own, until all have been in all looks.
std::string InAllLooks(const Characters& characters) {
  const char* const kStyles[] = {R"(\b0\i0)", R"(\b\i0)", R"(\b0\i)", R"(\b\i)"};
  std::string text;
  for (int look = 0; look < 142 * 4 && text.size() < kCharacterFlood; ++look) {
    for (std::size_t i = 0; i < characters.size(); ++i) {
      const int own = look + static_cast<int>(i);
      text += kStyles[own % 4];
      text += R"(\fs)" + std::to_string(2 + own % 142) + " " + Rtf(characters[i]);
    }
  }
  return text;
}

// Short documents, each of which has as many looks as a short text may.
std::string InManyDocuments(const Characters& characters) {
  constexpr int kLooks = 900;
  std::string documents;
  for (int first = 0; documents.size() < kCharacterFlood; first += kLooks) {
    documents += R"({\rtf1\ansi\uc0 )";
    for (int look = first; look < first + kLooks; ++look) {
      documents +=
          R"(\fs)" + std::to_string(2 + look % 142) + (look / 142 % 2 ? R"(\b)" : R"(\b0)");
      documents += (look / 284 % 2 ? R"(\i )" : R"(\i0 )");
      documents += Rtf(characters[static_cast<std::size_t>(look) % characters.size()]);
    }
    documents += "}";
  }
  return documents;
}

std::string InAllFonts(const Characters& characters) {
  const char* const kFamilies[] = {"DejaVu Sans", "DejaVu Serif", "Liberation Serif",
                                   "Liberation Mono", "No such font"};
  std::string table;
  std::string text;
  for (std::size_t i = 0; i < std::size(kFamilies); ++i) {
    const std::string number = std::to_string(i);
    table += R"({\f)" + number + " " + kFamilies[i] + ";}";
    text += R"(\f)" + number + " " + Rtf(characters);
  }
  return R"({\fonttbl)" + table + "}" + Repeat(text, kCharacterFlood);
}

struct Content {
  const char* name;
  std::string (*make)();
};

class FloodCharacters : public Flood, public testing::WithParamInterface<Content> {};

// A program that has shown none of them yet.
TEST_P(FloodCharacters, TheWindowAnswers) {
  std::cout << GetParam().name << ": ";
  SendAndWatch(R"({\rtf1\ansi\uc0 )" + GetParam().make() + "}");
}

TEST_F(Flood, TheWindowAnswersWhileShortDocumentsOfManyLooksCome) {
  SendAndWatch(InManyDocuments({'a'}));
  SendAndWatch(InManyDocuments(OneOfEachScript()));
}

const Content kContents[] = {
    {"InOrder", [] { return Repeat(Rtf(AllCharacters()), kCharacterFlood); }},
    {"Reversed", [] { return Repeat(Rtf(Reversed(AllCharacters())), kCharacterFlood); }},
    {"Shuffled", [] { return Repeat(Rtf(Shuffled(AllCharacters())), kCharacterFlood); }},
    {"OneOfEachScriptInALine",
     [] { return Repeat(Rtf(OneOfEachScript()) + R"(\par )", kCharacterFlood); }},
    {"BoldAndItalic",
     [] { return Repeat(R"(\b )" + Rtf(AllCharacters()) + R"(\b0\i )", kCharacterFlood) + "x"; }},
    {"InAllFonts", [] { return InAllFonts(OneOfEachScript()); }},
    {"EachInALookOfItsOwn", [] { return InAllLooks(OneOfEachScript()); }},
    {"OfIndiaInALookOfItsOwn", [] { return InAllLooks(OfIndia()); }},
    {"SymbolsInALookOfTheirOwn", [] { return InAllLooks(Symbols()); }},
    // Text that is inserted fast is inserted in long steps.
    {"AllLooksBehindPlainText",
     [] { return std::string(kCharacterFlood, 'x') + InAllLooks(OneOfEachScript()); }},
    {"AllScriptsInEachLook",
     [] {
       std::string text;
       for (int size = 2; text.size() < kCharacterFlood; size = 2 + size % 142) {
         text += R"(\fs)" + std::to_string(size) + " " + Rtf(OneOfEachScript());
       }
       return std::string(kCharacterFlood, 'x') + text;
     }},
    {"OfIndiaAndOthers", [] {
       std::string text;
       for (const char32_t c : OfIndia()) text += Rtf(c) + " 1 a ";
       return Repeat(text, kCharacterFlood);
     }}};

INSTANTIATE_TEST_SUITE_P(Contents, FloodCharacters, testing::ValuesIn(kContents),
                         [](const auto& test) { return std::string(test.param.name); });

}  // namespace
}  // namespace verlume::e2e
