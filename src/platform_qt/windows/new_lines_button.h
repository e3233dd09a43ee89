// The button at the lower edge of a pane that tells of lines below: it lies over the pane's text,
// as wide as its caption, and a click leaves the focus where it is.
#pragma once

#include <QFrame>
#include <QPlainTextEdit>
#include <QPointer>
#include <QPushButton>

namespace verlume::qt {

class NewLinesFrame : public QFrame {
 public:
  // Starts hidden. It and its button have the names of NewLinesButton's members.
  explicit NewLinesFrame(QWidget* area);

  // When shown, it is at the lower edge of the pane's text. Both have the same parent.
  void PlaceOver(QPlainTextEdit* pane);

 protected:
  bool event(QEvent* event) override;
  void showEvent(QShowEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  void Place();

  QPushButton* button_;
  QPointer<QWidget> pane_;
  QPointer<QWidget> text_;  // the part of it that shows text
};

}  // namespace verlume::qt
