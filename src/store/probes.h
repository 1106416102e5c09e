// The probes that stand in for an index: lists of draws and tickets are made by
// testing the names 1, 2, 3 ... one after the other with Dir.
#pragma once

#include <string>

#include "screen/control.h"
#include "screen/files.h"
#include "screen/integer.h"

namespace veridraw::store {

inline constexpr int kListedTickets = 100;

// Calls Clear on the list `times` times; the effect is that of one call.
void ClearList(Control& list, int times);

// For n from 1 to `last`: ProbeName becomes the prefix and n in plain digits,
// and if a file of that name exists it is added to the list. Returns how many
// were added, for the screens that count a find.
int ListNames(SequentialFiles& files, Control& list, const std::string& prefix, int last,
              std::string& ProbeName);
// The same from n = `first`, for the screens whose game starts at a later draw.
int ListNames(SequentialFiles& files, Control& list, const std::string& prefix, int first, int last,
              std::string& ProbeName);

// For n from 1 to `last`: ProbeName becomes the prefix and n in plain digits. A
// missing file sets the flag to 1; a file whose name equals `wanted` exactly
// sets it to 0 and ends the search. An existing file of another name leaves it.
void FindName(SequentialFiles& files, const std::string& prefix, int last,
              const std::string& wanted, std::string& ProbeName, Integer& missingFlag);

}  // namespace veridraw::store
