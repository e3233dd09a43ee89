// The rich-text box: the command pane, the dialogue pane, the macro text and the hidden rtbRemote
// each are one.
//
// Positions and lengths are UTF-16 units. A line break is one unit, u'\n', in Text and in every
// position; an inserted "\r\n" or "\r" becomes one. In a single-line box every inserted line break
// becomes a blank, also what the user types or pastes.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/control.h"
#include "richtext/document.h"

namespace verlume {

// The format of a selection. A member without a value means, when read, that the selection is
// mixed; when set, that the member stays as it is.
struct SelectionFormat {
  std::optional<std::u16string> fontName;
  std::optional<double> fontSize;  // points
  std::optional<Color> color;      // kAutomaticColor reads as 0, black
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::optional<bool> strikethrough;
};

// Who a paragraph is from. The three of the peer look the same and differ in their words.
// The user's own are told apart by whether they went out.
enum class Author {
  None,
  User,
  UserNotSent,
  UserNotDelivered,
  Peer,
  PeerReadingAlike,
  PeerWithBrackets,
  File
};

// What an update does to what the user sees. Follows: the selection is the one that the update made
// last, and is in view. Stays: selection and view are what they were; the update inserts nothing
// before the end of the selection.
enum class Reader { Follows, Stays };

// How large text is painted, in per cent.
inline constexpr int kLeastZoom = 50;
inline constexpr int kUsualZoom = 100;
inline constexpr int kGreatestZoom = 300;

enum class TextFileFormat { RichText, PlainText };

// Key codes of onKeyDown. All other keys have kOther.
namespace key_code {
inline constexpr int kOther = -1;
inline constexpr int kTab = 9;
inline constexpr int kEscape = 27;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kEnd = 35;
inline constexpr int kUp = 38;
inline constexpr int kRight = 39;
inline constexpr int kDown = 40;
}  // namespace key_code

class RichTextBox : public Control {
 public:
  virtual std::u16string Text() const = 0;
  virtual std::size_t TextLength() const = 0;  // constant time
  // Hands over the text that is there, in pieces and in order, each with its place in the text: the
  // first ones at once, the rest between events. The last one is marked; a text without characters
  // has one. When the text before the place that was reached changes, or is replaced, it begins
  // anew, with a piece at 0. Ends an earlier reading of this box.
  using TextReader =
      std::function<void(std::size_t position, std::u16string_view piece, bool isLast)>;
  virtual void ReadInTurns(TextReader read) = 0;
  // Replaces everything. The new text takes the format of the selection's first character, or of
  // the insertion point; a box that is emptied keeps that format for what is typed next. The
  // insertion point goes to the start.
  virtual void SetText(std::u16string_view text) = 0;

  // The whole text as RTF (richtext/rtf_writer.h). Setting reads RTF (richtext/rtf_reader.h), and
  // anything else as plain text; it puts the insertion point at the start.
  virtual std::u16string Rtf() const = 0;
  virtual void SetRtf(std::u16string_view rtf) = 0;

  virtual std::size_t SelStart() const = 0;
  virtual std::size_t SelLength() const = 0;
  // Positions beyond the end are limited to the end; a length of 0 is an insertion point. Scrolls
  // the selection into view.
  virtual void Select(std::size_t start, std::size_t length) = 0;
  // Whether the insertion point, or the end of the selection that the user moves, is in the first
  // or the last line as the box shows them: it shows a long paragraph in several lines.
  virtual bool IsInFirstLine() const = 0;
  virtual bool IsInLastLine() const = 0;

  virtual std::u16string SelText() const = 0;
  // Scrolls nothing.
  virtual void SelectAll() = 0;
  // Puts what is selected on the clipboard: with its formats and as plain text, or as that alone.
  virtual void Copy(TextFileFormat format) = 0;

  // The address in which a position is, as it can be opened (richtext/links.h); "" if there is
  // none.
  virtual std::u16string LinkAt(std::size_t position) const = 0;
  // What the tool tip says over an address.
  virtual void SetLinkHint(std::u16string_view hint) = 0;

  virtual SelectionFormat SelFormat() const = 0;
  // With an insertion point, it sets the format of what is inserted or typed there next.
  virtual void SetSelFormat(const SelectionFormat& format) = 0;
  // Replace the selection; the insertion point is behind it afterwards. Plain text takes the
  // selection's format, a document brings its own. Both work in a locked box too. In a locked box,
  // a direction of writing that the text in front leaves open does not reach into a document.
  virtual void SetSelText(std::u16string_view text) = 0;
  virtual void SetSelDocument(richtext::Document document) = 0;

  // Who the paragraphs are from that the selection touches; read, the first of them. Both halves of
  // a paragraph that is divided are from its author, also when a text that is put in divides it.
  // SetText and SetRtf make paragraphs from Author::None, LoadFile from Author::File. The author is
  // not part of the text: it is neither copied nor saved, and no text can hold it.
  virtual void SetSelAuthor(Author author) = 0;
  virtual Author SelAuthor() const = 0;
  // Of the paragraphs from `author`, the last `skipped` are left alone, and up to `count` before
  // them are from `other` from now on. Selection and view stay.
  virtual void ChangeAuthor(Author author, Author other, std::size_t skipped,
                            std::size_t count) = 0;
  // What is said of the paragraphs of an author other than None: in a tool tip, and to assistive
  // tools while the caret is in one. From the first call on the box shows a margin beside the text,
  // which marks each line with its author, and each line begins at the left.
  virtual void SetAuthorWords(Author author, std::u16string_view words) = 0;

  // What a sign in the text says. Called whenever that is shown or read out, so that it can follow
  // the language; plain text.
  using SignWords = std::function<std::u16string()>;

  // Whether the end of the text is in view.
  virtual bool ShowsEnd() const = 0;
  // Whether the user holds the mouse button down on the text, perhaps to select.
  virtual bool IsPressed() const = 0;
  // A thin line above the paragraph at this position, as a sign that nobody has seen what follows;
  // there is one at most, and none without a position. It is no text. The words are for assistive
  // tools, while the caret is in that paragraph. Replacing all text removes it.
  virtual void MarkUnread(std::optional<std::size_t> position, SignWords words) = 0;

  // Puts a quiet rule with a few words below the last paragraph that is there, or above the first
  // one if the box is empty. It has room of its own, but is no text: it is neither copied nor
  // saved, nor found, and no position counts it. It leaves with the paragraphs beside it, and
  // whenever all text is replaced. `words` is called whenever the rule is shown or read out, so
  // that they can follow the language; they are plain text. What was in view stays in view, the end
  // of the text too.
  virtual void AddRule(SignWords words) = 0;
  // What the signs say has changed.
  virtual void RefreshSigns() = 0;

  // Whether text is still being inserted, of long documents (SetSelDocument) or of a long file
  // (LoadFile).
  virtual bool MoreIsComing() const = 0;
  // Drops what SetSelDocument has not inserted yet.
  virtual void DropInsertions() = 0;

  // How many paragraphs the box keeps of what is written into it, 0 for all; a long paragraph
  // counts as several. Beyond them the oldest lines leave it, between events and a few more at once
  // than they must; what SetText, SetRtf and LoadFile have put there stays, and is not counted.
  virtual void SetMostParagraphs(std::size_t paragraphs) = 0;

  // Everything between the two is one change: at its end it is laid out and scrolled into view, and
  // onSelChange and onChange are raised, once each at most. If the reader stays, onSelChange is
  // not. Updates may be nested; the outermost says what the reader does. Do not handle events, and
  // do not call SetText, SetRtf, LoadFile or SetLocked, within an update. Use RichTextUpdate, which
  // always ends it.
  virtual void BeginUpdate(Reader reader) = 0;
  virtual void EndUpdate() = 0;

  // The character set that the box's fonts are written with, 161 for Greek.
  virtual void SetFontCharset(int charset) = 0;

  // Whole files. Throw RunTimeFailure (53, 61, 70, 75, 76) and leave box and file as they were. A
  // file that is no RTF loads as plain text. Plain text loads in the format of a new box, not in
  // that of what was here. Saving replaces the file in one step.
  //
  // A long file is read at once, but inserted piece by piece, between events. Text, Rtf, SaveFile
  // and SetLocked(false) wait for the rest, and so does LoadFile in a box that is not locked; a
  // long text is also written to its file between events. While they wait timer and socket events
  // are handled; keys and clicks keep waiting. SetText, SetRtf and LoadFile drop the rest;
  // everything else works on what has been inserted so far. Text that is written behind it stays
  // behind it.
  virtual void LoadFile(std::u16string_view path, TextFileFormat format) = 0;
  virtual void SaveFile(std::u16string_view path, TextFileFormat format) const = 0;

  // Locked: the user can select and copy but not change.
  virtual void SetLocked(bool locked) = 0;
  virtual bool Locked() const = 0;
  virtual void SetTag(std::u16string_view text) = 0;
  virtual std::u16string Tag() const = 0;
  // Until a colour is set, the box has the colours of the desktop's theme.
  virtual void SetBackColor(Color color) = 0;
  virtual Color BackColor() const = 0;
  // Shown, paler than text, while the box is empty. It is no part of the text.
  virtual void SetPlaceholder(std::u16string_view text) = 0;
  // How large the text is painted, in per cent, between the limits. The sizes in the text stay what
  // they are.
  virtual void SetZoom(int percent) = 0;
  virtual int Zoom() const = 0;

  // A key that types a character, before the box handles it: Enter is 13, Ctrl+Enter 10, Ctrl+A to
  // Ctrl+Z 1 to 26, Tab 9. Shift+Tab types none. The handler sets the code to 0 to swallow it.
  std::function<void(int& charCode)> onKeyPress;
  // Any key going down, before onKeyPress. `shift` is 0 without modifiers (Shift 1, Ctrl 2, Alt 4).
  // The handler sets the code to 0 to swallow the key.
  std::function<void(int& keyCode, int shift)> onKeyDown;
  // The selection, or the format at the insertion point, may have changed: by the user or by a
  // program's Select, SetText, SetRtf, LoadFile. Never by SetSelFormat.
  std::function<void()> onSelChange;
  // The text has changed, by the user or by a program's SetText, SetRtf, LoadFile, SetSelText,
  // SetSelDocument, which raise it even if the text is the same as before. Once for each change,
  // after its onSelChange. Never by SetSelFormat.
  std::function<void()> onChange;
  std::function<void()> onGotFocus;
  // How much of a long file has been inserted, in per cent: rising values, and 100 last, also when
  // the rest is dropped. Not raised for a short file.
  std::function<void(int percent)> onLoadProgress;
  // SetSelDocument inserts a long document into a locked box piece by piece, between events.
  // onInsertionStarted: such an insertion has started; raised inside SetSelDocument.
  // onInsertionFinished: all such documents have been inserted or dropped. A box that always
  // inserts at once raises neither.
  std::function<void()> onInsertionStarted;
  std::function<void()> onInsertionFinished;
  // Of a box with SetMostParagraphs, from the event loop. onNearlyFull: nine tenths of what it
  // keeps are there; raised once until all text is replaced. onLinesRemoved: `length` units at
  // `position` have left.
  std::function<void()> onNearlyFull;
  std::function<void(std::size_t position, std::size_t length)> onLinesRemoved;
  // The user wants a menu on the spot: with the mouse for the place under the pointer, by key for
  // the caret's. The box shows the entries. Without a handler it has the usual menu of a text
  // field.
  std::function<std::vector<PopupEntry>(std::size_t position)> onContextMenu;
  // The user has clicked an address while holding Ctrl. An address under the pointer is underlined
  // if there is a handler.
  std::function<void(std::u16string_view address)> onLink;
  // The end of the text has come into view by scrolling, or all text has been replaced. May be
  // raised more often than that.
  std::function<void()> onEndShown;
  // The user wants the text larger by so many steps, or smaller if there are less than 0.
  std::function<void(int steps)> onZoom;
  // The keyboard focus has gone elsewhere, perhaps to another window or to a menu.
  std::function<void()> onLostFocus;
};

// Everything that is done to a box while this object exists is one change of it.
class RichTextUpdate {
 public:
  explicit RichTextUpdate(RichTextBox& box, Reader reader = Reader::Follows) : box_(box) {
    box_.BeginUpdate(reader);
  }
  ~RichTextUpdate() { box_.EndUpdate(); }
  RichTextUpdate(const RichTextUpdate&) = delete;
  RichTextUpdate& operator=(const RichTextUpdate&) = delete;

 private:
  RichTextBox& box_;
};

}  // namespace verlume
