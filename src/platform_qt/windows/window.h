// A top-level window, implemented by any widget.
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
  bool IsActive() const override;
  void FlagForAttention() override;
  bool CanBeTopMost() const override;
  bool SetTopMost(bool topMost) override;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Asks, and unloads unless that is refused; true if the window is unloaded afterwards.
  bool Close(UnloadMode mode);

  QWidget* form_;
  bool asking_ = false;
  bool unloaded_ = false;
  QEventLoop* whileModal_ = nullptr;
};

// Detects when a form is first shown. The form's Qt layout does the actual layout.
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
