#include "actions.h"
#include "stage.h"
#include "values.h"

namespace qrn::monkey {
namespace {

// What a step does to one parameter: tells it, does it, and answers whether nobody meddled meanwhile.
template <class Call>
bool toAParameter(Stage& stage, const std::shared_ptr<clsQRNParam>& parameter, const std::string& what,
                  const Call& call) {
  stage.note("parameter(", stage.items().GetIndexOf(Variant(parameter)), ").", what);
  call();
  return !stage.audience().meddledInThisStep();
}

void setValueType(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const qrnValueType type = anyValueType(numbers);
  const bool withLayout = numbers.oneIn(3);
  const std::string name = withLayout ? "SetDefaultLayout(" : "Control().SetValueType(";
  toAParameter(stage, parameter, name + std::to_string(type) + ")", [&] {
    if (withLayout)
      parameter->SetDefaultLayout(type);
    else
      parameter->Control().SetValueType(type);
  });
}

// A value that a host writes is an accepted one. Arrays always count as changed, and a hexadecimal row shows
// only the whole part of a number that it was given.
void checkUnchanged(Stage& stage, const clsQRNParam& parameter, bool written) {
  const QRNEdit& row = parameter.Control();
  if (!row.hasEditor() || (written && row.ValueType() == qrnTypeHexadecimal)) return;
  if (row.ValueChanged())
    stage.complain("a value that was written or accepted is not changed", quoted(row.ValueText()));
}

void setValue(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const Variant value = anyValue(numbers);
  const bool quiet = toAParameter(stage, parameter, "SetParamValue(" + shown(value) + ")",
                                  [&] { parameter->SetParamValue(value); });
  if (quiet) checkUnchanged(stage, *parameter, true);
}

void readValue(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const auto index = static_cast<std::int32_t>(numbers.below(5));
  toAParameter(stage, parameter, "ParamValue(), Control().ValueText(), ValueError(), ArrayValue()", [&] {
    static_cast<void>(parameter->ParamValue());
    static_cast<void>(parameter->Control().ValueText());
    static_cast<void>(parameter->Control().ValueError());
    static_cast<void>(parameter->ParamArrayValue(index));
  });
}

// What a row tells of its editor, whether that is a control already or not.
std::string toldOf(const QRNEdit& row) {
  std::string told = quoted(row.ValueText()) + ", error " + std::to_string(row.ValueError());
  told += row.ValueChanged() ? ", changed" : "";
  told += ", colour " + std::to_string(row.ValueForeColor()) + ", tip " + quoted(row.ValueToolTip());
  for (std::int32_t i = 0; i < row.ValueCount(); ++i)
    told += ", " + quoted(row.ValueNames(i)) + std::to_string(row.ValueItems(i));
  return told + ", " + std::to_string(row.GetMinValueWidth()) + " by " + std::to_string(row.GetMinHeight());
}

void lookAtEditor(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const QRNEdit& row = parameter->Control();
  std::string before, after;
  const host::Editor* editor = nullptr;
  toAParameter(stage, parameter, "Control().CurrentEditor()", [&] {
    before = toldOf(row);
    editor = row.CurrentEditor();
    after = toldOf(row);
  });
  if (before != after) stage.complain("a row looks the same when it is seen", before + " became " + after);
  if ((editor != nullptr) != row.hasEditor())
    stage.complain("a row has the editor that it says it has", std::to_string(row.ValueType()));
}

void acceptValue(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  const bool changed = numbers.oneIn(5);
  const bool quiet = toAParameter(stage, parameter, "Control().SetValueChanged(" + shown(changed) + ")",
                                  [&] { parameter->Control().SetValueChanged(changed); });
  if (quiet && !changed) checkUnchanged(stage, *parameter, false);
}

void setState(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  // One flag, or several.
  const std::uint32_t flags = numbers.oneIn(3) ? numbers.next() % 1024 : 1U << numbers.below(10);
  toAParameter(stage, parameter, "SetParamState(" + std::to_string(flags) + ")",
               [&] { parameter->SetParamState(static_cast<qrnParamState>(flags)); });
}

void setRules(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  QRNEdit& row = parameter->Control();
  const std::string rule = anyRule(numbers), charSet = anyCharSet(numbers), format = anyFormat(numbers);
  switch (numbers.below(3)) {
    case 0:
      toAParameter(stage, parameter, "Control().SetValueRule(" + quoted(rule) + ")",
                   [&] { row.SetValueRule(rule); });
      break;
    case 1:
      toAParameter(stage, parameter, "Control().SetValueCharSet(" + quoted(charSet) + ")",
                   [&] { row.SetValueCharSet(charSet); });
      break;
    default:
      toAParameter(stage, parameter, "Control().SetValueFormat(" + quoted(format) + ")",
                   [&] { row.SetValueFormat(format); });
  }
}

void setEntries(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  QRNEdit& row = parameter->Control();
  const auto count = static_cast<std::int16_t>(numbers.below(8));
  const auto index = static_cast<std::int32_t>(numbers.below(8));
  const std::string name = anyCaption(numbers), i = std::to_string(index);
  switch (numbers.below(3)) {
    case 0:
      toAParameter(stage, parameter, "Control().SetValueNames(" + i + ", " + quoted(name) + ")",
                   [&] { row.SetValueNames(index, name); });
      break;
    case 1:
      toAParameter(stage, parameter, "Control().SetValueItems(" + i + ", " + std::to_string(count) + ")",
                   [&] { row.SetValueItems(index, count); });
      break;
    default:
      toAParameter(stage, parameter, "Control().SetValueCount(" + std::to_string(count) + ")",
                   [&] { row.SetValueCount(count); });
  }
}

void setArray(Stage& stage, Numbers& numbers) {
  const auto parameter = stage.anyParameter(numbers);
  if (!parameter) return;
  QRNEdit& row = parameter->Control();
  const auto index = static_cast<std::int32_t>(numbers.below(7)) - 1;
  const qrnValueType type = anyValueType(numbers);
  const Variant value = anyValue(numbers);
  const std::string i = std::to_string(index);
  switch (numbers.below(5)) {
    case 0:
      toAParameter(stage, parameter, "Control().SetArraySize(" + i + ")", [&] { row.SetArraySize(index); });
      break;
    case 1:
      toAParameter(stage, parameter, "SetParamArrayValue(" + i + ", " + shown(value) + ")",
                   [&] { parameter->SetParamArrayValue(index, value); });
      break;
    case 2:
      toAParameter(stage, parameter, "Control().SetArrayType(" + std::to_string(type) + ")",
                   [&] { row.SetArrayType(type); });
      break;
    case 3:
      toAParameter(stage, parameter, "Control().SetCurrentArrayValueIndex(" + i + ")",
                   [&] { row.SetCurrentArrayValueIndex(index); });
      break;
    default:
      toAParameter(stage, parameter, "Control().SetCurrentArrayValue(" + shown(value) + ")",
                   [&] { row.SetCurrentArrayValue(value); });
  }
}

}  // namespace

void addValueCalls(Actions& to) {
  to.push_back({"SetValueType", 20, Actor::Host, setValueType});
  to.push_back({"SetValue", 40, Actor::Host, setValue});
  to.push_back({"ReadValue", 10, Actor::Host, readValue});
  to.push_back({"LookAtEditor", 10, Actor::Host, lookAtEditor});
  to.push_back({"AcceptValue", 20, Actor::Host, acceptValue});
  to.push_back({"SetState", 20, Actor::Host, setState});
  to.push_back({"SetRules", 15, Actor::Host, setRules});
  to.push_back({"SetEntries", 30, Actor::Host, setEntries});
  to.push_back({"SetArray", 12, Actor::Host, setArray});
}

}  // namespace qrn::monkey
