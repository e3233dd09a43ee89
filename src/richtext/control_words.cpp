#include "richtext/control_words.h"

#include <cstring>

namespace verlume::richtext {
namespace {

constexpr ControlWord kControlWords[] = {
    // Character formats.
    {"b", Action::kBold},
    {"i", Action::kItalic},
    {"ul", Action::kUnderline},
    {"uld", Action::kUnderline},
    {"uldash", Action::kUnderline},
    {"uldashd", Action::kUnderline},
    {"uldashdd", Action::kUnderline},
    {"uldb", Action::kUnderline},
    {"ulhair", Action::kUnderline},
    {"ulhwave", Action::kUnderline},
    {"ulldash", Action::kUnderline},
    {"ulth", Action::kUnderline},
    {"ulthd", Action::kUnderline},
    {"ulthdash", Action::kUnderline},
    {"ulthdashd", Action::kUnderline},
    {"ulthdashdd", Action::kUnderline},
    {"ulthldash", Action::kUnderline},
    {"ululdbwave", Action::kUnderline},
    {"ulw", Action::kUnderline},
    {"ulwave", Action::kUnderline},
    {"ulnone", Action::kNoUnderline},
    {"strike", Action::kStrikethrough},
    {"striked", Action::kStrikethrough},
    {"f", Action::kFont},
    {"fs", Action::kFontSize},
    {"cf", Action::kColor},
    {"plain", Action::kPlain},

    // Characters that have a name.
    {"tab", Action::kCharacter, u'\t'},
    {"cell", Action::kCharacter, u'\t'},
    {"nestcell", Action::kCharacter, u'\t'},
    {"emdash", Action::kCharacter, 0x2014},
    {"endash", Action::kCharacter, 0x2013},
    {"lquote", Action::kCharacter, 0x2018},
    {"rquote", Action::kCharacter, 0x2019},
    {"ldblquote", Action::kCharacter, 0x201C},
    {"rdblquote", Action::kCharacter, 0x201D},
    {"bullet", Action::kCharacter, 0x2022},
    {"enspace", Action::kCharacter, 0x2002},
    {"emspace", Action::kCharacter, 0x2003},
    {"qmspace", Action::kCharacter, 0x2005},
    {"zwbo", Action::kCharacter, 0x200B},
    {"zwnj", Action::kCharacter, 0x200C},
    {"zwj", Action::kCharacter, 0x200D},
    {"ltrmark", Action::kCharacter, 0x200E},
    {"rtlmark", Action::kCharacter, 0x200F},
    {"zwnbo", Action::kCharacter, 0x2060},

    // Line breaks.
    {"par", Action::kParagraphEnd},
    {"line", Action::kBreak},
    {"softline", Action::kBreak},
    {"lbr", Action::kBreak},
    {"page", Action::kBreak},
    {"softpage", Action::kBreak},
    {"column", Action::kBreak},
    {"softcol", Action::kBreak},
    {"sect", Action::kBreak},
    {"row", Action::kBreak},
    {"nestrow", Action::kBreak},

    // Text that is not written as it stands.
    {"u", Action::kUnicode},
    {"uc", Action::kFallbackCount},
    {"bin", Action::kBinary},

    // The document.
    {"mac", Action::kCodePageOf, 10000},
    {"pc", Action::kCodePageOf, 437},
    {"pca", Action::kCodePageOf, 850},
    {"ansicpg", Action::kCodePage},
    {"deff", Action::kDefaultFont},

    // The tables.
    {"fonttbl", Action::kFontTable},
    {"fcharset", Action::kFontCharset},
    {"cpg", Action::kFontCodePage},
    {"colortbl", Action::kColorTable},
    {"red", Action::kRed},
    {"green", Action::kGreen},
    {"blue", Action::kBlue},

    // Destinations without shown text.
    {"aftncn", Action::kUnshown},
    {"aftnsep", Action::kUnshown},
    {"aftnsepc", Action::kUnshown},
    {"colorschememapping", Action::kUnshown},
    {"datafield", Action::kUnshown},
    {"datastore", Action::kUnshown},
    {"falt", Action::kUnshown},
    {"filetbl", Action::kUnshown},
    {"fldinst", Action::kUnshown},
    {"fontemb", Action::kUnshown},
    {"fontfile", Action::kUnshown},
    {"footer", Action::kUnshown},
    {"footerf", Action::kUnshown},
    {"footerl", Action::kUnshown},
    {"footerr", Action::kUnshown},
    {"footnote", Action::kUnshown},
    {"formfield", Action::kUnshown},
    {"ftncn", Action::kUnshown},
    {"ftnsep", Action::kUnshown},
    {"ftnsepc", Action::kUnshown},
    {"generator", Action::kUnshown},
    {"header", Action::kUnshown},
    {"headerf", Action::kUnshown},
    {"headerl", Action::kUnshown},
    {"headerr", Action::kUnshown},
    {"info", Action::kUnshown},
    {"latentstyles", Action::kUnshown},
    {"listoverridetable", Action::kUnshown},
    {"listtable", Action::kUnshown},
    {"listtext", Action::kUnshown},
    {"mmathPr", Action::kUnshown},
    {"nonshppict", Action::kUnshown},
    {"objclass", Action::kUnshown},
    {"objdata", Action::kUnshown},
    {"object", Action::kUnshown},
    {"objname", Action::kUnshown},
    {"panose", Action::kUnshown},
    {"pict", Action::kUnshown},
    {"pn", Action::kUnshown},
    {"pntext", Action::kUnshown},
    {"pntxta", Action::kUnshown},
    {"pntxtb", Action::kUnshown},
    {"private", Action::kUnshown},
    {"revtbl", Action::kUnshown},
    {"rsidtbl", Action::kUnshown},
    {"rxe", Action::kUnshown},
    {"shppict", Action::kUnshown},
    {"stylesheet", Action::kUnshown},
    {"tc", Action::kUnshown},
    {"tcn", Action::kUnshown},
    {"template", Action::kUnshown},
    {"themedata", Action::kUnshown},
    {"txe", Action::kUnshown},
    {"xe", Action::kUnshown},
    {"xmlnstbl", Action::kUnshown},
};

constexpr std::size_t kSlots = 1024;  // sparse, so that a look-up seldom takes a second step
constexpr std::uint32_t kSlotShift = 32 - 10;
constexpr ControlWord kUnknownWord;

constexpr std::uint32_t Hash(std::string_view name) {
  ControlWordName hashed{};
  for (const char character : name) hashed.Add(character);
  return hashed.hash;
}

// An open hash table of row numbers (one-based, 0 is a free slot), made at compile time.
constexpr std::array<std::uint8_t, kSlots> MakeSlots() {
  static_assert(std::size(kControlWords) < 255);
  std::array<std::uint8_t, kSlots> slots{};
  for (std::size_t i = 0; i < std::size(kControlWords); ++i) {
    std::size_t slot = Hash(kControlWords[i].name) >> kSlotShift;
    while (slots[slot] != 0) slot = (slot + 1) % kSlots;
    slots[slot] = static_cast<std::uint8_t>(i + 1);
  }
  return slots;
}

constexpr std::array<std::uint8_t, kSlots> kSlotTable = MakeSlots();

}  // namespace

const ControlWord& FindControlWord(const ControlWordName& name) {
  if (name.length > name.characters.size()) return kUnknownWord;
  for (std::size_t slot = name.hash >> kSlotShift; kSlotTable[slot] != 0;
       slot = (slot + 1) % kSlots) {
    const ControlWord& word = kControlWords[kSlotTable[slot] - 1];
    const bool same = word.name.size() == name.length &&
                      std::memcmp(word.name.data(), name.characters.data(), name.length) == 0;
    if (same) return word;
  }
  return kUnknownWord;
}

}  // namespace verlume::richtext
