// The desktop's style, with outlines that are visible on dark backgrounds too.
#pragma once

#include <QProxyStyle>

namespace verlume::qt {

// Qt's Fusion style draws outlines by darkening the background. On a dark background the outline of
// a check box, frame or text field is therefore invisible. Other styles are not changed.
class ReadableStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace verlume::qt
