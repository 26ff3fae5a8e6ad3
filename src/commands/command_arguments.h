// The handler side of the argument protocol: the raw text split into parts,
// each turned into a value on demand.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "core/dispatcher.h"
#include "core/value.h"

namespace tamrix {

class CommandArguments {
 public:
  // Splits the call's argument text into at most `capacity` parts.
  CommandArguments(CommandCall& call, std::size_t capacity, bool splitAtEquals = false);

  std::size_t Count() const { return parts_.size(); }
  const std::string& Raw(std::size_t i) const { return parts_[i]; }
  // The parts before the first empty one.
  std::size_t UsedCount() const;

  Value Number(std::size_t i);     // through the numeric evaluator
  std::string Text(std::size_t i);  // through the text evaluator

 private:
  Interpreter& interpreter_;
  bool numericFlag_ = false;
  std::vector<std::string> parts_;
};

// A String result travels between double quotes.
inline std::string Quoted(const std::string& text) { return "\"" + text + "\""; }

}  // namespace tamrix
