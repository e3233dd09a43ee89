// The widgets of the main window, made from its design. Each is found by its name.
#pragma once

#include <QMainWindow>
#include <QMenu>

#include "platform/file_system.h"
#include "platform_qt/controls/controls.h"
#include "platform_qt/controls/proportional_layout.h"
#include "platform_qt/windows/completion_list.h"
#include "platform_qt/windows/main_window_design.h"

namespace verlume::qt {

class MainForm : public QMainWindow {
 public:
  MainForm();

  // The widget of the design that bears the name; there is one.
  template <class Widget>
  Widget* Find(const char* name) {
    return findChild<Widget*>(QLatin1String(name));
  }

  // Puts a pane where the design wants it, in the Tab order too.
  void PlacePane(QWidget* pane, const char* name);
  // Puts the find bar below a pane that has its place.
  void PlaceFindBar(QWidget* pane) { layout_->PlaceFoot(pane, findBar_); }
  // The same for the list of completions, which lies over the window there.
  void PlaceCompletionList(QWidget* pane) { completions_->StandBelow(pane); }

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
};

}  // namespace verlume::qt
