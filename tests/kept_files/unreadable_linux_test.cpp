// Files that are there and may not be read or written.

#include <cstring>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>

#include "core/files.h"
#include "core/global.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "keyboard/key_default.h"
#include "lang/language.h"
#include "link/ports.h"
#include "logo/journal_file.h"
#include "reports/export_option.h"
#include "support/installation.h"
#include "support/unprivileged_linux.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

class UnreadableFiles : public InstallationTest {
 protected:
  UnreadableFiles() {
    Global::choose_model(Global::model_z320);
    for (const char* folder : {"Log", "Dati", "Setup", "."})
      fs::permissions(host(folder), static_cast<fs::perms>(0777));
  }
  void write_unreadable(const char* file) const {
    write(file, "unreadable");
    fs::permissions(host(file), fs::perms::none);
  }
};

TEST_F(UnreadableFiles, AreToldAsDenied) {
  write_unreadable("Dati/file");
  const Unprivileged nobody;
  std::string read = "before";
  EXPECT_EQ(read_file(Global::PathDati + "file", read).code, FaultCode::permission_denied);
  EXPECT_EQ(read, "");
  EXPECT_EQ(read_or_create_file(Global::PathDati + "file", read).code, FaultCode::permission_denied);
  EXPECT_EQ(overwrite_file(Global::PathDati + "file", "x").code, FaultCode::permission_denied);
  EXPECT_EQ(save_file(Global::PathDati + "file", "x").code, FaultCode::permission_denied);
  EXPECT_TRUE(file_exists(Global::PathDati + "file"));
}

TEST_F(UnreadableFiles, DeliverNothingAndAreNotReplaced) {
  for (const char* file : {"Dati/PRG_MODE.BIN", "Dati/PRG_PLU.BIN", "Setup/Language.ini", "Setup/ExportOption.ini",
                           "port.ini", "Dati/KEY_DEFAULTZ320.BIN", "journal.bin"}) {
    write_unreadable(file);
  }
  LanguageNumber = 5;
  ExportOption.fill(6);
  KeyDefault.fill(7);
  PrgPlu.PluCount = 2;
  shell.expect_box(BoxKind::plain, "");
  {
    const Unprivileged nobody;
    EXPECT_FALSE(Read_PrgMode());
    EXPECT_TRUE(Read_PrgPlu());
    Read_Language();
    Read_ExportOption();
    Read_Key_Default();
    Read_EJ(Global::PathApp + "journal.bin");
    EXPECT_EQ(PrgPlu.PluCount, 2);
    EXPECT_EQ(LanguageNumber, 5);
    EXPECT_EQ(ExportOption[23], 6);
    EXPECT_EQ(KeyDefault[88], 7);
    EXPECT_TRUE(Ej.Records.empty());
    Write_PrgMode();
    Write_PrgPlu();
    Write_Language();
    Write_ExportOption();
    Write_rs232_fw(4);
    Write_Key_Default();
  }
  for (const char* file : {"Dati/PRG_MODE.BIN", "Dati/PRG_PLU.BIN", "Setup/Language.ini", "Setup/ExportOption.ini",
                           "port.ini", "Dati/KEY_DEFAULTZ320.BIN", "journal.bin"}) {
    fs::permissions(host(file), fs::perms::owner_all);
    EXPECT_EQ(bytes(file), "unreadable") << file;
  }
  EXPECT_TRUE(log().empty());
}

}  // namespace
}  // namespace ecr::test
