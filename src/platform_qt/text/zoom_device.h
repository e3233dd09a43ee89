// The paint device that a document is laid out for. Its resolution is that of the screen times the
// zoom: every text becomes larger on the screen, and no font size in the document changes.
#pragma once

#include <QPaintDevice>
#include <QWidget>

namespace verlume::qt {

class ZoomDevice : public QPaintDevice {
 public:
  // `screen` tells the resolution of the screen, and must outlive the device.
  explicit ZoomDevice(const QWidget& screen) : screen_(screen) {}

  // In per cent. Documents that are laid out for this device must be laid out anew.
  void SetZoom(int percent) { percent_ = percent; }
  int Zoom() const { return percent_; }

  // Nothing is painted on it.
  QPaintEngine* paintEngine() const override { return nullptr; }

 protected:
  int metric(PaintDeviceMetric metric) const override;

 private:
  const QWidget& screen_;
  int percent_ = 100;
};

}  // namespace verlume::qt
