// A check box that looks like a flat button which stays pressed while it is checked.
#pragma once

#include <QCheckBox>

namespace verlume::qt {

// Its caption is written in its own font, so that "Bold" can be shown in bold.
class ToggleBox : public QCheckBox {
 public:
  explicit ToggleBox(QWidget* parent);

  QSize sizeHint() const override;
  QSize minimumSizeHint() const override;

 protected:
  bool hitButton(const QPoint& place) const override { return rect().contains(place); }
  void enterEvent(QEnterEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  QRectF Face() const;
};

}  // namespace verlume::qt
