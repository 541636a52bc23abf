// docs/fields.md says what the book of fields says.

#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>

#include "core/catalogue.h"
#include "field_book/page.h"

namespace ecr::test {
namespace {

std::string file(const std::string& path) {
  std::ifstream stream{path, std::ios::binary};
  EXPECT_TRUE(stream.good()) << path;
  return {std::istreambuf_iterator<char>{stream}, {}};
}

TEST(FieldBookPage, IsTheOneThatTheToolWrites) {
  const std::string root = VERMANTO_ROOT;
  const std::string english = file(root + "/data/lang/FrmDescEng.txt");
  EXPECT_EQ(file(root + "/docs/fields.md"), field_book_page(english))
      << "write it anew: build/dev/tools/field_book/field_book data/lang/FrmDescEng.txt docs/fields.md";
  reset_catalogue();
}

}  // namespace
}  // namespace ecr::test
