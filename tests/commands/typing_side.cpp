#include "commands/typing_side.h"

namespace verlume::fake {

TypingSide::TypingSide() {
  state.Title = u"Verlume";
  state.IniFile = u"/verlume/Verlume.ini";
  state.Nickname = u"Bob";
  state.DateStamp = state.TimeStamp = false;
  state.History[0] = u"0";
  state.Font.Name = u"Arial";
  state.Font.Size = 10;
  state.ProtocolMarker = BuildProtocolMarker();

  window.rtbCommands.onKeyPress = [this](int& code) { interpreter.rtbCommands_KeyPress(code); };
  window.rtbCommands.onKeyDown = [this](int& code, int shift) {
    history.rtbCommands_KeyDown(code, shift);
  };
  window.rtbCommands.onSelChange = [this] { textFormat.rtbCommands_SelChange(); };
  window.chkBold.onClick = [this] { textFormat.chkBold_Click(); };
  window.chkItalics.onClick = [this] { textFormat.chkItalics_Click(); };
  window.chkUnderline.onClick = [this] { textFormat.chkUnderline_Click(); };
  window.lblColor.onMouseDown = [this](MouseButton b) { textFormat.lblColor_MouseDown(b); };
  window.mnuFormatFontBold.onClick = [this] { textFormat.mnuFormatFontBold_Click(); };
  window.mnuFormatFontItalics.onClick = [this] { textFormat.mnuFormatFontItalics_Click(); };
  window.mnuFormatFontUnderline.onClick = [this] { textFormat.mnuFormatFontUnderline_Click(); };
}

TypingSide::~TypingSide() = default;

}  // namespace verlume::fake
