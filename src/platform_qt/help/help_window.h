// frmHelp: the detailed help in a window of its own. It remembers nothing: the next one begins at
// the beginning.
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
  // `book` outlives the window. The window deletes itself when it is closed.
  explicit HelpForm(const HelpBook& book);

  // Another book has been put in the place of the one before, perhaps in another language: the
  // window goes on at the same topic of it.
  void BookChanged();

  // Goes to a chapter, topic or control of the book; stays where it is when there is none.
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
