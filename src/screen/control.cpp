#include "screen/control.h"

#include <algorithm>
#include <cctype>
#include <stdexcept>

#include "screen/application.h"
#include "screen/form.h"

namespace veridraw {

namespace {

std::int32_t defaultBackColor(ControlKind kind) {
  return kind == ControlKind::TextBox || kind == ControlKind::ListBox ? colors::kWhite
                                                                      : colors::kButtonFace;
}

// The height of one row of a list box, in twips, for keeping the selection in view.
constexpr int kListRowHeight = 195;

}  // namespace

Control::Control(Form& form, const ControlDesign& design)
    : form_(form),
      design_(design),
      kind_(design.kind),
      name_(design.name),
      index_(design.index),
      text_(design.kind == ControlKind::TextBox ? design.text : ""),
      caption_(design.kind == ControlKind::TextBox ? "" : design.text),
      toolTip_(design.toolTip),
      visible_(design.visible),
      enabled_(design.enabled),
      locked_(design.locked),
      tabStop_(design.tabStop),
      backColor_(design.backColor == kDefault ? defaultBackColor(design.kind) : design.backColor),
      foreColor_(design.foreColor),
      fontSize_(design.fontSize),
      fontBold_(design.fontBold),
      borderStyle_(design.borderStyle != kDefault ? design.borderStyle
                   : design.kind == ControlKind::TextBox || design.kind == ControlKind::ListBox
                       ? 1
                       : 0),
      left_(design.left),
      top_(design.top),
      width_(design.width),
      height_(design.height),
      alignment_(design.alignment),
      picture_(design.picture),
      focusOnClick_(design.focusOnClick) {}

std::string Control::displayName() const {
  return isArrayElement() ? name_ + "(" + std::to_string(index_) + ")" : name_;
}

const std::string& Control::listText() const {
  static const std::string kNone;
  if (kind_ == ControlKind::ListBox)
    return listIndex_ >= 0 ? items_[static_cast<std::size_t>(listIndex_)] : kNone;
  throw std::logic_error(displayName() + " has no Text");
}

void Control::setText(const std::string& value) {
  if (kind_ != ControlKind::TextBox) throw std::logic_error(displayName() + " takes no Text");
  assign(caret_, 0);
  assign(selectionLength_, 0);
  if (value == text_) return;
  text_ = value;
  touchText();
  form_.raise(Event::Change, *this);
}

void Control::focusLeaves() {
  form_.application().focusLeaves(*this);
}

void Control::SetFocus() {
  form_.application().setFocus(*this);
}

void Control::AddItem(const std::string& item) {
  items_.push_back(item);
  touch();
}

void Control::Clear() {
  if (!items_.empty()) touch();
  items_.clear();
  assign(listIndex_, -1);
  assign(topIndex_, 0);
}

void Control::selectItem(int index) {
  assign(listIndex_, std::clamp(index, -1, listCount() - 1));
  if (listIndex_ < 0) return;
  const int rows = visibleRows();
  if (listIndex_ < topIndex_) assign(topIndex_, listIndex_);
  if (listIndex_ >= topIndex_ + rows) assign(topIndex_, listIndex_ - rows + 1);
}

int Control::visibleRows() const {
  return std::max(1, height_ / kListRowHeight);
}

void Control::setTopIndex(int value) {
  assign(topIndex_, std::clamp(value, 0, std::max(0, listCount() - 1)));
}

void Control::setCaret(int position) {
  assign(caret_, std::clamp(position, 0, static_cast<int>(text_.size())));
  assign(selectionLength_, 0);
}

void Control::replaceByUser(int from, int count, const std::string& insert) {
  text_.replace(static_cast<std::size_t>(from), static_cast<std::size_t>(count), insert);
  caret_ = from + static_cast<int>(insert.size());
  selectionLength_ = 0;
  touchText();
  form_.raise(Event::Change, *this);
}

bool Control::typeCharacter(char c) {
  if (kind_ != ControlKind::TextBox || locked_) return false;
  replaceByUser(caret_, selectionLength_, std::string(1, c));
  return true;
}

bool Control::backspace() {
  if (kind_ != ControlKind::TextBox || locked_) return false;
  if (selectionLength_ > 0) {
    replaceByUser(caret_, selectionLength_, "");
  } else {
    if (caret_ == 0) return false;
    replaceByUser(caret_ - 1, 1, "");
  }
  return true;
}

bool Control::deleteForward() {
  if (kind_ != ControlKind::TextBox || locked_) return false;
  if (selectionLength_ == 0 && caret_ >= static_cast<int>(text_.size())) return false;
  replaceByUser(caret_, std::max(selectionLength_, 1), "");
  return true;
}

char Control::accessKey() const {
  for (std::size_t i = 0; i + 1 < caption_.size(); ++i) {
    if (caption_[i] != '&') continue;
    if (caption_[i + 1] == '&') {
      ++i;  // "&&" stands for an ampersand
      continue;
    }
    return static_cast<char>(std::toupper(static_cast<unsigned char>(caption_[i + 1])));
  }
  return 0;
}

}  // namespace veridraw
