#include "network/script.h"

#include <algorithm>
#include <random>
#include <string_view>

namespace verlume::network {
namespace {

// Letters of both languages, characters with a meaning in RTF, and some outside the code page.
constexpr std::u16string_view kAlphabet =
    u"abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ0123456789 .,;:!?-  etaoin ETAOIN"
    u"αβγδάέΩΨ{}\\%日€";
constexpr std::u16string_view kAscii = u"abcdefghijklmnopqrstuvwxyz 0123456789 etaoin";

class Author {
 public:
  explicit Author(const Play& play) : play_(play), random_(play.seed * 2 + (play.side & 1)) {}

  std::vector<Step> Write() {
    std::vector<Step> steps;
    for (std::size_t i = 0; i < play_.steps; ++i) steps.push_back(StepNumber(i));
    for (std::size_t i = 0; i < play_.longLines; ++i) {
      steps[(2 * i + 1) * steps.size() / (2 * play_.longLines)] = {StepKind::Plain, LongText()};
    }
    return steps;
  }

 private:
  std::size_t Below(std::size_t limit) { return random_() % limit; }

  Step StepNumber(std::size_t number) {
    const std::u16string serial = Decimal(number);
    switch (Below(10)) {
      case 0:
        return {StepKind::Macro, u""};
      case 1:
      case 2:
        return {StepKind::Nickname, play_.side + serial};
      case 3:
        return {StepKind::Bare, std::u16string(1, kAscii[Below(26)])};
      case 4:
        return {StepKind::Action, u"does " + serial + Text(Length())};
      case 5:
      case 6:
        return {StepKind::Formatted, serial + u' ' + Text(Length())};
      case 7:
        return {StepKind::Plain, std::u16string(1, kAscii[Below(26)])};
      default:
        return {StepKind::Plain, serial + u' ' + Text(Length())};
    }
  }

  // Mostly as long as what people type; sometimes a page.
  std::size_t Length() {
    const std::size_t page = std::min<std::size_t>(6000, play_.longest);
    return Below(8) == 0 ? Below(page) : Below(Below(4) == 0 ? 1000 : 80);
  }

  std::u16string Text(std::size_t length) { return Text(length, kAlphabet); }
  std::u16string LongText() { return Text(play_.longest, kAscii); }
  std::u16string Text(std::size_t length, std::u16string_view alphabet) {
    std::u16string text;
    while (text.size() < length) text += alphabet[Below(alphabet.size())];
    return text + u'.';
  }

  static std::u16string Decimal(std::size_t number) {
    const std::string digits = std::to_string(number);
    return {digits.begin(), digits.end()};
  }

  Play play_;
  std::mt19937_64 random_;
};

std::u16string MacroTextOf(const std::u16string& nickname) {
  std::u16string text = kMacroText;
  return text.replace(text.find(u"$l"), 2, nickname);
}

}  // namespace

std::u16string FirstNickname(char16_t side) {
  return side + std::u16string(u"first");
}

std::vector<Step> StepsOf(const Play& play) {
  return Author(play).Write();
}

std::vector<std::u16string> LinesShownOf(const Play& play) {
  std::vector<std::u16string> lines;
  std::u16string nickname = FirstNickname(play.side);
  for (const Step& step : StepsOf(play)) {
    if (step.kind == StepKind::Nickname) {
      nickname = step.text;
    } else if (step.kind == StepKind::Action) {
      lines.push_back(u' ' + nickname + u' ' + step.text);
    } else if (step.kind == StepKind::Macro) {
      lines.push_back(u'<' + nickname + u'>' + MacroTextOf(nickname));
    } else {
      lines.push_back(u'<' + nickname + u'>' + step.text);
    }
  }
  return lines;
}

}  // namespace verlume::network
