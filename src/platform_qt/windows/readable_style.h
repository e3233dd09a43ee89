// The desktop's style, with outlines that are visible on dark backgrounds too, and a frame that
// tells which pane or button has the keyboard focus.
#pragma once

#include <QProxyStyle>

namespace verlume::qt {

// Qt's Fusion style draws outlines by darkening the background. On a dark background the outline of
// a check box, frame or text field is therefore invisible. Nor does Fusion mark the pane or list
// that has the focus, and a button hardly. Other styles are drawn as ever. In all of them what is
// selected keeps its colours without the focus: those of Windows can hardly be seen then, and a
// match that was found is selected.
class ReadableStyle : public QProxyStyle {
 public:
  using QProxyStyle::QProxyStyle;

  using QProxyStyle::polish;
  void polish(QPalette& palette) override;
  void polish(QWidget* widget) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option,
                  const QWidget* widget) const override;

 private:
  void DrawWithVisibleOutline(PrimitiveElement element, const QStyleOption* option,
                              QPainter* painter, const QWidget* widget) const;
};

// The colours of tool tips, with a text that can be read on its ground: in some themes of Windows
// it cannot.
QPalette ReadableToolTips(QPalette colours);

}  // namespace verlume::qt
