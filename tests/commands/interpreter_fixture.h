// A command pane with its interpreter, and a folder of macros.
#pragma once

#include <gmock/gmock.h>

#include "commands/typing_side.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::fake {

class InterpreterSide : public TypingSide {
 protected:
  InterpreterSide() {
    fake.files.MakeFolder(u"/macros");
    state.MacrosFolder = u"/macros";
    textFormat.ApplyCommandStyle();
  }

  void KeepMacro(std::u16string_view name, std::u16string_view text) {
    richtext::Document document;
    document.text = text;
    if (!text.empty()) document.runs = {{text.size(), {}}};
    document.fonts = {{u"Arial"}};
    fake.files.ReplaceText(u"/macros/" + std::u16string(name) + u".rtf",
                           richtext::WriteRtf(document));
  }

  // The text of the dialogue pane, and the texts sent to the peer.
  std::u16string Shown() const { return window.rtbData.Text(); }
  std::vector<std::u16string> Sent() const {
    std::vector<std::u16string> texts;
    for (const std::u16string& text : fake.socket.sent) {
      texts.push_back(richtext::ReadRtf(text).text);
    }
    return texts;
  }

  int Press(int code) {
    window.rtbCommands.onKeyPress(code);
    return code;
  }

  FakeRichTextBox& pane = window.rtbCommands;
};

}  // namespace verlume::fake
