// The desktop's own style, with outlines that are seen on dark grounds too.
#pragma once

#include <QProxyStyle>

namespace verlume::qt {

// Qt's Fusion style draws outlines by darkening the ground: on a dark one a check box, a frame or a
// text field has none that could be seen. Other styles are left as they are.
class ReadableStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
};

}  // namespace verlume::qt
