// What all controls share: the tool tip, focus, context help and mouse events of a widget.
#pragma once

#include <QAbstractScrollArea>
#include <QMouseEvent>
#include <QWhatsThis>
#include <QWidget>
#include <type_traits>

#include "platform/control.h"
#include "platform_qt/controls/tool_tip.h"
#include "platform_qt/convert/text.h"

namespace verlume::qt {

// Passes mouse presses and releases on a widget to its control.
class MouseWatcher : public QObject {
 public:
  MouseWatcher(QWidget* watched, Control& control) : QObject(watched), control_(control) {
    watched->installEventFilter(this);
  }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::MouseButtonPress) Raise(control_.onMouseDown, event);
    if (event->type() == QEvent::MouseButtonRelease) Raise(control_.onMouseUp, event);
    return false;
  }

 private:
  static void Raise(const std::function<void(MouseButton)>& handler, QEvent* event) {
    if (!handler) return;
    const Qt::MouseButton button = static_cast<QMouseEvent*>(event)->button();
    handler(button == Qt::LeftButton    ? MouseButton::Left
            : button == Qt::RightButton ? MouseButton::Right
                                        : MouseButton::Other);
  }

  Control& control_;
};

// A control implemented by a widget. The widget belongs to its Qt parent and does not outlive the
// control.
template <class Role, class Widget>
class QtControl : public Role {
 public:
  explicit QtControl(Widget* widget) : widget_(widget) {
    // A scroll area gets its mouse events through its viewport.
    if constexpr (std::is_base_of_v<QAbstractScrollArea, Widget>) {
      new MouseWatcher(widget->viewport(), *this);
    } else {
      new MouseWatcher(widget, *this);
    }
  }

  void SetToolTip(std::u16string_view text) override {
    widget_->setToolTip(PlainToolTip(ToQt(text)));
    widget_->setAccessibleDescription(ToQt(text));
  }
  std::u16string ToolTip() const override { return FromQt(widget_->accessibleDescription()); }
  void SetAccessibleName(std::u16string_view name) override {
    widget_->setAccessibleName(ToQt(name));
  }
  void SetFocus() override { widget_->setFocus(Qt::OtherFocusReason); }
  void ShowContextHelp() override {
    const QString help = widget_->whatsThis();
    if (!help.isEmpty()) {
      QWhatsThis::showText(widget_->mapToGlobal(widget_->rect().center()), help, widget_);
    }
  }

  Widget* widget() const { return widget_; }

 protected:
  Widget* widget_;
};

}  // namespace verlume::qt
