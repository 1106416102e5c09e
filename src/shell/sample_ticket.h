// The picture of a ticket at the left of the start screen: text boxes that
// show a sample, with no behaviour.
#pragma once

#include <vector>

#include "screen/design.h"

namespace veridraw {

// Adds LineA(1..30), five lines of six numbers in a stair pattern, with the
// line letters TextATxt(1..5) and the line numbers TextATxt(6..10) beside them.
void addSampleTicket(std::vector<ControlDesign>& controls);

}  // namespace veridraw
