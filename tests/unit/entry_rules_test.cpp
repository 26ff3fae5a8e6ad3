// The masks of the Mask object and the numeric key filter of the Text box.
#include <gtest/gtest.h>

#include "commands/entries/mask_pattern.h"
#include "commands/entries/numeric_key_filter.h"

namespace tamrix {
namespace {

TEST(MaskTest, PatternAndFit) {
  EXPECT_EQ(MaskPattern("##/##"), "__/__");
  EXPECT_EQ(MaskPattern("(###) ###-####"), "(___) ___-____");
  EXPECT_EQ(MaskPattern(""), "");
  EXPECT_TRUE(FitsMask("##/##", "1_/3_"));
  EXPECT_TRUE(FitsMask("##/##", "__/__"));
  EXPECT_FALSE(FitsMask("##/##", "12-34"));
  EXPECT_FALSE(FitsMask("##/##", "a2/34"));
  EXPECT_FALSE(FitsMask("##/##", "12/3"));
  EXPECT_TRUE(FitsMask("", "anything"));
}

TEST(MaskTest, TypingFillsThePlacesAndPassesTheMasksOwnCharacters) {
  EXPECT_EQ(TypeIntoMask("##/##", "__/__", 0, '1'), (MaskEdit{"1_/__", 1}));
  EXPECT_EQ(TypeIntoMask("##/##", "12/__", 2, '3'), (MaskEdit{"12/3_", 4}));
  // The mask's own character moves the caret past it.
  EXPECT_EQ(TypeIntoMask("##/##", "12/__", 2, '/'), (MaskEdit{"12/__", 3}));
  EXPECT_EQ(TypeIntoMask("##/##", "12/34", 5, '5'), std::nullopt);
  EXPECT_EQ(TypeIntoMask("##/##", "__/__", 0, 'a'), std::nullopt);
  EXPECT_EQ(TypeIntoMask("##/##", "__/__", 0, '-'), std::nullopt);
  EXPECT_EQ(TypeIntoMask("", "ab", 1, 'x'), (MaskEdit{"axb", 2}));
  // A text that lost its form refuses rather than breaks.
  EXPECT_EQ(TypeIntoMask("##/##", "1", 0, '1'), std::nullopt);
}

TEST(MaskTest, ErasingEmptiesPlacesAndKeepsTheForm) {
  EXPECT_EQ(EraseBeforeCaret("##/##", "12/34", 3), (MaskEdit{"1_/34", 1}));
  EXPECT_EQ(EraseBeforeCaret("##/##", "12/34", 5), (MaskEdit{"12/3_", 4}));
  EXPECT_EQ(EraseBeforeCaret("##/##", "12/34", 0), std::nullopt);
  EXPECT_EQ(EraseBeforeCaret("(##", "(12", 1), std::nullopt);
  EXPECT_EQ(EraseAtCaret("##/##", "12/34", 2), (MaskEdit{"12/_4", 2}));
  EXPECT_EQ(EraseAtCaret("##/##", "12/34", 5), std::nullopt);
  EXPECT_EQ(EraseBeforeCaret("", "ab", 2), (MaskEdit{"a", 1}));
}

TEST(NumericKeyFilterTest, WithoutDecimalsOnlyDigitsAndBackspacePass) {
  EXPECT_EQ(NumericKeyFilter("12", '5', 0), '5');
  EXPECT_EQ(NumericKeyFilter("12", kKeyBackspace, 0), kKeyBackspace);
  EXPECT_EQ(NumericKeyFilter("12", '.', 0), 0);
  EXPECT_EQ(NumericKeyFilter("12", '-', 0), 0);
  EXPECT_EQ(NumericKeyFilter("12", 'a', 0), 0);
  EXPECT_EQ(NumericKeyFilter("12", 13, 0), 0);
}

TEST(NumericKeyFilterTest, WithDecimalsTheDecimalPartIsLimited) {
  EXPECT_EQ(NumericKeyFilter("12", '.', 2), '.');
  EXPECT_EQ(NumericKeyFilter("12.", '.', 2), 0);
  EXPECT_EQ(NumericKeyFilter("12.3", '4', 2), '4');
  EXPECT_EQ(NumericKeyFilter("12.34", '5', 2), 0);
  EXPECT_EQ(NumericKeyFilter("12.34", kKeyBackspace, 2), kKeyBackspace);
  EXPECT_EQ(NumericKeyFilter("12.34", kKeyEscape, 2), kKeyEscape);
  EXPECT_EQ(NumericKeyFilter("12.34", 13, 2), 13);
  EXPECT_EQ(NumericKeyFilter("12", 'x', 2), 0);
}

}  // namespace
}  // namespace tamrix
