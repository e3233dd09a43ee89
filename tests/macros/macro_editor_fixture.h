// The fixture of the macro editor's tests: its window in memory, connected as in the program, with
// a folder of three macros.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "macros/macro_editor.h"
#include "macros/room_test.h"
#include "richtext/rtf_reader.h"

namespace verlume {

class MacroEditorTest : public RoomTest {
 protected:
  MacroEditorTest();
  ~MacroEditorTest() override;

  // Opens the editor, does the act in it and closes it in any state.
  void Open(const std::function<void()>& act) {
    window.window.whileModal = [this, act] {
      act();
      window.window.Unload();
    };
    editor.OpenMacroEditor();
  }

  // Actions of a user.
  void Choose(const std::u16string& name) {
    for (int i = 0; i < list.Count(); ++i) {
      if (list.Item(i) == name) return list.Choose(i);
    }
    ADD_FAILURE() << "no such macro: " << testing::PrintToString(name);
  }
  void Add(const std::u16string& name) {
    fake.dialogs.typed = {name};
    window.cmdAdd.Click();
  }
  void Edit(const std::u16string& name) {
    Choose(name);
    window.cmdEdit.Click();
  }

  // The state that the window shows; "none" if it matches no state of the table.
  std::string StateName() const {
    const std::vector<bool> buttons = {window.cmdAdd.enabled,    window.cmdEdit.enabled,
                                       window.cmdSave.enabled,   window.cmdSaveAs.enabled,
                                       window.cmdCancel.enabled, window.cmdDelete.enabled,
                                       window.cmdRun.enabled,    window.cmdClose.enabled};
    const bool isBrowsing = text.locked && text.tag == u"no";
    const bool isEditing = !text.locked && text.tag.empty() && list.tag == u"no";
    const bool listFollows = list.tag == (list.items.empty() ? u"no" : u"");
    if (isBrowsing && listFollows && state.MacroIndex == -1 && text.Text().empty() &&
        buttons == std::vector<bool>{1, 0, 0, 0, 0, 0, 0, 1}) {
      return "Empty";
    }
    if (isBrowsing && list.tag.empty() && state.MacroIndex == list.selected &&
        buttons == std::vector<bool>{1, 1, 0, 0, 0, 1, 1, 1}) {
      return "Showing";
    }
    if (isEditing && buttons == std::vector<bool>{0, 0, 1, 0, 1, 0, 0, 0}) return "New";
    if (isEditing && buttons == std::vector<bool>{0, 0, 1, 1, 1, 0, 0, 0}) return "Editing";
    return "none";
  }

  // The text of a macro's file.
  std::u16string Saved(const std::u16string& name) const {
    const auto file = fake.files.files.find(u"/macros/" + name + u".rtf");
    return file == fake.files.files.end() ? u"no file" : richtext::ReadRtf(file->second).text;
  }
  std::u16string Chosen() const { return list.Item(list.selected); }

  fake::FakeMacroWindow& window = fake.macros;
  fake::FakeListBox& list = fake.macros.lstMacroNames;
  fake::FakeRichTextBox& text = fake.macros.rtbMacroText;
  fake::FakeRichTextBox& pane = fake.window.rtbCommands;
  MacroStore store{state, fake.platform, errors, settings};
  MacroStyle style{state, fake.platform, errors};
  MacroEditor editor{state, fake.platform, errors, store, style};
};

}  // namespace verlume
