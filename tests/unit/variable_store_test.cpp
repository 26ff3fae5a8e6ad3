#include "core/variable_store.h"

#include <gtest/gtest.h>

#include <cstdint>
#include <string>
#include <vector>

#include "core/fault.h"
#include "core_sandbox.h"

namespace tamrix {
namespace {

class VariableStoreTest : public ::testing::Test {
 protected:
  VariableStoreTest() {
    store.SetReporting([this](const std::string& text) { boxes.push_back(text); }, &position);
  }

  VariableStore store;
  std::vector<std::string> boxes;
  std::string position = "Editor: 0 Line: 3";
};

TEST_F(VariableStoreTest, NamesIgnoreCase) {
  store.DeclareScalar("Count", "Integer");
  store.SetVariable("COUNT", 5, true);
  EXPECT_EQ(store.GetVariable("count"), Value(std::int32_t{5}));
  EXPECT_EQ(store.VarIndex("cOuNt"), store.VarIndex("Count"));
  EXPECT_EQ(store.VarIndex(" count"), -1);  // the name looked up is not trimmed
  EXPECT_EQ(store.LastType(), "Integer");
}

TEST_F(VariableStoreTest, TheFirstDeclarationWinsWithItsValue) {
  store.DeclareScalar("x", "Integer");
  store.SetVariable("x", 7, true);
  store.DeclareScalar("X", "String");
  store.DeclareArray("x(4)", "Decimal");
  EXPECT_EQ(store.GetVariable("x"), Value(std::int32_t{7}));
  EXPECT_EQ(store.LastType(), "Integer");
  EXPECT_EQ(store.RecordCount(VarType::String) + store.RecordCount(VarType::Decimal), 0u);
}

TEST_F(VariableStoreTest, OnlyTheThreeTypeNamesInTheirOwnCaseDeclare) {
  for (const char* type : {"integer", "STRING", "Double", "", "Integer "}) {
    store.DeclareScalar("v", type);
    EXPECT_EQ(store.VarIndex("v"), -1) << type;
  }
  EXPECT_TRUE(boxes.empty());
}

TEST_F(VariableStoreTest, AnArrayIndexBeyondItsSizeReachesTheNextVariable) {
  store.DeclareArray("a(3)", "Integer");
  store.DeclareScalar("b", "Integer");
  store.SetVariable("b", 99, true);
  EXPECT_EQ(store.GetVariable("a(3)"), Value(std::int32_t{99}));
  store.SetVariable("a(3)", 5, true);
  EXPECT_EQ(store.GetVariable("b"), Value(std::int32_t{5}));
}

TEST_F(VariableStoreTest, AnIndexOutsideTheValueArrayFailsOnReadAndIsIgnoredOnWrite) {
  store.DeclareArray("a(3)", "Integer");
  store.SetVariable("a(50)", 1, true);
  EXPECT_TRUE(boxes.empty());
  try {
    store.GetVariable("a(50)");
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kSubscriptOutOfRange);
  }
}

TEST_F(VariableStoreTest, AnIndexVariableIsReadFromTheIntegerValues) {
  store.DeclareArray("a(3)", "Integer");
  store.DeclareScalar("i", "Integer");
  store.DeclareScalar("t", "String");  // first String slot: 0
  for (int k = 0; k < 3; ++k) store.SetVariable("a(" + std::to_string(k) + ")", 10 + k, true);
  store.SetVariable("i", 1, true);
  EXPECT_EQ(store.GetVariable("a(i)"), Value(std::int32_t{11}));
  store.SetVariable("a(0)", 2, true);
  store.SetVariable("t", std::string("1"), true);
  // "t" has the first slot 0, so the index is Integer slot 0, that is a(0).
  EXPECT_EQ(store.GetVariable("a(t)"), Value(std::int32_t{12}));
  EXPECT_EQ(store.LastType(), "Integer");
  EXPECT_TRUE(boxes.empty());
}

TEST_F(VariableStoreTest, AnUndeclaredIndexVariableReportsWithoutPositionAndGivesZero) {
  store.DeclareArray("a(2)", "Integer");
  store.SetVariable("a(0)", 4, true);
  EXPECT_EQ(store.GetVariable("a(k)"), Value(std::int32_t{4}));
  EXPECT_EQ(boxes, std::vector<std::string>{"Can't read k: undeclared variable!"});
}

TEST_F(VariableStoreTest, ArraySizesComeFromALeadingNumber) {
  store.DeclareArray("a(n)", "Integer");    // size 0: a(0) is the next variable
  store.DeclareArray("c(1.6)", "Integer");  // rounded: size 2
  store.DeclareScalar("b", "Integer");
  store.SetVariable("c(0)", 3, true);
  store.SetVariable("b", 8, true);
  EXPECT_EQ(store.GetVariable("a(0)"), Value(std::int32_t{3}));
  EXPECT_EQ(store.GetVariable("c(2)"), Value(std::int32_t{8}));
}

// Array sizes are bounded by one memory budget for all slots, not by a
// fixed count per type: twenty million integers take 80 MB.
TEST_F(VariableStoreTest, LargeArraysFitTheMemoryBudgetAndLargerOnesFaultBeforeAllocating) {
  store.DeclareArray("big(20000000)", "Integer");
  store.SetVariable("big(19999999)", 5, true);
  EXPECT_EQ(store.GetVariable("big(19999999)"), Value(std::int32_t{5}));

  const std::uint64_t budget = VariableStore::SlotBudgetBytes();
  const std::uint64_t tooMany = budget / sizeof(std::string) + 1;
  ASSERT_LT(tooMany, std::uint64_t{2000000000}) << "a machine this large needs another probe";
  try {
    store.DeclareArray("huge(" + std::to_string(tooMany) + ")", "String");
    ADD_FAILURE() << "an array past the budget was declared";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), kOutOfMemory);
  }
  EXPECT_EQ(store.VarIndex("huge"), -1);
  // What the budget leaves is shared by all types: the integers already
  // declared count against a String array that would just fit alone.
  const std::uint64_t fitsAlone = budget / sizeof(std::string);
  EXPECT_THROW(store.DeclareArray("rest(" + std::to_string(fitsAlone) + ")", "String"), RuntimeFault);
}

TEST_F(VariableStoreTest, NamesAreKeptToFiftyCharacters) {
  const std::string fifty(50, 'N');
  const std::string fiftyOne = fifty + "X";
  store.DeclareScalar(fiftyOne, "Integer");
  EXPECT_EQ(store.RecordCount(VarType::Integer), 1u);
  EXPECT_EQ(store.VarIndex(fiftyOne), -1);
  EXPECT_EQ(store.VarIndex(fifty), 0);
}

struct Conversion {
  const char* name;
  const char* type;
  Value assigned;
  Value stored;  // the old value 42 stays when the assignment fails
};

class Conversions : public ::testing::TestWithParam<Conversion> {};

TEST_P(Conversions, StoreOrKeepTheOldValue) {
  VariableStore store;
  store.DeclareScalar("v", GetParam().type);
  store.SetVariable("v", std::string("42"), true);
  store.SetVariable("v", GetParam().assigned, true);
  EXPECT_EQ(store.GetVariable("v"), GetParam().stored);
}

INSTANTIATE_TEST_SUITE_P(
    VariableStore, Conversions,
    ::testing::Values(Conversion{"TextThatIsNoNumberKeepsTheInteger", "Integer", std::string("abc"), std::int32_t{42}},
                      Conversion{"TextThatIsNoNumberKeepsTheDecimal", "Decimal", std::string("1x"), 42.0},
                      Conversion{"OverflowKeepsTheInteger", "Integer", 3e9, std::int32_t{42}},
                      Conversion{"HalfRoundsToEvenDown", "Integer", 2.5, std::int32_t{2}},
                      Conversion{"HalfRoundsToEvenUp", "Integer", std::string("3.5"), std::int32_t{4}},
                      Conversion{"NumericTextIntoDecimal", "Decimal", std::string(" -1.25 "), -1.25},
                      Conversion{"IntegerIntoString", "String", std::int32_t{-7}, std::string("-7")}),
    testing::ByName());

TEST_F(VariableStoreTest, RemovalKeepsTheOtherValuesAndArrayElements) {
  store.DeclareScalar("p", "Integer");
  store.DeclareArray("a(3)", "Integer");
  store.DeclareArray("c(2)", "Integer");
  store.DeclareScalar("q", "Integer");
  store.DeclareScalar("s", "String");
  store.SetVariable("p", 1, true);
  store.SetVariable("a(1)", 2, true);
  store.SetVariable("c(0)", 30, true);
  store.SetVariable("c(1)", 31, true);
  store.SetVariable("q", 4, true);
  store.SetVariable("s", std::string("text"), true);

  store.RemoveVariable("A", true);
  EXPECT_EQ(store.VarIndex("a"), -1);
  EXPECT_EQ(store.GetVariable("p"), Value(std::int32_t{1}));
  EXPECT_EQ(store.GetVariable("c(0)"), Value(std::int32_t{30}));
  EXPECT_EQ(store.GetVariable("c(1)"), Value(std::int32_t{31}));
  EXPECT_EQ(store.GetVariable("q"), Value(std::int32_t{4}));

  store.RemoveVariable("p", true);
  store.DeclareScalar("r", "Integer");
  store.SetVariable("r", 5, true);
  EXPECT_EQ(store.GetVariable("c(1)"), Value(std::int32_t{31}));
  EXPECT_EQ(store.GetVariable("q"), Value(std::int32_t{4}));
  EXPECT_EQ(store.GetVariable("s"), Value(std::string("text")));
  EXPECT_TRUE(boxes.empty());
}

TEST_F(VariableStoreTest, RemovingAnUnknownNameComplainsOnlyWhenAsked) {
  store.RemoveVariable("zz", false);
  EXPECT_TRUE(boxes.empty());
  store.RemoveVariable("zz", true);
  EXPECT_EQ(boxes, std::vector<std::string>{"RemoveVariable - undeclared variable: zz"});
}

TEST_F(VariableStoreTest, ReadingAnUndeclaredNameShowsThePositionAndGivesEmpty) {
  EXPECT_EQ(store.GetVariable("zz"), Value(std::string()));
  EXPECT_EQ(boxes, std::vector<std::string>{"Editor: 0 Line: 3\r\nCan't read zz: undeclared variable!"});
}

TEST_F(VariableStoreTest, WritingAnUndeclaredNameRaisesOnlyWhenAsked) {
  store.SetVariable("zz", 1, false);
  try {
    store.SetVariable("zz", 1, true);
    FAIL() << "no fault";
  } catch (const RuntimeFault& fault) {
    EXPECT_EQ(fault.Number(), static_cast<std::int32_t>(0x80040001u));
    EXPECT_EQ(fault.Description(), "Can't assign value to zz: undeclared variable!");
  }
  EXPECT_TRUE(boxes.empty());
}

class DecimalText : public testing::BothLocales {};

TEST_P(DecimalText, FollowsTheRegionalDecimalSign) {
  VariableStore store;
  store.DeclareScalar("s", "String");
  store.SetVariable("s", 1.5, true);
  EXPECT_EQ(store.GetVariable("s"), Value(testing::Localised("1.5")));
}

INSTANTIATE_TEST_SUITE_P(VariableStore, DecimalText, ::testing::Values('.', ','));

TEST(VariableDeclarationTest, VarListsDeclareByTheirItems) {
  testing::Sandbox box;
  box.Declare("x Integer, x String, s, a(2) Decimal, i integer, , later Integer");
  VariableStore& vars = box.interpreter.Variables();
  vars.VarIndex("x");
  EXPECT_EQ(vars.LastType(), "Integer");
  vars.VarIndex("s");
  EXPECT_EQ(vars.LastType(), "String");
  vars.VarIndex("a");
  EXPECT_EQ(vars.LastType(), "Decimal");
  EXPECT_EQ(vars.VarIndex("i"), -1);
  EXPECT_EQ(vars.VarIndex("later"), -1);  // the list ends at its first empty item
}

TEST(VariableDeclarationTest, BuiltInVariablesHaveTheirTypesAndValues) {
  testing::Sandbox box;
  VariableStore& vars = box.interpreter.Variables();
  EXPECT_EQ(vars.RecordCount(VarType::String) + vars.RecordCount(VarType::Integer) + vars.RecordCount(VarType::Decimal),
            37u);
  const std::vector<std::pair<const char*, Value>> expected = {
      {"RetStr", std::string()},
      {"RetValue", 0.0},
      {"MouseClick", std::string()},
      {"Blue", std::int32_t{16711680}},
      {"Red", std::int32_t{255}},
      {"Green", std::int32_t{65280}},
      {"Black", std::int32_t{0}},
      {"White", std::int32_t{16777215}},
      {"Yellow", std::int32_t{65535}},
      {"LightBlue", std::int32_t{16776960}},
      {"DarkBlue", std::int32_t{7208960}},
      {"DarkRed", std::int32_t{110}},
      {"DarkGreen", std::int32_t{28160}},
      {"DarkYellow", std::int32_t{28270}},
      {"LinSize", 14.0},
      {"ColSize", 8.0},
      {"DefaultBackcolor", static_cast<std::int32_t>(0x8000000Fu)},
      {"StartWindowInvisible", std::int32_t{0}},
  };
  for (const auto& [name, value] : expected) EXPECT_EQ(vars.GetVariable(name), value) << name;
  // Declared in order: the first of each type holds slot 0.
  EXPECT_EQ(vars.VarIndex("RetStr"), 0);
  EXPECT_EQ(vars.VarIndex("RetValue"), 0);
  EXPECT_EQ(vars.VarIndex("MouseX"), 0);
  EXPECT_EQ(vars.VarIndex("MouseClick"), 1);
}

}  // namespace
}  // namespace tamrix
