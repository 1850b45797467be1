#include "edd/written_variable.h"

#include <algorithm>
#include <unordered_set>
#include <utility>

#include "edd/utf8.h"

namespace qrn::edd {

namespace {

bool holdsText(ValueKind kind) {
  switch (kind) {
    case ValueKind::Ascii:
    case ValueKind::PackedAscii:
    case ValueKind::Visible:
    case ValueKind::Euc:
    case ValueKind::Password: return true;
    default: return false;
  }
}

bool holdsNumber(const ValueType& type) {
  return type.isNumber() || type.isEnumeration() || type.kind == ValueKind::Index;
}

std::string called(const WrittenValue& value, const Variable& variable) {
  return std::string(value.at.text) + " " + (value.number ? value.text : inQuotes(value.text)) +
         " of variable " + inQuotes(variable.name);
}

void requireFit(const WrittenValue& value, const Variable& variable) {
  const ValueType& type = variable.type;
  if (holdsNumber(type) && !value.number) fail(value.at, called(value, variable) + " is not a number");
  const bool isTooLong = holdsText(type.kind) && codePointCount(value.text) > type.size;
  if (isTooLong || (value.number && !fits(*value.number, type)))
    fail(value.at, called(value, variable) + " does not fit " + shown(type));
}

std::optional<Limit> limitOf(const std::optional<WrittenValue>& written, const Variable& variable) {
  if (!written) return std::nullopt;
  requireFit(*written, variable);
  return Limit{written->text, written->number->value};
}

void settleRanges(const WrittenVariable& written, Variable& variable, Warnings& warnings) {
  for (const auto& [number, range] : written.ranges) {
    const WrittenValue& first = range.minimum ? *range.minimum : *range.maximum;
    if (!variable.type.isNumber()) {
      warnings.add(first.at, std::string(first.at.text) + " of a variable that is no number is skipped");
      continue;
    }
    const Range settled{limitOf(range.minimum, variable), limitOf(range.maximum, variable)};
    if (settled.minimum && settled.maximum && settled.minimum->value > settled.maximum->value)
      fail(first.at, called(first, variable) + " is greater than " + std::string(range.maximum->at.text) +
                         " " + range.maximum->text);
    variable.ranges.push_back(settled);
  }
}

bool isAllowed(const Number& number, const Variable& variable) {
  const auto contains = [&number](const Range& range) {
    return (!range.minimum || number.value >= range.minimum->value) &&
           (!range.maximum || number.value <= range.maximum->value);
  };
  const auto& entries = variable.enumerators;
  switch (variable.type.kind) {
    case ValueKind::Enumerated:
      return std::any_of(entries.begin(), entries.end(),
                         [&number](const Enumerator& entry) { return entry.value == number.magnitude; });
    case ValueKind::BitEnumerated: {
      std::uint64_t known = 0;
      for (const Enumerator& entry : entries) known |= entry.value;
      return (number.magnitude & ~known) == 0;
    }
    default:
      return variable.ranges.empty() || std::any_of(variable.ranges.begin(), variable.ranges.end(), contains);
  }
}

std::optional<std::string> valueOf(const std::optional<WrittenValue>& written, const Variable& variable,
                                   Warnings& warnings) {
  if (!written) return std::nullopt;
  requireFit(*written, variable);
  if (written->number && !isAllowed(*written->number, variable))
    warnings.add(written->at, called(*written, variable) + " is not one of its values");
  return written->text;
}

void checkEnumerators(const Variable& variable, const Token& name, Warnings& warnings) {
  if (!variable.type.isEnumeration()) return;
  if (variable.enumerators.empty())
    warnings.add(name, "variable " + inQuotes(variable.name) + " lists no values");
  std::unordered_set<std::uint64_t> seen;
  for (const Enumerator& entry : variable.enumerators)
    if (!seen.insert(entry.value).second)
      warnings.add(name, "variable " + inQuotes(variable.name) + " lists the value " +
                             std::to_string(entry.value) + " twice");
}

}  // namespace

std::string shown(const ValueType& type) {
  const std::string keyword(keywordOf(type.kind));
  return type.isReal() || type.size == 0 ? keyword : keyword + "(" + std::to_string(type.size) + ")";
}

Variable settled(WrittenVariable written, Warnings& warnings) {
  Variable variable = std::move(written.variable);
  checkEnumerators(variable, written.name, warnings);
  settleRanges(written, variable, warnings);
  variable.defaultValue = valueOf(written.defaultValue, variable, warnings);
  variable.initialValue = valueOf(written.initialValue, variable, warnings);
  return variable;
}

}  // namespace qrn::edd
