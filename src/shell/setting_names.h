// The sections and keys of the settings file.
#pragma once

#include <string_view>

namespace verlume {

namespace setting_section {
inline constexpr std::u16string_view kGeneral = u"General";
inline constexpr std::u16string_view kFont = u"FontLocal";
inline constexpr std::u16string_view kBackColor = u"BackColor";
inline constexpr std::u16string_view kLogging = u"Logging";
}  // namespace setting_section

namespace setting_key {
// Of General.
inline constexpr std::u16string_view kLanguage = u"Language";
inline constexpr std::u16string_view kNickname = u"Nickname";
inline constexpr std::u16string_view kDateStamp = u"DateStamp";
inline constexpr std::u16string_view kTimeStamp = u"TimeStamp";
inline constexpr std::u16string_view kAlwaysOnTop = u"AlwaysOnTop";
inline constexpr std::u16string_view kMacrosFolder = u"Macrosfolder";
inline constexpr std::u16string_view kSuggestCommands = u"Suggestcommands";
inline constexpr std::u16string_view kMostParagraphs = u"Mostparagraphs";
inline constexpr std::u16string_view kCalled = u"Called";  // and a number: "Called1"
inline constexpr std::u16string_view kCheckSpelling = u"CheckSpelling";
inline constexpr std::u16string_view kNotifyLines = u"NotifyLines";
inline constexpr std::u16string_view kNotifyText = u"NotifyText";
inline constexpr std::u16string_view kNotifySound = u"NotifySound";
inline constexpr std::u16string_view kNotifyCount = u"NotifyCount";
inline constexpr std::u16string_view kPrivateConversations = u"PrivateConversations";
inline constexpr std::u16string_view kAskRouter = u"AskRouter";
// Of FontLocal.
inline constexpr std::u16string_view kFontName = u"Name";
inline constexpr std::u16string_view kFontBold = u"Bold";
inline constexpr std::u16string_view kFontItalic = u"Italic";
inline constexpr std::u16string_view kFontStrikethrough = u"Strikethrough";
inline constexpr std::u16string_view kFontUnderline = u"Underline";
inline constexpr std::u16string_view kFontColor = u"Forecolor";
inline constexpr std::u16string_view kFontSize = u"Size";
// Of BackColor: one for each pane.
inline constexpr std::u16string_view kCommands = u"Commands";
inline constexpr std::u16string_view kDialogue = u"Dialogue";
// Of Logging.
inline constexpr std::u16string_view kLogFolder = u"Logfolder";
inline constexpr std::u16string_view kLogDialogue = u"Logdialogue";
}  // namespace setting_key

}  // namespace verlume
