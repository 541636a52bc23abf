// The small files that keep one fact each between two runs, in whichever room they lie: what holds of all of them, and
// what is each one's own.

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "image/prg_mode.h"
#include "keyboard/key_default.h"
#include "lang/language.h"
#include "link/ports.h"
#include "reports/export_option.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

class SideFiles : public InstallationTest {
 protected:
  ~SideFiles() override {
    reset_export_option();
    reset_key_default();
  }
  template <std::size_t N>
  static std::string text(const std::array<std::uint8_t, N>& values) {
    return {values.begin(), values.end()};
  }
  template <std::size_t N>
  static void set(std::array<std::uint8_t, N>& values, std::string_view content) {
    std::transform(content.begin(), content.begin() + N, values.begin(),
                   [](char c) { return static_cast<std::uint8_t>(c); });
  }
};

/// A small file with the routines that move it, for what holds of all of them.
struct SideFile {
  const char* file;
  std::size_t length;
  std::function<void()> write;
  std::function<void()> read;
  /// The bytes in memory, in both directions.
  std::function<std::string()> in_memory;
  std::function<void(const std::string&)> put;
};

std::vector<SideFile> all_side_files() {
  const auto text = [](const auto& values) { return std::string{values.begin(), values.end()}; };
  const auto put_into = [](auto& values, const std::string& content) {
    std::transform(content.begin(), content.end(), values.begin(), [](char c) { return static_cast<std::uint8_t>(c); });
  };
  const auto key_file = [=](const char* name, std::uint8_t model) {
    return SideFile{name,
                    89,
                    [model] {
                      Global::EcrModel = model;
                      Write_Key_Default();
                    },
                    [model] {
                      Global::EcrModel = model;
                      Read_Key_Default();
                    },
                    [=] { return text(KeyDefault); },
                    [=](const std::string& content) {
                      put_into(KeyDefault, content);
                      put_into(PrgMode.KeyLayout, content);
                    }};
  };
  return {{"Setup/Language.ini", 1, Write_Language, Read_Language,
           [] { return std::string(1, static_cast<char>(LanguageNumber)); },
           [](const std::string& content) { LanguageNumber = static_cast<std::uint8_t>(content[0]); }},
          {"Setup/ExportOption.ini", 24, Write_ExportOption, Read_ExportOption, [=] { return text(ExportOption); },
           [=](const std::string& content) { put_into(ExportOption, content); }},
          key_file("Dati/KEY_DEFAULTZ300.BIN", Global::model_z300),
          key_file("Dati/KEY_DEFAULTZ320.BIN", Global::model_z320)};
}

TEST_F(SideFiles, EachIsWrittenInItsLengthAndReadBack) {
  Random random{83001};
  for (const SideFile& side : all_side_files()) {
    SCOPED_TRACE(side.file);
    for (int round = 0; round < 20; ++round) {
      const std::string content = random.bytes(side.length);
      side.put(content);
      side.write();
      ASSERT_EQ(bytes(side.file), content);
      side.put(std::string(side.length, '?'));
      side.read();
      ASSERT_EQ(side.in_memory(), content);
    }
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(SideFiles, AFileOfAnyLengthFillsWhatItReachesAndLeavesTheRest) {
  Random random{83002};
  for (const SideFile& side : all_side_files()) {
    for (const std::size_t length : {std::size_t{0}, std::size_t{1}, side.length / 2, side.length - 1, side.length,
                                     side.length + 1, std::size_t{5000}}) {
      SCOPED_TRACE(std::string{side.file} + " of " + std::to_string(length));
      const std::string before = random.bytes(side.length);
      const std::string content = random.bytes(length);
      side.put(before);
      write(side.file, content);
      side.read();
      const std::size_t reached = std::min(length, side.length);
      EXPECT_EQ(side.in_memory(), content.substr(0, reached) + before.substr(reached));
      EXPECT_EQ(bytes(side.file), content) << "reading changes no file";
    }
  }
}

TEST_F(SideFiles, AWriteOverALongerFileKeepsWhatStandsBehind) {
  for (const SideFile& side : all_side_files()) {
    SCOPED_TRACE(side.file);
    write(side.file, std::string(side.length, 'o') + "behind");
    side.put(std::string(side.length, 'n'));
    side.write();
    EXPECT_EQ(bytes(side.file), std::string(side.length, 'n') + "behind");
  }
}

TEST_F(SideFiles, AMissingFileLeavesWhatStoodInMemoryAndIsCreatedEmpty) {
  for (const SideFile& side : all_side_files()) {
    if (side.length == 1) continue;  // the language has a case of its own
    SCOPED_TRACE(side.file);
    side.put(std::string(side.length, 'm'));
    side.read();
    EXPECT_EQ(side.in_memory(), std::string(side.length, 'm'));
    EXPECT_TRUE(exists(side.file));
    EXPECT_EQ(bytes(side.file), "");
  }
}

TEST_F(SideFiles, AFolderInAFilesPlaceLeavesMemoryAndStays) {
  for (const SideFile& side : all_side_files()) {
    SCOPED_TRACE(side.file);
    make_folder(std::string{side.file} + "/inside");
    side.put(std::string(side.length, 'm'));
    side.read();
    // A language that cannot be found counts as missing, and then it is number 0.
    EXPECT_EQ(side.in_memory(), side.length == 1 ? std::string(1, '\0') : std::string(side.length, 'm'));
    side.write();
    EXPECT_TRUE(exists(std::string{side.file} + "/inside"));
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(SideFiles, WithoutTheirFoldersNothingIsReadAndNothingIsLeft) {
  remove("Setup");
  remove("Dati");
  for (const SideFile& side : all_side_files()) {
    SCOPED_TRACE(side.file);
    side.read();
    side.write();
  }
  EXPECT_FALSE(exists("Setup"));
  EXPECT_FALSE(exists("Dati"));
  EXPECT_TRUE(log().empty());
}

TEST_F(SideFiles, AWriteThatFailsIsSilentAndTriedOnce) {
  FakeSystem system;
  int attempts = 0;
  system.on_replace = [&attempts](const std::string&, std::string_view) {
    ++attempts;
    return Fault{FaultCode::disk_full};
  };
  for (const SideFile& side : all_side_files()) side.write();
  Write_rs232_fw(4);
  EXPECT_EQ(attempts, 5);
  EXPECT_TRUE(log().empty());
}

// The language

TEST_F(SideFiles, AFirstStartWithoutALanguageCreatesItWithTheByte0) {
  LanguageNumber = 5;
  Read_Language();
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(bytes("Setup/Language.ini"), std::string(1, '\0'));
}

TEST_F(SideFiles, AnEmptyLanguageFileLeavesTheNumber) {
  LanguageNumber = 5;
  write("Setup/Language.ini", "");
  Read_Language();
  EXPECT_EQ(LanguageNumber, 5);
  EXPECT_EQ(bytes("Setup/Language.ini"), "");
}

TEST_F(SideFiles, AnyByteIsALanguageNumber) {
  for (int number = 0; number < 256; ++number) {
    write("Setup/Language.ini", std::string(1, static_cast<char>(number)));
    Read_Language();
    EXPECT_EQ(LanguageNumber, number);
  }
}

// The port

TEST_F(SideFiles, ThePortIsOneByteInTheApplicationFolder) {
  for (const int port : {0, 4, 255}) {
    Write_rs232_fw(static_cast<std::uint8_t>(port));
    EXPECT_EQ(bytes("port.ini"), std::string(1, static_cast<char>(port)));
  }
}

TEST_F(SideFiles, ALongerPortFileKeepsItsTail) {
  write("port.ini", "12345");
  Write_rs232_fw(7);
  EXPECT_EQ(bytes("port.ini"),
            "\7"
            "2345");
}

TEST_F(SideFiles, AFolderInPlaceOfThePortFileStays) {
  make_folder("port.ini");
  Write_rs232_fw(7);
  EXPECT_TRUE(folder_exists(Global::PathApp + "port.ini"));
  EXPECT_TRUE(log().empty());
}

// The default keyboards

TEST_F(SideFiles, TheKeyboardsAreToldApartByTheModelAlone) {
  struct Row {
    std::uint8_t model;
    const char* file;
    const char* other;
  };
  const Row rows[] = {{0, "Dati/KEY_DEFAULTZ300.BIN", "Dati/KEY_DEFAULTZ320.BIN"},
                      {1, "Dati/KEY_DEFAULTZ320.BIN", "Dati/KEY_DEFAULTZ300.BIN"},
                      {2, "Dati/KEY_DEFAULTZ300.BIN", "Dati/KEY_DEFAULTZ320.BIN"}};
  for (const Row& row : rows) {
    remove(row.file);
    remove(row.other);
    Global::EcrModel = row.model;
    PrgMode.KeyLayout.fill(static_cast<std::uint8_t>('a' + row.model));
    Write_Key_Default();
    EXPECT_EQ(bytes(row.file), std::string(89, static_cast<char>('a' + row.model)));
    EXPECT_FALSE(exists(row.other));
    write(row.file, std::string(89, 'r'));
    write(row.other, std::string(89, 'o'));
    Read_Key_Default();
    EXPECT_EQ(text(KeyDefault), std::string(89, 'r'));
  }
}

TEST_F(SideFiles, AWriteTakesTheKeysOfTheWorkingImageFirst) {
  KeyDefault.fill('k');
  PrgMode.KeyLayout.fill('p');
  PrgModeComparison.KeyLayout.fill('c');
  Write_Key_Default();
  EXPECT_EQ(text(KeyDefault), std::string(89, 'p'));
  EXPECT_EQ(bytes("Dati/KEY_DEFAULTZ300.BIN"), std::string(89, 'p'));
}

TEST_F(SideFiles, AReadLeavesTheWorkingImage) {
  PrgMode.KeyLayout.fill('p');
  write("Dati/KEY_DEFAULTZ300.BIN", std::string(89, 'f'));
  Read_Key_Default();
  EXPECT_EQ(text(KeyDefault), std::string(89, 'f'));
  EXPECT_EQ(text(PrgMode.KeyLayout), std::string(89, 'p'));
}

}  // namespace
}  // namespace ecr::test
