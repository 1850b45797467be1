#include "host/prog_ids.h"

#include <array>

#include "base/text.h"
#include "host/check_box.h"
#include "host/combo_box.h"
#include "host/command_button.h"
#include "host/list_box.h"
#include "host/rich_text_box.h"
#include "host/text_box.h"
#include "host/timer.h"
#include "host/v_scroll_bar.h"
#include "runtime/errors.h"

namespace qrn::host {
namespace {

template <class T>
Owned<Control> make() {
  return Owned<Control>(new T);
}

constexpr ProgId kStandardClasses[] = {
    {"VB.TextBox", make<TextBox>},
    {"VB.CheckBox", make<CheckBox>},
    {"VB.ComboBox", make<ComboBox>},
    {"VB.ListBox", make<ListBox>},
    {"VB.VScrollBar", make<VScrollBar>},
    {"VB.Timer", make<Timer>},
    {"VB.CommandButton", make<CommandButton>},
    {"RICHTEXT.RichtextCtrl", make<RichTextBox>},
};

std::span<const ProgId> classesAbove;
thread_local std::array<const ProgId*, 32> lastFound{};

const ProgId* search(std::string_view progId) {
  for (const auto list : {std::span<const ProgId>(kStandardClasses), classesAbove}) {
    for (const ProgId& known : list) {
      if (text::sameName(known.name, progId)) return &known;
    }
  }
  return nullptr;
}

// A panel asks for the same few again and again, and most of their names differ in length.
const ProgId* find(std::string_view progId) {
  const ProgId*& last = lastFound[progId.size() % lastFound.size()];
  if (!last || !text::sameName(last->name, progId)) last = search(progId);
  return last;
}

}  // namespace

void setControlClasses(std::span<const ProgId> classes) {
  classesAbove = classes;
  lastFound.fill(nullptr);
}
std::span<const ProgId> controlClasses() { return classesAbove; }

Owned<Control> createByProgId(std::string_view progId) {
  const ProgId* known = find(progId);
  if (!known) raiseRunTimeError(kCannotCreateObject, progId);
  return known->create();
}

bool isControlClass(std::string_view progId) { return find(progId) != nullptr; }

}  // namespace qrn::host
