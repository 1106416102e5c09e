#include "gui/control_look.h"

#include "gui/appearance.h"
#include "gui/windows1252.h"

namespace veridraw::gui {

ControlLook lookOf(const Control& control, bool focused) {
  ControlLook look;
  look.kind = control.kind();
  look.text =
      fromWindows1252(control.kind() == ControlKind::TextBox ? control.text() : control.caption());
  look.background = modelColor(control.backColor());
  look.foreground = modelColor(control.foreColor());
  look.font = modelFont(control.fontSize(), control.fontBold());
  look.borderStyle = control.borderStyle();
  look.alignment = control.alignment();
  look.picture = control.picture();
  for (const std::string& item : control.items())
    look.items.append(fromWindows1252(item));
  look.listIndex = control.listIndex();
  look.topIndex = control.topIndex();
  look.caret = control.caret();
  look.selectionLength = control.selectionLength();
  look.enabled = control.enabled();
  look.focused = focused;
  return look;
}

}  // namespace veridraw::gui
