// The list box, implemented with Qt.
#pragma once

#include <QListWidget>
#include <functional>

#include "platform_qt/controls/control.h"

namespace verlume::qt {

// A list in which one item stays selected once the user has selected one: a click beside the items,
// or with Ctrl, does not remove the selection.
class ListWidget : public QListWidget {
 public:
  explicit ListWidget(QWidget* parent);

  // The user has selected an item, or clicked the selected one again. Raised after Qt has handled
  // the key or button, so that what the handler selects stays selected.
  std::function<void()> onChosen;
  void TellChosen();

 protected:
  bool event(QEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  bool IsNothingSelected() const { return selectedIndexes().isEmpty(); }
  void EndEvent();

  int eventDepth_ = 0;
  bool hasChosen_ = false;  // during the current event
};

class QtListBox : public QtControl<ListBox, ListWidget> {
 public:
  explicit QtListBox(ListWidget* widget);

  void Clear() override;
  void Append(std::u16string_view text) override;
  void Remove(int index) override;
  int Count() const override { return widget_->count(); }
  std::u16string Item(int index) const override;
  void Select(int index) override;
  int SelectedIndex() const override;
  void ScrollToTop(int index) override;
  void SetTag(std::u16string_view text) override { tag_ = text; }
  std::u16string Tag() const override { return tag_; }

 private:
  std::u16string tag_;
  int programDepth_ = 0;  // above 0 while the program changes the list, which is no click
};

}  // namespace verlume::qt
