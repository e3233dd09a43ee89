// Controls in memory: they store what they are given, and a test raises their events by calling the
// handlers.
#pragma once

#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/control.h"
#include "platform/lock_label.h"
#include "platform/run_time_failure.h"
#include "platform/table_box.h"
#include "platform/window.h"

namespace verlume::fake {

// The keyboard focus: only one control on the screen has it.
class Focus {
 public:
  static void GiveTo(const void* control) { owner_ = control; }
  static void Leave(const void* control) {
    if (IsOn(control)) owner_ = nullptr;
  }
  static bool IsOn(const void* control) { return owner_ == control; }

 private:
  inline static const void* owner_ = nullptr;
};

// What all controls share.
template <class Role>
class FakeControl : public Role {
 public:
  ~FakeControl() override { Focus::Leave(this); }

  void SetToolTip(std::u16string_view text) override { toolTip = text; }
  std::u16string ToolTip() const override { return toolTip; }
  void SetAccessibleName(std::u16string_view name) override { accessibleName = name; }
  void SetFocus() override {
    if (focusFails) throw RunTimeFailure(*focusFails);
    ++timesFocused;
    Focus::GiveTo(this);
  }
  bool HasFocus() const { return Focus::IsOn(this); }
  void ShowContextHelp() override { ++timesHelpShown; }

  std::u16string toolTip;
  std::u16string accessibleName;
  int timesFocused = 0;
  std::optional<FailureNumber> focusFails;
  int timesHelpShown = 0;
};

class FakeLabel : public FakeControl<Label> {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }
  void SetTag(std::u16string_view text) override { tag = text; }
  std::u16string Tag() const override { return tag; }
  void SetBackColor(Color color) override {
    backColor = color;
    tagWhenPainted = tag;
  }
  void SetHeight(int value) override { height = value; }

  std::u16string caption = u"as designed";
  std::u16string tag;
  std::u16string tagWhenPainted;
  Color backColor = 0;
  int height = 0;
};

class FakeLockLabel : public FakeControl<LockLabel> {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }
  void SetPicture(LockPicture value) override { picture = value; }
  LockPicture Picture() const override { return picture; }

  std::u16string caption;
  LockPicture picture = LockPicture::Becoming;
};

class FakePicture : public FakeControl<Picture> {
 public:
  int Height() const override { return 48; }
};

class FakeLamp : public Lamp {
 public:
  void SetFillColor(Color color) override { fill = color; }
  void SetBorderColor(Color color) override { border = color; }
  Color FillColor() const override { return fill; }
  Color BorderColor() const override { return border; }

  Color fill = 0;
  Color border = 0;
};

class FakeCheckBox : public FakeControl<CheckBox> {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  void SetValue(int newValue) override {
    if (newValue == value) return;
    value = newValue;
    if (onClick) onClick();
  }
  int Value() const override { return value; }

  std::u16string caption;
  int value = 0;
};

class FakeButton : public FakeControl<Button> {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }
  void SetEnabled(bool value) override { enabled = value; }
  bool Enabled() const override { return enabled; }

  std::u16string caption;
  bool enabled = true;
};

class FakeTextField : public FakeControl<TextField> {
 public:
  void SetText(std::u16string_view value) override { text = value; }
  std::u16string Text() const override { return text; }
  void SelectAll() override { ++timesSelected; }

  // As a user would.
  void Type(std::u16string_view value) {
    text = value;
    if (onChange) onChange();
  }

  std::u16string text;
  int timesSelected = 0;
};

class FakeListBox : public FakeControl<ListBox> {
 public:
  void Clear() override {
    items.clear();
    selected = -1;
  }
  void Append(std::u16string_view text) override { items.emplace_back(text); }
  void Remove(int index) override {
    if (!Has(index)) return;
    items.erase(items.begin() + index);
    if (index == selected) selected = -1;
    if (index < selected) --selected;
  }
  int Count() const override { return static_cast<int>(items.size()); }
  std::u16string Item(int index) const override {
    return Has(index) ? items[static_cast<std::size_t>(index)] : std::u16string();
  }
  void Select(int index) override { selected = Has(index) ? index : -1; }
  int SelectedIndex() const override { return selected; }
  void ScrollToTop(int index) override { top = index; }
  void SetTag(std::u16string_view text) override { tag = text; }
  std::u16string Tag() const override { return tag; }

  // As a user would.
  void Choose(int index) {
    selected = index;
    if (onClick) onClick();
  }
  void PressDown() {
    if (selected + 1 < Count()) Choose(selected + 1);
  }

  std::vector<std::u16string> items;
  int selected = -1;
  int top = -1;
  std::u16string tag;

 private:
  bool Has(int index) const { return index >= 0 && index < Count(); }
};

class FakeTableBox : public FakeControl<TableBox> {
 public:
  void SetHeading(int column, std::u16string_view text) override {
    const auto index = static_cast<std::size_t>(column);
    if (index >= headings.size()) headings.resize(index + 1);
    headings[index] = text;
  }
  void SetRows(const std::vector<Row>& values) override {
    rows = values;
    selected = -1;
  }
  void SetRow(int index, const Row& row) override {
    if (Has(index)) rows[static_cast<std::size_t>(index)] = row;
  }
  int Count() const override { return static_cast<int>(rows.size()); }
  void Select(int index) override { selected = Has(index) ? index : -1; }
  int SelectedIndex() const override { return selected; }

  // As a user would.
  void Choose(int index) {
    selected = index;
    if (onClick) onClick();
  }

  Row headings;
  std::vector<Row> rows;
  int selected = -1;

 private:
  bool Has(int index) const { return index >= 0 && index < Count(); }
};

class FakeProgressBar : public FakeControl<ProgressBar> {
 public:
  void SetValue(int percent) override { value = percent; }
  int Value() const override { return value; }
  void SetVisible(bool isVisible) override { visible = isVisible; }
  bool Visible() const override { return visible; }

  int value = 0;
  bool visible = false;
};

class FakePanel : public Panel {
 public:
  void SetVisible(bool value) override { visible = value; }
  bool Visible() const override { return visible; }
  bool HasFocus() const override { return hasFocus; }

  bool visible = false;
  bool hasFocus = false;
};

class FakeMenuEntry : public MenuEntry {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }
  void SetToolTip(std::u16string_view text) override { toolTip = text; }
  std::u16string ToolTip() const override { return toolTip; }
  void SetChecked(bool value) override { checked = value; }
  bool Checked() const override { return checked; }
  void SetEnabled(bool value) override { enabled = value; }
  bool Enabled() const override { return enabled; }

  std::u16string caption;
  std::u16string toolTip;
  bool checked = false;
  bool enabled = true;
};

class FakeMenu : public Menu {
 public:
  void SetCaption(std::u16string_view text) override { caption = text; }
  std::u16string Caption() const override { return caption; }

  std::u16string caption;
};

class FakeTimer : public Timer {
 public:
  void Start() override { running = true; }
  void Tick() {
    if (running && onTimer) onTimer();
  }

  bool running = false;
};

class FakeLayoutControl : public LayoutControl {};

class FakeWindow : public Window {
 public:
  void SetTitle(std::u16string_view text) override {
    if (titleFails) throw RunTimeFailure(*titleFails);
    title = text;
  }
  std::u16string Title() const override { return title; }
  void Show() override { shown = true; }
  // Runs `whileModal` as the user, then uses the close box if the window is still open; the test
  // fails if the close is refused.
  void ShowModal() override {
    ++timesShownModal;
    unloaded = false;
    if (whileModal) whileModal();
    Close(UnloadMode::User);
    if (!unloaded) throw std::logic_error("the modal window stays open");
  }
  void Unload() override { Close(UnloadMode::Code); }
  bool IsActive() const override { return active; }
  void FlagForAttention() override { ++timesFlagged; }
  bool CanBeTopMost() const override { return canBeTopMost; }
  bool SetTopMost(bool value) override {
    topMost = value && canBeTopMost;
    ++timesPlaced;
    return topMost;
  }

  // What the close box does.
  void Close(UnloadMode mode) {
    if (unloaded) return;
    bool cancel = false;
    if (onQueryUnload) onQueryUnload(cancel, mode);
    if (cancel || unloaded) return;
    unloaded = true;
    if (onUnload) onUnload();
  }

  bool active = true;
  std::function<void()> whileModal;
  std::optional<FailureNumber> titleFails;
  std::u16string title;
  bool shown = false;
  int timesShownModal = 0;
  bool unloaded = false;
  bool canBeTopMost = true;
  bool topMost = false;
  int timesFlagged = 0;
  int timesPlaced = 0;
};

}  // namespace verlume::fake
