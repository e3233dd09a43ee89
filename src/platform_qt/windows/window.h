// A top-level window, made real by any widget.
#pragma once

#include <QEventLoop>
#include <QObject>
#include <QWidget>

#include "platform/control.h"
#include "platform/window.h"

namespace verlume::qt {

class QtWindow : public QObject, public Window {
 public:
  explicit QtWindow(QWidget* form);

  void SetTitle(std::u16string_view title) override;
  std::u16string Title() const override;
  void Show() override;
  void ShowModal() override;
  void Unload() override;
  void FlagForAttention() override;
  bool CanBeTopMost() const override;
  bool SetTopMost(bool topMost) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Asks and, unless refused, unloads; true when the window is unloaded afterwards.
  bool Close(UnloadMode mode);

  QWidget* form_;
  bool asking_ = false;
  bool unloaded_ = false;
  QEventLoop* whileModal_ = nullptr;
};

// Watches a form's first showing. The form's layout does the work of the layout control itself.
class QtLayoutControl : public QObject, public LayoutControl {
 public:
  explicit QtLayoutControl(QWidget* form);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  QWidget* form_;
  bool raised_ = false;
};

}  // namespace verlume::qt
