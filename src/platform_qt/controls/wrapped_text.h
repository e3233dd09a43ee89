// A plain text over as many lines as it needs, which can be selected and copied. Unlike a label's,
// its lines are broken anywhere if need be, so that no word makes its window wider.
#pragma once

#include <QTextEdit>

#include "platform_qt/controls/control.h"

namespace verlume::qt {

// It is as high as its text, up to `kMostLines`; the rest is reached by scrolling.
class WrappedText : public QTextEdit {
 public:
  static constexpr int kMostLines = 8;

  explicit WrappedText(QWidget* parent);

  // Does nothing if it is shown already: what is selected stays so.
  void ShowText(const QString& text);
  const QString& ShownText() const { return shown_; }

  bool hasHeightForWidth() const override { return true; }
  int heightForWidth(int width) const override;
  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  int HeightOfAll(int width) const;
  int MostHeight() const { return fontMetrics().lineSpacing() * kMostLines; }
  // A scroll bar that came while the height is still another would take the room of words, which
  // would then need it.
  void AllowScrollBar();

  QString shown_;  // as it was given: the document has other line ends
};

class QtWrappedText : public QtControl<Label, WrappedText> {
 public:
  using QtControl::QtControl;

  void SetCaption(std::u16string_view text) override;
  std::u16string Caption() const override { return FromQt(widget_->ShownText()); }
  void SetTag(std::u16string_view text) override { tag_ = text; }
  std::u16string Tag() const override { return tag_; }
  void SetBackColor(Color color) override;
  void SetHeight(int height) override;

 private:
  std::u16string tag_;
};

}  // namespace verlume::qt
