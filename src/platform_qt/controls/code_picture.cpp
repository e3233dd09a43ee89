#include "platform_qt/controls/code_picture.h"

#include <qrencode.h>

#include <QAccessibleWidget>
#include <QPainter>
#include <algorithm>
#include <cmath>
#include <memory>

namespace verlume::qt {
namespace {

constexpr int kQuietModules = 4;  // on each side, as the standard wants
constexpr int kLeastModule = 5;   // pixels

QAccessibleInterface* CodeInterfaceOf(const QString&, QObject* object) {
  auto* code = dynamic_cast<CodeWidget*>(object);
  return code ? new QAccessibleWidget(code, QAccessible::Graphic) : nullptr;
}

}  // namespace

SquareCode EncodeSquareCode(const QByteArray& text) {
  if (text.isEmpty()) return {};
  constexpr int kAnyVersion = 0;
  constexpr int kCaseSensitive = 1;
  const std::unique_ptr<QRcode, decltype(&QRcode_free)> encoded(
      QRcode_encodeString(text.constData(), kAnyVersion, QR_ECLEVEL_M, QR_MODE_8, kCaseSensitive),
      &QRcode_free);
  if (!encoded) return {};
  SquareCode code;
  code.side = encoded->width;
  const auto modules = static_cast<std::size_t>(code.side) * static_cast<std::size_t>(code.side);
  code.isDark.resize(modules);
  for (std::size_t i = 0; i < modules; ++i) code.isDark[i] = encoded->data[i] & 1;
  return code;
}

CodeWidget::CodeWidget(QWidget* parent) : QWidget(parent) {
  QAccessible::installFactory(&CodeInterfaceOf);  // which the second time does nothing
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void CodeWidget::SetCode(const SquareCode& code) {
  code_ = code;
  updateGeometry();
  update();
}

QSize CodeWidget::sizeHint() const {
  if (code_.side == 0) return {0, 0};
  const int module = std::max(kLeastModule, fontMetrics().height() / 3);
  const int side = module * (code_.side + 2 * kQuietModules);
  return {side, side};
}

void CodeWidget::paintEvent(QPaintEvent*) {
  if (code_.side == 0) return;
  QPainter painter(this);
  const qreal ratio = devicePixelRatioF();
  const int pixels = int(std::floor(std::min(width(), height()) * ratio));
  const int module = pixels / (code_.side + 2 * kQuietModules);
  const int all = module * (code_.side + 2 * kQuietModules);
  // In the screen's own pixels, so that no edge is blurred.
  painter.scale(1 / ratio, 1 / ratio);
  const int border = (pixels - all) / 2;
  painter.translate(border, border);
  painter.fillRect(0, 0, all, all, Qt::white);
  for (int row = 0; row < code_.side; ++row) {
    for (int column = 0; column < code_.side; ++column) {
      const int index = row * code_.side + column;
      if (!code_.isDark[static_cast<std::size_t>(index)]) continue;
      painter.fillRect((column + kQuietModules) * module, (row + kQuietModules) * module, module,
                       module, Qt::black);
    }
  }
}

void QtCodePicture::SetCode(std::u16string_view text) {
  code_ = text;
  widget_->SetCode(EncodeSquareCode(ToQt(text).toUtf8()));
}

}  // namespace verlume::qt
