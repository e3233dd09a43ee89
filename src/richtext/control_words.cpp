#include "richtext/control_words.h"

#include <array>
#include <iterator>

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

    // What kind of script follows, and its formats. \af is not among them: a run has one font, and
    // whoever shows it finds another for letters that it lacks.
    {"dbch", Action::kEastAsianText},
    {"hich", Action::kOtherText},
    {"loch", Action::kOtherText},
    {"ltrch", Action::kOtherText},
    {"rtlch", Action::kOtherText},
    {"ab", Action::kAssociatedBold},
    {"ai", Action::kAssociatedItalic},
    {"afs", Action::kAssociatedFontSize},

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

constexpr std::size_t kRows = std::size(kControlWords);
constexpr std::size_t kSlots = 1024;  // sparse, so that a look-up seldom takes a second step
constexpr ControlWord kUnknownWord;

constexpr std::array<ControlWordName, kRows> PackNames() {
  std::array<ControlWordName, kRows> names;
  for (std::size_t row = 0; row < kRows; ++row) {
    const std::string_view name = kControlWords[row].name;
    const char* place = name.data();
    names[row] = ControlWordName::Read(place, place + name.size());
  }
  return names;
}

constexpr std::array<ControlWordName, kRows> kNames = PackNames();

constexpr std::size_t FirstSlot(const ControlWordName& name) {
  constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15u;
  return static_cast<std::size_t>((name.head ^ name.tail) * kMix >> 54);
}

// An open hash table of row numbers (one-based, 0 is a free slot), made at compile time.
constexpr std::array<std::uint8_t, kSlots> MakeSlots() {
  static_assert(kRows < 255);
  std::array<std::uint8_t, kSlots> slots{};
  for (std::size_t row = 0; row < kRows; ++row) {
    std::size_t slot = FirstSlot(kNames[row]);
    while (slots[slot] != 0) slot = (slot + 1) % kSlots;
    slots[slot] = static_cast<std::uint8_t>(row + 1);
  }
  return slots;
}

constexpr std::array<std::uint8_t, kSlots> kSlotTable = MakeSlots();

}  // namespace

const ControlWord& FindControlWord(const ControlWordName& name) {
  for (std::size_t slot = FirstSlot(name); kSlotTable[slot] != 0; slot = (slot + 1) % kSlots) {
    const std::size_t row = kSlotTable[slot] - std::size_t{1};
    if (kNames[row] == name) return kControlWords[row];
  }
  return kUnknownWord;
}

}  // namespace verlume::richtext
