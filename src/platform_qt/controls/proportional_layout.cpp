#include "platform_qt/controls/proportional_layout.h"

#include <QAbstractScrollArea>
#include <QWidget>
#include <algorithm>
#include <cmath>
#include <utility>

namespace verlume::qt {
namespace {

ProportionalLayout* LayoutOf(const QWidget* widget) {
  const QWidget* parent = widget->parentWidget();
  return parent ? dynamic_cast<ProportionalLayout*>(parent->layout()) : nullptr;
}

}  // namespace

ProportionalLayout::ProportionalLayout(QWidget* parent, QSize design)
    : QLayout(parent), design_(design) {
  setContentsMargins(0, 0, 0, 0);
}

ProportionalLayout::~ProportionalLayout() = default;

void ProportionalLayout::Place(QWidget* widget, const QRect& design) {
  for (PlacedItem& place : places_) {
    if (place.item->widget() != widget) continue;
    place.design = design;
    QLayout::invalidate();
    return;
  }
  addChildWidget(widget);
  places_.push_back({std::make_unique<QWidgetItem>(widget), design, nullptr});
  invalidate();
}

void ProportionalLayout::PlaceFoot(QWidget* owner, QWidget* foot) {
  for (PlacedItem& place : places_) {
    if (place.item->widget() != owner) continue;
    addChildWidget(foot);
    place.foot = std::make_unique<QWidgetItem>(foot);
    invalidate();
  }
}

QRect ProportionalLayout::DesignOf(const QWidget* widget) const {
  for (const PlacedItem& place : places_) {
    if (place.item->widget() == widget) return place.design;
  }
  return {};
}

void ProportionalLayout::addItem(QLayoutItem* item) {
  places_.push_back({std::unique_ptr<QLayoutItem>(item), item->geometry(), nullptr});
}

QLayoutItem* ProportionalLayout::itemAt(int index) const {
  return index >= 0 && index < count() ? places_[index].item.get() : nullptr;
}

QLayoutItem* ProportionalLayout::takeAt(int index) {
  if (index < 0 || index >= count()) return nullptr;
  QLayoutItem* item = places_[index].item.release();
  places_.erase(places_.begin() + index);
  return item;
}

Qt::Orientations ProportionalLayout::expandingDirections() const {
  return Qt::Horizontal | Qt::Vertical;
}

QSize ProportionalLayout::minimumSize() const {
  double across = 1;
  double down = 1;
  for (const PlacedItem& place : places_) {
    // A hidden item needs no space.
    if (place.foot) {
      across = std::max(across, double(place.foot->minimumSize().width()) / place.design.width());
    }
    // A pane scrolls, so it is never too small for its content.
    if (qobject_cast<QAbstractScrollArea*>(place.item->widget())) continue;
    const QSize needed = place.item->widget() ? place.item->widget()->minimumSizeHint() : QSize();
    if (needed.width() > 0) {
      across = std::max(across, double(needed.width()) / place.design.width());
    }
    if (needed.height() > 0) {
      down = std::max(down, double(needed.height()) / place.design.height());
    }
  }
  return {int(std::ceil(design_.width() * across)), int(std::ceil(design_.height() * down))};
}

std::vector<ProportionalLayout::Need> ProportionalLayout::Needs() const {
  std::vector<Need> needs;
  needs.reserve(2 * places_.size());
  for (const PlacedItem& place : places_) {
    const QWidget* widget = place.item->widget();
    needs.push_back({widget ? widget->minimumSizeHint() : QSize(), !place.item->isEmpty()});
    if (place.foot) needs.push_back({place.foot->sizeHint(), !place.foot->isEmpty()});
  }
  return needs;
}

void ProportionalLayout::invalidate() {
  std::vector<Need> needs = Needs();
  if (needs == needs_) return;
  needs_ = std::move(needs);
  QLayout::invalidate();
}

void ProportionalLayout::setGeometry(const QRect& area) {
  QLayout::setGeometry(area);
  const double across = double(area.width()) / design_.width();
  const double down = double(area.height()) / design_.height();
  // Edges are rounded, not sizes, so that neighbours in the design touch at every size.
  for (const PlacedItem& place : places_) {
    const QRect& design = place.design;
    const int left = area.x() + int(std::lround(design.x() * across));
    const int top = area.y() + int(std::lround(design.y() * down));
    const int right = area.x() + int(std::lround((design.x() + design.width()) * across));
    const int bottom = area.y() + int(std::lround((design.y() + design.height()) * down));
    QRect room(left, top, right - left, bottom - top);
    if (place.foot && !place.foot->isEmpty()) {
      QRect foot = room;
      foot.setTop(bottom - place.foot->sizeHint().height());
      place.foot->setGeometry(foot);
      room.setBottom(foot.top() - 1);
    }
    place.item->setGeometry(room);
  }
}

int DesignHeight(const QWidget* widget) {
  const ProportionalLayout* layout = LayoutOf(widget);
  const QRect design = layout ? layout->DesignOf(widget) : QRect();
  return design.isEmpty() ? widget->height() : design.height();
}

void SetDesignHeight(QWidget* widget, int height) {
  ProportionalLayout* layout = LayoutOf(widget);
  QRect design = layout ? layout->DesignOf(widget) : QRect();
  if (design.isEmpty()) {
    widget->resize(widget->width(), height);
    return;
  }
  design.setHeight(height);
  layout->Place(widget, design);
}

}  // namespace verlume::qt
