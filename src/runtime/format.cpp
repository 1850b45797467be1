#include "runtime/format.h"

#include <array>
#include <cmath>
#include <optional>

#include "base/letter_case.h"
#include "runtime/conversions.h"
#include "runtime/date_format.h"
#include "runtime/errors.h"
#include "runtime/locale.h"
#include "runtime/number_format.h"
#include "runtime/string_format.h"

namespace qrn {

class CompiledFormat::Formatter {
 public:
  virtual ~Formatter() = default;
  virtual std::string apply(const Variant& value) const = 0;
};

namespace {

using Formatter = CompiledFormat::Formatter;
using FormatterPtr = std::shared_ptr<const Formatter>;
using Type = Variant::Type;

bool isNothing(const Variant& value) { return value.isNull() || value.isEmpty(); }

// Nothing if the value is a text that makes no such value; it is shown as it stands. Any other failure is
// one.
template <class Result>
std::optional<Result> converted(const Variant& value, Result (*convert)(const Variant&)) {
  try {
    return convert(value);
  } catch (const RunTimeError& error) {
    if (!value.isString() || error.number() != kTypeMismatch) throw;
    return std::nullopt;
  }
}

class NumberFormatter final : public Formatter {
 public:
  explicit NumberFormatter(std::string_view pattern) : format_(pattern) {}

  std::string apply(const Variant& value) const override {
    const Locale& locale = currentLocale();
    switch (value.type()) {
      case Type::Double: return format_.apply(*value.get<double>(), locale);
      case Type::Decimal: return format_.apply(*value.get<Decimal>(), locale);
      case Type::Currency: return format_.apply(*value.get<Currency>(), locale);
      case Type::Empty:
      case Type::Null: return format_.applyNothing(locale);
      default: break;
    }
    const std::optional<double> number = converted(value, CDbl);
    return number ? format_.apply(*number, locale) : CStr(value);
  }

 private:
  NumberFormat format_;
};

class DateFormatter final : public Formatter {
 public:
  explicit DateFormatter(std::string_view pattern) : format_(pattern) {}

  std::string apply(const Variant& value) const override {
    if (isNothing(value)) return {};
    if (const double* number = value.get<double>(); number && !std::isfinite(*number)) return CStr(*number);
    const std::optional<Date> date = converted(value, CDate);
    return date ? format_.apply(*date, currentLocale()) : CStr(value);
  }

 private:
  DateFormat format_;
};

class StringFormatter final : public Formatter {
 public:
  explicit StringFormatter(std::string_view pattern) : format_(pattern) {}

  std::string apply(const Variant& value) const override {
    return format_.apply(isNothing(value) ? std::string() : CStr(value));
  }

 private:
  StringFormat format_;
};

// The empty pattern.
class GeneralFormatter final : public Formatter {
 public:
  std::string apply(const Variant& value) const override {
    return isNothing(value) ? std::string() : CStr(value);
  }
};

class GeneralNumberFormatter final : public Formatter {
 public:
  std::string apply(const Variant& value) const override {
    if (isNothing(value)) return {};
    switch (value.type()) {
      case Type::Boolean:
      case Type::Date: return CStr(CDbl(value));
      case Type::String: return isNumeric(value) ? CStr(CDbl(value)) : CStr(value);
      default: return CStr(value);
    }
  }
};

// Two words of the locale, for what is not zero and for what is.
class WordFormatter final : public Formatter {
 public:
  using Word = std::string Locale::*;
  WordFormatter(Word nonZero, Word zero) : nonZero_(nonZero), zero_(zero) {}

  std::string apply(const Variant& value) const override {
    if (isNothing(value)) return {};
    const std::optional<bool> truth = converted(value, CBool);
    return truth ? currentLocale().*(*truth ? nonZero_ : zero_) : CStr(value);
  }

 private:
  Word nonZero_;
  Word zero_;
};

// The pattern is the locale's, so it is read anew each time.
template <class Patterned>
class LocalFormatter final : public Formatter {
 public:
  using Pattern = std::string Locale::*;
  explicit LocalFormatter(Pattern pattern) : pattern_(pattern) {}

  std::string apply(const Variant& value) const override {
    return Patterned(currentLocale().*pattern_).apply(value);
  }

 private:
  Pattern pattern_;
};

struct NamedFormat {
  std::string_view name;
  FormatterPtr (*make)();
};

FormatterPtr number(std::string_view pattern) { return std::make_shared<NumberFormatter>(pattern); }
FormatterPtr date(std::string_view pattern) { return std::make_shared<DateFormatter>(pattern); }
FormatterPtr words(WordFormatter::Word nonZero, WordFormatter::Word zero) {
  return std::make_shared<WordFormatter>(nonZero, zero);
}
template <class Patterned>
FormatterPtr local(std::string Locale::*pattern) {
  return std::make_shared<LocalFormatter<Patterned>>(pattern);
}

constexpr std::array kNamedFormats = {
    NamedFormat{"General Number", [] { return FormatterPtr(std::make_shared<GeneralNumberFormatter>()); }},
    NamedFormat{"Currency", [] { return local<NumberFormatter>(&Locale::currencyPattern); }},
    NamedFormat{"Fixed", [] { return number("0.00"); }},
    NamedFormat{"Standard", [] { return number("#,##0.00"); }},
    NamedFormat{"Percent", [] { return number("0.00%"); }},
    NamedFormat{"Scientific", [] { return number("0.00E+00"); }},
    NamedFormat{"Yes/No", [] { return words(&Locale::yesText, &Locale::noText); }},
    NamedFormat{"True/False", [] { return words(&Locale::trueText, &Locale::falseText); }},
    NamedFormat{"On/Off", [] { return words(&Locale::onText, &Locale::offText); }},
    NamedFormat{"General Date", [] { return date("c"); }},
    NamedFormat{"Long Date", [] { return local<DateFormatter>(&Locale::longDatePattern); }},
    NamedFormat{"Medium Date", [] { return date("dd-mmm-yy"); }},
    NamedFormat{"Short Date", [] { return local<DateFormatter>(&Locale::shortDatePattern); }},
    NamedFormat{"Long Time", [] { return local<DateFormatter>(&Locale::longTimePattern); }},
    NamedFormat{"Medium Time", [] { return date("hh:nn AM/PM"); }},
    NamedFormat{"Short Time", [] { return date("hh:nn"); }},
};

FormatterPtr namedFormatter(std::string_view pattern) {
  for (const NamedFormat& format : kNamedFormats) {
    if (sameLetters(format.name, pattern)) return format.make();
  }
  return nullptr;
}

// Decided by the first part that says it. A pattern of nothing but literals, points and commas is one for
// numbers.
FormatterPtr patternFormatter(std::string_view pattern) {
  for (PatternReader reader(pattern); !reader.atEnd(); reader.next()) {
    if (NumberSection::startsWithNumberPart(reader)) break;
    if (DateFormat::startsWithDatePart(reader)) return std::make_shared<DateFormatter>(pattern);
    if (StringFormat::startsWithTextPart(reader)) return std::make_shared<StringFormatter>(pattern);
  }
  return std::make_shared<NumberFormatter>(pattern);
}

FormatterPtr formatterFor(std::string_view pattern) {
  if (pattern.empty()) return std::make_shared<GeneralFormatter>();
  FormatterPtr named = namedFormatter(pattern);
  return named ? named : patternFormatter(pattern);
}

// Thousands of values are shown with a handful of patterns: the last few that were read are kept.
FormatterPtr sharedFormatter(std::string_view pattern) {
  struct Known {
    std::string pattern;
    FormatterPtr formatter;
  };
  thread_local std::array<Known, 8> known;
  thread_local std::size_t oldest = 0;
  for (const Known& one : known) {
    if (one.formatter && one.pattern == pattern) return one.formatter;
  }
  constexpr std::size_t kLongest = 100;
  if (pattern.size() > kLongest) return formatterFor(pattern);
  Known& replaced = known[oldest];
  replaced = {std::string(pattern), formatterFor(pattern)};
  oldest = (oldest + 1) % known.size();
  return replaced.formatter;
}

}  // namespace

CompiledFormat::CompiledFormat(std::string_view pattern) : formatter_(sharedFormatter(pattern)) {}

std::string CompiledFormat::apply(const Variant& value) const { return formatter_->apply(value); }

std::string Format(const Variant& value, std::string_view pattern) {
  return CompiledFormat(pattern).apply(value);
}

}  // namespace qrn
