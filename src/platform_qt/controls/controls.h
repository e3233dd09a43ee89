// Labels, pictures, check boxes, buttons, the lamp, the timer and the menus, implemented with Qt.
#pragma once

#include <QAction>
#include <QCheckBox>
#include <QIcon>
#include <QMenu>
#include <QProgressBar>
#include <QPushButton>
#include <QTimer>

#include "platform_qt/controls/control.h"
#include "platform_qt/controls/controls_label.h"
#include "platform_qt/controls/mnemonics.h"

namespace verlume::qt {

class QtLabel : public QtControl<Label, QLabel> {
 public:
  using QtControl::QtControl;

  void SetCaption(std::u16string_view text) override;
  std::u16string Caption() const override { return FromQt(widget_->text()); }
  void SetTag(std::u16string_view text) override { tag_ = text; }
  std::u16string Tag() const override { return tag_; }
  void SetBackColor(Color color) override;
  void SetHeight(int height) override;

 private:
  std::u16string tag_;
};

// A control with no more than the mouse events.
template <class Widget>
using QtPlainControl = QtControl<Control, Widget>;

// Paints an icon as large as its own square allows, sharp at any scale.
class PictureWidget : public QWidget {
 public:
  explicit PictureWidget(QWidget* parent);
  void SetIcon(const QIcon& icon);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QIcon icon_;
};

class QtPicture : public QtControl<Picture, PictureWidget> {
 public:
  using QtControl::QtControl;
  int Height() const override;
};

// A round, filled and bordered shape in the middle of its frame. Mouse events go to the frame.
class LampWidget : public QWidget {
 public:
  explicit LampWidget(QWidget* frame);
  void SetColors(const QColor& fill, const QColor& border);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor fill_ = Qt::white;
  QColor border_ = Qt::black;
};

class QtLamp : public Lamp {
 public:
  explicit QtLamp(LampWidget* widget) : widget_(widget) {}
  void SetFillColor(Color color) override;
  void SetBorderColor(Color color) override;
  Color FillColor() const override { return fill_; }
  Color BorderColor() const override { return border_; }

 private:
  LampWidget* widget_;
  Color fill_ = 0xFFFFFF;
  Color border_ = 0;
};

class QtCheckBox : public QtControl<CheckBox, QCheckBox> {
 public:
  explicit QtCheckBox(QCheckBox* widget);
  void SetCaption(std::u16string_view text) override {
    SetCaptionWithMnemonic(widget_, ToQt(text));
  }
  void SetValue(int value) override { widget_->setChecked(value != 0); }
  int Value() const override { return widget_->isChecked() ? 1 : 0; }
};

class QtButton : public QtControl<Button, QPushButton> {
 public:
  explicit QtButton(QPushButton* widget);
  void SetCaption(std::u16string_view text) override;
  std::u16string Caption() const override { return caption_; }
  void SetEnabled(bool enabled) override { widget_->setEnabled(enabled); }
  // What the program has set; a modal box over the window does not change it.
  bool Enabled() const override { return widget_->isEnabledTo(widget_->parentWidget()); }

 private:
  std::u16string caption_;
};

class QtProgressBar : public QtControl<ProgressBar, QProgressBar> {
 public:
  // Starts hidden, at 0.
  explicit QtProgressBar(QProgressBar* widget);
  void SetValue(int percent) override { widget_->setValue(percent); }
  int Value() const override { return widget_->value(); }
  void SetVisible(bool visible) override { widget_->setVisible(visible); }
  bool Visible() const override { return !widget_->isHidden(); }
};

class QtMenuEntry : public MenuEntry {
 public:
  explicit QtMenuEntry(QAction* action);
  void SetCaption(std::u16string_view text) override;
  std::u16string Caption() const override { return caption_; }
  void SetToolTip(std::u16string_view text) override;
  std::u16string ToolTip() const override { return toolTip_; }
  void SetChecked(bool checked) override;
  bool Checked() const override { return checked_; }
  void SetEnabled(bool enabled) override { action_->setEnabled(enabled); }
  bool Enabled() const override { return action_->isEnabled(); }

 private:
  QAction* action_;
  std::u16string caption_;
  std::u16string toolTip_;
  bool checked_ = false;
};

class QtMenu : public Menu {
 public:
  explicit QtMenu(QMenu* menu) : menu_(menu) {}
  void SetCaption(std::u16string_view text) override;
  std::u16string Caption() const override { return caption_; }

 private:
  QMenu* menu_;
  std::u16string caption_;
};

class QtTimer : public Timer {
 public:
  explicit QtTimer(QObject* parent);
  void Start() override { timer_->start(); }

 private:
  QTimer* timer_;
};

}  // namespace verlume::qt
