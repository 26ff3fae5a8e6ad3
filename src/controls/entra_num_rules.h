// The rules of the numeric entry field EntraNum, apart from any widget: how
// the typed plain number (with "." as its point) is shown, which keys the
// field lets through, and how a disabled field lightens its colour.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace tamrix {

// The shown form of a plain number on the mask "000.000.000.000.000,000000":
// thousands points, a decimal comma, `casas` decimals at least (further
// decimals stay when they aren't zero), "-" kept and "+" dropped. A number
// that does not fit the mask (more than 15 integer or 6 decimal figures)
// gives the empty text.
std::string Formata(std::string_view plain, int casas);

// The shown form with the regional signs in place of the mask's "." and ",".
std::string RegionalForm(std::string_view masked, char decimalSign, char groupingSign);

// The figures after the first "." of a text; 0 without a ".".
int QCAP(std::string_view text);

// The typed key let through, or 0: a "," comes out as ".". `caret` is the
// caret's position in the text.
int CampoNumerico(std::string_view text, std::size_t caret, int key, int casas);

// The class of a colour's strongest channels, 0 to 6.
int Maior(int red, int green, int blue);
// Raises the weaker channels of `colour` (red in the low byte) by `inc`,
// each only while it stays below `corMax`.
std::int32_t Clareia(std::int32_t colour, int inc, int corMax);

// The plain text that the field is given for a number: "." as its point,
// at most 6 decimals, no trailing zeros.
std::string PlainNumber(double value);

}  // namespace tamrix
