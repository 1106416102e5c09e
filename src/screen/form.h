// A form: one instance for the whole run. Its form-level variables are members
// of the derived class and live as long as the program; its controls are made
// from the design table at each Load and destroyed at Unload.
#pragma once

#include <cstddef>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

#include "screen/control.h"
#include "screen/design.h"

namespace veridraw {

class Application;
class SequentialFiles;

enum class Event { Click, Change };

inline constexpr const char* kFormCaption = "Veridraw";

struct FormDesign {
  std::string name;
  int clientWidth = 0;   // twips
  int clientHeight = 0;  // twips
  std::int32_t backColor = colors::kButtonFace;
  std::vector<ControlDesign> controls;
};

// Where a form finds its design table: a function that gives the same table
// at every call.
using DesignSource = const FormDesign& (*)();

// The design table that `build` makes, made at the first call and kept for the
// rest of the run: the program makes its forms anew at every start, and a
// design table never changes.
template <FormDesign (*build)()>
const FormDesign& designOnce() {
  static const FormDesign design = build();
  return design;
}

class Form {
 public:
  // A form with a design table of its own.
  Form(Application& application, FormDesign design);
  // A form named `name` whose table comes from `source` when it is first
  // needed, at the first Load or the first look at the design; a form that
  // is never shown never has its table made. The table must bear that name.
  Form(Application& application, std::string name, DesignSource source);
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;
  virtual ~Form();

  const std::string& name() const { return name_; }
  const FormDesign& design() const;
  Application& application() const { return application_; }

  bool loaded() const { return loaded_; }
  // Counts the loads, so that a face can tell a fresh set of controls.
  int generation() const { return generation_; }

  // The controls of one name: the control itself, or the elements of a control
  // array in a vector indexed by element (null where the array has a gap).
  struct NamedControls {
    Control* single = nullptr;
    std::vector<Control*> elements;
  };

  // A control by name; an element of a control array by name and index.
  // A missing element is fatal error 340.
  Control& control(std::string_view name);
  Control& control(std::string_view name, int index);
  Control* find(std::string_view name, int index = kNotInArray) const;
  bool hasControlNamed(std::string_view name) const;
  // The controls of that name in this Load, or null. Valid until the next Load
  // or Unload, which generation() and loaded() tell.
  const NamedControls* named(std::string_view name) const;
  const std::vector<std::unique_ptr<Control>>& controls() const { return controls_; }
  // The controls in the order of their TabIndex.
  std::vector<Control*> tabOrder() const;

  Control* focus() const { return focus_; }

  // Runs the handler of that control and event, if the form has one.
  void raise(Event event, Control& control);

 protected:
  using Handler = std::function<void(int index)>;
  void on(const std::string& controlName, Event event, Handler handler);
  void on(const std::string& controlName, Event event, std::function<void()> handler);

  virtual void Form_Load() {}

  // The platform operations, as the event procedures use them.
  void Show(std::string_view formName);
  void Unload();
  [[noreturn]] void End();
  int MsgBox(const std::string& prompt, int buttons, const std::string& title);
  std::string InputBox(const std::string& prompt, const std::string& title,
                       const std::string& defaultText, int xpos, int ypos);
  SequentialFiles& files();

 private:
  friend class Application;
  void load();
  void destroyControls(std::vector<std::unique_ptr<Control>>& graveyard);
  void setFocusPointer(Control* control) { focus_ = control; }

  Application& application_;
  std::string name_;
  std::unique_ptr<const FormDesign> ownDesign_;
  DesignSource designSource_ = nullptr;
  mutable const FormDesign* design_ = nullptr;
  bool loaded_ = false;
  int generation_ = 0;
  std::vector<std::unique_ptr<Control>> controls_;
  // Looked up by a string_view without making a string.
  struct NameHash {
    using is_transparent = void;
    std::size_t operator()(std::string_view name) const {
      return std::hash<std::string_view>{}(name);
    }
  };
  std::unordered_map<std::string, NamedControls, NameHash, std::equal_to<>> byName_;
  std::map<std::pair<std::string, Event>, Handler> handlers_;
  Control* focus_ = nullptr;
};

// A control of a form by name: `BtnYes->setVisible(false)`. The controls are
// made anew at each Load, so the name is resolved at the first use after a
// Load and kept until the form loads or unloads again.
class ControlRef {
 public:
  ControlRef(Form& form, std::string name) : form_(form), name_(std::move(name)) {}
  Control* operator->() const { return &get(); }
  Control& operator*() const { return get(); }

 private:
  Control& get() const {
    if (!form_.loaded() || generation_ != form_.generation()) {
      control_ = &form_.control(name_);
      generation_ = form_.generation();
    }
    return *control_;
  }

  Form& form_;
  std::string name_;
  mutable Control* control_ = nullptr;
  mutable int generation_ = 0;  // no Load has generation 0
};

// A control array of a form: `TxtDrawnNumbers(CellIndex).setText(" ")`. The
// array is resolved once a Load, like a ControlRef; a missing element stays
// fatal error 340.
class ControlArray {
 public:
  ControlArray(Form& form, std::string name) : form_(form), name_(std::move(name)) {}
  Control& operator()(int index) const {
    if (!form_.loaded() || generation_ != form_.generation()) {
      array_ = form_.named(name_);
      generation_ = form_.generation();
    }
    if (array_ != nullptr && index >= 0 &&
        static_cast<std::size_t>(index) < array_->elements.size()) {
      if (Control* element = array_->elements[static_cast<std::size_t>(index)]) return *element;
    }
    return form_.control(name_, index);
  }
  const std::string& name() const { return name_; }

 private:
  Form& form_;
  std::string name_;
  mutable const Form::NamedControls* array_ = nullptr;
  mutable int generation_ = 0;
};

}  // namespace veridraw
