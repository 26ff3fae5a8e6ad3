// The numeric entry field: its shown form, its key filter and lightening
// rules, and typing into it under the point and the comma settings.
#include "controls/entra_num.h"

#include <QApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>
#include <vector>

#include "controls/entra_num_rules.h"
#include "core/regional.h"

namespace tamrix {
namespace {

struct FormCase {
  const char* plain;
  int casas;
  const char* shown;
};

class Formatting : public ::testing::TestWithParam<FormCase> {};

TEST_P(Formatting, FollowsTheMask) { EXPECT_EQ(Formata(GetParam().plain, GetParam().casas), GetParam().shown); }

INSTANTIATE_TEST_SUITE_P(
    EntraNumTest, Formatting,
    ::testing::Values(FormCase{"1234.5", 2, "1.234,50"}, FormCase{"0", 2, "0,00"}, FormCase{"0", 0, "0"},
                      FormCase{"1.2345", 2, "1,2345"}, FormCase{"-5", 2, "-5,00"}, FormCase{"+5", 2, "5,00"},
                      FormCase{"-0", 2, "-0,00"}, FormCase{"", 2, "0,00"}, FormCase{"12.", 2, "12,00"},
                      FormCase{"1234567", 0, "1.234.567"}, FormCase{"0.5", 0, "0,5"},
                      FormCase{"123456789012345", 2, "123.456.789.012.345,00"},
                      // Beyond the mask's 15 integer or 6 decimal figures: nothing.
                      FormCase{"1234567890123456", 2, ""}, FormCase{"1.1234567", 2, ""},
                      FormCase{"7.100", 1, "7,1"}, FormCase{"7.120", 1, "7,12"}));

TEST(EntraNumTest, RegionalSignsReplaceTheMasksSigns) {
  EXPECT_EQ(RegionalForm("1.234,50", '.', ','), "1,234.50");
  EXPECT_EQ(RegionalForm("1.234,50", ',', '.'), "1.234,50");
  EXPECT_EQ(QCAP("12.345"), 3);
  EXPECT_EQ(QCAP("12"), 0);
  EXPECT_EQ(QCAP("12."), 0);
}

TEST(EntraNumTest, CampoNumericoFiltersByTheDecimals) {
  EXPECT_EQ(CampoNumerico("12", 2, '5', 0), '5');
  EXPECT_EQ(CampoNumerico("12", 2, '-', 0), '-');
  EXPECT_EQ(CampoNumerico("12", 2, '.', 0), 0);
  EXPECT_EQ(CampoNumerico("12", 2, ',', 2), '.');
  EXPECT_EQ(CampoNumerico("12", 2, 'a', 2), 0);
  // Full decimals with the caret behind the point: only signs and editing keys.
  EXPECT_EQ(CampoNumerico("1.25", 4, '3', 2), 0);
  EXPECT_EQ(CampoNumerico("1.25", 4, 8, 2), 8);
  EXPECT_EQ(CampoNumerico("1.25", 4, '-', 2), '-');
  // Ahead of the point digits still go in.
  EXPECT_EQ(CampoNumerico("1.25", 1, '3', 2), '3');
}

TEST(EntraNumTest, ClareiaRaisesTheWeakerChannelsBelowTheLimit) {
  EXPECT_EQ(Maior(0, 0, 0), 6);
  EXPECT_EQ(Maior(10, 50, 50), 5);
  EXPECT_EQ(Maior(50, 10, 50), 4);
  EXPECT_EQ(Maior(50, 50, 10), 3);
  EXPECT_EQ(Maior(10, 20, 30), 2);
  EXPECT_EQ(Maior(10, 30, 0), 1);
  EXPECT_EQ(Maior(30, 10, 0), 0);
  EXPECT_EQ(Clareia(0, 100, 255), 0x646464);
  // Red strongest (class 0): green and blue rise; a sum at the limit stays.
  EXPECT_EQ(Clareia(0x0000C8, 100, 255), 0x6464C8);
  EXPECT_EQ(Clareia(0x9696C8, 100, 255), 0xFAFAC8);
  EXPECT_EQ(Clareia(0x9B96C8, 100, 255), 0x9BFAC8);
  EXPECT_EQ(PlainNumber(1234.5), "1234.5");
  EXPECT_EQ(PlainNumber(-0.0), "0");
  EXPECT_EQ(PlainNumber(1.0 / 3), "0.333333");
}

class ScopedRegional {
 public:
  explicit ScopedRegional(char decimal) : saved_(Regional::Current()) {
    Regional settings;
    settings.decimalSign = decimal;
    settings.groupingSign = decimal == ',' ? '.' : ',';
    Regional::SetCurrent(settings);
  }
  ~ScopedRegional() { Regional::SetCurrent(saved_); }

 private:
  Regional saved_;
};

void Type(QWidget& target, const QString& text) {
  for (const QChar c : text) {
    QKeyEvent press(QEvent::KeyPress, c.unicode(), Qt::NoModifier, QString(c));
    QCoreApplication::sendEvent(&target, &press);
    QKeyEvent release(QEvent::KeyRelease, c.unicode(), Qt::NoModifier, QString(c));
    QCoreApplication::sendEvent(&target, &release);
  }
}

struct Field {
  EntraNum field;
  std::vector<double> changes;
  QWidget* box = nullptr;

  Field() {
    field.resize(120, 22);
    field.show();
    QObject::connect(&field, &EntraNum::Changed, [this](double v) { changes.push_back(v); });
    box = field.focusProxy();
    box->setFocus();
    QFocusEvent in(QEvent::FocusIn, Qt::TabFocusReason);
    QCoreApplication::sendEvent(box, &in);
  }
  void Settle() {
    QCoreApplication::processEvents();
    QMetaObject::invokeMethod(&field, [] {}, Qt::QueuedConnection);
    for (int i = 0; i < 5; ++i) {
      QCoreApplication::processEvents(QEventLoop::AllEvents, 20);
    }
  }
};

class TypingUnder : public ::testing::TestWithParam<char> {};

TEST_P(TypingUnder, TheFirstKeyReplacesAndTheCommaIsThePoint) {
  ScopedRegional regional(GetParam());
  Field f;
  f.field.SetValue(77);
  Type(*f.box, QStringLiteral("1234,5"));
  EXPECT_EQ(f.field.PlainText(), QStringLiteral("1234.5"));
  f.field.SetCasas(2);
  EXPECT_DOUBLE_EQ(f.field.Value(), 1234.5);
  EXPECT_EQ(f.field.Shown(), GetParam() == ',' ? QStringLiteral("1.234,50") : QStringLiteral("1,234.50"));
  ASSERT_FALSE(f.changes.empty());
  EXPECT_DOUBLE_EQ(f.changes.back(), 1234.5);
  // A third decimal is refused.
  Type(*f.box, QStringLiteral("7"));
  f.field.SetCasas(2);
  EXPECT_EQ(f.field.PlainText(), QStringLiteral("1234.5") + QStringLiteral("7"));
  Type(*f.box, QStringLiteral("9"));
  EXPECT_EQ(f.field.PlainText(), QStringLiteral("1234.57"));
}

INSTANTIATE_TEST_SUITE_P(EntraNumTest, TypingUnder, ::testing::Values('.', ','));

TEST(EntraNumTest, AMinusThenZeroIsANegativeZeroAndAPointStartsFromZero) {
  Field f;
  Type(*f.box, QStringLiteral("-0"));
  EXPECT_EQ(f.field.PlainText(), QStringLiteral("-0"));
  f.field.SetCasas(2);
  EXPECT_EQ(f.field.Shown(), QStringLiteral("-0.00"));

  Field g;
  Type(*g.box, QStringLiteral(".5"));
  EXPECT_EQ(g.field.PlainText(), QStringLiteral("0.5"));
  Type(*g.box, QStringLiteral("x"));
  EXPECT_EQ(g.field.PlainText(), QStringLiteral("0.5"));
}

TEST(EntraNumTest, AProgramsNewValueIsShownAndReported) {
  Field f;
  f.field.SetValue(0);
  EXPECT_TRUE(f.changes.empty());
  f.field.SetValue(2.5);
  f.field.SetValue(2.5);
  EXPECT_EQ(f.changes, std::vector<double>{2.5});
  f.field.SetValue(-1234567.125);
  EXPECT_EQ(f.field.Shown(), QStringLiteral("-1,234,567.125"));
  f.field.SetCasas(0);
  f.field.SetValue(3);
  EXPECT_EQ(f.field.Shown(), QStringLiteral("3"));
}

}  // namespace
}  // namespace tamrix
