#include "platform_qt/controls/wrapped_text.h"

#include <algorithm>
#include <cmath>
#include <memory>

#include "platform_qt/controls/proportional_layout.h"

namespace verlume::qt {
namespace {

constexpr int kUsualColumns = 40;  // average characters

}  // namespace

WrappedText::WrappedText(QWidget* parent) : QTextEdit(parent) {
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
  setWordWrapMode(QTextOption::WrapAtWordBoundaryOrAnywhere);
  setFrameShape(QFrame::NoFrame);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  document()->setDocumentMargin(0);
  // It looks like the window's other texts, not like a field.
  QPalette colors = palette();
  colors.setColor(QPalette::Base, Qt::transparent);
  setPalette(colors);
  // Its own context menu would take the release of the right button, which is for help.
  setContextMenuPolicy(Qt::PreventContextMenu);
  QSizePolicy policy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

void WrappedText::ShowText(const QString& text) {
  if (text == shown_) return;
  shown_ = text;
  setPlainText(text);
  AllowScrollBar();
  updateGeometry();
}

int WrappedText::HeightOfAll(int width) const {
  const std::unique_ptr<QTextDocument> measured(document()->clone());
  measured->setTextWidth(width);
  return static_cast<int>(std::ceil(measured->size().height()));
}

int WrappedText::heightForWidth(int width) const {
  return std::clamp(HeightOfAll(width), fontMetrics().lineSpacing(), MostHeight());
}

void WrappedText::resizeEvent(QResizeEvent* event) {
  AllowScrollBar();
  QTextEdit::resizeEvent(event);
}

void WrappedText::AllowScrollBar() {
  const bool isNeeded = HeightOfAll(width()) > MostHeight();
  setVerticalScrollBarPolicy(isNeeded ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
}

QSize WrappedText::sizeHint() const {
  const int width = fontMetrics().averageCharWidth() * kUsualColumns;
  return {width, heightForWidth(width)};
}

QSize WrappedText::minimumSizeHint() const {
  return {fontMetrics().averageCharWidth() * kUsualColumns / 2, fontMetrics().lineSpacing()};
}

void QtWrappedText::SetCaption(std::u16string_view text) {
  widget_->ShowText(ToQt(text));
}

void QtWrappedText::SetBackColor(Color color) {
  QPalette palette = widget_->palette();
  palette.setColor(QPalette::Base, ToQt(color));
  widget_->setPalette(palette);
}

void QtWrappedText::SetHeight(int height) {
  SetDesignHeight(widget_, height);
}

}  // namespace verlume::qt
