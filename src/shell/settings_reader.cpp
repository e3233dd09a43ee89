#include "shell/settings_reader.h"

#include <algorithm>
#include <cmath>
#include <optional>

#include "platform/run_time_failure.h"
#include "shell/conversions.h"
#include "shell/nickname.h"
#include "shell/setting_names.h"
#include "shell/text_pair.h"

namespace verlume {
namespace {

constexpr Color kWhite = 0xFFFFFF;

// What the dialogue pane keeps: months of talk, and at most about 300 MB of memory.
constexpr std::int32_t kDefaultMostParagraphs = 200'000;

using Value = std::optional<std::u16string_view>;

struct Target {
  AppState& state;
  const MainWindow& frmMain;
};

void TakeText(Value value, std::u16string& field) {
  if (value && !value->empty()) field = *value;
}

void TakeBoolean(Value value, bool& field) {
  if (value) field = BooleanOf(*value);
}

void SetSwitch(bool& field, bool on, MenuEntry& entry) {
  field = on;
  entry.SetChecked(on);
}

void TakeSwitch(Value value, bool& field, MenuEntry& entry) {
  SetSwitch(field, value ? BooleanOf(*value) : field, entry);
}

// A misspelt value of a mere convenience counts as missing: it is not worth an error message at
// every start.
bool BooleanOr(Value value, bool missing) {
  try {
    return value ? BooleanOf(*value) : missing;
  } catch (const RunTimeFailure&) {
    return missing;
  }
}

bool IsNotOff(Value value) {
  return BooleanOr(value, true);
}

std::optional<Color> ColorOf(Value value) {
  if (!value) return std::nullopt;
  const Color color = IntegerOf(*value);
  if (color < 0) return std::nullopt;
  return std::min(color, kWhite);
}

void TakeBackColor(Value value, RichTextBox& pane) {
  if (const auto color = ColorOf(value)) pane.SetBackColor(*color);
}

// One check for each type of value. Throws RunTimeFailure when the text is not a value of the type.
void CheckText(std::u16string_view) {}
void CheckBoolean(std::u16string_view text) {
  BooleanOf(text);
}
void CheckColor(std::u16string_view text) {
  IntegerOf(text);
}
void CheckNumber(std::u16string_view text) {
  NumberOf(text);
}

// A value that makes no sense counts as missing: it is not worth an error message at every start.
std::int32_t MostParagraphsOf(Value value) {
  try {
    const std::int32_t most = value ? IntegerOf(*value) : -1;
    return most < 0 ? kDefaultMostParagraphs : most;
  } catch (const RunTimeFailure&) {
    return kDefaultMostParagraphs;
  }
}

struct OfferName {
  PrivacyOffer offer;
  std::u16string_view text;
};
constexpr OfferName kOfferNames[] = {{PrivacyOffer::WhenPossible, u"WhenPossible"},
                                     {PrivacyOffer::Only, u"Only"},
                                     {PrivacyOffer::Never, u"Never"}};

// In any letter case; what is none of them counts as missing.
PrivacyOffer OfferOf(Value value) {
  const auto small = [](char16_t c) { return c >= u'A' && c <= u'Z' ? char16_t(c + 32) : c; };
  for (const auto& [offer, text] : kOfferNames) {
    if (value && std::ranges::equal(*value, text, {}, small, small)) return offer;
  }
  return PrivacyOffer::WhenPossible;
}

// What is none of the numbers counts as missing.
RouterChoice RouterChoiceOf(Value value) {
  for (const RouterChoice choice : {RouterChoice::Yes, RouterChoice::No}) {
    if (value && *value == RouterChoiceText(choice)) return choice;
  }
  return RouterChoice::NotYet;
}

struct Key {
  std::u16string_view section;
  std::u16string_view key;
  std::size_t size;                   // of the read buffer
  std::u16string_view missingMarker;  // what a missing key reads as
  void (*check)(std::u16string_view text);
  void (*take)(Value value, Target to);  // no value: missing
};

constexpr std::u16string_view kNull = u"NULL";

// In the order in which they are read.
constexpr Key kKeys[] = {
    {setting_section::kGeneral, setting_key::kNickname, 32, u"", CheckText,
     [](Value value, Target to) {
       TakeText(value, to.state.Nickname);
       to.frmMain.lblLocalNickname.SetCaption(ShowableNickname(to.state.Nickname));
     }},
    {setting_section::kGeneral, setting_key::kDateStamp, 20, kNull, CheckBoolean,
     [](Value value, Target to) {
       TakeSwitch(value, to.state.DateStamp, to.frmMain.mnuToolsDate);
     }},
    {setting_section::kGeneral, setting_key::kTimeStamp, 20, kNull, CheckBoolean,
     [](Value value, Target to) {
       TakeSwitch(value, to.state.TimeStamp, to.frmMain.mnuToolsTime);
     }},
    {setting_section::kGeneral, setting_key::kAlwaysOnTop, 20, kNull, CheckBoolean,
     [](Value value, Target to) {
       TakeSwitch(value, to.state.AlwaysOnTop, to.frmMain.mnuToolsAlwaysOnTop);
       to.frmMain.window.SetTopMost(to.state.AlwaysOnTop);
     }},
    {setting_section::kFont, setting_key::kFontName, 1024, kNull, CheckText,
     [](Value value, Target to) { TakeText(value, to.state.Font.Name); }},
    {setting_section::kFont, setting_key::kFontBold, 20, kNull, CheckBoolean,
     [](Value value, Target to) { TakeBoolean(value, to.state.Font.Bold); }},
    {setting_section::kFont, setting_key::kFontItalic, 20, kNull, CheckBoolean,
     [](Value value, Target to) { TakeBoolean(value, to.state.Font.Italic); }},
    {setting_section::kFont, setting_key::kFontStrikethrough, 20, kNull, CheckBoolean,
     [](Value value, Target to) { TakeBoolean(value, to.state.Font.Strikethrough); }},
    {setting_section::kFont, setting_key::kFontUnderline, 20, kNull, CheckBoolean,
     [](Value value, Target to) { TakeBoolean(value, to.state.Font.Underline); }},
    {setting_section::kFont, setting_key::kFontColor, 20, kNull, CheckColor,
     [](Value value, Target to) {
       to.state.Font.Color = ColorOf(value).value_or(to.state.Font.Color);
     }},
    {setting_section::kFont, setting_key::kFontSize, 20, kNull, CheckNumber,
     [](Value value, Target to) {
       if (value) to.state.Font.Size = AcceptedFontSize(NumberOf(*value));
     }},
    {setting_section::kBackColor, setting_key::kCommands, 20, kNull, CheckColor,
     [](Value value, Target to) { TakeBackColor(value, to.frmMain.rtbCommands); }},
    {setting_section::kBackColor, setting_key::kDialogue, 20, kNull, CheckColor,
     [](Value value, Target to) { TakeBackColor(value, to.frmMain.rtbData); }},
    {setting_section::kLogging, setting_key::kLogFolder, 1024, u"", CheckText,
     [](Value value, Target to) { TakeText(value, to.state.LogFolder); }},
    {setting_section::kLogging, setting_key::kLogDialogue, 20, kNull, CheckBoolean,
     [](Value value, Target to) {
       TakeSwitch(value, to.state.LogDialogue, to.frmMain.mnuFileLogRecord);
     }},
    {setting_section::kGeneral, setting_key::kMacrosFolder, 1024, u"", CheckText,
     [](Value value, Target to) { TakeText(value, to.state.MacrosFolder); }},
    {setting_section::kGeneral, setting_key::kSuggestCommands, 20, kNull, CheckText,
     [](Value value, Target to) {
       SetSwitch(to.state.SuggestCommands, IsNotOff(value), to.frmMain.mnuToolsCompletions);
     }},
    {setting_section::kGeneral, setting_key::kMostParagraphs, 20, kNull, CheckText,
     [](Value value, Target to) {
       to.frmMain.rtbData.SetMostParagraphs(static_cast<std::size_t>(MostParagraphsOf(value)));
     }},
    {setting_section::kGeneral, setting_key::kCheckSpelling, 20, kNull, CheckText,
     [](Value value, Target to) {
       SetSwitch(to.state.CheckSpelling, IsNotOff(value), to.frmMain.mnuToolsCheckSpelling);
     }},
    {setting_section::kGeneral, setting_key::kNotifyLines, 20, kNull, CheckText,
     [](Value value, Target to) {
       SetSwitch(to.state.NotifyLines, BooleanOr(value, true),
                 to.frmMain.attentionMenu.mnuAttentionLines);
     }},
    {setting_section::kGeneral, setting_key::kNotifyText, 20, kNull, CheckText,
     [](Value value, Target to) {
       SetSwitch(to.state.NotifyText, BooleanOr(value, false),
                 to.frmMain.attentionMenu.mnuAttentionText);
     }},
    {setting_section::kGeneral, setting_key::kNotifySound, 20, kNull, CheckText,
     [](Value value, Target to) {
       SetSwitch(to.state.NotifySound, BooleanOr(value, false),
                 to.frmMain.attentionMenu.mnuAttentionSound);
     }},
    {setting_section::kGeneral, setting_key::kNotifyCount, 20, kNull, CheckText,
     [](Value value, Target to) {
       SetSwitch(to.state.NotifyCount, BooleanOr(value, true),
                 to.frmMain.attentionMenu.mnuAttentionCount);
     }},
    {setting_section::kGeneral, setting_key::kPrivateConversations, 20, kNull, CheckText,
     [](Value value, Target to) {
       to.state.Offer = OfferOf(value);
       ShowOffer(to.state, to.frmMain);
     }},
    {setting_section::kGeneral, setting_key::kAskRouter, 20, kNull, CheckText,
     [](Value value, Target to) {
       to.state.AskRouter = RouterChoiceOf(value);
       ShowRouterChoice(to.state, to.frmMain);
     }},
};

// The value of a key in the file.
class FileValue {
 public:
  FileValue(const Settings& settings, const Key& key)
      : text_(settings.ReadSetting(key.section, key.key, key.missingMarker, key.size)),
        isMissing_(key.missingMarker.empty() ? text_.empty()
                                             : text_.starts_with(key.missingMarker)) {}
  Value Get() const { return isMissing_ ? Value() : Value(text_); }

 private:
  std::u16string text_;
  bool isMissing_;
};

}  // namespace

double AcceptedFontSize(double points) {
  return std::clamp(std::round(points * 2) / 2, kSmallestFontSize, kLargestFontSize);
}

void SetSettingDefaults(AppState& state, const MainWindow& frmMain) {
  state.Font =
      StyleOf(frmMain.rtbData.SelFormat(), {.Name = state.Font.Name, .Size = kLargestFontSize});

  state.Nickname.clear();
  state.MacrosFolder.clear();
  state.LogFolder.clear();
  SetSwitch(state.DateStamp, true, frmMain.mnuToolsDate);
  SetSwitch(state.TimeStamp, true, frmMain.mnuToolsTime);
  SetSwitch(state.AlwaysOnTop, false, frmMain.mnuToolsAlwaysOnTop);
  SetSwitch(state.LogDialogue, false, frmMain.mnuFileLogRecord);
  SetSwitch(state.SuggestCommands, true, frmMain.mnuToolsCompletions);
  SetSwitch(state.CheckSpelling, true, frmMain.mnuToolsCheckSpelling);
  SetSwitch(state.NotifyLines, true, frmMain.attentionMenu.mnuAttentionLines);
  SetSwitch(state.NotifyText, false, frmMain.attentionMenu.mnuAttentionText);
  SetSwitch(state.NotifySound, false, frmMain.attentionMenu.mnuAttentionSound);
  SetSwitch(state.NotifyCount, true, frmMain.attentionMenu.mnuAttentionCount);
  frmMain.rtbData.SetMostParagraphs(kDefaultMostParagraphs);
  state.Offer = PrivacyOffer::WhenPossible;
  ShowOffer(state, frmMain);
  state.AskRouter = RouterChoice::NotYet;
  ShowRouterChoice(state, frmMain);
}

std::u16string RouterChoiceText(RouterChoice choice) {
  return DecimalText(static_cast<int>(choice));
}

void ShowRouterChoice(const AppState& state, const MainWindow& frmMain) {
  frmMain.mnuCommAskRouter.SetChecked(state.AskRouter == RouterChoice::Yes);
}

std::u16string_view OfferText(PrivacyOffer offer) {
  const auto isThat = [offer](const OfferName& each) { return each.offer == offer; };
  return std::ranges::find_if(kOfferNames, isThat)->text;
}

void ShowOffer(const AppState& state, const MainWindow& frmMain) {
  const PrivateMenu& menu = frmMain.privateMenu;
  menu.mnuPrivateWhenPossible.SetChecked(state.Offer == PrivacyOffer::WhenPossible);
  menu.mnuPrivateOnly.SetChecked(state.Offer == PrivacyOffer::Only);
  menu.mnuPrivateNever.SetChecked(state.Offer == PrivacyOffer::Never);
}

void ReadLanguage(AppState& state, const Settings& settings) {
  state.IsGreek = NumericPrefixOf(settings.ReadSetting(setting_section::kGeneral,
                                                       setting_key::kLanguage, u"0", 5)) == 1;
}

void ReadSettings(AppState& state, const MainWindow& frmMain, const Settings& settings) {
  for (const Key& row : kKeys) row.take(FileValue(settings, row).Get(), {state, frmMain});
}

bool AllValuesAreValid(const Settings& settings) {
  try {
    for (const Key& row : kKeys) {
      const FileValue value(settings, row);
      if (value.Get()) row.check(*value.Get());
    }
    return true;
  } catch (const RunTimeFailure&) {
    return false;
  }
}

std::u16string_view LanguageText(const AppState& state) {
  return state.IsGreek ? u"1" : u"0";
}

std::vector<Settings::KeyValue> FontSettings(const AppState& state) {
  return {{setting_key::kFontName, state.Font.Name},
          {setting_key::kFontBold, BooleanText(state.Font.Bold)},
          {setting_key::kFontItalic, BooleanText(state.Font.Italic)},
          {setting_key::kFontStrikethrough, BooleanText(state.Font.Strikethrough)},
          {setting_key::kFontUnderline, BooleanText(state.Font.Underline)},
          {setting_key::kFontColor, DecimalText(state.Font.Color)},
          {setting_key::kFontSize, NumberText(state.Font.Size)}};
}

void WriteFontSettings(const AppState& state, Settings& settings) {
  settings.WriteSettings(setting_section::kFont, FontSettings(state));
}

}  // namespace verlume
