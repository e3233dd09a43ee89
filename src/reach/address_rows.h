// This computer's addresses, and who can call each of them.
#pragma once

#include <vector>

#include "platform/table_box.h"
#include "reach/reach_facts.h"

namespace verlume {

// A row for each address, and one for what the router passes on: the address and who can call it,
// in the order of ReachColumn (shell/reach_texts.h). Those that most computers can call come first.
// At most 40 rows; what is no address has none.
std::vector<TableBox::Row> AddressRows(const ReachFacts& facts, bool isGreek);

}  // namespace verlume
