// Loading and saving whole files.
#include <future>
#include <utility>

#include "platform_qt/fonts/turn.h"
#include "platform_qt/os/local_text.h"
#include "platform_qt/text/rich_text_box.h"
#include "platform_qt/text/rich_text_widget.h"
#include "platform_qt/text/text_format.h"
#include "platform_qt/text/text_limit.h"
#include "platform_qt/text/text_loading.h"
#include "richtext/rtf_reader.h"
#include "richtext/rtf_writer.h"

namespace verlume::qt {
namespace {

// A text so long, in characters, is saved between events.
constexpr std::size_t kSavedInTurns = 64 * 1024;

// A file that is no RTF is a plain text of this machine's.
richtext::Document ReadDocument(std::string_view bytes) {
  return richtext::LooksLikeRtf(bytes) ? richtext::ReadRtf(bytes)
                                       : richtext::ReadPlainText(DecodeLocal(bytes));
}

}  // namespace

void QtRichTextBox::LoadFile(std::u16string_view path, TextFileFormat format) {
  const bool isPlain = format == TextFileFormat::PlainText;
  FormattedText text = isPlain ? FormattedText(files_.ReadText(path), DefaultFormat(), lines_)
                               : FormattedText(ReadDocument(files_.ReadBytes(path)), lines_);
  Clear(isPlain ? DefaultFormat() : FormatOfFirst(widget_->textCursor()));
  SetSelAuthor(Author::File);
  loading_ = std::make_unique<TextLoading>(*view_, QTextCursor(widget_->document()),
                                           std::move(text), [this](int percent) {
                                             if (percent == 100) NoteLoaded();
                                             if (onLoadProgress) onLoadProgress(percent);
                                           });
  whileLoading_ = std::make_unique<TextLimit::Hold>(*limit_);
  if (loading_->IsDone()) NoteLoaded();
  // A text that the user can change must be complete.
  if (!Locked()) WaitForInsertions();
  Select(0, 0);
  RaiseChange();
  if (onEndShown) onEndShown();
}

void QtRichTextBox::NoteLoaded() {
  limit_->StartBehind(loading_->cursor());
  whileLoading_.reset();
}

void QtRichTextBox::SaveFile(std::u16string_view path, TextFileFormat format) const {
  const auto write = [this, path, format, content = Content()] {
    const bool isPlain = format == TextFileFormat::PlainText;
    files_.ReplaceText(path, isPlain ? content.text : richtext::WriteRtfFile(content));
  };
  if (TextLength() <= kSavedInTurns) return write();
  std::future<void> written = std::async(std::launch::async, write);
  WaitUntil([&] { return written.wait_for(kPauseBetweenTurns) == std::future_status::ready; });
  written.get();
}

}  // namespace verlume::qt
