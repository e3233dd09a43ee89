// A layout that scales its widgets with the area: each has a rectangle in design units, and all
// rectangles are scaled by the same two factors.
#pragma once

#include <QLayout>
#include <QList>
#include <QRect>
#include <memory>
#include <vector>

namespace verlume::qt {

class ProportionalLayout : public QLayout {
 public:
  // At 100 % a design unit is one pixel. The area is never smaller than the design.
  ProportionalLayout(QWidget* parent, QSize design);
  ~ProportionalLayout() override;

  void Place(QWidget* widget, const QRect& design);
  // While `foot` is visible, it takes the bottom of the rectangle of `owner`, at the height it
  // needs.
  void PlaceFoot(QWidget* owner, QWidget* foot);
  // The widget's rectangle in design units; empty if the widget is not in this layout.
  QRect DesignOf(const QWidget* widget) const;

  void addItem(QLayoutItem* item) override;
  int count() const override { return static_cast<int>(places_.size()); }
  QLayoutItem* itemAt(int index) const override;
  QLayoutItem* takeAt(int index) override;
  Qt::Orientations expandingDirections() const override;
  QSize sizeHint() const override { return minimumSize(); }
  // The size of the design, enlarged if the user's font needs more height.
  QSize minimumSize() const override;
  void setGeometry(const QRect& area) override;
  // A widget says this with every text it is given. Nothing is laid out anew unless a widget needs
  // another room than before, or has been shown or hidden.
  void invalidate() override;

 private:
  // What the layout asks of an item: its needs, and whether it is shown.
  struct Need {
    QSize least;
    bool isShown;
    bool operator==(const Need&) const = default;
  };
  std::vector<Need> Needs() const;

  struct PlacedItem {
    std::unique_ptr<QLayoutItem> item;
    QRect design;
    std::unique_ptr<QLayoutItem> foot;  // usually none
  };

  QSize design_;
  std::vector<PlacedItem> places_;
  std::vector<Need> needs_;  // when it was laid out last
};

// The height of a widget in design units, or in pixels if it is not in such a layout.
int DesignHeight(const QWidget* widget);
void SetDesignHeight(QWidget* widget, int height);

}  // namespace verlume::qt
