// Reading the regional settings of a named locale from the C library.
#pragma once

#include <string>
#include <string_view>

#include "core/regional.h"

namespace tamrix {

enum class LocaleCategory { Numeric, Time, Monetary };

// Fills the fields of one category from the locale `name`; false, and
// nothing changed, when the system lacks that locale.
bool ApplyLocaleCategory(Regional& settings, LocaleCategory category, const std::string& name);

// A strftime form ("%d/%m/%Y") in Format's pattern language ("dd/mm/yyyy"):
// `separator` becomes `separatorToken`, other characters stand escaped, and
// "%r" takes `ampmForm`.
std::string PatternFromStrftime(std::string_view form, char separator, char separatorToken,
                                std::string_view ampmForm);

// The first character of a strftime form that is neither a directive, a
// letter, a digit nor a blank; `fallback` when there is none.
char SeparatorOf(std::string_view form, char fallback);

}  // namespace tamrix
