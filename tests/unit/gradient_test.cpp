// The gradient control's choice of channel and its row colours.
#include <gtest/gtest.h>

#include <vector>

#include "core/gradient.h"
#include "headless_windows.h"

namespace tamrix {
namespace {

constexpr std::int32_t Rgb(int r, int g, int b) { return r | (g << 8) | (b << 16); }
int Red(std::int32_t c) { return c & 0xFF; }
int Green(std::int32_t c) { return (c >> 8) & 0xFF; }
int Blue(std::int32_t c) { return (c >> 16) & 0xFF; }

struct ChoiceCase {
  std::int16_t a, b, c;
  std::int16_t value, channel;
};

class LargestDifferenceChoice : public ::testing::TestWithParam<ChoiceCase> {};

TEST_P(LargestDifferenceChoice, FollowsTheSevenTests) {
  Gradiente grd;
  const ChoiceCase& p = GetParam();
  const LargestDifference chosen = grd.ValorMaior(p.a, p.b, p.c);
  EXPECT_EQ(chosen.value, p.value);
  EXPECT_EQ(chosen.channel, p.channel);
}

INSTANTIATE_TEST_SUITE_P(Differences, LargestDifferenceChoice,
                         ::testing::Values(ChoiceCase{0, 0, 0, 0, 0},    // all equal
                                           ChoiceCase{7, 7, 7, 7, 0},    // all equal, not zero
                                           ChoiceCase{10, 1, 5, 5, 2},   // c is compared with 1, not a
                                           ChoiceCase{10, 3, 1, 10, 0},  // a largest, c not above 1
                                           ChoiceCase{2, 9, 4, 9, 1},    // b largest
                                           ChoiceCase{1, 6, 6, 6, 1},    // b and c tie above a
                                           ChoiceCase{6, 6, 1, 6, 1},    // a and b tie above c
                                           ChoiceCase{6, 1, 6, 6, 0}));  // a and c tie above b

// A channel that no test picks keeps the one chosen the time before.
TEST(Gradient, AnUnpickedChoiceKeepsTheLastChannel) {
  Gradiente grd;
  EXPECT_EQ(grd.ValorMaior(0, 0, 5).channel, 2);
  const LargestDifference kept = grd.ValorMaior(0, 0, 1);
  EXPECT_EQ(kept.value, 0);
  EXPECT_EQ(kept.channel, 2);
}

TEST(Gradient, RedFromZeroToFullStepsEveryRow) {
  Gradiente grd;
  grd.corInicial = Rgb(0, 40, 90);
  grd.corFinal = Rgb(255, 40, 90);
  const std::vector<std::int32_t> rows = grd.RowColours(255);
  ASSERT_EQ(rows.size(), 256u);
  // Row 0 is drawn before the first step, which happens at row 0 (0 mod 1).
  EXPECT_EQ(Red(rows[0]), 0);
  EXPECT_EQ(Red(rows[1]), 1);
  EXPECT_EQ(Red(rows[255]), 255);
  for (const std::int32_t colour : rows) {
    EXPECT_EQ(Green(colour), 40);  // no difference: constant
    EXPECT_EQ(Blue(colour), 90);
  }
}

TEST(Gradient, EachChannelStepsByItsOwnPassoAndDirection) {
  Gradiente grd;
  // Differences: red -10 over 100 rows (every 10), blue +50 (every 2).
  grd.corInicial = Rgb(100, 0, 0);
  grd.corFinal = Rgb(90, 0, 50);
  const std::vector<std::int32_t> rows = grd.RowColours(100);
  EXPECT_EQ(Red(rows[1]), 99);    // stepped at row 0
  EXPECT_EQ(Red(rows[10]), 99);   // not yet at row 10's own step
  EXPECT_EQ(Red(rows[11]), 98);
  EXPECT_EQ(Blue(rows[1]), 1);
  EXPECT_EQ(Blue(rows[3]), 2);
  EXPECT_EQ(Red(rows[100]), 90);
  EXPECT_EQ(Blue(rows[100]), 50);
}

// A channel stops at 255 and at 0 when the rounded Passo overshoots.
TEST(Gradient, ChannelsStopAtTheirLimits) {
  Gradiente grd;
  grd.corInicial = Rgb(250, 5, 0);
  grd.corFinal = Rgb(255, 0, 0);
  // Passo 12 / 5 rounds to 2: six steps of five before the last row.
  const std::vector<std::int32_t> rows = grd.RowColours(12);
  EXPECT_EQ(Red(rows[11]), 255);
  EXPECT_EQ(Red(rows.back()), 255);
  EXPECT_EQ(Green(rows.back()), 0);
  for (const std::int32_t colour : rows) {
    EXPECT_LE(Red(colour), 255);
    EXPECT_GE(Green(colour), 0);
  }
}

TEST(Gradient, EqualColoursPaintOneColour) {
  Gradiente grd;
  grd.corInicial = grd.corFinal = Rgb(12, 34, 56);
  for (const std::int32_t colour : grd.RowColours(50)) EXPECT_EQ(colour, Rgb(12, 34, 56));
}

TEST(Gradient, PaintsOneLineAcrossPerRow) {
  Gradiente grd;
  testing::HeadlessSurface surface;
  grd.Paint(surface);
  ASSERT_EQ(surface.drawn.size(), static_cast<std::size_t>(surface.ClientHeight()) + 1);
  EXPECT_EQ(surface.drawn.front(), "line 0 0 632 0 " + std::to_string(Gradiente::kDefaultStart) + " 1");
  EXPECT_EQ(surface.refreshes, 1);
}

}  // namespace
}  // namespace tamrix
