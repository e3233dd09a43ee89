// A rich-text box in memory: every character with its format.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/rich_text_box.h"
#include "platform_fake/fake_controls.h"
#include "platform_fake/fake_file_system.h"

namespace verlume::fake {

class FakeRichTextBox : public FakeControl<RichTextBox> {
 public:
  enum class Lines { Many, Single };

  explicit FakeRichTextBox(FakeFileSystem& files, Lines lines = Lines::Many)
      : files_(files), lines_(lines) {}

  // Raises onGotFocus only if the box does not have the focus yet.
  void SetFocus() override {
    const bool hadFocus = HasFocus();
    FakeControl::SetFocus();
    if (!hadFocus && onGotFocus) onGotFocus();
  }
  std::u16string Text() const override;
  std::size_t TextLength() const override { return cells_.size(); }
  // In one piece, unless `readsLater`: then the test calls `reader`.
  void ReadInTurns(TextReader read) override;
  void SetText(std::u16string_view text) override;
  std::u16string Rtf() const override;
  void SetRtf(std::u16string_view rtf) override;
  std::size_t SelStart() const override { return selStart_; }
  std::size_t SelLength() const override { return selLength_; }
  void Select(std::size_t start, std::size_t length) override;
  std::u16string SelText() const override { return Text().substr(selStart_, selLength_); }
  void SelectAll() override { Select(0, cells_.size()); }
  void Copy(TextFileFormat format) override {
    copied = SelText();
    copiedAs = format;
  }
  std::u16string LinkAt(std::size_t position) const override;
  void SetLinkHint(std::u16string_view hint) override { linkHint = hint; }
  bool IsInFirstLine() const override { return selStart_ + selLength_ < lineWidth; }
  bool IsInLastLine() const override {
    return (selStart_ + selLength_) / lineWidth == cells_.size() / lineWidth;
  }
  SelectionFormat SelFormat() const override;
  void SetSelFormat(const SelectionFormat& format) override;
  void SetSelText(std::u16string_view text) override;
  void SetSelDocument(richtext::Document document) override;
  void SetSelAuthor(Author author) override;
  Author SelAuthor() const override { return authors[ParagraphOf(selStart_)]; }
  void SetAuthorWords(Author author, std::u16string_view words) override {
    authorWords[author] = words;
  }
  void AddRule(SignWords words) override { rules.push_back(std::move(words)); }
  void RefreshSigns() override { ++timesSignsRefreshed; }
  bool MoreIsComing() const override { return moreIsComing; }
  void DropInsertions() override { ++timesDropped; }
  void SetMostParagraphs(std::size_t paragraphs) override { mostParagraphs = paragraphs; }
  void ChangeAuthor(Author author, Author other, std::size_t skipped, std::size_t count) override;
  // As the test says.
  bool ShowsEnd() const override { return showsEnd; }
  bool IsPressed() const override { return isPressed; }
  void MarkUnread(std::optional<std::size_t> position, SignWords words) override {
    unreadFrom = position;
    unreadWords = std::move(words);
  }
  void BeginUpdate(Reader reader) override;
  void EndUpdate() override;
  void SetFontCharset(int charset) override { charset_ = charset; }
  void LoadFile(std::u16string_view path, TextFileFormat format) override;
  void SaveFile(std::u16string_view path, TextFileFormat format) const override;
  void SetLocked(bool value) override { locked = value; }
  bool Locked() const override { return locked; }
  void SetTag(std::u16string_view text) override { tag = text; }
  std::u16string Tag() const override { return tag; }
  void SetBackColor(Color color) override { backColor = color; }
  Color BackColor() const override { return backColor; }
  void SetPlaceholder(std::u16string_view text) override { placeholder = text; }
  void SetZoom(int percent) override { zoom = percent; }
  int Zoom() const override { return zoom; }

  // Types like the user: each character goes through onKeyDown and onKeyPress and then, unless
  // swallowed, into the box. Type(u"\r") is Enter.
  void Type(std::u16string_view keys);
  // Presses a key with a key code; false if the handler swallowed it.
  bool PressKey(int keyCode, int shift = 0);

  std::vector<Author> authors{Author::None};  // of each paragraph
  std::map<Author, std::u16string> authorWords;
  std::u16string copied;
  TextFileFormat copiedAs = TextFileFormat::PlainText;
  std::u16string linkHint;
  bool showsEnd = true;  // the user's scrolling; an update that the reader follows makes it true
  bool isPressed = false;
  std::optional<std::size_t> unreadFrom;
  SignWords unreadWords;
  std::vector<SignWords> rules;
  int timesSignsRefreshed = 0;
  bool readsLater = false;
  TextReader reader;
  bool moreIsComing = false;
  int timesDropped = 0;
  std::size_t mostParagraphs = 0;
  // How many characters it shows in one line; for texts of one paragraph.
  std::size_t lineWidth = 1 << 20;
  bool locked = false;
  std::u16string tag;
  Color backColor = 0xFFFFFF;
  std::u16string placeholder;
  int zoom = kUsualZoom;
  bool formatIsMixed = false;                    // SelFormat reads as undetermined
  std::optional<FailureNumber> formatFails;      // SetSelFormat fails with this
  std::optional<FailureNumber> formatReadFails;  // SelFormat does
  std::optional<FailureNumber> rtfFails;         // Rtf and SetRtf do

 private:
  // Cheap to copy: every character has one.
  struct Look {
    std::uint32_t font = 0;  // index into fontNames_
    double fontSize = 10;
    Color color = kAutomaticColor;
    bool bold = false;
    bool italic = false;
    bool underline = false;
    bool strikethrough = false;
    bool operator==(const Look&) const = default;
  };
  struct Cell {
    char16_t character;
    Look look;
  };

  void Insert(const std::vector<Cell>& cells);
  static std::size_t LineBreaks(const std::vector<Cell>& cells, std::size_t start,
                                std::size_t length);
  // The number of the paragraph in which a position is, counted from 0.
  std::size_t ParagraphOf(std::size_t position) const;
  std::vector<Cell> CellsOf(std::u16string_view text) const;
  std::vector<Cell> CellsOf(const richtext::Document& document);
  std::uint32_t FontOf(std::u16string_view name);
  void TakeInsertionLook();
  void ReplaceAll(std::vector<Cell> cells, Author author = Author::None);
  void RaiseSelChange();
  void RaiseChange();

  FakeFileSystem& files_;
  Lines lines_;
  std::vector<std::u16string> fontNames_ = {u"Arial"};
  std::vector<Cell> cells_;
  std::size_t selStart_ = 0;
  std::size_t selLength_ = 0;
  Look insertionLook_;
  int charset_ = richtext::kGreekCharset;
  Reader reader_ = Reader::Follows;
  std::size_t keptStart_ = 0;  // while the reader stays
  std::size_t keptLength_ = 0;
  int updateDepth_ = 0;
  // The events that EndUpdate will raise.
  bool selChanged_ = false;
  bool changed_ = false;
};

}  // namespace verlume::fake
