// The widget of the rich-text box: it turns what the user does into the box's events, and applies
// the box's rules to everything that the user types or pastes.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <QTextBlock>
#include <functional>

#include "platform/rich_text_box.h"
#include "platform_qt/text/link_pointer.h"
#include "platform_qt/text/missing_scripts.h"
#include "platform_qt/text/rich_text.h"
#include "platform_qt/text/zoom_device.h"

namespace verlume::qt {

class RichTextWidget : public QPlainTextEdit {
 public:
  RichTextWidget(QWidget* parent, Lines lines);

  // For the margin beside the text.
  using QPlainTextEdit::setViewportMargins;
  // Calls visit(block, place) for each block that is in view between two heights of the viewport;
  // `place` is the block's rectangle there, as wide as the viewport.
  void VisitBlocks(qreal from, qreal to,
                   const std::function<void(const QTextBlock&, const QRectF& place)>& visit) const;

  // Whether the left mouse button is held down on the text.
  bool IsPressed() const { return isPressed_; }

  // A thin line above this block; none above one that is not valid.
  void MarkUnread(const QTextBlock& block);
  bool IsUnreadFrom(const QTextBlock& block) const;

  // Raises onEndShown if the end is in view.
  void NoteScrolled();

  LinkPointer& links() { return links_; }

  // Below the last paragraph. What was in view stays in view, the end too.
  void AddRule(RichTextBox::SignWords words);

  // The box whose events are raised; with null none are.
  void SetEvents(const RichTextBox* events) { events_ = events; }
  void SetCharset(int charset) { charset_ = charset; }
  int Charset() const { return charset_; }
  Lines lines() const { return lines_; }
  const Seams& seams() const { return seams_; }

  // Sets its cursor to this one, unless they are equal already: its own cursor moves with what is
  // inserted, and setting it takes half as long as writing a line.
  void MoveCursorTo(const QTextCursor& cursor);

  // Whether the end of the text is in view, and scrolling it into view.
  bool ShowsEnd() const { return ShowsEndWithin(viewport()->size()); }
  void ShowEnd();

  // Until a colour is set, the pane has the colours of the desktop's theme.
  void SetBackColor(Color color);
  // In per cent. If the end of the text was in view, it still is.
  void SetZoom(int percent);
  int Zoom() const { return zoom_.Zoom(); }

  // While an object of this class exists the program changes the box, which then raises neither
  // onSelChange nor onChange by itself.
  class ProgramChange {
   public:
    explicit ProgramChange(RichTextWidget& widget) : widget_(widget) { ++widget_.programDepth_; }
    ~ProgramChange();
    ProgramChange(const ProgramChange&) = delete;
    ProgramChange& operator=(const ProgramChange&) = delete;

   private:
    RichTextWidget& widget_;
  };

 protected:
  bool event(QEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void inputMethodEvent(QInputMethodEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void paintEvent(QPaintEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  // While an object of this class exists the user changes the box; the events are raised once, at
  // its end. The widget may have been deleted by then: a key can end the program.
  class UserChange {
   public:
    explicit UserChange(RichTextWidget& widget) : widget_(&widget) { ++widget.userDepth_; }
    ~UserChange();
    UserChange(const UserChange&) = delete;
    UserChange& operator=(const UserChange&) = delete;

   private:
    QPointer<RichTextWidget> widget_;
  };

  bool ShowsEndWithin(const QSize& size) const;
  void NotePress(const QEvent& event);
  void DrawUnreadLine(QPainter& painter, const QRectF& place) const;
  // Offers a key to the handlers; true when one of them swallowed it or deleted the widget.
  bool Swallowed(int keyCode, int shift, int charCode);
  void PerformKey(QKeyEvent* event);
  void PressAcrossSeams(QKeyEvent* event);
  void TypeText(const QString& text);
  void NoteSelChange();
  void NoteChange();
  void RaisePendingEvents();
  void KeepInsertionFormat();

  const RichTextBox* events_ = nullptr;
  ZoomDevice zoom_{*this};
  int wheel_ = 0;  // how far it was turned with Ctrl, in eighths of a degree
  const Lines lines_;
  const Seams seams_;
  const MissingScripts missingScripts_;
  int charset_ = richtext::kGreekCharset;
  int programDepth_ = 0;
  int userDepth_ = 0;
  bool selChanged_ = false;
  bool changed_ = false;
  bool isPressed_ = false;
  LinkPointer links_{*this};
  QTextCursor unread_;          // null without a mark
  QTextCharFormat lastFormat_;  // of the insertion point, after the last change
};

}  // namespace verlume::qt
