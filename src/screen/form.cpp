#include "screen/form.h"

#include <algorithm>
#include <stdexcept>

#include "screen/application.h"
#include "screen/fatal.h"

namespace veridraw {

Form::Form(Application& application, FormDesign design)
    : application_(application),
      name_(design.name),
      ownDesign_(std::make_unique<const FormDesign>(std::move(design))),
      design_(ownDesign_.get()) {}

Form::Form(Application& application, std::string name, DesignSource source)
    : application_(application), name_(std::move(name)), designSource_(source) {}

const FormDesign& Form::design() const {
  if (design_ == nullptr) {
    const FormDesign& made = designSource_();
    if (made.name != name_) throw std::logic_error(name_ + " has the design table of " + made.name);
    design_ = &made;
  }
  return *design_;
}

Form::~Form() = default;

void Form::load() {
  controls_.clear();
  byName_.clear();
  focus_ = nullptr;
  for (const ControlDesign& design : design().controls) {
    controls_.push_back(std::make_unique<Control>(*this, design));
    NamedControls& named = byName_[design.name];
    if (design.index == kNotInArray) {
      named.single = controls_.back().get();
    } else if (design.index >= 0) {
      const auto element = static_cast<std::size_t>(design.index);
      if (named.elements.size() <= element) named.elements.resize(element + 1, nullptr);
      named.elements[element] = controls_.back().get();
    }
  }
  // Explicit tab indices first, the rest after them in the order of the table.
  std::vector<std::pair<int, Control*>> order;
  const int afterExplicit = static_cast<int>(controls_.size());
  for (std::size_t i = 0; i < controls_.size(); ++i) {
    const int designed = design().controls[i].tabIndex;
    order.emplace_back(designed == kDefault ? afterExplicit + static_cast<int>(i) : designed,
                       controls_[i].get());
  }
  std::stable_sort(order.begin(), order.end(),
                   [](const auto& a, const auto& b) { return a.first < b.first; });
  for (std::size_t i = 0; i < order.size(); ++i)
    order[i].second->setTabIndex(static_cast<int>(i));

  loaded_ = true;
  ++generation_;
  application_.runHandler([this] { Form_Load(); });
}

void Form::destroyControls(std::vector<std::unique_ptr<Control>>& graveyard) {
  for (auto& control : controls_)
    graveyard.push_back(std::move(control));
  controls_.clear();
  byName_.clear();
  focus_ = nullptr;
  loaded_ = false;
}

const Form::NamedControls* Form::named(std::string_view name) const {
  const auto entry = byName_.find(name);
  return entry == byName_.end() ? nullptr : &entry->second;
}

Control* Form::find(std::string_view name, int index) const {
  const NamedControls* controls = named(name);
  if (controls == nullptr) return nullptr;
  if (index == kNotInArray) return controls->single;
  if (index < 0 || static_cast<std::size_t>(index) >= controls->elements.size()) return nullptr;
  return controls->elements[static_cast<std::size_t>(index)];
}

bool Form::hasControlNamed(std::string_view name) const {
  return named(name) != nullptr;
}

Control& Form::control(std::string_view name) {
  if (Control* found = find(name)) return *found;
  throw std::logic_error(name_ + " has no control " + std::string(name));
}

Control& Form::control(std::string_view name, int index) {
  if (Control* found = find(name, index)) return *found;
  if (!hasControlNamed(name))
    throw std::logic_error(name_ + " has no control array " + std::string(name));
  raiseMissingElement(index);
}

std::vector<Control*> Form::tabOrder() const {
  std::vector<Control*> order;
  for (const auto& control : controls_)
    order.push_back(control.get());
  std::sort(order.begin(), order.end(),
            [](Control* a, Control* b) { return a->tabIndex() < b->tabIndex(); });
  return order;
}

void Form::on(const std::string& controlName, Event event, Handler handler) {
  handlers_[{controlName, event}] = std::move(handler);
}

void Form::on(const std::string& controlName, Event event, std::function<void()> handler) {
  handlers_[{controlName, event}] = [handler = std::move(handler)](int) { handler(); };
}

void Form::raise(Event event, Control& control) {
  const auto handler = handlers_.find({control.name(), event});
  if (handler == handlers_.end()) return;
  const int index = control.index();
  application_.runHandler([&handler, index] { handler->second(index); });
}

void Form::Show(std::string_view formName) {
  application_.show(application_.form(formName));
}
void Form::Unload() {
  application_.unload(*this);
}
void Form::End() {
  application_.end();
}

int Form::MsgBox(const std::string& prompt, int buttons, const std::string& title) {
  return application_.MsgBox(prompt, buttons, title);
}

std::string Form::InputBox(const std::string& prompt, const std::string& title,
                           const std::string& defaultText, int xpos, int ypos) {
  return application_.InputBox(prompt, title, defaultText, xpos, ypos);
}

SequentialFiles& Form::files() {
  return application_.files();
}

}  // namespace veridraw
