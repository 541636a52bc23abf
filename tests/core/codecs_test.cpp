#include "core/codecs.h"

#include <gtest/gtest.h>

#include <array>

#include "support/installation.h"

namespace ecr::test {
namespace {

class Codecs : public InstallationTest {};

TEST_F(Codecs, AShortNumberIsPaddedWithZeroBytes) {
  std::array<std::uint8_t, 4> field{9, 9, 9, 9};
  number_to_bcds(field, "5");
  EXPECT_EQ(field, (std::array<std::uint8_t, 4>{0x05, 0, 0, 0}));
}

}  // namespace
}  // namespace ecr::test
