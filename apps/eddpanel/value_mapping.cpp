#include "value_mapping.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <utility>

#include "base/text.h"
#include "runtime/conversions.h"
#include "runtime/errors.h"
#include "runtime/rounding.h"
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

// As the reader of descriptions takes it: decimal, 0x or 0b, each with a sign.
double numberOf(std::string_view written) {
  const bool negative = written.starts_with('-');
  const std::string_view digits = written.substr(negative || written.starts_with('+') ? 1 : 0);
  const std::string start = text::lowered(digits.substr(0, 2));
  if (start != "0x" && start != "0b") return Val(written);
  std::uint64_t value = 0;
  std::from_chars(digits.data() + 2, digits.data() + digits.size(), value, start == "0x" ? 16 : 2);
  return negative ? -static_cast<double>(value) : static_cast<double>(value);
}

// A rule has its numbers with a point, wherever it is read.
std::string inRule(double limit) {
  char written[32];
  return {written, std::to_chars(written, written + sizeof written, limit).ptr};
}

// What fits into a whole number of so many bytes.
std::string rangeOf(const edd::ValueType& type) {
  const int bits = 8 * static_cast<int>(std::clamp<std::uint32_t>(type.size, 1, 8));
  if (type.kind == ValueKind::UnsignedInteger) return "0.." + inRule(std::ldexp(1.0, bits) - 1);
  return inRule(-std::ldexp(1.0, bits - 1)) + ".." + inRule(std::ldexp(1.0, bits - 1) - 1);
}

std::uint64_t bitsOf(const Variant& kept) {
  const double number = std::abs(CDbl(kept));
  return number < 0x1p64 ? static_cast<std::uint64_t>(number) : 0;
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

// Bits that the description does not name stay as the device has them.
double valueOfBits(const Variable& variable, std::string_view bits, const Variant& kept) {
  std::uint64_t named = 0, value = 0;
  for (int i = 0; i < static_cast<int>(variable.enumerators.size()); ++i) {
    const std::uint64_t mask = variable.enumerators[static_cast<std::size_t>(i)].value;
    named |= mask;
    if (BitStringGet(bits, i)) value |= mask;
  }
  return static_cast<double>((bitsOf(kept) & ~named) | value);
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
    const auto limit = [](const auto& one) { return one ? inRule(one->value) : std::string(); };
    if (!rule.empty()) rule += ';';
    rule += limit(range.minimum) + ".." + limit(range.maximum);
  }
  // A negative number in hexadecimal has digits beyond its range.
  const bool isSigned = variable.type.kind == ValueKind::Integer;
  if (rule.empty() && variable.type.isInteger() && !(isSigned && isHexadecimal(variable)))
    return rangeOf(variable.type);
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

Variant fromRow(const Variable& variable, const Variant& shown, const Variant& kept) {
  switch (valueTypeOf(variable)) {
    case qrnTypeBoolean: return CBool(shown) ? 1.0 : 0.0;
    case qrnTypeList: {
      const std::int32_t entry = CLng(shown);
      const bool known = entry >= 0 && static_cast<std::size_t>(entry) < variable.enumerators.size();
      return known ? static_cast<double>(variable.enumerators[static_cast<std::size_t>(entry)].value) : 0.0;
    }
    case qrnTypeBitfield: return valueOfBits(variable, CStr(shown), kept);
    case qrnTypeDate: return CDate(shown);
    case qrnTypeString: return CStr(shown);
    default: return variable.type.isInteger() ? roundHalfEven(CDbl(shown)) : CDbl(shown);
  }
}

}  // namespace qrn::eddpanel
