// The widget behind the rich-text box: it turns what the user does into the box's events and keeps
// everything that the user puts in within the box's rules.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>

#include "platform/rich_text_box.h"
#include "platform_qt/text/rich_text.h"

namespace verlume::qt {

class RichTextWidget : public QPlainTextEdit {
 public:
  RichTextWidget(QWidget* parent, Lines lines);

  // Whose events are raised; none when null.
  void SetEvents(const RichTextBox* events) { events_ = events; }
  void SetCharset(int charset) { charset_ = charset; }
  int Charset() const { return charset_; }
  Lines lines() const { return lines_; }
  const Seams& seams() const { return seams_; }

  // Makes its cursor like this one. Its own moves with what is inserted, and setting it costs half
  // a line's time: it is left alone where it is like that already.
  void FollowTo(const QTextCursor& cursor);

  // Whether the end of the text can be seen, and scrolling so that it can.
  bool ShowsEnd() const { return ShowsEndWithin(viewport()->size()); }
  void ShowEnd();

  // While one of these lives the program changes the box: no onSelChange comes of itself.
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
  bool viewportEvent(QEvent* event) override;
  bool canInsertFromMimeData(const QMimeData* source) const override;
  QMimeData* createMimeDataFromSelection() const override;
  void insertFromMimeData(const QMimeData* source) override;

 private:
  // While one of these lives the user changes the box; what came of it is told once, at its end.
  // The widget may be gone by then: a key can end the program.
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
  // Offers a key to the handlers; true when one of them swallowed it or the widget is gone.
  bool Swallowed(int keyCode, int shift, int charCode);
  void PerformKey(QKeyEvent* event);
  void PressAcrossSeams(QKeyEvent* event);
  void TypeText(const QString& text);
  void NoteSelChange();
  void NoteChange();
  void SettleSelChange();
  void KeepInsertionFormat();

  const RichTextBox* events_ = nullptr;
  const Lines lines_;
  const Seams seams_;
  int charset_ = richtext::kGreekCharset;
  int programDepth_ = 0;
  int userDepth_ = 0;
  bool selChanged_ = false;
  bool changed_ = false;
  QTextCharFormat lastFormat_;  // of the insertion point, when its box last came to rest
};

}  // namespace verlume::qt
