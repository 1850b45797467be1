#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace qrn::edd {

/// Where something was written: the file as it was named to the reader, lines counted from 1.
struct Place {
  std::string file;
  int line = 1;
};

/// A number or name of the identification line; `number` is 0 if a name was written.
struct IdentificationValue {
  std::string text;
  std::uint32_t number = 0;
};

struct Identification {
  IdentificationValue manufacturer;
  IdentificationValue deviceType;
  IdentificationValue deviceRevision;
  IdentificationValue ddRevision;
};

enum class VariableClass : std::uint8_t {
  Alarm,
  AnalogInput,
  AnalogOutput,
  Computation,
  Constant,
  Contained,
  Correction,
  Device,
  Diagnostic,
  DigitalInput,
  DigitalOutput,
  DiscreteInput,
  DiscreteOutput,
  Dynamic,
  FrequencyInput,
  FrequencyOutput,
  Hart,
  Input,
  Local,
  LocalDisplay,
  Mode,
  Operate,
  Optional,
  Output,
  Service,
  Specialist,
  Temporary,
  Tune
};

/// The classes of one variable: `CLASS CONTAINED & DYNAMIC`.
class VariableClasses {
 public:
  bool has(VariableClass wanted) const { return (bits_ & bit(wanted)) != 0; }
  void add(VariableClass added) { bits_ |= bit(added); }
  bool empty() const { return bits_ == 0; }

 private:
  static std::uint32_t bit(VariableClass of) { return std::uint32_t{1} << static_cast<unsigned>(of); }
  std::uint32_t bits_ = 0;
};

enum class ValueKind : std::uint8_t {
  Integer,
  UnsignedInteger,
  Float,
  Double,
  Enumerated,
  BitEnumerated,
  Index,
  Ascii,
  PackedAscii,
  Visible,
  Euc,
  Password,
  BitString,
  OctetString,
  Date,
  Time,
  DateAndTime,
  Duration,
  TimeValue
};

/// The keyword of the language, such as "UNSIGNED_INTEGER".
std::string_view keywordOf(ValueKind kind);

/// `size` counts bytes for numbers and enumerations, characters for texts, bits for BITSTRING;
/// dates and times that do not write one have 0.
struct ValueType {
  ValueKind kind = ValueKind::Integer;
  std::uint32_t size = 0;

  bool isInteger() const { return kind == ValueKind::Integer || kind == ValueKind::UnsignedInteger; }
  bool isReal() const { return kind == ValueKind::Float || kind == ValueKind::Double; }
  bool isNumber() const { return isInteger() || isReal(); }
  bool isEnumeration() const { return kind == ValueKind::Enumerated || kind == ValueKind::BitEnumerated; }
};

/// One entry of ENUMERATED, or one bit (or group of bits) of BIT_ENUMERATED.
struct Enumerator {
  std::uint64_t value = 0;
  std::string text;
  std::string help;
};

/// A limit as it was written and as a number.
struct Limit {
  std::string text;
  double value = 0;
};

/// MIN_VALUE and MAX_VALUE, or the n-th pair MIN_VALUEn and MAX_VALUEn. A value is good if any range holds
/// it.
struct Range {
  std::optional<Limit> minimum;
  std::optional<Limit> maximum;
};

/// Texts are UTF-8 in the language asked for. Empty texts were not given (a missing label is the name).
struct Variable {
  std::string name;
  std::string label;
  std::string help;
  std::string unit;
  VariableClasses classes;
  bool readable = true;
  bool writable = true;
  ValueType type;
  std::vector<Enumerator> enumerators;
  std::string displayFormat;
  std::string editFormat;
  std::vector<Range> ranges;
  std::optional<std::string> defaultValue;  ///< a number as written, or the text without quotes
  std::optional<std::string> initialValue;
  Place where;

  bool isDynamic() const { return classes.has(VariableClass::Dynamic); }
};

enum class ItemKind : std::uint8_t { Variable, Menu, Method };

/// One line of a menu. `index` counts in Description::variables(), menus() or methods(), as `kind` says.
struct MenuItem {
  ItemKind kind = ItemKind::Variable;
  std::string name;
  std::size_t index = 0;
  bool readOnly = false;
  int line = 1;
};

struct Menu {
  std::string name;
  std::string label;
  std::string help;
  bool isDialog = false;  ///< STYLE DIALOG
  std::vector<MenuItem> items;
  Place where;
};

struct Method {
  std::string name;
  std::string label;
  std::string help;
  Place where;
};

/// Something that was skipped or looks wrong, but leaves the description usable.
struct Diagnostic {
  std::string file;
  int line = 1;
  std::string text;
};

/// What a user interface needs of a device description, in the order in which it was declared.
/// Names are unique over all kinds; menus contain no cycle and nest at most `maximumMenuDepth` levels.
class Description {
 public:
  static constexpr int maximumMenuDepth = 64;

  struct Entry {
    ItemKind kind;
    std::size_t index;
  };

  Identification identification;
  std::vector<Diagnostic> warnings;

  const std::vector<Variable>& variables() const { return variables_; }
  const std::vector<Menu>& menus() const { return menus_; }
  const std::vector<Method>& methods() const { return methods_; }

  /// Lookups by name, in constant time; null or empty if there is none.
  std::optional<Entry> find(std::string_view name) const;
  const Variable* variable(std::string_view name) const;
  const Menu* menu(std::string_view name) const;
  const Method* method(std::string_view name) const;

  /// Where `entry` was declared.
  const Place& placeOf(Entry entry) const;

  /// The menus that no other menu contains.
  std::vector<const Menu*> rootMenus() const;

  /// Each returns false, and adds nothing, if the name is taken.
  bool add(Variable added);
  bool add(Menu added);
  bool add(Method added);

  /// For the reader, which finds out what an item is only after everything is declared.
  std::vector<MenuItem>& itemsOfMenu(std::size_t index) { return menus_[index].items; }

 private:
  struct Hash {
    using is_transparent = void;
    std::size_t operator()(std::string_view text) const { return std::hash<std::string_view>{}(text); }
  };

  template <class T>
  bool add(std::vector<T>& list, T&& added, ItemKind kind);

  std::vector<Variable> variables_;
  std::vector<Menu> menus_;
  std::vector<Method> methods_;
  std::unordered_map<std::string, Entry, Hash, std::equal_to<>> entries_;
};

}  // namespace qrn::edd
