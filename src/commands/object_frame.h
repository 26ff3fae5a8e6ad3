// The frame that all object commands share. A command either creates an
// object (no "." in its first element) or addresses one ("name.PROPERTY"),
// and each kind plugs in its create routine and a table of property words.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "commands/command_arguments.h"
#include "core/dispatcher.h"
#include "core/object_table.h"
#include "core/value.h"

namespace tamrix {

class Interpreter;

// Every object command splits its arguments into 11 parts, "=" apart.
inline constexpr std::size_t kObjectArgumentCount = 11;

// One object addressed by a property statement. The property's value, if it
// has one, stands from element 2 on (element 1 is the "=").
struct ObjectCall {
  Interpreter& interpreter;
  CommandArguments& args;
  ObjectKind kind;
  int index;

  ObjectEntry& Entry() const;
  ObjectControl& Control() const;
};

using PropertyHandler = Value (*)(ObjectCall&);

enum class PropertyMatch {
  Exact,           // the property name equals the word
  AnywhereInName,  // the word occurs anywhere in element 0, upper-cased
};

struct PropertyEntry {
  std::string_view word;  // ".CAPTION", with its dot
  PropertyHandler handler;
  PropertyMatch match = PropertyMatch::Exact;
};

struct ObjectCommand {
  ObjectKind kind;
  Value (*create)(Interpreter&, CommandArguments&);
  std::span<const PropertyEntry> properties;  // searched in this order
  // The words of the error box for a name not found; without them the
  // command ends silently.
  std::string (*missing)(std::string_view name) = nullptr;
};

// The dispatcher's handler for a kind: the create or property path, and any
// fault shown in the error box of the object commands (position, CR, words).
CommandHandler ObjectCommandHandler(const ObjectCommand& command);

// The upper-cased text from the first "." to the first blank, dot included.
std::string PropertyName(std::string_view element0);
// The entry named by the text before the first "." of element 0, or -1; a
// name starting with "$" stands for the String variable of that name.
int FindObject(Interpreter& interpreter, ObjectKind kind, std::string_view element0);
// Hides entry 0 or unloads any other, removes the value variables and frees
// the entry for reuse.
void RemoveObject(Interpreter& interpreter, ObjectKind kind, int index);
// "TRUE" or "FALSE" from the value's text, upper-cased; nothing for others.
enum class TruthValue { True, False, Other };
TruthValue ReadTruth(const Value& value);

// The steps of creating an object, for the kinds' create routines.
// Takes the first free entry or appends one, names it, loads its control on
// the current window (or on the main window and hands it over) and declares
// the kind's value variables. Returns the entry's index.
int CreateObject(Interpreter& interpreter, ObjectKind kind, const std::string& name);
// Makes the new object visible and gives it the next TabIndex, if its kind
// takes the focus.
void FinishObject(Interpreter& interpreter, ObjectKind kind, int index);
// A number of lines or columns in pixels.
int LinesToPixels(Interpreter& interpreter, const Value& lines);
int ColumnsToPixels(Interpreter& interpreter, const Value& columns);

}  // namespace tamrix
