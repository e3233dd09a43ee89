#include "commands/placeholders.h"

#include <algorithm>
#include <vector>

#include "richtext/rtf_text_replacer.h"
#include "richtext/rtf_writer.h"
#include "shell/nickname.h"

namespace verlume {
namespace {

// The placeholders $l, $L, $τ, $Τ and $r, $R, $α, $Α as they are in the command pane's rich text.
constexpr std::u16string_view kLocal[] = {u"$l", u"$L", u"$\\'f4", u"$\\'d4"};
constexpr std::u16string_view kRemote[] = {u"$r", u"$R", u"$\\'e1", u"$\\'c1"};

// A spelling of the action word, as typed and as it is in rich text.
struct Spelling {
  std::u16string_view typed;
  std::u16string_view rtf;
};
constexpr Spelling kActionWord[] = {
    {u"/me", u"/me"},
    {u"/mE", u"/mE"},
    {u"/Me", u"/Me"},
    {u"/ME", u"/ME"},
    {u"/εγώ", u"/\\'e5\\'e3\\'fe"},
    {u"/εγΏ", u"/\\'e5\\'e3\\'bf"},
    {u"/εΓώ", u"/\\'e5\\'c3\\'fe"},
    {u"/εΓΏ", u"/\\'e5\\'c3\\'bf"},
    {u"/Εγώ", u"/\\'c5\\'e3\\'fe"},
    {u"/ΕγΏ", u"/\\'c5\\'e3\\'bf"},
    {u"/ΕΓώ", u"/\\'c5\\'c3\\'fe"},
    {u"/ΕΓΏ", u"/\\'c5\\'c3\\'bf"},
};

std::u16string AsRichText(std::u16string_view nickname) {
  return richtext::EscapeForRtf(ShowableNickname(nickname));
}

std::vector<richtext::RtfReplacement> ReplacementsFor(const Nicknames& nicknames) {
  std::vector<richtext::RtfReplacement> list;
  const std::u16string local = AsRichText(nicknames.local);
  for (const std::u16string_view pattern : kLocal) list.push_back({pattern, local});
  if (!nicknames.remote) return list;
  const std::u16string remote = AsRichText(*nicknames.remote);
  for (const std::u16string_view pattern : kRemote) list.push_back({pattern, remote});
  return list;
}

}  // namespace

std::u16string ExpandPlaceholders(std::u16string_view rtf, const Nicknames& nicknames) {
  return richtext::ReplaceInRtfText(rtf, ReplacementsFor(nicknames));
}

std::u16string ExpandActionLine(std::u16string_view rtf, std::u16string_view typedWord,
                                const Nicknames& nicknames) {
  std::vector<richtext::RtfReplacement> list = ReplacementsFor(nicknames);
  const auto word =
      std::find_if(std::begin(kActionWord), std::end(kActionWord),
                   [typedWord](const Spelling& each) { return each.typed == typedWord; });
  if (word != std::end(kActionWord)) {
    list.push_back({word->rtf, AsRichText(nicknames.local), true});
  }
  return richtext::ReplaceInRtfText(rtf, list);
}

}  // namespace verlume
