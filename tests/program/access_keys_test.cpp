// The README promises an access key (Alt and the underlined letter) on every
// button with a caption but those it names. This holds that promise against
// the design tables of all six screens.
#include <gtest/gtest.h>

#include <set>
#include <string>

#include "draws/veridraw7f.h"
#include "lotto/veridraw7b.h"
#include "powerball/veridraw7e.h"
#include "shell/veridraw7a.h"
#include "shell/veridraw7d.h"
#include "strike/veridraw7c.h"

namespace veridraw {
namespace {

// An access key is a "&" followed by a character other than "&".
bool hasAccessKey(const std::string& caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    if (caption[i + 1] != '&') return true;
    ++i;
  }
  return false;
}

TEST(AccessKeys, EveryButtonHasOneButThoseTheReadmeNames) {
  std::set<std::string> without;
  std::set<std::string> pictures;
  for (const FormDesign& form : {veridraw7aDesign(), veridraw7dDesign(), veridraw7fDesign(),
                                 veridraw7bDesign(), veridraw7cDesign(), veridraw7eDesign()}) {
    for (const ControlDesign& control : form.controls) {
      if (control.kind != ControlKind::CommandButton) continue;
      const std::string where = form.name + "." + control.name;
      if (control.text.empty())
        pictures.insert(where);
      else if (!hasAccessKey(control.text))
        without.insert(control.text);
    }
  }
  // "Delete Ticket" on the three ticket screens.
  EXPECT_EQ(without, std::set<std::string>{"Delete Ticket"});
  // The pictures of the three games on the start and draw screens, and the
  // owner's notice on the start, draw and ticket screens, have no caption.
  EXPECT_EQ(pictures,
            (std::set<std::string>{
                "Veridraw7a.Btn1Lotto", "Veridraw7a.Btn2Strike", "Veridraw7a.BtnPowerBall",
                "Veridraw7a.CmdNotice", "Veridraw7f.Btn1Lotto", "Veridraw7f.Btn2Strike",
                "Veridraw7f.BtnPowerBall", "Veridraw7f.CmdNotice", "Veridraw7b.CmdNotice",
                "Veridraw7c.CmdNotice", "Veridraw7e.CmdNotice"}));
}

}  // namespace
}  // namespace veridraw
