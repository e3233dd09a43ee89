// The rich-text box, based on QPlainTextEdit, which lays out only what it shows: appending to a
// dialogue of 100,000 lines, or resizing it, takes no longer than with a short one. Text from
// outside is never interpreted as HTML.
#pragma once

#include <QPlainTextEdit>
#include <QPointer>
#include <QTimer>
#include <functional>
#include <memory>
#include <vector>

#include "platform/file_system.h"
#include "platform/rich_text_box.h"
#include "platform_qt/controls/control.h"
#include "platform_qt/text/rich_text.h"
#include "platform_qt/text/text_insertion.h"
#include "platform_qt/text/text_limit.h"

namespace verlume::qt {

class AuthorMargin;
class RichTextWidget;
class TextLoading;
class TextReading;
class TextUpdate;
class TextWriting;

// The user can undo only in a single-line box that is not locked.
class QtRichTextBox : public QtControl<RichTextBox, QPlainTextEdit> {
 public:
  using Lines = qt::Lines;

  // `files` is read and written by LoadFile and SaveFile; it outlives the box.
  QtRichTextBox(QWidget* parent, FileSystem& files, Lines lines);
  ~QtRichTextBox() override;

  // Whether documents are still being inserted: from onInsertionStarted to onInsertionFinished.
  bool IsInserting() const;

  void SetToolTip(std::u16string_view text) override;
  std::u16string ToolTip() const override { return toolTip_; }
  std::u16string Text() const override;
  std::size_t TextLength() const override;
  void ReadInTurns(TextReader read) override;
  void SetText(std::u16string_view text) override;
  std::u16string Rtf() const override;
  void SetRtf(std::u16string_view rtf) override;
  std::size_t SelStart() const override;
  std::size_t SelLength() const override;
  void Select(std::size_t start, std::size_t length) override;
  std::u16string SelText() const override;
  void SelectAll() override;
  void Copy(TextFileFormat format) override;
  std::u16string LinkAt(std::size_t position) const override;
  void SetLinkHint(std::u16string_view hint) override;
  bool IsInFirstLine() const override;
  bool IsInLastLine() const override;
  SelectionFormat SelFormat() const override;
  void SetSelFormat(const SelectionFormat& format) override;
  void SetSelText(std::u16string_view text) override;
  void SetSelDocument(richtext::Document document) override;
  void SetSelAuthor(Author author) override;
  Author SelAuthor() const override;
  void ChangeAuthor(Author author, Author other, std::size_t skipped, std::size_t count) override;
  void SetAuthorWords(Author author, std::u16string_view words) override;
  bool ShowsEnd() const override;
  bool IsPressed() const override;
  void MarkUnread(std::optional<std::size_t> position, SignWords words) override;
  void AddRule(SignWords words) override;
  void RefreshSigns() override;
  bool MoreIsComing() const override;
  void DropInsertions() override;
  void SetMostParagraphs(std::size_t paragraphs) override;
  void BeginUpdate(Reader reader) override;
  void EndUpdate() override;
  void SetFontCharset(int charset) override;
  void LoadFile(std::u16string_view path, TextFileFormat format) override;
  void SaveFile(std::u16string_view path, TextFileFormat format) const override;
  void SetLocked(bool locked) override;
  bool Locked() const override;
  void SetTag(std::u16string_view text) override { tag_ = text; }
  std::u16string Tag() const override { return tag_; }
  void SetBackColor(Color color) override;
  Color BackColor() const override;
  void SetPlaceholder(std::u16string_view text) override;
  void SetZoom(int percent) override;
  int Zoom() const override;

 private:
  QtRichTextBox(RichTextWidget* widget, FileSystem& files, Lines lines);

  // The cursor of the current update, or without one that of the widget.
  QTextCursor Cursor() const;
  void SetCursor(const QTextCursor& cursor);
  bool FitsIntoThisTurn(const richtext::Document& document);
  void WriteInTurns(richtext::Document document);
  void RaiseIfFinished();
  richtext::Document Content() const;
  // Handles timer and socket events until the condition holds.
  void WaitUntil(const std::function<bool()>& condition) const;
  // Text that is inserted afterwards has this format, until another is set.
  void Clear(const QTextCharFormat& format);
  void ReplaceAll(FormattedText text);
  void WaitForInsertions() const;
  void NoteLoaded();
  // Convert between positions in the text and in the document: they differ behind a seam.
  std::size_t TextPosition(int position) const;
  int DocumentPosition(std::size_t position) const;
  void RaiseSelChange();
  void RaiseChange();

  QPointer<RichTextWidget> view_;
  FileSystem& files_;
  Lines lines_;
  std::u16string tag_;
  std::u16string toolTip_;
  AuthorMargin* margin_ = nullptr;  // belongs to the widget
  TextFormats formats_;             // of the documents that are written
  std::unique_ptr<TextLimit> limit_;
  std::unique_ptr<TextLimit::Hold> whileLoading_;
  std::unique_ptr<TextReading> reading_;                // the last one, even when it is done
  std::unique_ptr<TextLoading> loading_;                // the last one, even when it is done
  std::vector<std::unique_ptr<TextWriting>> writings_;  // in no order; some may be done
  std::unique_ptr<TextUpdate> update_;                  // null between updates
  std::size_t inThisTurn_ = 0;  // written since events were last handled, as kLengthAtOnce counts
  std::size_t looksInThisTurn_ = 0;
  QTimer turnEnd_;
  int finished_ = 0;  // how often onInsertionFinished was due
  QTimer memoryReturn_;
};

}  // namespace verlume::qt
