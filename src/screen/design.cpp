#include "screen/design.h"

namespace veridraw {

namespace {

ControlDesign placed(ControlKind kind, std::string name, Place place, std::string text) {
  ControlDesign design;
  design.kind = kind;
  design.name = std::move(name);
  design.left = place.left;
  design.top = place.top;
  design.width = place.width;
  design.height = place.height;
  design.text = std::move(text);
  return design;
}

}  // namespace

ControlDesign textBox(std::string name, Place place, std::string text) {
  return placed(ControlKind::TextBox, std::move(name), place, std::move(text));
}

ControlDesign label(std::string name, Place place, std::string caption) {
  return placed(ControlKind::Label, std::move(name), place, std::move(caption));
}

ControlDesign button(std::string name, Place place, std::string caption) {
  return placed(ControlKind::CommandButton, std::move(name), place, std::move(caption));
}

ControlDesign pictureButton(std::string name, Place place, Picture drawing) {
  return placed(ControlKind::CommandButton, std::move(name), place, "").drawing(drawing);
}

ControlDesign listBox(std::string name, Place place) {
  return placed(ControlKind::ListBox, std::move(name), place, "");
}

ControlDesign image(std::string name, Place place, Picture drawing) {
  return placed(ControlKind::Image, std::move(name), place, "").drawing(drawing);
}

ControlDesign document(std::string name, Place place, Picture drawing) {
  return placed(ControlKind::Document, std::move(name), place, "").drawing(drawing);
}

}  // namespace veridraw
