// The sixteen named patterns of Format ("Fixed", "Short Date", ...), each
// standing for a pattern of the pattern language or for a general form.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace tamrix {

enum class NamedForm {
  Pattern,        // `pattern` holds the pattern to apply
  GeneralNumber,  // the number's own text
  GeneralDate,    // the date's own text
};

struct NamedFormat {
  NamedForm form;
  std::string pattern;
};

// The named pattern, compared without regard to case; nullopt for any other
// text. Patterns that depend on the regional settings are made from the
// current ones.
std::optional<NamedFormat> FindNamedFormat(std::string_view name);

}  // namespace tamrix
