#include "fuzz/property_bag_promises.h"

#include <optional>

#include "buttons/QRNMenuItem.h"
#include "display/QRNDisplay.h"
#include "host/class_table.h"
#include "host/property_bag.h"
#include "library/library.h"
#include "platform/headless/headless_platform.h"
#include "row/QRNEdit.h"
#include "runtime/errors.h"

namespace qrn::fuzz {
namespace {

using host::PropertyBag;

bool sameItems(const PropertyBag& a, const PropertyBag& b) {
  if (a.items().size() != b.items().size()) return false;
  for (std::size_t i = 0; i < a.items().size(); ++i) {
    const PropertyBag::Item &one = a.items()[i], &other = b.items()[i];
    if (one.key != other.key || one.value.type() != other.value.type()) return false;
    if (!host::sameValue(one.value, other.value)) return false;
  }
  return true;
}

std::string savedText(const host::UserControl& control) {
  PropertyBag bag;
  control.writeProperties(bag);
  return bag.toText();
}

// Answers what was said when the bag was refused.
std::optional<RunTimeError> restored(host::UserControl& control, const PropertyBag& bag) {
  try {
    host::restoreProperties(control, bag);
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return error;
  }
}

// The control has been shown and looks like nothing that a bag is likely to hold.
std::string brokenBy(const PropertyBag& bag, host::UserControl& control,
                     const host::Owned<host::UserControl>& fresh) {
  const std::string name(control.typeName()), before = savedText(control);
  if (const auto refused = restored(control, bag)) {
    if (refused->number() != kInvalidFileFormat || !refused->description().starts_with("Property \""))
      return name + " refused a bag without naming the key: " + refused->description();
    if (savedText(control) != before) return name + " is changed by a bag that it refused";
    if (fresh) return name + " can be made from a bag but not restored from it: " + refused->description();
    return {};
  }
  if (!fresh) return name + " can be restored from a bag but not made from it";
  const std::string after = savedText(control);
  if (savedText(*fresh) != after)
    return name + " made from a bag is not what restoring from it gives:\n" + savedText(*fresh) + after;
  if (const auto refused = restored(*fresh, PropertyBag::fromText(after)))
    return name + " can't be restored from what it saved: " + refused->description();
  if (const auto refused = restored(control, PropertyBag()))
    return name + " can't be set back to its defaults: " + refused->description();
  return {};
}

template <class T>
std::string brokenBy(const PropertyBag& bag, host::Site& site, void (*change)(T&)) {
  host::Owned<host::UserControl> fresh;
  try {
    fresh = host::create<T>(site, &bag);
  } catch (const RunTimeError& error) {
    if (error.number() != kInvalidFileFormat) return "making a control: " + error.description();
  }
  const auto control = host::create<T>(site);
  change(*control);
  return brokenBy(bag, *control, fresh);
}

void changeRow(QRNEdit& row) {
  row.SetValueType(qrnTypeDouble);
  row.SetValueFormat("0.00");
  row.SetValue(Variant(7.5));
  row.SetLabelWidth(55);
  row.SetIcon1Column(3);
}

void changePanel(QRNDisplay& panel) {
  panel.SetTitle("Tank");
  panel.SetLeftMargin(11);
  panel.SetVerticalSpacing(3);
  panel.Items().AddParameter("Level", qrnTypeDouble);
}

void changeButton(QRNMenuItem& button) {
  button.SetCaption("Reset");
  button.SetMargin(3);
}

}  // namespace

std::string brokenBagPromise(std::string_view text) {
  PropertyBag bag;
  try {
    bag = PropertyBag::fromText(text, "fuzz.qrn");
  } catch (const RunTimeError& error) {
    if (error.number() != kInvalidFileFormat)
      return "the text was refused with another error: " + error.description();
    if (!error.description().starts_with("fuzz.qrn:"))
      return "the refusal does not say where: " + error.description();
    return {};
  }
  const std::string written = bag.toText();
  const PropertyBag again = PropertyBag::fromText(written);
  if (!sameItems(again, bag)) return "what was written reads as another bag:\n" + written;
  if (again.toText() != written) return "the same bag is written in two ways:\n" + written;

  registerControls();
  headless::HeadlessPlatform platform;
  headless::HeadlessSite site(platform);
  std::string broken = brokenBy<QRNEdit>(bag, site, changeRow);
  if (broken.empty()) broken = brokenBy<QRNDisplay>(bag, site, changePanel);
  if (broken.empty()) broken = brokenBy<QRNMenuItem>(bag, site, changeButton);
  return broken;
}

}  // namespace qrn::fuzz
