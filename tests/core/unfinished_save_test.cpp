#include "core/unfinished_save.h"

#include <gtest/gtest.h>
#include <set>
#include <string>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "platform/platform.h"
#include "support/fake_system.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class UnfinishedSave : public InstallationTest {
 protected:
  [[nodiscard]] static std::string image() { return Global::PathDati + "PRG_MODE.BIN"; }

  /// What is there beside an old image when the power goes before the rename.
  std::string cut_off_save(const std::string& path, std::string_view content) const {
    FreshFile fresh;
    EXPECT_FALSE(host_system().write_beside(host(path), content, fresh).stands());
    return fresh.path.substr(host("").size());
  }
};

// The names

TEST(UnfinishedSaveName, IsTheFilesNameWithAnEndingThatNobodyThinksOf) {
  for (const char* name : {"PRG_MODE.BIN.K4W4Se", "PRG_PLU.BIN.A0A0Aa", "port.ini.Z9Z9Zz", "x.K4W4Se", "..K4W4Se"}) {
    EXPECT_TRUE(is_unfinished_save(name)) << name;
  }
  for (const char* name : {"",
                           "PRG_MODE.BIN",
                           "PRG_MODE.BIN.backup",
                           "PRG_MODE.BIN.BACKUP",
                           "PRG_MODE.BIN.Monday",
                           "PRG_MODE.BIN.saved1",
                           "PRG_MODE.BIN.201126",
                           "PRG_MODE.BIN.Copy01",
                           "PRG_MODE.BIN.Old001",
                           "PRG_MODE.BIN.K4W4SE",
                           "PRG_MODE.BIN.k4w4se",
                           "PRG_MODE.BIN.K4W4S",
                           "PRG_MODE.BIN.K4W4See",
                           "PRG_MODE.BINK4W4Se",
                           "PRG_MODE.BIN K4W4Se",
                           "K4W4Se",
                           ".K4W4Se",
                           "PRG_MODE.BIN.K4W4Se.BIN",
                           "PRG_MODE.BIN.4K4W4S",
                           "PRG_MODE.BIN.\xC4"
                           "4W4Se"}) {
    EXPECT_FALSE(is_unfinished_save(name)) << name;
  }
}

TEST(UnfinishedSaveName, HasAnEndingForEachNumber) {
  constexpr std::uint32_t endings = 26U * 10 * 26 * 10 * 26 * 26;
  std::set<std::string> seen;
  for (std::uint32_t number = 0; number < endings; number += 4567) {
    const std::string ending = unfinished_save_ending(number);
    EXPECT_TRUE(is_unfinished_save("PRG_MODE.BIN" + ending)) << ending;
    EXPECT_TRUE(seen.insert(ending).second) << ending;
  }
  EXPECT_EQ(unfinished_save_ending(0), ".A0A0Aa");
  EXPECT_EQ(unfinished_save_ending(endings - 1), ".Z9Z9Zz");
  EXPECT_EQ(unfinished_save_ending(endings), ".A0A0Aa");
  EXPECT_EQ(unfinished_save_ending(0xFFFFFFFF).size(), 7U);
}

// The steps of a save

TEST_F(UnfinishedSave, ASaveFlushesItsFolderBehindTheRename) {
  write("Dati/PRG_MODE.BIN", "old");
  FakeSystem system;
  Lines found;
  system.on_save_step = [&](const std::string&, const FreshFile& fresh) {
    found.push_back(bytes("Dati/PRG_MODE.BIN"));
    if (!fresh.path.empty()) {
      std::string content;
      EXPECT_FALSE(read_file(backslash_path(fresh.path), content).stands());
      EXPECT_EQ(content, "new");
      EXPECT_TRUE(is_unfinished_save(fresh.path.substr(host("Dati/").size()))) << fresh.path;
    }
    return Fault{};
  };
  EXPECT_FALSE(save_file(image(), "new").stands());
  EXPECT_EQ(system.save_steps, (Lines{"write PRG_MODE.BIN", "rename PRG_MODE.BIN", "flush folder PRG_MODE.BIN"}));
  EXPECT_EQ(found, (Lines{"old", "old", "new"}));
}

TEST_F(UnfinishedSave, AStepThatFailsIsTheLastOneAndIsTold) {
  const std::pair<const char*, const char*> steps[] = {
      {"write PRG_MODE.BIN", "old"}, {"rename PRG_MODE.BIN", "old"}, {"flush folder PRG_MODE.BIN", "new"}};
  for (const auto& [failing, left] : steps) {
    SCOPED_TRACE(failing);
    write("Dati/PRG_MODE.BIN", "old");
    FakeSystem system;
    system.on_save_step = [&failing = failing](const std::string& step, const FreshFile&) {
      return step == failing ? Fault{FaultCode::device_error} : Fault{};
    };
    EXPECT_EQ(save_file(image(), "new").code, FaultCode::device_error);
    EXPECT_EQ(system.save_steps.back(), failing);
    EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), left);
  }
}

TEST_F(UnfinishedSave, ANewFileThatAnotherStartClearedAwayIsWrittenOnceMore) {
  write("Dati/PRG_MODE.BIN", "old");
  FakeSystem system;
  int starts = 0;
  system.on_save_step = [&](const std::string& step, const FreshFile&) {
    if (step == "rename PRG_MODE.BIN" && ++starts == 1) Global::remove_unfinished_saves();
    return Fault{};
  };
  EXPECT_FALSE(save_file(image(), "new").stands());
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "new");
  EXPECT_EQ(system.save_steps, (Lines{"write PRG_MODE.BIN", "rename PRG_MODE.BIN", "write PRG_MODE.BIN",
                                      "rename PRG_MODE.BIN", "flush folder PRG_MODE.BIN"}));
}

TEST_F(UnfinishedSave, ANewFileThatIsAlwaysGoneEndsWithAFault) {
  write("Dati/PRG_MODE.BIN", "old");
  FakeSystem system;
  system.on_save_step = [&](const std::string& step, const FreshFile&) {
    if (step == "rename PRG_MODE.BIN") Global::remove_unfinished_saves();
    return Fault{};
  };
  EXPECT_EQ(save_file(image(), "new").code, FaultCode::file_not_found);
  EXPECT_EQ(system.save_steps.size(), 4U);
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "old");
}

// What is left of a save that was cut off

TEST_F(UnfinishedSave, WhatIsLeftIsRemovedFromTheFoldersOfSavesAndLogged) {
  Lines left;
  for (const char* file : {"port.ini", "Setup/Language.ini", "Dati/PRG_MODE.BIN", "Dati/PRG_PLU.BIN",
                           "Dati/Report/TIME.bin", "register/PRG_MODE.BIN"}) {
    write(file, "old");
    left.push_back(cut_off_save(file, "half"));
    EXPECT_TRUE(exists(left.back())) << left.back();
  }
  Global::remove_unfinished_saves();
  for (const std::string& file : left) {
    EXPECT_FALSE(exists(file)) << file;
    EXPECT_EQ(bytes(file.substr(0, file.size() - 7)), "old") << "the old file stands";
  }
  EXPECT_EQ(log().size(), left.size());
  EXPECT_EQ(log().front(), "Removed what a save that was cut off had left: " + left.front());
  Global::remove_unfinished_saves();
  EXPECT_EQ(log().size(), left.size()) << "nothing more to remove, nothing more to tell";
}

TEST_F(UnfinishedSave, NothingElseIsRemoved) {
  const Lines kept = {"Dati/PRG_MODE.BIN.backup",      "Dati/PRG_MODE.BIN.201126",       "Dati/PRG_MODE.BIN",
                      "Dati/PRG_MODE_SAV.BIN",         "Setup/Language.ini.Copy01",      "Report/CLERK.csv.K4W4Se",
                      "Log/memo_log.txt.K4W4Se",       "help/eng/index.html.K4W4Se",     "Dati/ECRZ320/V105/x.K4W4Se",
                      "Dati/own folder/a file.K4W4Se", "Dati/PRG_MODE.BIN.A1B2Cc/inside"};
  for (const std::string& file : kept) write(file, "kept");
  Global::remove_unfinished_saves();
  for (const std::string& file : kept) EXPECT_TRUE(exists(file)) << file;
  EXPECT_EQ(log(), Lines{});
}

TEST_F(UnfinishedSave, FoldersThatAreNotThereAreNoMatter) {
  for (const char* folder : {"Setup", "Dati", "register"}) remove(folder);
  Global::remove_unfinished_saves();
  EXPECT_EQ(log(), Lines{});
  Global::reset();
  Global::remove_unfinished_saves();
}

}  // namespace
}  // namespace ecr::test
