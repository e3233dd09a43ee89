#include "richtext/rtf_state.h"

#include <algorithm>
#include <string>

#include "richtext/rtf_limits.h"
#include "richtext/utf8.h"

namespace verlume::richtext {
namespace {

constexpr int kUtf8Page = 65001;
constexpr int kDefaultHalfPoints = 24;

bool IsOn(const ControlToken& token) {
  return token.ParameterOr(1) != 0;
}

std::uint16_t HalfPoints(const ControlToken& token) {
  return static_cast<std::uint16_t>(std::clamp(token.ParameterOr(kDefaultHalfPoints),
                                               limits::kMinHalfPoints, limits::kMaxHalfPoints));
}

}  // namespace

RtfState::RtfState() {
  outerGroups_.reserve(8);
}

void RtfState::OpenGroup() {
  if (outerGroups_.size() < limits::kMaxGroupDepth) {
    outerGroups_.push_back(group_);
  } else {
    ++excessDepth_;
  }
}

void RtfState::CloseGroup() {
  if (excessDepth_ != 0) {
    --excessDepth_;
    return;
  }
  ended_ = outerGroups_.size() <= 1;
  if (outerGroups_.empty()) return;
  group_ = outerGroups_.back();
  outerGroups_.pop_back();
  if (InBody()) fonts_.End();  // the declaration of a font ends with its table
}

void RtfState::AppendCodePoint(char32_t codePoint) {
  if (InBody()) return;
  std::u16string units;
  richtext::AppendCodePoint(units, codePoint);
  for (const char16_t unit : units) AppendToTable(unit);
}

void RtfState::AppendToTable(char16_t unit) {
  if (group_.destination == Destination::kFontTable) {
    if (unit == u';') {
      fonts_.End();
    } else {
      fonts_.AppendName(unit);
    }
  } else if (unit == u';') {
    if (colors_.size() < limits::kMaxColors) colors_.push_back(newColor_);
    newColor_ = kAutomaticColor;
  }
}

bool RtfState::Apply(const ControlToken& token) {
  switch (group_.destination) {
    case Destination::kFontTable:
      ApplyToFonts(token);
      return false;
    case Destination::kColorTable:
      ApplyToColors(token);
      return false;
    case Destination::kBody:
      break;
  }
  if (excessDepth_ != 0) {
    ApplyBeyondDepth(token);
    return false;
  }
  const bool isFormat = ApplyFormat(token);
  if (!isFormat) ApplyToDocument(token);
  return isFormat;
}

// Only what cannot cost text: fewer characters to pass over behind \u.
void RtfState::ApplyBeyondDepth(const ControlToken& token) {
  if (token.word->action != Action::kFallbackCount) return;
  if (token.ParameterOr(1) < group_.fallbackCount) SetFallbackCount(token.ParameterOr(1));
}

// True when the word is one of format.
bool RtfState::ApplyFormat(const ControlToken& token) {
  switch (token.word->action) {
    case Action::kBold:
      Set(&CharFormat::bold, IsOn(token));
      return true;
    case Action::kItalic:
      Set(&CharFormat::italic, IsOn(token));
      return true;
    case Action::kUnderline:
      Set(&CharFormat::underline, IsOn(token));
      return true;
    case Action::kNoUnderline:
      Set(&CharFormat::underline, false);
      return true;
    case Action::kStrikethrough:
      Set(&CharFormat::strikethrough, IsOn(token));
      return true;
    case Action::kFont:
      Set(&CharFormat::font, fonts_.IndexOf(token.parameter));
      return true;
    case Action::kFontSize:
      Set(&CharFormat::halfPoints, HalfPoints(token));
      return true;
    case Action::kColor:
      Set(&CharFormat::color, ColorOf(token.parameter));
      return true;
    case Action::kPlain:
      group_.format = group_.eastAsianFormat = {};
      group_.isEastAsian = false;
      return true;
    default:
      return ApplyAssociated(token);
  }
}

// Word processors say format twice: for the text of most scripts, and, with words of their own
// behind \dbch, for East Asian text. The same words behind \rtlch are for text from right to left,
// which has no format of its own here.
bool RtfState::ApplyAssociated(const ControlToken& token) {
  CharFormat ignored;
  CharFormat& format = group_.isEastAsian ? group_.eastAsianFormat : ignored;
  switch (token.word->action) {
    case Action::kEastAsianText:
      group_.isEastAsian = true;
      return true;
    case Action::kOtherText:
      group_.isEastAsian = false;
      return true;
    case Action::kAssociatedBold:
      format.bold = IsOn(token);
      return true;
    case Action::kAssociatedItalic:
      format.italic = IsOn(token);
      return true;
    case Action::kAssociatedFontSize:
      format.halfPoints = HalfPoints(token);
      return true;
    default:
      return false;
  }
}

void RtfState::ApplyToDocument(const ControlToken& token) {
  switch (token.word->action) {
    case Action::kFallbackCount:
      SetFallbackCount(token.ParameterOr(1));
      break;
    case Action::kCodePageOf:
      fonts_.SetDocumentCodePage(token.word->value);
      break;
    case Action::kCodePage:
      isUtf8_ = token.parameter == kUtf8Page;
      fonts_.SetDocumentCodePage(token.parameter);
      break;
    case Action::kDefaultFont:
      fonts_.SetDefault(token.parameter);
      break;
    default:
      break;
  }
}

void RtfState::ApplyToFonts(const ControlToken& token) {
  switch (token.word->action) {
    case Action::kFont:
      fonts_.Begin(token.parameter);
      break;
    case Action::kFontCharset:
      fonts_.SetCharset(token.parameter);
      break;
    case Action::kFontCodePage:
      fonts_.SetCodePage(token.parameter);
      break;
    case Action::kFallbackCount:
      SetFallbackCount(token.ParameterOr(1));
      break;
    default:
      break;
  }
}

void RtfState::ApplyToColors(const ControlToken& token) {
  switch (token.word->action) {
    case Action::kRed:
      SetColorPart(0, token.parameter);
      break;
    case Action::kGreen:
      SetColorPart(8, token.parameter);
      break;
    case Action::kBlue:
      SetColorPart(16, token.parameter);
      break;
    default:
      break;
  }
}

bool RtfState::OpenTable(Destination table) {
  if (excessDepth_ != 0) return false;
  group_.destination = table;
  return true;
}

void RtfState::SetFallbackCount(int count) {
  group_.fallbackCount =
      static_cast<std::uint8_t>(std::clamp(count, 0, limits::kMaxFallbackCharacters));
}

// Parts that a colour does not name are 0.
void RtfState::SetColorPart(int shift, int value) {
  if (newColor_ == kAutomaticColor) newColor_ = 0;
  newColor_ = (newColor_ & ~(0xFF << shift)) | std::clamp(value, 0, 0xFF) << shift;
}

Color RtfState::ColorOf(int number) const {
  const auto place = static_cast<std::size_t>(number);
  return number >= 0 && place < colors_.size() ? colors_[place] : kAutomaticColor;
}

}  // namespace verlume::richtext
