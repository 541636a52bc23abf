// Every save replaces its file in one step: whoever had the old file open or under another name still has it whole.

#include <algorithm>
#include <filesystem>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/global.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "keyboard/key_default.h"
#include "lang/language.h"
#include "link/ports.h"
#include "reports/export_option.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

class Saves : public InstallationTest {
 protected:
  struct Save {
    const char* file;
    std::function<void()> save;
  };
  static std::vector<Save> all() {
    return {{"Dati/PRG_MODE.BIN", Write_PrgMode},
            {"Dati/PRG_PLU.BIN", Write_PrgPlu},
            {"Setup/Language.ini", Write_Language},
            {"Setup/ExportOption.ini", Write_ExportOption},
            {"port.ini", [] { Write_rs232_fw(4); }},
            {"Dati/KEY_DEFAULTZ300.BIN",
             [] {
               Global::EcrModel = Global::model_z300;
               Write_Key_Default();
             }},
            {"Dati/KEY_DEFAULTZ320.BIN", [] {
               Global::EcrModel = Global::model_z320;
               Write_Key_Default();
             }}};
  }
  [[nodiscard]] std::vector<std::string> all_files() const {
    std::vector<std::string> files;
    for (const auto& entry : fs::recursive_directory_iterator{host(".")}) {
      if (entry.is_regular_file()) files.push_back(fs::relative(entry.path(), host(".")).string());
    }
    std::sort(files.begin(), files.end());
    return files;
  }
};

TEST_F(Saves, TheOldFileStaysWholeUnderItsOtherName) {
  for (const Save& save : all()) {
    SCOPED_TRACE(save.file);
    const std::string old = std::string(200, 'o') + save.file;
    write(save.file, old);
    fs::create_hard_link(host(save.file), host("witness"));
    save.save();
    EXPECT_EQ(bytes("witness"), old);
    EXPECT_NE(bytes(save.file), old);
    remove("witness");
  }
}

TEST_F(Saves, NothingButTheFilesThemselvesIsLeftBehind) {
  std::vector<std::string> expected;
  for (const Save& save : all()) {
    save.save();
    save.save();
    expected.emplace_back(save.file);
  }
  std::sort(expected.begin(), expected.end());
  EXPECT_EQ(all_files(), expected);
}

TEST_F(Saves, ASaveThroughALinkReachesTheFileBehindIt) {
  for (const Save& save : all()) {
    SCOPED_TRACE(save.file);
    remove(save.file);
    write("elsewhere", "old");
    fs::create_symlink(host("elsewhere"), host(save.file));
    save.save();
    EXPECT_TRUE(fs::is_symlink(host(save.file)));
    EXPECT_NE(bytes("elsewhere"), "old");
    remove(save.file);
    remove("elsewhere");
  }
}

TEST_F(Saves, ADamagedTreeIsLeftAsItIs) {
  // Each file's place is taken by a folder, and then its folder by a file.
  for (const Save& save : all()) make_folder(save.file);
  for (const Save& save : all()) save.save();
  EXPECT_EQ(all_files(), std::vector<std::string>{});
  remove("Dati");
  remove("Setup");
  remove("port.ini");
  write("Dati", "a file");
  write("Setup", "a file");
  for (const Save& save : all()) save.save();
  EXPECT_EQ(all_files(), (std::vector<std::string>{"Dati", "Setup", "port.ini"}));
  EXPECT_EQ(bytes("Dati") + bytes("Setup"), "a filea file");
  EXPECT_TRUE(log().empty());
}

}  // namespace
}  // namespace ecr::test
