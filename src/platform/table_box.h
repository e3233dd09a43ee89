// A list of rows with columns.
#pragma once

#include <vector>

#include "platform/control.h"

namespace verlume {

// One row at a time can be selected. Rows are counted from 0. The texts are plain text.
class TableBox : public Control {
 public:
  using Row = std::vector<std::u16string>;  // a text for each column

  // Columns are counted from 0. The table has as many as have got a heading.
  virtual void SetHeading(int column, std::u16string_view text) = 0;
  // Replaces all rows; none is selected afterwards.
  virtual void SetRows(const std::vector<Row>& rows) = 0;
  // Replaces the texts of one row; the selection stays. Does nothing if there is no such row.
  virtual void SetRow(int index, const Row& row) = 0;
  virtual int Count() const = 0;
  // -1 means no row. Selecting a row that does not exist selects none. Scrolls to the row.
  virtual void Select(int index) = 0;
  virtual int SelectedIndex() const = 0;

  // The user has selected another row.
  std::function<void()> onClick;
};

}  // namespace verlume
