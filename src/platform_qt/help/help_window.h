// frmHelp: the detailed help in a window of its own. Nothing is remembered: every window opens at
// the start.
#pragma once

#include <QToolButton>
#include <QWidget>
#include <memory>
#include <vector>

#include "platform/control.h"
#include "platform_qt/help/help_book.h"
#include "platform_qt/help/help_history.h"
#include "platform_qt/help/help_sidebar.h"
#include "platform_qt/help/help_topic.h"

namespace verlume::qt {

class HelpForm : public QWidget {
 public:
  // `book` must outlive the window. The window deletes itself when it is closed.
  explicit HelpForm(const HelpBook& book);

  // Call this when another book, perhaps in another language, has replaced the content of `book`:
  // shows the same topic of the new one.
  void BookChanged();

  // Goes to a chapter, topic or control of the book; does nothing if there is none with this id.
  void GoTo(const QString& id);

 private:
  void BuildButtons();
  void BuildLayout();
  void BindKeys();
  void SetTexts();
  template <class Widget>
  void ExplainOnRightClick(Widget* widget);

  void Turn(void (HelpHistory::*step)());
  void ShowVisit();
  void KeepScroll();

  const HelpBook& book_;
  HelpHistory history_;
  QToolButton* cmdBack_;
  QToolButton* cmdForward_;
  HelpSidebar* sidebar_;
  HelpTopicView* txtTopic_;
  std::vector<std::unique_ptr<Control>> controls_;
};

}  // namespace verlume::qt
