// A language file that is there and may not be read.

#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "core/catalogue.h"
#include "core/global.h"
#include "lang/language.h"
#include "support/installation.h"
#include "support/unprivileged_linux.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

class UnreadableLanguage : public InstallationTest {};

TEST_F(UnreadableLanguage, EndsAsAMissingOne) {
  fs::permissions(host("Log"), static_cast<fs::perms>(0777));
  write("Setup/FrmDescFra.txt", "FRM_ALL_TITLE=titre\n");
  write("Setup/FrmDescEng.txt", "FRM_ALL_TITLE=title\n");
  write("Setup/UK.gif", "picture");
  fs::permissions(host("Setup/FrmDescFra.txt"), fs::perms::none);
  shell.expect_box(BoxKind::information,
                   "The file of the languagge specificated doesn't exist. The program work in english");
  {
    const Unprivileged nobody;
    selezione_lingua(2);
  }
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "title");
  EXPECT_TRUE(log().empty());
}

TEST_F(UnreadableLanguage, AFlagThatMayNotBeReadIsLogged) {
  fs::permissions(host("Log"), static_cast<fs::perms>(0777));
  write("Setup/FrmDescEng.txt", "");
  write("Setup/UK.gif", "picture");
  fs::permissions(host("Setup/UK.gif"), fs::perms::none);
  {
    const Unprivileged nobody;
    selezione_lingua(0);
  }
  EXPECT_EQ(log(), std::vector<std::string>{"selezione_lingua Permission denied"});
}

}  // namespace
}  // namespace ecr::test
