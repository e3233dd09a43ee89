// The number of each procedure. An error message shows it, so that users and support can name the
// procedure. A number is never shared or reused.
#pragma once

namespace verlume {

enum class Procedure : int {
  Form_Load = 203,
  rtbCommands_KeyPress = 204,
  WaitForCall = 205,
  CallRemote = 206,
  WriteDialogueLine = 207,
  sckControl_ConnectionRequest = 208,
  sckControl_DataArrival = 209,
  sckControl_Connect = 210,
  freeSizer1_PostLayout = 211,
  sckControl_Close = 212,
  Form_QueryUnload = 213,
  mnuFileExit_Click = 214,
  FindInDialogue = 215,
  CancelWaitOrCall = 216,
  CloseConnection = 217,
  ConfirmExit = 218,
  ApplyLanguage = 219,
  frmAbout_Load = 220,
  mnuFormatFontSettings_Click = 221,
  mnuFormatBackcolorCommands_Click = 222,
  mnuFormatBackcolorDialogue_Click = 223,
  mnuHelpDetailed_Click = 224,
  mnuToolsClear_Click = 225,  // the three clearing actions
  tmrTimer_Timer = 226,
  SendToPeer = 227,
  Form_Unload = 228,
  ApplyCommandStyle = 229,
  lblColor_MouseDown = 230,
  rtbCommands_SelChange = 231,
  SetNickname = 232,
  mnuToolsDate_Click = 233,
  mnuToolsTime_Click = 234,
  SetFontSize = 235,
  rtbCommands_KeyDown = 236,
  RefreshLocalIP = 237,
  mnuFileLogRecord_Click = 238,
  mnuFileLogFolder_Click = 239,
  AppendToLog = 240,
  SaveDialogueAs = 241,
  LoadDialogueAs = 242,
  mnuToolsAlwaysOnTop_Click = 243,
  ChooseMacrosFolder = 244,
  SaveCommandPaneAsMacro = 245,
  frmMacros_Load = 246,  // and everything in frmMacros without a number below
  cmdAdd_Click = 247,
  cmdCancel_Click = 248,
  lstMacroNames_Click = 249,
  cmdDelete_Click = 250,
  cmdSave_Click = 251,
  cmdSaveAs_Click = 252,
  lblColour_MouseDown = 253,
  rtbMacroText_KeyPress = 254,
  CommandCompletion = 255,
  mnuToolsCompletions_Click = 256,
  View = 257,  // the View menu
  OpenLink = 260,
  SpellCheck = 275,
  mnuToolsCheckSpelling_Click = 276,
  Attention = 280,
  PeerKnown = 290,  // and the bar that asks about a key
  Invite = 291,     // and an invitation from outside
  mnuPrivate_Click = 292,
  PeopleWindow = 293,
  VerifyWindow = 294,
  RouterPort = 295,  // the port that the router passes on, and the bar that asks about it
  ReachWindow = 296,
};

}  // namespace verlume
