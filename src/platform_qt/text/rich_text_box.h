// The rich-text box on QPlainTextEdit, which lays out only what it shows: a dialogue of 100,000
// lines costs nothing to append to or to resize. Outside text never meets Qt's HTML.
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

namespace verlume::qt {

class RichTextWidget;
class TextLoading;
class TextUpdate;
class TextWriting;

// Undo is there for the user of a single-line box that is not locked. Ground and letters are the
// classic white and black whatever the desktop's theme.
class QtRichTextBox : public QtControl<RichTextBox, QPlainTextEdit> {
 public:
  using Lines = qt::Lines;

  // `files` is read and written by LoadFile and SaveFile; it outlives the box.
  QtRichTextBox(QWidget* parent, FileSystem& files, Lines lines);
  ~QtRichTextBox() override;

  // Whether texts that were written are still coming in: from onTakingIn to onTakenIn.
  bool IsTakingIn() const;

  std::u16string Text() const override;
  std::size_t TextLength() const override;
  void SetText(std::u16string_view text) override;
  std::u16string Rtf() const override;
  void SetRtf(std::u16string_view rtf) override;
  std::size_t SelStart() const override;
  std::size_t SelLength() const override;
  void Select(std::size_t start, std::size_t length) override;
  SelectionFormat SelFormat() const override;
  void SetSelFormat(const SelectionFormat& format) override;
  void SetSelText(std::u16string_view text) override;
  void SetSelDocument(richtext::Document document) override;
  void BeginUpdate() override;
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

 private:
  QtRichTextBox(RichTextWidget* widget, FileSystem& files, Lines lines);

  // The cursor of the update, or of the widget.
  QTextCursor Cursor() const;
  void SetCursor(const QTextCursor& cursor);
  bool FitsIntoThisTurn(const richtext::Document& document);
  void WriteInTurns(richtext::Document document);
  void NoteWritten();
  richtext::Document Content() const;
  // What is put in afterwards is in this format, until another is set.
  void Clear(const QTextCharFormat& format);
  void ReplaceAll(FormattedText text);
  // With all of a file that is still coming in.
  QTextCursor Everything() const;
  void WaitForTheRest() const;
  // A position in the text, and in the document: they differ in a long single line.
  std::size_t TextPosition(int position) const;
  int DocumentPosition(std::size_t position) const;
  void RaiseSelChange();
  void RaiseChange();

  QPointer<RichTextWidget> view_;
  FileSystem& files_;
  Lines lines_;
  std::u16string tag_;
  std::unique_ptr<TextLoading> loading_;                // the last one, done or not
  std::vector<std::unique_ptr<TextWriting>> writings_;  // done or not, in no order
  std::unique_ptr<TextUpdate> update_;                  // while one is on
  std::size_t inThisTurn_ = 0;  // the length of what was written since events were handled last
  QTimer turnEnd_;
};

}  // namespace verlume::qt
