// The design of the main window: where its controls are, and what is in its menus.
#pragma once

#include <QRect>
#include <QSize>
#include <array>

namespace verlume::qt {

enum class ControlKind {
  Hairline,
  Caption,  // ends where its value begins, at every size of the window
  Value,
  Address,  // a value that ends where the colon before the port is
  Status,
  Note,  // at the right end of the status line
  Lock,
  Swatch,
  CheckBox,
  Button,
  Pane,
  LampFrame,
  Picture
};

struct ControlDesign {
  ControlKind kind;
  const char* name;
  QRect place;
  QRect placeAlone = place;  // while the status panel is hidden; empty for what is part of it
};

// The smallest size of the window without its menu bar, at 100 %.
inline constexpr QSize kDesignSize(640, 436);

inline constexpr QRect kHidden;

// The place of each control, with the status panel and without it.
inline constexpr auto kMainWindowDesign = std::to_array<ControlDesign>({
    {ControlKind::Pane, "rtbData", {6, 6, 628, 277}, {6, 6, 628, 337}},
    {ControlKind::CheckBox, "chkBold", {6, 287, 74, 24}, {6, 347, 74, 24}},
    {ControlKind::CheckBox, "chkItalics", {82, 287, 74, 24}, {82, 347, 74, 24}},
    {ControlKind::CheckBox, "chkUnderline", {158, 287, 108, 24}, {158, 347, 108, 24}},
    {ControlKind::Swatch, "lblColor", {268, 287, 30, 24}, {268, 347, 30, 24}},
    {ControlKind::Pane, "rtbCommands", {6, 313, 536, 32}, {6, 373, 536, 30}},
    {ControlKind::Button, "cmdSend", {546, 313, 88, 32}, {546, 373, 88, 30}},

    {ControlKind::LampFrame, "picShape", {8, 349, 22, 30}, {8, 405, 22, 30}},
    {ControlKind::Status, "lblStatus", {34, 349, 498, 30}, {34, 405, 498, 30}},
    {ControlKind::Note, "lblWaiting", {536, 349, 96, 30}, {536, 405, 96, 30}},
    {ControlKind::Lock, "lblLock", {632, 349, 0, 30}, {632, 405, 0, 30}},

    {ControlKind::Hairline, "fraPanel", {8, 380, 624, 2}, kHidden},
    {ControlKind::Caption, "lblLocalNicknameCaption", {8, 383, 54, 17}, kHidden},
    {ControlKind::Value, "lblLocalNickname", {66, 383, 96, 17}, kHidden},
    {ControlKind::Address, "lblLocalIP", {166, 383, 104, 17}, kHidden},
    {ControlKind::Caption, "lblLocalPortCaption", {270, 383, 5, 17}, kHidden},
    {ControlKind::Value, "lblLocalPort", {277, 383, 47, 17}, kHidden},
    {ControlKind::Caption, "lblCurrentDateTimeCaption", {328, 383, 48, 17}, kHidden},
    {ControlKind::Value, "lblCurrentDateTime", {380, 383, 252, 17}, kHidden},

    {ControlKind::Caption, "lblRemoteNicknameCaption", {8, 400, 54, 17}, kHidden},
    {ControlKind::Value, "lblRemoteNickname", {66, 400, 96, 17}, kHidden},
    {ControlKind::Address, "lblRemoteIP", {166, 400, 104, 17}, kHidden},
    {ControlKind::Caption, "lblRemotePortCaption", {270, 400, 5, 17}, kHidden},
    {ControlKind::Value, "lblRemotePort", {277, 400, 47, 17}, kHidden},
    {ControlKind::Caption, "lblChatStartDateTimeCaption", {328, 400, 48, 17}, kHidden},
    {ControlKind::Value, "lblChatStartDateTime", {380, 400, 252, 17}, kHidden},

    {ControlKind::Caption, "lblChatDurationCaption", {8, 417, 54, 17}, kHidden},
    {ControlKind::Value, "lblChatDuration", {66, 417, 96, 17}, kHidden},
    {ControlKind::Caption, "lblBytesSentCaption", {162, 417, 70, 17}, kHidden},
    {ControlKind::Value, "lblBytesSent", {236, 417, 72, 17}, kHidden},
    {ControlKind::Caption, "lblBytesReceivedCaption", {310, 417, 66, 17}, kHidden},
    {ControlKind::Value, "lblBytesReceived", {380, 417, 80, 17}, kHidden},
    {ControlKind::Picture, "picCopyright", {462, 417, 17, 17}, kHidden},
    {ControlKind::Value, "lblCopyright", {482, 417, 154, 17}, kHidden},
});

// While the lock is shown, the controls of the status line have these places across.
struct SpanDesign {
  const char* name;
  int left;
  int width;
};

inline constexpr auto kBesideLock = std::to_array<SpanDesign>({
    {"lblStatus", 34, 332},
    {"lblWaiting", 370, 76},
    {"lblLock", 448, 184},
});

struct MenuEntryDesign {
  const char* menu;
  const char* entry;
  bool tick = false;  // can have a tick
  bool separatorBefore = false;
  const char* keys = "";  // the shortcuts, in QKeySequence's notation, between semicolons
};

// A menu within another one, at its end.
struct SubmenuDesign {
  const char* parent;
  const char* menu;
};

inline constexpr auto kSubmenuDesign = std::to_array<SubmenuDesign>({
    {"mnuTools", "mnuAttention"},
    {"mnuTools", "mnuPrivate"},
});

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
    {"mnuComm", "mnuCommInvite", false, true},
    {"mnuComm", "mnuCommVerify"},
    {"mnuComm", "mnuCommPeople"},
    {"mnuComm", "mnuCommReach", false, true},
    {"mnuComm", "mnuCommAskRouter", true},
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
    {"mnuAttention", "mnuAttentionLines", true},
    {"mnuAttention", "mnuAttentionText", true},
    {"mnuAttention", "mnuAttentionSound", true, true},
    {"mnuAttention", "mnuAttentionCount", true},
    {"mnuTools", "mnuToolsCheckSpelling", true, true},
    {"mnuPrivate", "mnuPrivateWhenPossible", true},
    {"mnuPrivate", "mnuPrivateOnly", true},
    {"mnuPrivate", "mnuPrivateNever", true},
    {"mnuView", "mnuViewStatusPanel", true, false, "F9"},
    {"mnuView", "mnuViewZoomIn", false, true, "Ctrl++; Ctrl+="},
    {"mnuView", "mnuViewZoomOut", false, false, "Ctrl+-"},
    {"mnuView", "mnuViewZoomReset", false, false, "Ctrl+0"},
    {"mnuHelp", "mnuHelpDetailed", false, false, "F1"},
    {"mnuHelp", "mnuHelpAbout", false, true},
});

}  // namespace verlume::qt
