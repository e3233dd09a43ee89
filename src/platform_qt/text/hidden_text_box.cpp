#include "platform_qt/text/hidden_text_box.h"

#include "richtext/rtf_reader.h"
#include "richtext/rtf_reading.h"

namespace verlume::qt {

QtHiddenTextBox::QtHiddenTextBox(QWidget* parent, FileSystem& files)
    : QtRichTextBox(parent, files, Lines::Many) {
  widget()->hide();
}

void QtHiddenTextBox::SetText(std::u16string_view text) {
  text_ = richtext::ReadPlainText(text).text;
}

void QtHiddenTextBox::SetRtf(std::u16string_view rtf) {
  text_.clear();
  richtext::AppendRtfText(rtf, text_);
}

}  // namespace verlume::qt
