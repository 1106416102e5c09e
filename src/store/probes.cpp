#include "store/probes.h"

#include "screen/strings.h"

namespace veridraw::store {

void ClearList(Control& list, int times) {
  for (int i = 1; i <= times; ++i)
    list.Clear();
}

int ListNames(SequentialFiles& files, Control& list, const std::string& prefix, int last,
              std::string& ProbeName) {
  return ListNames(files, list, prefix, 1, last, ProbeName);
}

int ListNames(SequentialFiles& files, Control& list, const std::string& prefix, int first, int last,
              std::string& ProbeName) {
  int found = 0;
  for (int n = first; n <= last; ++n) {
    ProbeName = prefix + CStr(n);
    if (files.Dir(ProbeName) != "") {
      list.AddItem(ProbeName);
      ++found;
    }
  }
  return found;
}

void FindName(SequentialFiles& files, const std::string& prefix, int last,
              const std::string& wanted, std::string& ProbeName, Integer& missingFlag) {
  for (int n = 1; n <= last; ++n) {
    ProbeName = prefix + CStr(n);
    if (files.Dir(ProbeName) == "") {
      missingFlag = 1;
    } else if (ProbeName == wanted) {
      missingFlag = 0;
      return;
    }
  }
}

}  // namespace veridraw::store
