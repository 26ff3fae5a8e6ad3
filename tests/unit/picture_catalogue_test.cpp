// The catalogues of built-in pictures and their end-match lookup.
#include <gtest/gtest.h>

#include "commands/picture_catalogue.h"

namespace tamrix {
namespace {

struct LookupCase {
  std::string_view catalogue;
  const char* name;
  int number;
};

class CatalogueLookup : public ::testing::TestWithParam<LookupCase> {};

TEST_P(CatalogueLookup, FindsTheNumber) {
  EXPECT_EQ(CatalogueNumber(GetParam().catalogue, GetParam().name), GetParam().number) << GetParam().name;
}

INSTANTIATE_TEST_SUITE_P(
    Names, CatalogueLookup,
    ::testing::Values(
        // Whole names, in any case.
        LookupCase{kPicCatalogue, "PicOK", 0}, LookupCase{kPicCatalogue, "picmonitor", 32},
        LookupCase{kImgCatalogue, "IMGSOBRE", 1}, LookupCase{kGifCatalogue, "GifSapa2", 3},
        // No delimiter is looked for at the start: the end of a name finds it.
        LookupCase{kPicCatalogue, "OK", 0}, LookupCase{kPicCatalogue, "k2", 12},
        LookupCase{kImgCatalogue, "pantano", 0}, LookupCase{kGifCatalogue, "1", 0},
        // The first entry that ends so wins: "Exit" is PicExit, not PicExit2.
        LookupCase{kPicCatalogue, "Exit", 3}, LookupCase{kPicCatalogue, "$", 9},
        // Names that aren't there, a name with its number, and nothing.
        LookupCase{kGifCatalogue, "Sapo", -1}, LookupCase{kImgCatalogue, "PicOK", -1},
        LookupCase{kPicCatalogue, "PicOK#0", -1}, LookupCase{kPicCatalogue, "", -1}));

}  // namespace
}  // namespace tamrix
