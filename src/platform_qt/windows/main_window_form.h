// The widgets of the main window, created from its design. Each is found by its name.
#pragma once

#include <QMainWindow>
#include <QMenu>

#include "platform/file_system.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/proportional_layout.h"
#include "platform_qt/windows/completion_list.h"
#include "platform_qt/windows/main_window_design.h"
#include "platform_qt/windows/new_lines_button.h"

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
  // Puts the find bar at the bottom of a pane's place.
  void PlaceFindBar(QWidget* pane) { layout_->PlaceFoot(pane, findBar_); }
  // Puts the button that tells of new lines over the lower edge of a pane.
  void PlaceNewLinesButton(QPlainTextEdit* pane) { newLines_->PlaceOver(pane); }
  // Puts the list of completions below a pane, over the other controls.
  void PlaceCompletionList(QWidget* pane) { completions_->PlaceBelow(pane); }

 protected:
  void keyPressEvent(QKeyEvent* event) override;

 private:
  void BuildMenus();
  void BuildControls();
  QWidget* Build(const ControlDesign& design);
  QWidget* BuildLabel(const ControlDesign& design);
  void PlaceProgressBar();
  void RelateCaptions();

  QWidget* area_;
  ProportionalLayout* layout_;
  QWidget* findBar_;
  CompletionFrame* completions_;
  NewLinesFrame* newLines_;
};

}  // namespace verlume::qt
