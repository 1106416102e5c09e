// The design of a control: what a form's designer file holds for it. A form is
// built from a table of these; showing the form creates its controls from them.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "screen/picture.h"

namespace veridraw {

enum class ControlKind { TextBox, Label, CommandButton, ListBox, Image, Document };

enum class Alignment { Left, Right, Center };

// Colours as 0x00BBGGRR.
namespace colors {
inline constexpr std::int32_t kWhite = 0xFFFFFF;
inline constexpr std::int32_t kBlack = 0x000000;
inline constexpr std::int32_t kRed = 0x0000FF;
inline constexpr std::int32_t kBlue = 0xFF0000;
inline constexpr std::int32_t kGreen = 0x008000;
inline constexpr std::int32_t kYellow = 0x00FFFF;
inline constexpr std::int32_t kNavy = 0x800000;
inline constexpr std::int32_t kDarkBlue = 0xC00000;
inline constexpr std::int32_t kOrange = 0x0040C0;
inline constexpr std::int32_t kPaleYellow = 0xC0FFFF;
inline constexpr std::int32_t kGrey = 0xC0C0C0;
// The face colour of windows, buttons and labels that were given no colour.
inline constexpr std::int32_t kButtonFace = 0xC0C0C0;
}  // namespace colors

inline constexpr int kNotInArray = -1;
inline constexpr int kDefault = -1;

// How a screen reader takes a control, beyond what its kind says.
enum class Reading {
  AsItsKind,   // a button, a box that takes numbers, a list, a label: as what it is
  Decoration,  // never read: it only adorns the screen or serves the program's mechanics
  Display,     // a box that only shows words or numbers: read as text, never as an entry
  Result,      // a cell of a result: read only while it holds something, with its meaning
  Prompt,      // says what to type next: announced when it comes or changes
  Alert,       // a verdict or a count of prizes: announced when it comes or changes
};

// What a result cell means when it stands in a colour: the first whose
// background matches wins, and kDefault matches any.
struct Meaning {
  std::int32_t backColor = kDefault;
  std::string words;
};

// What a screen reader is told of a control. Every name refers to a control of
// the same form, not an element of an array.
struct ReaderDesign {
  Reading reading = Reading::AsItsKind;
  std::string name;         // the spoken name, when neither caption nor partner gives it
  std::string labelledBy;   // the label whose caption is the name
  std::string describedBy;  // the control whose words describe it while both are shown
  std::vector<Meaning> meanings;
};

struct ControlDesign {
  ControlKind kind = ControlKind::Label;
  std::string name;
  int index = kNotInArray;  // element of a control array, from 1
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  std::string text;                   // Text of a text box, Caption of a label or a button
  std::string toolTip;                // ToolTipText
  std::int32_t backColor = kDefault;  // kDefault: the kind's own colour
  std::int32_t foreColor = colors::kBlack;
  double fontSize = 8.25;
  bool fontBold = false;
  bool visible = true;
  bool enabled = true;
  bool locked = false;
  bool tabStop = true;
  int tabIndex = kDefault;     // kDefault: after the explicit ones, in table order
  int borderStyle = kDefault;  // kDefault: 1 for text boxes, 0 for the rest
  Alignment alignment = Alignment::Left;
  Picture picture = Picture::None;  // the drawing on an image, a document or a picture button
  bool focusOnClick = true;         // false: a click leaves the focus where it is
  ReaderDesign reader;

  // Modifiers, so that a design table reads one control to a line.
  ControlDesign&& at(int element) && { return index = element, std::move(*this); }
  ControlDesign&& tip(std::string value) && { return toolTip = std::move(value), std::move(*this); }
  ControlDesign&& back(std::int32_t value) && { return backColor = value, std::move(*this); }
  ControlDesign&& fore(std::int32_t value) && { return foreColor = value, std::move(*this); }
  ControlDesign&& font(double size, bool bold = false) && {
    fontSize = size;
    fontBold = bold;
    return std::move(*this);
  }
  ControlDesign&& hidden() && { return visible = false, std::move(*this); }
  ControlDesign&& lockedBox() && { return locked = true, std::move(*this); }
  ControlDesign&& noTabStop() && { return tabStop = false, std::move(*this); }
  // A picture that only looks like a button: a click on it changes nothing at all.
  ControlDesign&& inert() && {
    focusOnClick = false;
    tabStop = false;
    return std::move(*this);
  }
  ControlDesign&& tab(int value) && { return tabIndex = value, std::move(*this); }
  ControlDesign&& border(int value) && { return borderStyle = value, std::move(*this); }
  ControlDesign&& centred() && { return alignment = Alignment::Center, std::move(*this); }
  ControlDesign&& drawing(Picture value) && { return picture = value, std::move(*this); }
  // For screen readers.
  ControlDesign&& read(Reading value) && { return reader.reading = value, std::move(*this); }
  ControlDesign&& decoration() && { return std::move(*this).read(Reading::Decoration); }
  ControlDesign&& spoken(std::string value) && {
    return reader.name = std::move(value), std::move(*this);
  }
  ControlDesign&& labelledBy(std::string value) && {
    return reader.labelledBy = std::move(value), std::move(*this);
  }
  ControlDesign&& describedBy(std::string value) && {
    return reader.describedBy = std::move(value), std::move(*this);
  }
  ControlDesign&& meaning(std::int32_t colour, std::string words) && {
    reader.meanings.push_back({colour, std::move(words)});
    return std::move(*this);
  }
};

// A place on the form in twips: left, top, width, height.
struct Place {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};

ControlDesign textBox(std::string name, Place place, std::string text = " ");
ControlDesign label(std::string name, Place place, std::string caption);
ControlDesign button(std::string name, Place place, std::string caption);
ControlDesign pictureButton(std::string name, Place place, Picture drawing);
ControlDesign listBox(std::string name, Place place);
ControlDesign image(std::string name, Place place, Picture drawing);
ControlDesign document(std::string name, Place place, Picture drawing);

}  // namespace veridraw
