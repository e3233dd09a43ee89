// A group of controls that floats over the window beside or over one of its panes. It moves with
// the pane, is shown only where there is room, and never takes the focus.
#pragma once

#include <QGroupBox>
#include <QPointer>

#include "platform/floating.h"
#include "platform_qt/controls/controls.h"

namespace verlume::qt {

// A group box without a title, because assistive tools know that as a group with a name.
class FloatingFrame : public QGroupBox {
 public:
  // Starts hidden.
  FloatingFrame(QWidget* area, const char* name);

  // The pane must have the same parent.
  void Follow(QWidget* pane);
  // Another group at the same place, which covers this one while both are shown.
  void StayBelow(QWidget* other) { above_ = other; }
  // Shows it wherever it has room, until it is no longer wanted.
  void SetWanted(bool wanted);
  bool IsWanted() const { return isWanted_; }

 protected:
  // Where it lies while the pane is here; an empty rectangle if it has no room.
  virtual QRect PlaceAt(const QRect& pane) const = 0;

  bool event(QEvent* event) override;
  bool eventFilter(QObject* watched, QEvent* event) override;
  void paintEvent(QPaintEvent* event) override;

 private:
  void Place();

  QPointer<QWidget> pane_;
  QPointer<QWidget> above_;
  bool isWanted_ = false;
};

class QtFloatingPanel : public FloatingPanel {
 public:
  explicit QtFloatingPanel(FloatingFrame* frame) : frame_(frame) {}
  void SetVisible(bool visible) override { frame_->SetWanted(visible); }
  bool Visible() const override { return frame_->IsWanted(); }
  bool HasFocus() const override;
  void SetAccessibleName(std::u16string_view name) override {
    frame_->setAccessibleName(ToQt(name));
  }

 private:
  FloatingFrame* frame_;
};

// A button whose click leaves the focus where the user types.
QPushButton* NewFloatingButton(QWidget* parent, const char* name);

}  // namespace verlume::qt
