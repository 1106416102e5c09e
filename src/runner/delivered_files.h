// The data files that Veridraw is delivered with: the current-draw file and
// the draw file that it names.
#pragma once

#include <string>
#include <vector>

namespace veridraw {

struct DeliveredFile {
  std::string name;
  std::string content;
};

const std::vector<DeliveredFile>& deliveredFiles();

}  // namespace veridraw
