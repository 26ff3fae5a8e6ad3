#include "commands/format/number_format.h"

#include <cstdlib>
#include <vector>

#include "commands/format/decimal_digits.h"
#include "core/regional.h"

namespace tamrix {
namespace {

constexpr std::size_t kNone = std::string::npos;

bool IsPlace(const FormatToken& token) {
  return token.kind == TokenKind::DigitZero || token.kind == TokenKind::DigitHash;
}

// Where the parts of a number section lie and what they ask for.
struct Layout {
  std::size_t point = kNone;     // the token of the decimal point
  std::size_t exponent = kNone;  // the token of the exponent
  std::size_t wholeEnd = 0;      // the first token behind the whole part
  std::size_t fractionEnd = 0;   // the first token behind the fraction
  int wholePlaces = 0;
  int wholeMinimum = 0;  // places from the first "0" of the whole part on
  int fractionPlaces = 0;
  int fractionMinimum = 0;  // places up to the last "0" of the fraction
  int exponentMinimum = 0;
  int scalingCommas = 0;
  int percents = 0;
  bool grouping = false;
  std::vector<bool> silent;  // commas that group or scale print nothing
};

bool PlaceBetween(const FormatSection& section, std::size_t from, std::size_t to) {
  for (std::size_t i = from; i < to; ++i) {
    if (IsPlace(section[i])) return true;
  }
  return false;
}

Layout Analyse(const FormatSection& section) {
  Layout layout;
  layout.silent.assign(section.size(), false);
  for (std::size_t i = 0; i < section.size(); ++i) {
    const TokenKind kind = section[i].kind;
    if (kind == TokenKind::Exponent && layout.exponent == kNone) layout.exponent = i;
    if (kind == TokenKind::DecimalPoint && layout.point == kNone && layout.exponent == kNone) layout.point = i;
    if (kind == TokenKind::Percent) ++layout.percents;
  }
  layout.fractionEnd = layout.exponent == kNone ? section.size() : layout.exponent;
  layout.wholeEnd = layout.point == kNone ? layout.fractionEnd : layout.point;
  for (std::size_t i = 0; i < layout.wholeEnd; ++i) {
    const FormatToken& token = section[i];
    if (IsPlace(token)) {
      ++layout.wholePlaces;
      if (token.kind == TokenKind::DigitZero || layout.wholeMinimum > 0) ++layout.wholeMinimum;
    } else if (token.kind == TokenKind::Comma && PlaceBetween(section, 0, i)) {
      // Between places it groups; behind the last place it scales.
      if (PlaceBetween(section, i + 1, layout.wholeEnd)) {
        layout.grouping = true;
      } else {
        ++layout.scalingCommas;
      }
      layout.silent[i] = true;
    }
  }
  for (std::size_t i = layout.wholeEnd; i < layout.fractionEnd; ++i) {
    if (IsPlace(section[i])) {
      ++layout.fractionPlaces;
      if (section[i].kind == TokenKind::DigitZero) layout.fractionMinimum = layout.fractionPlaces;
    } else if (section[i].kind == TokenKind::Comma) {
      layout.silent[i] = true;
    }
  }
  for (std::size_t i = layout.fractionEnd; i < section.size(); ++i) {
    if (section[i].kind == TokenKind::DigitZero) ++layout.exponentMinimum;
  }
  return layout;
}

// Writes the whole digits with the grouping sign between groups of three.
class WholeWriter {
 public:
  WholeWriter(std::string digits, bool grouping) : digits_(std::move(digits)), grouping_(grouping) {}

  void Write(std::string& out, std::size_t position) const {
    out += digits_[position];
    const std::size_t fromRight = digits_.size() - 1 - position;
    if (grouping_ && fromRight > 0 && fromRight % 3 == 0) out += Regional::Current().groupingSign;
  }
  void WriteRange(std::string& out, std::size_t from, std::size_t to) const {
    for (std::size_t i = from; i < to; ++i) Write(out, i);
  }

 private:
  std::string digits_;
  bool grouping_;
};

std::string ExponentText(const FormatToken& token, int exponent, int minimumDigits) {
  std::string digits = std::to_string(std::abs(exponent));
  if (static_cast<int>(digits.size()) < minimumDigits) digits.insert(0, minimumDigits - digits.size(), '0');
  std::string sign;
  if (exponent < 0) {
    sign = "-";
  } else if (token.code[1] == '+') {
    sign = "+";
  }
  return token.code.substr(0, 1) + sign + digits;
}

}  // namespace

std::string FormatNumber(double value, const FormatSection& section, bool withSign) {
  const Layout layout = Analyse(section);
  DecimalDigits number(value);
  number.Shift(2 * layout.percents - 3 * layout.scalingCommas);
  int exponent = 0;
  if (layout.exponent != kNone && !number.IsZero()) {
    exponent = number.WholeLength() - layout.wholePlaces;
    number.Shift(-exponent);
    number.Round(layout.fractionPlaces);
    // 9.996 rounded to two places is 10.00: one more for the exponent.
    if (number.WholeLength() > layout.wholePlaces) {
      number.Shift(-1);
      ++exponent;
    }
  } else {
    number.Round(layout.fractionPlaces);
  }

  std::string whole = number.Whole();
  if (static_cast<int>(whole.size()) < layout.wholeMinimum) whole.insert(0, layout.wholeMinimum - whole.size(), '0');
  const WholeWriter writer(whole, layout.grouping);
  std::string fraction = number.Fraction(layout.fractionPlaces);
  while (static_cast<int>(fraction.size()) > layout.fractionMinimum && fraction.back() == '0') fraction.pop_back();
  // Digits beyond the places go in front of the first place.
  const std::size_t extra = whole.size() > static_cast<std::size_t>(layout.wholePlaces)
                                ? whole.size() - static_cast<std::size_t>(layout.wholePlaces)
                                : 0;

  std::string out = withSign && value < 0 && !number.IsZero() ? "-" : "";
  std::size_t wholePlace = 0;
  std::size_t fractionPlace = 0;
  for (std::size_t i = 0; i < section.size(); ++i) {
    const FormatToken& token = section[i];
    if (layout.silent[i]) continue;
    if (IsPlace(token)) {
      if (i < layout.wholeEnd) {
        if (wholePlace == 0) writer.WriteRange(out, 0, extra);
        // Places in front of the number's first digit print nothing ("#").
        const long at = static_cast<long>(whole.size()) - layout.wholePlaces + static_cast<long>(wholePlace);
        if (at >= 0) writer.Write(out, static_cast<std::size_t>(at));
        ++wholePlace;
      } else if (i < layout.fractionEnd) {
        if (fractionPlace < fraction.size()) out += fraction[fractionPlace];
        ++fractionPlace;
      }
      continue;  // the exponent's places are written with its sign
    }
    if (i == layout.point) {
      if (layout.wholePlaces == 0) writer.WriteRange(out, 0, whole.size());
      out += Regional::Current().decimalSign;
    } else if (i == layout.exponent) {
      out += ExponentText(token, exponent, layout.exponentMinimum);
    } else {
      out += token.text;
    }
  }
  return out;
}

}  // namespace tamrix
