// A line of text that floats beside a pane while there is something to say, and is then the pane's
// description for assistive tools. It takes neither the focus nor room from other controls.
#pragma once

#include <QPointer>

#include "platform_qt/controls/controls.h"

namespace verlume::qt {

class PaneHint : public ElidedLabel {
 public:
  // Starts hidden.
  explicit PaneHint(QWidget* area);

  // Floats below the pane, which must have the same parent, or above it where no room is below.
  void FloatBeside(QWidget* pane);
  // Shows the text; "" hides the hint.
  void Say(const QString& text);

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QPointer<QWidget> pane_;
  QString description_;  // of the pane, while there is no hint
};

class QtPaneHint : public QtLabel {
 public:
  explicit QtPaneHint(PaneHint* hint) : QtLabel(hint), hint_(hint) {}
  void SetCaption(std::u16string_view text) override { hint_->Say(ToQt(text)); }

 private:
  PaneHint* hint_;
};

}  // namespace verlume::qt
