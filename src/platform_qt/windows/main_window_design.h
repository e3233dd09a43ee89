// The design of the main window: where its controls are, and what is in its menus.
#pragma once

#include <QRect>
#include <QSize>
#include <array>

namespace verlume::qt {

enum class ControlKind {
  Frame,
  Caption,
  Value,
  Wrapped,
  Swatch,
  CheckBox,
  Pane,
  LampFrame,
  Picture
};

struct ControlDesign {
  ControlKind kind;
  const char* name;
  QRect place;
};

// The smallest size of the window without its menu bar, at 100 %.
inline constexpr QSize kDesignSize(640, 455);

// The place of each control.
inline constexpr auto kMainWindowDesign = std::to_array<ControlDesign>({
    {ControlKind::Pane, "rtbData", {8, 8, 624, 192}},
    {ControlKind::CheckBox, "chkBold", {10, 204, 132, 25}},
    {ControlKind::CheckBox, "chkItalics", {146, 204, 132, 25}},
    {ControlKind::CheckBox, "chkUnderline", {282, 204, 172, 25}},
    {ControlKind::Swatch, "lblColor", {460, 208, 44, 17}},
    {ControlKind::Pane, "rtbCommands", {8, 233, 624, 38}},

    {ControlKind::LampFrame, "picShape", {8, 276, 36, 34}},
    {ControlKind::Wrapped, "lblStatus", {52, 276, 484, 34}},
    {ControlKind::Value, "lblWaiting", {540, 276, 92, 34}},

    {ControlKind::Frame, "fraLocal", {8, 315, 290, 60}},
    {ControlKind::Caption, "lblLocalIPCaption", {16, 318, 128, 18}},
    {ControlKind::Value, "lblLocalIP", {146, 318, 148, 18}},
    {ControlKind::Caption, "lblLocalPortCaption", {16, 336, 128, 18}},
    {ControlKind::Value, "lblLocalPort", {146, 336, 148, 18}},
    {ControlKind::Caption, "lblLocalNicknameCaption", {16, 354, 128, 18}},
    {ControlKind::Value, "lblLocalNickname", {146, 354, 148, 18}},

    {ControlKind::Frame, "fraRemote", {304, 315, 328, 60}},
    {ControlKind::Caption, "lblRemoteIPCaption", {312, 318, 176, 18}},
    {ControlKind::Value, "lblRemoteIP", {490, 318, 138, 18}},
    {ControlKind::Caption, "lblRemotePortCaption", {312, 336, 176, 18}},
    {ControlKind::Value, "lblRemotePort", {490, 336, 138, 18}},
    {ControlKind::Caption, "lblRemoteNicknameCaption", {312, 354, 176, 18}},
    {ControlKind::Value, "lblRemoteNickname", {490, 354, 138, 18}},

    {ControlKind::Frame, "fraClock", {8, 378, 446, 42}},
    {ControlKind::Caption, "lblCurrentDateTimeCaption", {16, 381, 114, 18}},
    {ControlKind::Value, "lblCurrentDateTime", {131, 381, 319, 18}},
    {ControlKind::Caption, "lblChatStartDateTimeCaption", {16, 399, 114, 18}},
    {ControlKind::Value, "lblChatStartDateTime", {131, 399, 319, 18}},

    {ControlKind::Picture, "picCopyright", {464, 382, 34, 34}},
    {ControlKind::Wrapped, "lblCopyright", {504, 382, 128, 34}},

    {ControlKind::Frame, "fraChat", {8, 423, 624, 24}},
    {ControlKind::Caption, "lblChatDurationCaption", {16, 426, 60, 18}},
    {ControlKind::Value, "lblChatDuration", {78, 426, 64, 18}},
    {ControlKind::Caption, "lblBytesSentCaption", {146, 426, 148, 18}},
    {ControlKind::Value, "lblBytesSent", {296, 426, 86, 18}},
    {ControlKind::Caption, "lblBytesReceivedCaption", {388, 426, 148, 18}},
    {ControlKind::Value, "lblBytesReceived", {538, 426, 90, 18}},
});

struct MenuEntryDesign {
  const char* menu;
  const char* entry;
  bool tick = false;  // can have a tick
  bool separatorBefore = false;
  const char* keys = "";  // the shortcut, in QKeySequence's notation
};

inline constexpr auto kMainMenuDesign = std::to_array<MenuEntryDesign>({
    {"mnuFile", "mnuFileMacrosFolder"},
    {"mnuFile", "mnuFileLogFolder"},
    {"mnuFile", "mnuFileLogRecord", true, true},
    {"mnuFile", "mnuFileLogOpen", false, false, "Ctrl+O"},
    {"mnuFile", "mnuFileLogSaveAs", false, false, "Ctrl+S"},
    {"mnuFile", "mnuFileExit", false, true, "Ctrl+Q"},
    {"mnuComm", "mnuCommWait"},
    {"mnuComm", "mnuCommCall"},
    {"mnuComm", "mnuCommCancel", false, true},
    {"mnuComm", "mnuCommClose"},
    {"mnuComm", "mnuCommRefresh", false, true},
    {"mnuFormat", "mnuFormatFontBold", true, false, "Ctrl+B"},
    {"mnuFormat", "mnuFormatFontItalics", true, false, "Ctrl+I"},
    {"mnuFormat", "mnuFormatFontUnderline", true, false, "Ctrl+U"},
    {"mnuFormat", "mnuFormatFontSize", false, true},
    {"mnuFormat", "mnuFormatFontColor"},
    {"mnuFormat", "mnuFormatFontSettings"},
    {"mnuFormat", "mnuFormatBackcolorCommands", false, true},
    {"mnuFormat", "mnuFormatBackcolorDialogue"},
    {"mnuTools", "mnuToolsNick"},
    {"mnuTools", "mnuToolsSaveMacro", false, true},
    {"mnuTools", "mnuToolsEditMacros"},
    {"mnuTools", "mnuToolsFind", false, true, "Ctrl+F"},
    {"mnuTools", "mnuToolsCompletions", true},
    {"mnuTools", "mnuToolsClearDialogue", false, true},
    {"mnuTools", "mnuToolsClearCommands"},
    {"mnuTools", "mnuToolsClearHistory"},
    {"mnuTools", "mnuToolsDate", true, true},
    {"mnuTools", "mnuToolsTime", true},
    {"mnuTools", "mnuToolsAlwaysOnTop", true},
    {"mnuTools", "mnuToolsLanguageEnglish", true, true},
    {"mnuTools", "mnuToolsLanguageGreek", true},
    {"mnuTools", "mnuToolsCheckSpelling", true, true},
    {"mnuHelp", "mnuHelpDetailed", false, false, "F1"},
    {"mnuHelp", "mnuHelpAbout", false, true},
});

}  // namespace verlume::qt
