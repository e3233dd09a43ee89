// The address under the pointer: it is underlined, and Ctrl+click opens it. Only what is under the
// pointer is looked at, so that a long text costs nothing.
#pragma once

#include <QHelpEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QPlainTextEdit>
#include <QTextBlock>
#include <QTextCursor>
#include <functional>
#include <string>

namespace verlume::qt {

// Selects the address in which a position is; nothing if there is none.
QTextCursor LinkAround(const QTextDocument& document, int position);
// The selected address, as it can be opened.
std::u16string AddressIn(const QTextCursor& link);

class LinkPointer {
 public:
  explicit LinkPointer(QPlainTextEdit& pane) : pane_(pane) {}

  // Called with an address that the user wants opened.
  void SetOpener(std::function<void(const std::u16string& address)> open);
  void SetHint(const QString& hint) { hint_ = hint; }

  // Offers an event of the viewport; true if it must go no further.
  bool Handle(QEvent& event);
  // The text has moved under the pointer.
  void Forget();
  // Underlines what of the address is in a block, whose text begins at `origin`.
  void Draw(QPainter& painter, const QTextBlock& block, const QPointF& origin) const;

 private:
  void PointAt(const QTextCursor& link, Qt::KeyboardModifiers held);
  QTextCursor LinkUnder(const QPoint& point) const;
  bool Press(const QMouseEvent& event);
  bool Release(const QMouseEvent& event);
  bool ShowHint(const QHelpEvent& event) const;

  QPlainTextEdit& pane_;
  std::function<void(const std::u16string&)> open_;
  QString hint_;
  QTextCursor under_;    // the address under the pointer
  QTextCursor pressed_;  // on which the button went down, with Ctrl
};

}  // namespace verlume::qt
