// A control of a form at run time: its properties, its list items and, for a
// text box, its caret. One class serves all kinds; what a kind lacks is a
// programming error to use.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "screen/design.h"

namespace veridraw {

class Form;

class Control {
 public:
  Control(Form& form, const ControlDesign& design);
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  Form& form() const { return form_; }
  const std::string& name() const { return name_; }
  int index() const { return index_; }
  bool isArrayElement() const { return index_ != kNotInArray; }
  ControlKind kind() const { return kind_; }
  // The row of the form's design table that the control was made from.
  const ControlDesign& design() const { return design_; }
  // "Name" or "Name(3)", as messages name it.
  std::string displayName() const;

  // Text of a text box (assigning a different value fires Change at once,
  // nested, and puts the caret at 0), or the selected item of a list box.
  // Read at every step of the walks of number entry: a reference, not a copy.
  const std::string& text() const {
    if (kind_ == ControlKind::TextBox) return text_;
    return listText();
  }
  void setText(const std::string& value);
  const std::string& caption() const { return caption_; }
  void setCaption(const std::string& value) { assign(caption_, value); }

  bool visible() const { return visible_; }
  // Hiding or disabling the control takes the focus away from it.
  void setVisible(bool value) {
    assign(visible_, value);
    if (!value) focusLeaves();
  }
  bool enabled() const { return enabled_; }
  void setEnabled(bool value) {
    assign(enabled_, value);
    if (!value) focusLeaves();
  }
  bool locked() const { return locked_; }
  void setLocked(bool value) { assign(locked_, value); }
  bool tabStop() const { return tabStop_; }
  void setTabStop(bool value) { assign(tabStop_, value); }
  int tabIndex() const { return tabIndex_; }
  void setTabIndex(int value) { assign(tabIndex_, value); }

  std::int32_t backColor() const { return backColor_; }
  void setBackColor(std::int32_t value) { assign(backColor_, value); }
  std::int32_t foreColor() const { return foreColor_; }
  void setForeColor(std::int32_t value) { assign(foreColor_, value); }
  double fontSize() const { return fontSize_; }
  void setFontSize(double value) { assign(fontSize_, value); }
  bool fontBold() const { return fontBold_; }
  void setFontBold(bool value) { assign(fontBold_, value); }
  int borderStyle() const { return borderStyle_; }
  void setBorderStyle(int value) { assign(borderStyle_, value); }

  int left() const { return left_; }
  void setLeft(int value) { assign(left_, value); }
  int top() const { return top_; }
  void setTop(int value) { assign(top_, value); }
  int width() const { return width_; }
  void setWidth(int value) { assign(width_, value); }
  int height() const { return height_; }
  void setHeight(int value) { assign(height_, value); }

  const std::string& toolTipText() const { return toolTip_; }
  Alignment alignment() const { return alignment_; }
  Picture picture() const { return picture_; }
  bool focusOnClick() const { return focusOnClick_; }

  // SetFocus: the control must be visible and enabled, or fatal error 5.
  void SetFocus();
  bool canTakeFocus() const {
    const bool focusable = kind_ == ControlKind::TextBox || kind_ == ControlKind::CommandButton ||
                           kind_ == ControlKind::ListBox;
    return focusable && visible_ && enabled_;
  }

  // List box.
  void AddItem(const std::string& item);
  void Clear();
  int listCount() const { return static_cast<int>(items_.size()); }
  const std::vector<std::string>& items() const { return items_; }
  int listIndex() const { return listIndex_; }
  void selectItem(int index);  // the user's selection; -1 for none
  int topIndex() const { return topIndex_; }
  void setTopIndex(int value);  // only scrolls
  int visibleRows() const;      // how many items the box shows at once, at least 1

  // Single-line editing by the user, at the caret; each returns whether the
  // text changed (and Change has run). A locked box refuses them all.
  int caret() const { return caret_; }
  int selectionLength() const { return selectionLength_; }
  void setCaret(int position);
  bool typeCharacter(char c);
  bool backspace();
  bool deleteForward();

  // The access key: the letter after "&" in the caption, upper-cased, or 0.
  char accessKey() const;

  // Counts the changes of what a face shows of the control: every setter that
  // changes a property, the text and caret, the list's items, selection and
  // scrolling. A face that keeps the count it last showed redraws only the
  // controls whose count has moved since.
  std::uint64_t revision() const { return revision_; }
  // Counts the changes of the text alone, by an assignment or by the user's
  // editing. It moves with revision() but not with the other properties
  // (Locked, Visible, the colours, the caret), so that whoever keeps what it
  // read of a text can tell whether the text may have changed since.
  std::uint64_t textRevision() const { return textRevision_; }

 private:
  // The text of a control that isn't a text box: a list box's selected item.
  const std::string& listText() const;
  void focusLeaves();
  void replaceByUser(int from, int count, const std::string& insert);
  void touch() { ++revision_; }
  void touchText() {
    ++revision_;
    ++textRevision_;
  }
  template <class T>
  void assign(T& field, const T& value) {
    if (field == value) return;
    field = value;
    touch();
  }

  Form& form_;
  const ControlDesign& design_;
  ControlKind kind_;
  std::string name_;
  int index_;
  std::string text_;
  std::string caption_;
  std::string toolTip_;
  bool visible_;
  bool enabled_;
  bool locked_;
  bool tabStop_;
  int tabIndex_ = 0;
  std::int32_t backColor_;
  std::int32_t foreColor_;
  double fontSize_;
  bool fontBold_;
  int borderStyle_;
  int left_, top_, width_, height_;
  Alignment alignment_;
  Picture picture_;
  bool focusOnClick_;
  std::vector<std::string> items_;
  int listIndex_ = -1;
  int topIndex_ = 0;
  int caret_ = 0;
  int selectionLength_ = 0;
  std::uint64_t revision_ = 0;
  std::uint64_t textRevision_ = 0;
};

}  // namespace veridraw
