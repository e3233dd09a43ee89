// The rich-text box: the command pane, the dialogue pane, the hidden box and the macro text are
// each one.
//
// Positions and lengths are UTF-16 units. A line break is one unit, u'\n', in Text and in every
// position; "\r\n" and "\r" that are put in become one. In a single-line box a line break that is
// put in, by whatever road, becomes a blank.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/control.h"
#include "richtext/document.h"

namespace verlume {

// The format of a selection. A member without value: undetermined when read (the selection is
// mixed), left as it is when set.
struct SelectionFormat {
  std::optional<std::u16string> fontName;
  std::optional<double> fontSize;  // points
  std::optional<Color> color;      // kAutomaticColor reads as 0, black
  std::optional<bool> bold;
  std::optional<bool> italic;
  std::optional<bool> underline;
  std::optional<bool> strikethrough;
};

enum class TextFileFormat { RichText, PlainText };

// Key codes of onKeyDown. A key that is not among them has kOther.
namespace key_code {
inline constexpr int kOther = -1;
inline constexpr int kTab = 9;
inline constexpr int kEscape = 27;
inline constexpr int kPageUp = 33;
inline constexpr int kPageDown = 34;
inline constexpr int kUp = 38;
inline constexpr int kDown = 40;
}  // namespace key_code

class RichTextBox : public Control {
 public:
  virtual std::u16string Text() const = 0;
  virtual std::size_t TextLength() const = 0;  // constant time
  // Replaces everything. The new text takes the format of the selection's first character, or of
  // the insertion point, and a box emptied so keeps it for what is typed next. The insertion point
  // goes to the start.
  virtual void SetText(std::u16string_view text) = 0;

  // Everything as RTF (richtext/rtf_writer.h), and back (richtext/rtf_reader.h: text that is no
  // RTF is plain text). Setting puts the insertion point at the start.
  virtual std::u16string Rtf() const = 0;
  virtual void SetRtf(std::u16string_view rtf) = 0;

  virtual std::size_t SelStart() const = 0;
  virtual std::size_t SelLength() const = 0;
  // Both are cut to what the text has; a length of 0 is an insertion point. Brings it into view.
  virtual void Select(std::size_t start, std::size_t length) = 0;

  virtual SelectionFormat SelFormat() const = 0;
  // On an insertion point: the format of what is inserted or typed there next.
  virtual void SetSelFormat(const SelectionFormat& format) = 0;
  // Replace the selection; the insertion point is behind it afterwards. Plain text takes the
  // selection's format, a document brings its own. Both work in a locked box too.
  virtual void SetSelText(std::u16string_view text) = 0;
  virtual void SetSelDocument(richtext::Document document) = 0;

  // What is done between the two is one change: it is laid out, brought into view and told of
  // (onSelChange and onChange, once each) at its end. Updates may contain others. No event is
  // handled meanwhile; SetText, SetRtf, LoadFile and SetLocked have no place in an update. Use
  // RichTextUpdate, which cannot forget the end.
  virtual void BeginUpdate() = 0;
  virtual void EndUpdate() = 0;

  // The character set that the box's fonts are written with, 161 for Greek.
  virtual void SetFontCharset(int charset) = 0;

  // Whole files. Throw RunTimeFailure (53, 61, 70, 75, 76) and leave box and file as they were. A
  // file that is no RTF loads as plain text. Plain text loads in the format of a new box, not in that
  // of what was here. Saving replaces the file in one step.
  //
  // A long file is read at once but comes into a locked box piece by piece, while events are
  // handled. Text, Rtf, SaveFile and SetLocked(false) wait for the rest; SetText, SetRtf and
  // LoadFile abandon it; all else sees what is in by then, and what is written behind it stays
  // behind it.
  virtual void LoadFile(std::u16string_view path, TextFileFormat format) = 0;
  virtual void SaveFile(std::u16string_view path, TextFileFormat format) const = 0;

  // Locked: the user can select and copy but not change.
  virtual void SetLocked(bool locked) = 0;
  virtual bool Locked() const = 0;
  virtual void SetTag(std::u16string_view text) = 0;
  virtual std::u16string Tag() const = 0;
  virtual void SetBackColor(Color color) = 0;
  virtual Color BackColor() const = 0;

  // A key that types a character, before the box sees it: Enter is 13, Ctrl+Enter 10, Ctrl+A to
  // Ctrl+Z 1 to 26, Tab 9. Shift+Tab types none. The handler sets the code to 0 to swallow it.
  std::function<void(int& charCode)> onKeyPress;
  // Any key going down, before onKeyPress. `shift` is 0 without modifiers (Shift 1, Ctrl 2, Alt 4).
  // The handler sets the code to 0 to swallow the key.
  std::function<void(int& keyCode, int shift)> onKeyDown;
  // The selection, or the format at the insertion point, may have changed: by the user or by a
  // program's Select, SetText, SetRtf, LoadFile. Never by SetSelFormat.
  std::function<void()> onSelChange;
  // The text has changed, by the user or by a program's SetText, SetRtf, LoadFile, SetSelText,
  // SetSelDocument, which tell it also where the text is what it was. Once a change, after its
  // onSelChange. Never by SetSelFormat.
  std::function<void()> onChange;
  std::function<void()> onGotFocus;
  // How much of a long file is in the box by now, from 1 to 100: each value at most once, and 100
  // last, also when the rest is abandoned. A short file raises none.
  std::function<void(int percent)> onLoadProgress;
  // A long document that SetSelDocument was given comes into a locked box piece by piece, while
  // events are handled. onTakingIn: such a document has begun to come in; raised inside
  // SetSelDocument. onTakenIn: all that was written so is in, or has been abandoned. A box that
  // never does this raises neither.
  std::function<void()> onTakingIn;
  std::function<void()> onTakenIn;
  // The keyboard went elsewhere, to another window or to a menu as well.
  std::function<void()> onLostFocus;
};

// Makes one change of all that is done to a box during its life.
class RichTextUpdate {
 public:
  explicit RichTextUpdate(RichTextBox& box) : box_(box) { box_.BeginUpdate(); }
  ~RichTextUpdate() { box_.EndUpdate(); }
  RichTextUpdate(const RichTextUpdate&) = delete;
  RichTextUpdate& operator=(const RichTextUpdate&) = delete;

 private:
  RichTextBox& box_;
};

}  // namespace verlume
