// A rich-text box that nobody sees and that is there to turn RTF into plain text: a text of
// mebibytes is not laid out for it.
#pragma once

#include "platform_qt/text/rich_text_box.h"

namespace verlume::qt {

// Its whole text is kept beside the widget, which stays empty.
class QtHiddenTextBox : public QtRichTextBox {
 public:
  QtHiddenTextBox(QWidget* parent, FileSystem& files);

  std::u16string Text() const override { return text_; }
  std::size_t TextLength() const override { return text_.size(); }
  void SetText(std::u16string_view text) override;
  void SetRtf(std::u16string_view rtf) override;

 private:
  std::u16string text_;
};

}  // namespace verlume::qt
