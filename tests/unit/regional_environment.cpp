// The unit tests run with the point settings, whatever the machine's locale;
// a test that needs the comma settings switches them with ScopedRegional.
#include <gtest/gtest.h>

#include "core/regional.h"

namespace tamrix::testing {
namespace {

class PointSettings : public ::testing::Environment {
 public:
  void SetUp() override { Regional::SetCurrent(Regional{}); }
};

[[maybe_unused]] const auto* const kPointSettings = ::testing::AddGlobalTestEnvironment(new PointSettings);

}  // namespace
}  // namespace tamrix::testing
