#include "richtext/rtf_content.h"

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

RtfContent::RtfContent(std::size_t expectedLength) : builder_(expectedLength) {
  outerGroups_.reserve(8);
}

void RtfContent::OpenGroup() {
  if (outerGroups_.size() < limits::kMaxGroupDepth) {
    outerGroups_.push_back(state_);
  } else {
    ++excessDepth_;
  }
}

void RtfContent::CloseGroup() {
  if (excessDepth_ != 0) {
    --excessDepth_;
    return;
  }
  ended_ = outerGroups_.size() <= 1;
  if (ended_) return;
  state_ = outerGroups_.back();
  outerGroups_.pop_back();
  builder_.SetFormat(FormatInForce());
}

void RtfContent::AppendCodePoint(char32_t codePoint) {
  std::u16string units;
  richtext::AppendCodePoint(units, codePoint);
  for (const char16_t unit : units) Append(unit);
}

void RtfContent::AppendBreak(bool endsParagraph) {
  if (!InBody()) return;
  if (endsParagraph) {
    builder_.EndParagraph();
  } else {
    builder_.Append(u'\n');
  }
}

void RtfContent::AppendToTable(char16_t unit) {
  if (state_.destination == Destination::kFontTable) {
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

void RtfContent::Apply(const ControlToken& token) {
  switch (state_.destination) {
    case Destination::kFontTable:
      return ApplyToFonts(token);
    case Destination::kColorTable:
      return ApplyToColors(token);
    case Destination::kBody:
      break;
  }
  if (excessDepth_ != 0) {
    // Only what cannot cost text: fewer characters to pass over behind \u.
    const bool fewer =
        token.word->action == Action::kFallbackCount && token.ParameterOr(1) < state_.fallbackCount;
    if (fewer) SetFallbackCount(token.ParameterOr(1));
    return;
  }
  if (ApplyFormat(token)) {
    builder_.SetFormat(FormatInForce());
  } else {
    ApplyToDocument(token);
  }
}

// True when the word is one of format.
bool RtfContent::ApplyFormat(const ControlToken& token) {
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
      state_.format = state_.eastAsianFormat = {};
      state_.isEastAsian = false;
      return true;
    default:
      return ApplyAssociated(token);
  }
}

// Word processors say format twice: for the text of most scripts, and, with words of their own
// behind \dbch, for East Asian text. The same words behind \rtlch are for text from right to left,
// which has no format of its own here.
bool RtfContent::ApplyAssociated(const ControlToken& token) {
  CharFormat ignored;
  CharFormat& format = state_.isEastAsian ? state_.eastAsianFormat : ignored;
  switch (token.word->action) {
    case Action::kEastAsianText:
      state_.isEastAsian = true;
      return true;
    case Action::kOtherText:
      state_.isEastAsian = false;
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

void RtfContent::ApplyToDocument(const ControlToken& token) {
  switch (token.word->action) {
    case Action::kFallbackCount:
      SetFallbackCount(token.ParameterOr(1));
      break;
    case Action::kCodePageOf:
      fonts_.SetDocumentCodePage(token.word->value);
      break;
    case Action::kCodePage:
      utf8_ = token.parameter == kUtf8Page;
      fonts_.SetDocumentCodePage(token.parameter);
      break;
    case Action::kDefaultFont:
      fonts_.SetDefault(token.parameter);
      break;
    default:
      break;
  }
}

void RtfContent::ApplyToFonts(const ControlToken& token) {
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

void RtfContent::ApplyToColors(const ControlToken& token) {
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

bool RtfContent::OpenTable(Destination table) {
  if (excessDepth_ != 0) return false;
  state_.destination = table;
  return true;
}

void RtfContent::SetFallbackCount(int count) {
  state_.fallbackCount =
      static_cast<std::uint8_t>(std::clamp(count, 0, limits::kMaxFallbackCharacters));
}

// Parts that a colour does not name are 0.
void RtfContent::SetColorPart(int shift, int value) {
  if (newColor_ == kAutomaticColor) newColor_ = 0;
  newColor_ = (newColor_ & ~(0xFF << shift)) | std::clamp(value, 0, 0xFF) << shift;
}

Color RtfContent::ColorOf(int number) const {
  const auto place = static_cast<std::size_t>(number);
  return number >= 0 && place < colors_.size() ? colors_[place] : kAutomaticColor;
}

Document RtfContent::TakePart() {
  Document document = builder_.TakePart();
  fonts_.GiveFontsTo(document);
  return document;
}

}  // namespace verlume::richtext
