#include "platform_qt/text/zoom_device.h"

#include <cmath>

namespace verlume::qt {

int ZoomDevice::metric(PaintDeviceMetric metric) const {
  const auto zoomed = [this](int resolution) {
    return int(std::lround(resolution * percent_ / 100.0));
  };
  switch (metric) {
    case PdmDpiX:
      return zoomed(screen_.logicalDpiX());
    case PdmDpiY:
      return zoomed(screen_.logicalDpiY());
    case PdmPhysicalDpiX:
      return zoomed(screen_.physicalDpiX());
    case PdmPhysicalDpiY:
      return zoomed(screen_.physicalDpiY());
    case PdmWidth:
      return screen_.width();
    case PdmHeight:
      return screen_.height();
    case PdmDepth:
      return screen_.depth();
    default:
      return QPaintDevice::metric(metric);
  }
}

}  // namespace verlume::qt
