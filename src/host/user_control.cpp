#include "host/user_control.h"

#include <algorithm>

#include "base/text.h"
#include "host/class_table.h"
#include "host/prog_ids.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

// Pixels of one unit of each scale mode, at 96 pixels to the inch.
Point pixelsOf(std::int16_t scaleMode) {
  constexpr double kInch = 96;
  switch (scaleMode) {
    case 1: return {kInch / 1440, kInch / 1440};  // twips
    case 2: return {kInch / 72, kInch / 72};      // points
    case 4: return {kInch / 12, kInch / 6};       // characters of 120 by 240 twips
    case 5: return {kInch, kInch};                // inches
    case 6: return {kInch / 25.4, kInch / 25.4};  // millimetres
    case 7: return {kInch / 2.54, kInch / 2.54};  // centimetres
    case 8: return {kInch / 2540, kInch / 2540};  // hundredths of a millimetre
    default: return {1, 1};
  }
}

}  // namespace

UserControl::UserControl() = default;

UserControl::~UserControl() = default;

Controls& UserControl::controls() {
  if (!controls_) controls_ = std::make_unique<Controls>(*this);
  return *controls_;
}

Input& UserControl::input() {
  if (Container()) return root().input();
  if (!input_) input_ = std::make_unique<Input>(*this);
  return *input_;
}

Point UserControl::pixelsPerUnit() const { return pixelsOf(scaleMode_); }

FontMetrics& UserControl::fontMetrics() const {
  if (!metrics_) metrics_ = &platform().metrics(*font_);
  return *metrics_;
}

double UserControl::TextWidth(std::string_view text) const {
  return fontMetrics().advance(text) / pixelsPerUnit().x;
}

double UserControl::TextHeight(std::string_view) const { return fontMetrics().height() / pixelsPerUnit().y; }

Ambient UserControl::ambient() const { return {userMode(), font_, backColor_, foreColor_}; }

void UserControl::initProperties() {
  if (const UserControl* around = Parent()) {
    backColor_ = around->backColor_;
    foreColor_ = around->foreColor_;
    return;
  }
  const Ambient ambient = site_->ambient();
  backColor_ = ambient.backColor;
  foreColor_ = ambient.foreColor;
}

void UserControl::readProperties(const PropertyBag& bag) { restoreProperties(*this, bag); }

void UserControl::writeProperties(PropertyBag& bag) const { saveProperties(*this, bag); }

std::intptr_t UserControl::windowMessage(const Message& message) {
  return message.number == wm::GetDlgCode ? dlgc::WantAllKeys : ContainerControl::windowMessage(message);
}

bool UserControl::tellSite(std::string_view key) {
  const WeakRef<Control> self(this);
  site_->propertyChanged(*this, key);
  return static_cast<bool>(self);
}

void UserControl::setFont(FontPtr font) {
  font_ = font ? std::move(font) : platform().defaultFont();
  metrics_ = nullptr;
  // By index: a part may add another one when it is arranged.
  for (std::size_t i = 0; i < inside().size(); ++i) {
    if (inside()[i]->Parent() == this) inside()[i]->fontChanged();
  }
  invalidate();
}

void UserControl::setBackColor(Color color) {
  backColor_ = color;
  invalidate();
}

void UserControl::setForeColor(Color color) {
  foreColor_ = color;
  invalidate();
}

void UserControl::moved(const Rect& before, const Rect& now) {
  if (running_ && before.size() != now.size()) resize();
}

void UserControl::visibilityChanged() {
  if (!running_) return;
  if (Visible())
    show();
  else
    hide();
}

// What a container hears of the focus of its controls, by name only.
void UserControl::gotFocus() { raiseByName("GotFocus", {}); }

void UserControl::lostFocus() { raiseByName("LostFocus", {}); }

void LifeCycle::start(UserControl& control, Site& site, const PropertyBag* bag) {
  control.site_ = &site;
  const Ambient ambient = site.ambient();
  control.font_ = ambient.font ? ambient.font : site.platform().defaultFont();
  control.alive_ = true;
  control.initialize();
  if (bag)
    control.readProperties(*bag);
  else
    control.initProperties();
  enter(control);
}

// What a control did to its own size and visibility before counts now, and once.
void LifeCycle::enter(UserControl& control) {
  control.running_ = true;
  control.resize();
  if (control.Visible()) control.show();
}

void LifeCycle::startChild(Control& control, UserControl& parent, const std::string& name,
                           ContainerControl& container) {
  UserControl* user = control.asUserControl();
  if (!user) {
    container.put(control, parent, name);
    return;
  }
  user->site_ = &parent;
  user->font_ = parent.font();
  user->metrics_ = &parent.fontMetrics();
  user->alive_ = true;
  user->initialize();
  container.put(control, parent, name);
  user->initProperties();
  enter(*user);
}

void LifeCycle::end(Control& control) {
  UserControl* user = control.asUserControl();
  if (!user) return;
  user->unarranged_ = false;  // nobody will look at it any more
  if (user->alive_) user->terminate();
  user->alive_ = user->running_ = false;
  if (user->controls_) user->controls_->clear();
}

void Destroyer::operator()(Control* control) const {
  LifeCycle::end(*control);
  delete control;
}

Control& Controls::add(std::string_view progId, std::string_view name, ContainerControl& container) {
  return add(createByProgId(progId), name, container);
}

Control& Controls::add(Owned<Control> control, std::string_view name, ContainerControl& container) {
  Control& added = *control;
  const auto* entry = ownPart(name) ? nullptr : list_.addNew(std::string(name), std::move(control));
  if (!entry) raiseRunTimeError(kControlNameUsed, owner_.typeName());
  const WeakRef<Control> guard(&added);
  try {
    LifeCycle::startChild(added, owner_, entry->key, container);
  } catch (...) {
    if (guard && find(name) == &added) remove(name);
    throw;
  }
  if (guard) added.invalidate();
  return added;
}

// The parts that the owner was built with bear names too, but are not in the collection.
bool Controls::ownPart(std::string_view name) const {
  const auto& parts = owner_.inside();
  return std::any_of(parts.begin(), parts.end(),
                     [&](const Control* c) { return text::sameName(c->Name(), name); });
}

void Controls::remove(std::string_view name) {
  const auto* entry = list_.find(name);
  if (!entry) raiseRunTimeError(kControlNotFound, owner_.typeName());
  const WeakRef<Control> owner(&owner_);
  const std::string gone = end(entry->position);  // the name given may have been the control's own
  if (owner) owner_.controlRemoved(gone);
}

std::string Controls::end(std::int32_t position) {
  auto gone = list_.takeEntry(position);
  gone.value->setName(gone.key);
  gone.value.reset();
  return std::move(gone.key);
}

Control* Controls::find(std::string_view name) const {
  const auto* entry = list_.find(name);
  return entry ? entry->value.get() : nullptr;
}

void Controls::clear() {
  while (list_.count() > 0) end(list_.count());
}

}  // namespace qrn::host
