// Default files in folders that may not be written or read.

#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "link/transfer.h"
#include "support/installation.h"
#include "support/unprivileged_linux.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;
using Lines = std::vector<std::string>;

class BarredDefaultFiles : public InstallationTest {
 protected:
  BarredDefaultFiles() {
    Global::choose_model(Global::model_z320);
    write("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN", "default image");
    write("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN", "default items");
    mode("Log", 0777);
    mode("Dati", 0777);
  }
  ~BarredDefaultFiles() override { mode("Dati", 0777); }

  void mode(const char* path, unsigned bits) const { fs::permissions(host(path), static_cast<fs::perms>(bits)); }
};

TEST_F(BarredDefaultFiles, AnImageThatCannotBeDeletedEndsTheCopyWithALineAlone) {
  write("Dati/PRG_MODE.BIN", "old image");
  write("Dati/PRG_PLU.BIN", "old items");
  mode("Dati", 0555);
  {
    const Unprivileged nobody;
    copia_def_file();
  }
  EXPECT_EQ(log(), Lines{"copia_def_file: 70 Permission denied"}) << "no box: the copies were not reached";
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "old image");
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "old items");
}

TEST_F(BarredDefaultFiles, ItemsThatCannotBeDeletedEndTheCopyWithALineAlone) {
  write("Dati/PRG_PLU.BIN", "old items");
  mode("Dati", 0555);
  {
    const Unprivileged nobody;
    copia_def_file();
  }
  EXPECT_EQ(log(), Lines{"copia_def_file: 70 Permission denied"});
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "old items");
}

TEST_F(BarredDefaultFiles, AFolderThatTakesNoFileIsShownAtTheImage) {
  mode("Dati", 0555);
  shell.expect_box(BoxKind::plain, "Error During copy PRG_MODE_FILE");
  {
    const Unprivileged nobody;
    copia_def_file();
  }
  EXPECT_EQ(log(), Lines{"copia_def_file: 70 Permission denied"});
}

TEST_F(BarredDefaultFiles, ADefaultThatCannotBeReadIsShown) {
  mode("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN", 0);
  shell.expect_box(BoxKind::plain, "Error During copy PRG_MODE_PLUE");
  {
    const Unprivileged nobody;
    copia_def_file();
  }
  EXPECT_EQ(log(), Lines{"copia_def_file: 70 Permission denied"});
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "default image");
}

}  // namespace
}  // namespace ecr::test
