// The widgets of the main window, created from its design. Each is found by its name.
#pragma once

#include <QMainWindow>
#include <QMenu>

#include "platform/file_system.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/lock_widget.h"
#include "platform_qt/controls/proportional_layout.h"
#include "platform_qt/windows/completion_list.h"
#include "platform_qt/windows/main_window_design.h"
#include "platform_qt/windows/new_lines_button.h"
#include "platform_qt/windows/pane_hint.h"

namespace verlume::qt {

class MainForm : public QMainWindow {
 public:
  MainForm();

  // The widget of the design with this name, which must exist.
  template <class Widget>
  Widget* Find(const char* name) {
    return findChild<Widget*>(QLatin1String(name));
  }

  // Puts a pane at its place in the design and in the Tab order.
  void PlacePane(QWidget* pane, const char* name);
  // The rows below the status line. Without them the controls have other places.
  bool ShowsStatusPanel() const;
  void ShowStatusPanel(bool shown);
  // The lock at the end of the status line, for which the rest makes room.
  void ShowLock(bool shown);
  // Puts the find bar at the bottom of a pane's place.
  void PlaceFindBar(QWidget* pane) { layout_->PlaceFoot(pane, findBar_); }
  // Puts the button that tells of new lines over the lower edge of a pane.
  void PlaceNewLinesButton(QPlainTextEdit* pane) { newLines_->PlaceOver(pane); }
  // Puts the list of completions and the hint beside a pane, over the other controls.
  void PlaceCompletionList(QWidget* pane) {
    completions_->PlaceBeside(pane);
    hint_->FloatBeside(pane);
  }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildMenus();
  QMenu* NewMenu(const char* name);
  void BuildControls();
  void PlaceControls();
  QRect PlaceOf(const ControlDesign& design) const;
  QWidget* Build(const ControlDesign& design);
  QWidget* BuildLabel(const ControlDesign& design);
  void PlaceProgressBar();
  void RelateCaptions();
  void OpenMenusWithF10();

  QWidget* area_;
  ProportionalLayout* layout_;
  QWidget* findBar_;
  CompletionFrame* completions_;
  PaneHint* hint_;
  NewLinesFrame* newLines_;
  bool showsStatusPanel_ = true;
  bool showsLock_ = false;
};

// The status panel, which is hidden and shown as a whole.
class QtStatusPanel : public Panel {
 public:
  explicit QtStatusPanel(MainForm& form) : form_(form) {}
  void SetVisible(bool visible) override { form_.ShowStatusPanel(visible); }
  bool Visible() const override { return form_.ShowsStatusPanel(); }
  bool HasFocus() const override { return false; }

 private:
  MainForm& form_;
};

class QtLockLabel : public QtControl<LockLabel, LockWidget> {
 public:
  explicit QtLockLabel(MainForm& form);
  void SetCaption(std::u16string_view sentence) override;
  std::u16string Caption() const override { return FromQt(widget_->text()); }
  // What is said below the sentence in the tool tip.
  void SetToolTip(std::u16string_view text) override;
  void SetPicture(LockPicture picture) override { widget_->SetPicture(picture); }
  LockPicture Picture() const override { return widget_->Picture(); }

 private:
  MainForm& form_;
};

}  // namespace verlume::qt
