#include <utility>

#include "edd/parser.h"
#include "edd/type_parser.h"

namespace qrn::edd {

namespace {

struct NamedClass {
  std::string_view keyword;
  VariableClass meaning;
};

constexpr NamedClass classNames[] = {{"ALARM", VariableClass::Alarm},
                                     {"ANALOG_INPUT", VariableClass::AnalogInput},
                                     {"ANALOG_OUTPUT", VariableClass::AnalogOutput},
                                     {"COMPUTATION", VariableClass::Computation},
                                     {"CONSTANT", VariableClass::Constant},
                                     {"CONTAINED", VariableClass::Contained},
                                     {"CORRECTION", VariableClass::Correction},
                                     {"DEVICE", VariableClass::Device},
                                     {"DIAGNOSTIC", VariableClass::Diagnostic},
                                     {"DIGITAL_INPUT", VariableClass::DigitalInput},
                                     {"DIGITAL_OUTPUT", VariableClass::DigitalOutput},
                                     {"DISCRETE_INPUT", VariableClass::DiscreteInput},
                                     {"DISCRETE_OUTPUT", VariableClass::DiscreteOutput},
                                     {"DYNAMIC", VariableClass::Dynamic},
                                     {"FREQUENCY_INPUT", VariableClass::FrequencyInput},
                                     {"FREQUENCY_OUTPUT", VariableClass::FrequencyOutput},
                                     {"HART", VariableClass::Hart},
                                     {"INPUT", VariableClass::Input},
                                     {"LOCAL", VariableClass::Local},
                                     {"LOCAL_DISPLAY", VariableClass::LocalDisplay},
                                     {"MODE", VariableClass::Mode},
                                     {"OPERATE", VariableClass::Operate},
                                     {"OPTIONAL", VariableClass::Optional},
                                     {"OUTPUT", VariableClass::Output},
                                     {"SERVICE", VariableClass::Service},
                                     {"SPECIALIST", VariableClass::Specialist},
                                     {"TEMPORARY", VariableClass::Temporary},
                                     {"TUNE", VariableClass::Tune}};

// CONTAINED & DYNAMIC; a condition that stands there instead is skipped.
template <class Use>
void forEachName(Cursor& cursor, const Token& attribute, Use use) {
  if (cursor.peek().is("IF") || cursor.peek().is("SWITCH")) return skipValue(cursor, attribute);
  const std::string keyword(attribute.text);
  do {
    use(cursor.expectName("a name of " + keyword));
  } while (cursor.accept("&") || cursor.accept(","));
  cursor.expect(";", "after " + keyword);
}

void skipName(Cursor& cursor, const Token& attribute, const Token& name) {
  cursor.warnings().add(
      name, inQuotes(name.text) + " of " + std::string(attribute.text) + " is not known and skipped");
}

void parseClass(Cursor& cursor, const Token& attribute, Variable& variable) {
  forEachName(cursor, attribute, [&](const Token& name) {
    for (const NamedClass& named : classNames)
      if (name.is(named.keyword)) return variable.classes.add(named.meaning);
    skipName(cursor, attribute, name);
  });
}

void parseHandling(Cursor& cursor, const Token& attribute, Variable& variable) {
  bool read = false;
  bool write = false;
  forEachName(cursor, attribute, [&](const Token& name) {
    if (name.is("READ")) {
      read = true;
    } else if (name.is("WRITE")) {
      write = true;
    } else {
      skipName(cursor, attribute, name);
    }
  });
  if (!read && !write) return;
  variable.readable = read;
  variable.writable = write;
}

}  // namespace

Variable parseVariable(Cursor& cursor, const Token& name) {
  WrittenVariable written;
  written.name = name;
  written.variable = named<Variable>(name);
  bool hasType = false;
  forEachAttribute(cursor, name, "VARIABLE", [&](const Token& attribute) {
    if (parseCommonAttribute(cursor, attribute, written.variable)) return;
    if (attribute.is("CLASS")) {
      parseClass(cursor, attribute, written.variable);
    } else if (attribute.is("HANDLING")) {
      parseHandling(cursor, attribute, written.variable);
    } else if (attribute.is("CONSTANT_UNIT")) {
      parseText(cursor, attribute, written.variable.unit);
    } else if (attribute.is("TYPE")) {
      parseType(cursor, written);
      hasType = true;
    } else if (!parseValueAttribute(cursor, attribute, written)) {
      skipAttribute(cursor, attribute, "VARIABLE");
    }
  });
  if (!hasType) fail(name, "variable " + inQuotes(name.text) + " has no TYPE");
  return settled(std::move(written), cursor.warnings());
}

}  // namespace qrn::edd
