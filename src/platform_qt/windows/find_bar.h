// The find bar: its widgets, and the controls that only it has.
#pragma once

#include <QLineEdit>

#include "platform_qt/controls/controls.h"

namespace verlume::qt {

class QtTextField : public QtControl<TextField, QLineEdit> {
 public:
  explicit QtTextField(QLineEdit* widget);
  // Also shown in the field while that is empty.
  void SetAccessibleName(std::u16string_view name) override;
  void SetText(std::u16string_view text) override { widget_->setText(ToQt(text)); }
  std::u16string Text() const override { return FromQt(widget_->text()); }
  void SelectAll() override { widget_->selectAll(); }
};

class QtPanel : public Panel {
 public:
  explicit QtPanel(QWidget* widget) : widget_(widget) {}
  void SetVisible(bool visible) override;
  bool Visible() const override { return !widget_->isHidden(); }
  bool HasFocus() const override;

 private:
  QWidget* widget_;
};

// Starts hidden. Its controls have the names of FindBar's members; its keys press its buttons.
QWidget* NewFindBar(QWidget* parent);

}  // namespace verlume::qt
