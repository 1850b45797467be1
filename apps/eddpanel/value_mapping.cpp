#include "value_mapping.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

#include "base/text.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/val.h"
#include "values/bit_string.h"

namespace qrn::eddpanel {
namespace {

using edd::ValueKind;
using edd::Variable;

constexpr std::pair<std::string_view, std::string_view> kOffAndOn[] = {
    {"Off", "On"},  {"No", "Yes"}, {"Disabled", "Enabled"},     {"Aus", "Ein"},
    {"Nein", "Ja"}, {"Aus", "An"}, {"Gesperrt", "Freigegeben"},
};

bool isOffAndOn(const Variable& variable) {
  const auto& e = variable.enumerators;
  if (variable.type.kind != ValueKind::Enumerated || e.size() != 2 || e[0].value != 0 || e[1].value != 1)
    return false;
  return std::any_of(std::begin(kOffAndOn), std::end(kOffAndOn), [&](const auto& pair) {
    return text::sameName(e[0].text, pair.first) && text::sameName(e[1].text, pair.second);
  });
}

bool isDateLike(ValueKind kind) {
  return kind == ValueKind::Date || kind == ValueKind::Time || kind == ValueKind::DateAndTime ||
         kind == ValueKind::Duration || kind == ValueKind::TimeValue;
}

// The conversion letter of a display format, and how many decimals it asks for.
struct DisplayFormat {
  char letter = 0;
  int decimals = 0;
};

DisplayFormat displayFormatOf(const Variable& variable) {
  const std::string_view format = text::trimmed(variable.displayFormat);
  DisplayFormat result;
  if (format.empty()) return result;
  result.letter = format.back();
  result.decimals = result.letter == 'f' || result.letter == 'e' || result.letter == 'E' ? 6 : 0;
  if (const auto point = format.find('.'); point != std::string_view::npos) {
    std::from_chars(format.data() + point + 1, format.data() + format.size(), result.decimals);
  }
  result.decimals = std::clamp(result.decimals, 0, 15);
  return result;
}

bool isHexadecimal(const Variable& variable) {
  const char letter = displayFormatOf(variable).letter;
  // Eight digits and more do not all fit into the row's signed number.
  return variable.type.isInteger() && (letter == 'x' || letter == 'X') && variable.type.size <= 2;
}

qrnValueType integerTypeOf(const Variable& variable) {
  if (isHexadecimal(variable)) return qrnTypeHexadecimal;
  const bool isSigned = variable.type.kind == ValueKind::Integer;
  if (variable.type.size <= 1 || (variable.type.size == 2 && isSigned)) return qrnTypeInteger;
  return variable.type.size <= 3 || (variable.type.size == 4 && isSigned) ? qrnTypeLong : qrnTypeDouble;
}

double numberOf(std::string_view written) {
  if (written.starts_with("0x") || written.starts_with("0X")) {
    std::uint64_t value = 0;
    std::from_chars(written.data() + 2, written.data() + written.size(), value, 16);
    return static_cast<double>(value);
  }
  return Val(written);
}

std::uint64_t bitsOf(const Variant& kept) {
  const double number = std::abs(CDbl(kept));
  return number < 0x1p63 ? static_cast<std::uint64_t>(number) : 0;
}

std::int32_t entryOf(const Variable& variable, const Variant& kept) {
  const auto& all = variable.enumerators;
  const std::uint64_t value = bitsOf(kept);
  const auto found = std::find_if(all.begin(), all.end(), [&](const auto& e) { return e.value == value; });
  return found == all.end() ? -1 : static_cast<std::int32_t>(found - all.begin());
}

std::string bitString(const Variable& variable, const Variant& kept) {
  std::string bits;
  const std::uint64_t value = bitsOf(kept);
  for (int i = 0; i < static_cast<int>(variable.enumerators.size()); ++i) {
    const std::uint64_t mask = variable.enumerators[static_cast<std::size_t>(i)].value;
    BitStringSet(bits, i, (value & mask) == mask && mask != 0);
  }
  return bits;
}

double valueOfBits(const Variable& variable, std::string_view bits) {
  std::uint64_t value = 0;
  for (int i = 0; i < static_cast<int>(variable.enumerators.size()); ++i) {
    if (BitStringGet(bits, i)) value |= variable.enumerators[static_cast<std::size_t>(i)].value;
  }
  return static_cast<double>(value);
}

}  // namespace

qrnValueType valueTypeOf(const Variable& variable) {
  if (isDateLike(variable.type.kind)) return qrnTypeDate;
  switch (variable.type.kind) {
    case ValueKind::Integer:
    case ValueKind::UnsignedInteger:
    case ValueKind::Index: return integerTypeOf(variable);
    case ValueKind::Float:
    case ValueKind::Double: return qrnTypeDouble;
    case ValueKind::Enumerated: return isOffAndOn(variable) ? qrnTypeBoolean : qrnTypeList;
    case ValueKind::BitEnumerated: return qrnTypeBitfield;
    default: return qrnTypeString;
  }
}

std::string valueFormatOf(const Variable& variable) {
  switch (variable.type.kind) {
    case ValueKind::Date: return "yyyy-mm-dd";
    case ValueKind::DateAndTime: return "yyyy-mm-dd hh:nn:ss";
    case ValueKind::Time:
    case ValueKind::TimeValue:
    case ValueKind::Duration: return "hh:nn:ss";
    default: break;
  }
  if (!variable.type.isReal()) return {};
  const DisplayFormat format = displayFormatOf(variable);
  const std::string digits =
      format.decimals > 0 ? "0." + std::string(static_cast<std::size_t>(format.decimals), '0') : "0";
  if (format.letter == 'f') return digits;
  if (format.letter == 'e' || format.letter == 'E') return digits + "E+00";
  return {};
}

std::string valueRuleOf(const Variable& variable) {
  if (!variable.type.isNumber() && !isDateLike(variable.type.kind)) return {};
  std::string rule;
  for (const edd::Range& range : variable.ranges) {
    // Written out as plain numbers: a rule reads no hexadecimal of this kind.
    const auto limit = [](const auto& one) { return one ? CStr(Variant(one->value)) : std::string(); };
    if (!rule.empty()) rule += ';';
    rule += limit(range.minimum) + ".." + limit(range.maximum);
  }
  return rule;
}

Variant defaultOf(const Variable& variable) {
  const std::string written = variable.defaultValue.value_or(variable.initialValue.value_or(""));
  if (isDateLike(variable.type.kind)) {
    Date date;
    // A device without a date starts at the first day of its calendar.
    ignoringErrors([&] { date = CDate(Variant(written)); });
    return date;
  }
  if (variable.type.isNumber() || variable.type.isEnumeration() || variable.type.kind == ValueKind::Index) {
    return numberOf(written);
  }
  return written;
}

Variant toRow(const Variable& variable, const Variant& kept) {
  switch (valueTypeOf(variable)) {
    case qrnTypeBoolean: return CDbl(kept) != 0;
    case qrnTypeList: return entryOf(variable, kept);
    case qrnTypeBitfield: return bitString(variable, kept);
    case qrnTypeInteger:
    case qrnTypeLong: {
      // Whole numbers show without a point; one that is too large for the row shows as it is.
      Variant whole = kept;
      ignoringErrors([&] { whole = CLng(kept); });
      return whole;
    }
    default: return kept;
  }
}

Variant fromRow(const Variable& variable, const Variant& shown) {
  switch (valueTypeOf(variable)) {
    case qrnTypeBoolean: return CBool(shown) ? 1.0 : 0.0;
    case qrnTypeList: {
      const std::int32_t entry = CLng(shown);
      const bool known = entry >= 0 && static_cast<std::size_t>(entry) < variable.enumerators.size();
      return known ? static_cast<double>(variable.enumerators[static_cast<std::size_t>(entry)].value) : 0.0;
    }
    case qrnTypeBitfield: return valueOfBits(variable, CStr(shown));
    case qrnTypeDate: return CDate(shown);
    case qrnTypeString: return CStr(shown);
    default: return CDbl(shown);
  }
}

}  // namespace qrn::eddpanel
