#include "image/prg_mode.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <functional>
#include <gtest/gtest.h>
#include <string>
#include <utility>
#include <vector>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

constexpr std::size_t file_size = 5656;
constexpr std::size_t key_layout_at = 5567;

/// Positions in the key layout that must hold the digits 1 to 9, by digit.
struct ModelKeypad {
  std::uint8_t model;
  std::array<std::size_t, 10> position;
};
constexpr ModelKeypad keypads[] = {
    {Global::model_z300, {0, 34, 35, 36, 23, 24, 25, 12, 13, 14}},
    {Global::model_z320, {0, 69, 70, 71, 54, 55, 56, 39, 40, 41}},
};

class ProgrammingImage : public InstallationTest {
 protected:
  ProgrammingImage() { Global::choose_model(Global::model_z320); }

  static constexpr const char* file = "Dati/PRG_MODE.BIN";

  /// Bytes with the digit keys of the model where they must be.
  static std::string with_keypad(std::string content, std::uint8_t model = Global::model_z320) {
    for (std::size_t digit = 1; digit <= 9; ++digit) {
      content[key_layout_at + keypads[model].position[digit]] = static_cast<char>(digit);
    }
    return content;
  }

  static std::string image_bytes(const PrgModeImage& image) {
    return {static_cast<const char*>(static_cast<const void*>(&image)), sizeof image};
  }

  static void fill(PrgModeImage& image, std::string_view content) {
    std::memcpy(static_cast<void*>(&image), content.data(), content.size());
  }

  /// The image as it was when nothing was read.
  static std::string zeros() { return std::string(file_size, '\0'); }
};

// The layout

struct Section {
  std::string name;
  std::size_t offset;
  std::size_t length;
  std::size_t count;
  std::size_t width;
  void* place;         // in the working image
  std::size_t size;    // of the member
  std::size_t pieces;  // that the member is an array of, 1 if it is taken whole
};

// clang-format off
#define ONE(name, offset, length) {#name, offset, length, 1, length, &PrgMode.name, sizeof PrgMode.name, 1}
#define MANY(name, offset, length, count, width) \
  {#name, offset, length, count, width, &PrgMode.name, sizeof PrgMode.name, std::size(PrgMode.name)}
const std::vector<Section> sections = {
    ONE(Set00_InitialMenu, 0, 1),
    ONE(Set01_Working, 1, 1),
    ONE(Set02_Working, 2, 1),
    ONE(Set03_Working, 3, 1),
    ONE(Set04_InitialMenu, 4, 1),
    ONE(Set05_Print, 5, 1),
    ONE(Set06_Print, 6, 1),
    ONE(Set07_Print, 7, 1),
    ONE(Set08_EJ, 8, 1),
    ONE(Set09_ClerkMenu, 9, 1),
    ONE(Set10_Report, 10, 1),
    ONE(Set11_Shared, 11, 1),
    ONE(Set12_Hospitality, 12, 1),
    ONE(Set13_EJ, 13, 1),
    ONE(Set14_Print, 14, 1),
    ONE(Set15_Print, 15, 1),
    ONE(Set16_Print, 16, 1),
    ONE(Set17_Print, 17, 1),
    ONE(Set18_Print, 18, 1),
    ONE(Set19_Print, 19, 1),
    ONE(Set20_Print, 20, 1),
    ONE(Spare4, 21, 4),
    ONE(InitialMenuBlock5, 25, 5),
    ONE(Perm0, 30, 2),
    ONE(Perm1, 32, 2),
    ONE(Perm2, 34, 2),
    ONE(Perm3, 36, 2),
    MANY(VatRate, 38, 16, 4, 4),
    MANY(PercentA, 54, 4, 2, 2),
    MANY(PercentB, 58, 4, 2, 2),
    ONE(KeyOpt0, 62, 1),
    ONE(KeyOpt1, 63, 1),
    ONE(KeyOpt2, 64, 1),
    ONE(KeyOpt3, 65, 1),
    ONE(KeyOpt4, 66, 1),
    ONE(SysOpt0, 67, 1),
    ONE(SysOpt1, 68, 1),
    ONE(NoSaleOpt, 69, 1),
    ONE(PluPage, 70, 24),
    MANY(InstoreBarcode, 94, 80, 10, 8),
    ONE(CaptionOpt0, 174, 1),
    ONE(CaptionOpt1, 175, 1),
    MANY(AdvSet8, 176, 40, 5, 8),
    MANY(AdvSet20, 216, 100, 5, 20),
    MANY(AdvSet2, 316, 10, 5, 2),
    ONE(SysOpt2, 326, 3),
    MANY(Dept, 329, 2178, 99, 22),
    MANY(Clerk, 2507, 420, 15, 28),
    MANY(ForeignCurrency, 2927, 64, 4, 16),
    MANY(Tender, 2991, 126, 9, 14),
    ONE(SysOpt3, 3117, 4),
    ONE(SysOpt4, 3121, 4),
    ONE(SysOpt5, 3125, 2),
    ONE(SysOpt6, 3127, 2),
    ONE(SysOpt7, 3129, 8),
    MANY(DeptGroupName, 3137, 120, 10, 12),
    MANY(ReceiptHeader, 3257, 240, 10, 24),
    MANY(ReceiptFooter, 3497, 240, 10, 24),
    ONE(OffModeScrollMessage, 3737, 42),
    ONE(PrgXZ_ModeScrollMessage, 3779, 42),
    ONE(RegModeSalesScrollMessage, 3821, 42),
    ONE(IdleAMScrollMessage, 3863, 42),
    ONE(IdlePMScrollMessage, 3905, 42),
    MANY(Abr, 3947, 168, 7, 24),
    MANY(ExtraInvoice, 4115, 120, 5, 24),
    MANY(Caption, 4235, 780, 78, 10),
    MANY(Other, 5015, 552, 23, 24),
    ONE(KeyLayout, 5567, 89),
};
#undef ONE
#undef MANY

struct Field {
  std::string name;
  std::size_t offset;
  std::size_t length;
  void* place;
  std::size_t size;
};
#define FIELD(member, offset, length) {#member, offset, length, &PrgMode.member, sizeof PrgMode.member}
const std::vector<Field> fields = {
    FIELD(Dept[0].Name, 329, 12),          FIELD(Dept[0].Status1, 341, 1),        FIELD(Dept[0].Status2, 342, 1),
    FIELD(Dept[0].Changed, 343, 1),        FIELD(Dept[0].Group, 344, 1),          FIELD(Dept[0].Tax, 345, 1),
    FIELD(Dept[0].TakeOutTax, 346, 1),     FIELD(Dept[0].Price, 347, 4),          FIELD(Dept[1].Name, 351, 12),
    FIELD(Dept[98].Price, 2503, 4),
    FIELD(Clerk[0].Name, 2507, 24),        FIELD(Clerk[0].Rights, 2531, 1),       FIELD(Clerk[0].Unused, 2532, 1),
    FIELD(Clerk[0].Password, 2533, 2),     FIELD(Clerk[14].Password, 2925, 2),
    FIELD(ForeignCurrency[0].Name, 2927, 10),
    FIELD(ForeignCurrency[0].DecimalPositionForExchangedRate, 2937, 1),
    FIELD(ForeignCurrency[0].DecimalPositionForRate, 2938, 1),
    FIELD(ForeignCurrency[0].Rate, 2939, 4), FIELD(ForeignCurrency[3].Rate, 2987, 4),
    FIELD(Tender[0].Name, 2991, 12),       FIELD(Tender[0].Halo, 3003, 1),        FIELD(Tender[0].Options, 3004, 1),
    FIELD(Tender[8].Options, 3116, 1),
    FIELD(VatRate[0], 38, 4),              FIELD(VatRate[3], 50, 4),              FIELD(PluPage[2], 86, 8),
    FIELD(InstoreBarcode[0].FlagCode, 94, 2),        FIELD(InstoreBarcode[0].DigitsOfFlag, 96, 1),
    FIELD(InstoreBarcode[0].DigitsOfPrice, 97, 1),   FIELD(InstoreBarcode[0].NumberOfFc, 98, 1),
    FIELD(InstoreBarcode[0].CodeLenght, 99, 1),      FIELD(InstoreBarcode[0].PriceCheckDigit, 100, 1),
    FIELD(InstoreBarcode[0].NewsPaper, 101, 1),      FIELD(InstoreBarcode[9].NewsPaper, 173, 1),
    FIELD(KeyLayout[0], 5567, 1),          FIELD(KeyLayout[88], 5655, 1),
};
#undef FIELD
// clang-format on

/// The places in which two files differ: the first, and how many. All of them must be in one piece.
struct Changed {
  std::size_t first = 0;
  std::size_t length = 0;
};
Changed changed_between(const std::string& before, const std::string& after) {
  EXPECT_EQ(before.size(), after.size());
  Changed changed;
  for (std::size_t i = 0; i < before.size() && i < after.size(); ++i) {
    if (before[i] == after[i]) continue;
    if (changed.length == 0) changed.first = i;
    EXPECT_EQ(i, changed.first + changed.length) << "a byte outside the piece changed";
    ++changed.length;
  }
  return changed;
}

TEST_F(ProgrammingImage, EachSectionIsWrittenToItsBytesOfTheFileAndTogetherTheyAreTheFile) {
  Write_PrgMode();
  const std::string before = bytes(file);
  ASSERT_EQ(before.size(), file_size);
  std::size_t written = 0;
  for (const Section& section : sections) {
    SCOPED_TRACE(section.name);
    ASSERT_EQ(section.size, section.length);
    std::memset(section.place, 0xFF, section.size);
    Write_PrgMode();
    const Changed changed = changed_between(before, bytes(file));
    EXPECT_EQ(changed.first, section.offset);
    EXPECT_EQ(changed.length, section.length);
    EXPECT_EQ(changed.first, written) << "a gap, or two sections over each other";
    written = changed.first + changed.length;
    std::memset(section.place, 0, section.size);
  }
  EXPECT_EQ(written, file_size);
}

TEST_F(ProgrammingImage, EachPieceOfASectionHasItsWidth) {
  for (const Section& section : sections) {
    if (section.pieces == 1) continue;
    SCOPED_TRACE(section.name);
    ASSERT_EQ(section.pieces, section.count);
    ASSERT_EQ(section.size / section.pieces, section.width);
  }
}

TEST_F(ProgrammingImage, EachFieldOfARecordIsWrittenToItsBytesOfTheFile) {
  Write_PrgMode();
  const std::string before = bytes(file);
  for (const Field& field : fields) {
    SCOPED_TRACE(field.name);
    ASSERT_EQ(field.size, field.length);
    std::memset(field.place, 0xFF, field.size);
    Write_PrgMode();
    const Changed changed = changed_between(before, bytes(file));
    EXPECT_EQ(changed.first, field.offset);
    EXPECT_EQ(changed.length, field.length);
    std::memset(field.place, 0, field.size);
  }
}

TEST_F(ProgrammingImage, EachSectionIsReadFromItsBytesOfTheFile) {
  for (const Section& section : sections) {
    SCOPED_TRACE(section.name);
    std::string content = with_keypad(zeros());
    const bool is_keys = section.offset == key_layout_at;
    for (std::size_t i = 0; i < section.length && !is_keys; ++i) {
      content[section.offset + i] = static_cast<char>(1 + i % 100);
    }
    write(file, content);
    ASSERT_TRUE(Read_PrgMode());
    EXPECT_EQ((std::string{static_cast<const char*>(section.place), section.size}),
              content.substr(section.offset, section.length));
  }
}

// Reading and writing

TEST_F(ProgrammingImage, IsZeroBeforeAnyRead) {
  EXPECT_EQ(image_bytes(PrgMode), zeros());
  EXPECT_EQ(image_bytes(PrgModeComparison), zeros());
}

TEST_F(ProgrammingImage, AFileOfTheRightModelIsReadAndRewrittenByteForByte) {
  Random random{81001};
  for (int round = 0; round < 50; ++round) {
    const auto model = static_cast<std::uint8_t>(random.below(2));
    Global::choose_model(model);
    const std::string content = with_keypad(random.bytes(file_size), model);
    write(file, content);
    ASSERT_TRUE(Read_PrgMode());
    ASSERT_EQ(bytes_of_image(PrgMode), content);
    remove(file);
    Write_PrgMode();
    ASSERT_EQ(bytes(file), content);
  }
}

TEST_F(ProgrammingImage, WhatNobodyInterpretsIsCarriedAlong) {
  std::string content = with_keypad(zeros());
  content.replace(21, 4, "\x01\x02\x03\x04");
  content.replace(216, 100, std::string(100, '\x5A'));
  write(file, content);
  ASSERT_TRUE(Read_PrgMode());
  Write_PrgMode();
  EXPECT_EQ(bytes(file), content);
}

TEST_F(ProgrammingImage, AWriteKeepsWhatStandsBehindTheLayout) {
  Random random{81002};
  const std::string content = with_keypad(random.bytes(file_size));
  const std::string tail = random.bytes(777);
  write(file, content + tail);
  ASSERT_TRUE(Read_PrgMode());
  EXPECT_EQ(bytes_of_image(PrgMode), content);
  PrgMode.SysOpt1 = static_cast<std::uint8_t>(PrgMode.SysOpt1 + 1);
  Write_PrgMode();
  std::string expected = content + tail;
  expected[68] = static_cast<char>(PrgMode.SysOpt1);
  EXPECT_EQ(bytes(file), expected);
}

TEST_F(ProgrammingImage, AWriteOverAShorterFileMakesItWhole) {
  write(file, "short");
  Write_PrgMode();
  EXPECT_EQ(bytes(file), zeros());
}

TEST_F(ProgrammingImage, AFileOfAnyLengthFillsWhatItReachesAndLeavesTheRest) {
  Random random{81003};
  for (const std::size_t length :
       {1U, 20U, 21U, 38U, 328U, 329U, 340U, 2506U, 3136U, 5566U, 5567U, 5600U, 5655U, 5656U, 5657U, 6000U, 100000U}) {
    SCOPED_TRACE(length);
    const std::string before = with_keypad(random.bytes(file_size));
    fill(PrgMode, before);
    std::string content = random.bytes(length);
    if (length > key_layout_at) {
      // What the file reaches of the keys must be right for the test to pass.
      const std::size_t reached = std::min(length, file_size) - key_layout_at;
      content.replace(key_layout_at, reached, before.substr(key_layout_at, reached));
    }
    write(file, content);
    EXPECT_TRUE(Read_PrgMode());
    const std::size_t reached = std::min(length, file_size);
    EXPECT_EQ(bytes_of_image(PrgMode), content.substr(0, reached) + before.substr(reached));
    EXPECT_EQ(bytes(file), content) << "reading changes no file";
  }
}

TEST_F(ProgrammingImage, BeforeAnyReadAShortFileLeavesZeros) {
  shell.expect_box(BoxKind::plain, "");
  write(file, std::string(100, 'x'));
  EXPECT_FALSE(Read_PrgMode());
  EXPECT_EQ(bytes_of_image(PrgMode), std::string(100, 'x') + std::string(file_size - 100, '\0'));
}

TEST_F(ProgrammingImage, AMissingFileIsCreatedEmptyAndTurnedAway) {
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  shell.expect_box(BoxKind::plain, "Wrong register");
  EXPECT_FALSE(Read_PrgMode());
  EXPECT_TRUE(exists(file));
  EXPECT_EQ(bytes(file), "");
  EXPECT_EQ(bytes_of_image(PrgMode), zeros());
  EXPECT_TRUE(log().empty());
}

TEST_F(ProgrammingImage, AFileThatDeliversNothingIsTurnedAwayAlsoWithAGoodImageInMemory) {
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  const std::string before = with_keypad(std::string(file_size, 'm'));
  fill(PrgMode, before);
  fill(PrgModeComparison, before);
  const std::pair<const char*, std::function<void()>> ways[] = {
      {"missing", [this] { remove(file); }},
      {"empty, as the read of a missing file leaves it", [this] { write(file, ""); }},
      {"a folder",
       [this] {
         remove(file);
         make_folder(file);
       }},
      {"missing with its folder", [this] { remove("Dati"); }},
  };
  for (const auto& [way, lay_down] : ways) {
    SCOPED_TRACE(way);
    for (const bool to_comparison : {false, true}) {
      lay_down();
      shell.expect_box(BoxKind::plain, "Wrong register");
      EXPECT_FALSE(Read_PrgMode(to_comparison));
    }
    EXPECT_EQ(bytes_of_image(PrgMode), before) << "what was read earlier stays in memory until the next read";
    EXPECT_EQ(bytes_of_image(PrgModeComparison), before);
  }
}

TEST_F(ProgrammingImage, AFolderInPlaceOfTheFileDeliversNothing) {
  make_folder(file);
  shell.expect_box(BoxKind::plain, "");
  EXPECT_FALSE(Read_PrgMode());
  EXPECT_EQ(bytes_of_image(PrgMode), zeros());
  Write_PrgMode();
  EXPECT_TRUE(folder_exists(Global::PathDati + "PRG_MODE.BIN"));
  EXPECT_TRUE(log().empty());
}

TEST_F(ProgrammingImage, WithoutItsFolderNothingIsReadAndNothingIsLeft) {
  remove("Dati");
  shell.expect_box(BoxKind::plain, "");
  EXPECT_FALSE(Read_PrgMode());
  Write_PrgMode();
  EXPECT_FALSE(exists("Dati"));
  EXPECT_TRUE(log().empty()) << "a failed write is silent";
}

TEST_F(ProgrammingImage, RandomBytesAreTurnedAwayAndStayInMemory) {
  Random random{81004};
  for (int round = 0; round < 20; ++round) {
    const std::string content = random.bytes(file_size);
    write(file, content);
    shell.expect_box(BoxKind::plain, "");
    EXPECT_FALSE(Read_PrgMode());
    EXPECT_EQ(bytes_of_image(PrgMode), content);
  }
}

TEST_F(ProgrammingImage, AReadThatFailsIsNotTriedAgain) {
  make_folder(file);
  shell.expect_box(BoxKind::plain, "");
  int boxes = 0;
  shell.on_box = [&boxes] { ++boxes; };
  EXPECT_FALSE(Read_PrgMode());
  EXPECT_EQ(boxes, 1);
  EXPECT_TRUE(log().empty()) << "no line tells of attempts";
}

TEST_F(ProgrammingImage, AWriteThatFailsLeavesTheOldFileAndSaysNothing) {
  const std::string content = with_keypad(std::string(file_size, 'o'));
  write(file, content);
  ASSERT_TRUE(Read_PrgMode());
  FakeSystem system;
  int attempts = 0;
  system.on_replace = [&attempts](const std::string&, std::string_view) {
    ++attempts;
    return Fault{FaultCode::disk_full};
  };
  PrgMode.SysOpt0 = 3;
  Write_PrgMode();
  EXPECT_EQ(attempts, 1);
  EXPECT_EQ(bytes(file), content);
  EXPECT_TRUE(log().empty());
}

TEST_F(ProgrammingImage, TheDecimalsOfAmountsAreTakenFromIt) {
  for (const int decimals : {3, 0, 255}) {
    PrgMode.SysOpt0 = static_cast<std::uint8_t>(decimals);
    take_decimal_point();
    EXPECT_EQ(Global::DecimalPoint, decimals);
  }
}

// The keypad test

TEST_F(ProgrammingImage, TheDigitKeysMustLieWhereTheModelHasThem) {
  for (const ModelKeypad& keypad : keypads) {
    PrgModeImage image{};
    for (std::size_t digit = 1; digit <= 9; ++digit) {
      image.KeyLayout[keypad.position[digit]] = static_cast<std::uint8_t>(digit);
    }
    EXPECT_TRUE(keypad_matches(image, keypad.model));
    for (const ModelKeypad& other : keypads) {
      EXPECT_EQ(keypad_matches(image, other.model), other.model == keypad.model);
    }
    for (std::size_t digit = 1; digit <= 9; ++digit) {
      SCOPED_TRACE(digit);
      PrgModeImage spoilt = image;
      spoilt.KeyLayout[keypad.position[digit]] = 0;
      EXPECT_FALSE(keypad_matches(spoilt, keypad.model));
      spoilt.KeyLayout[keypad.position[digit]] = static_cast<std::uint8_t>(digit % 9 + 1);
      EXPECT_FALSE(keypad_matches(spoilt, keypad.model));
    }
  }
}

TEST_F(ProgrammingImage, NoOtherKeyDecides) {
  Random random{81005};
  for (const ModelKeypad& keypad : keypads) {
    for (int round = 0; round < 200; ++round) {
      PrgModeImage image{};
      for (std::uint8_t& key : image.KeyLayout) key = random.byte();
      for (std::size_t digit = 1; digit <= 9; ++digit) {
        image.KeyLayout[keypad.position[digit]] = static_cast<std::uint8_t>(digit);
      }
      EXPECT_TRUE(keypad_matches(image, keypad.model));
    }
  }
}

TEST_F(ProgrammingImage, AFileOfTheOtherModelIsTurnedAway) {
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  for (const ModelKeypad& keypad : keypads) {
    const auto other = static_cast<std::uint8_t>(1 - keypad.model);
    Global::choose_model(other);
    write(file, with_keypad(zeros(), keypad.model));
    shell.expect_box(BoxKind::plain, "Wrong register");
    EXPECT_FALSE(Read_PrgMode());
    Global::choose_model(keypad.model);
    EXPECT_TRUE(Read_PrgMode());
  }
}

TEST_F(ProgrammingImage, WithAnEmptyCatalogueTheBoxIsEmpty) {
  shell.expect_box(BoxKind::plain, "");
  EXPECT_FALSE(Read_PrgMode());
  EXPECT_EQ(shell.box_titles, std::vector<std::string>{""});
}

// The comparison image

TEST_F(ProgrammingImage, AReadForComparisonLeavesTheWorkingImage) {
  const std::string working = with_keypad(std::string(file_size, 'w'));
  const std::string other = with_keypad(std::string(file_size, 'c'));
  fill(PrgMode, working);
  write(file, other);
  EXPECT_TRUE(Read_PrgMode(true));
  EXPECT_EQ(bytes_of_image(PrgMode), working);
  EXPECT_EQ(bytes_of_image(PrgModeComparison), other);
}

TEST_F(ProgrammingImage, TheKeypadTestLooksAtTheWorkingImageAlsoForComparison) {
  const std::string right = with_keypad(std::string(file_size, 'c'));
  write(file, right);
  shell.expect_box(BoxKind::plain, "");
  EXPECT_FALSE(Read_PrgMode(true)) << "the working image is empty";
  EXPECT_EQ(bytes_of_image(PrgModeComparison), right) << "and yet the file was taken in";

  fill(PrgMode, right);
  write(file, std::string(file_size, 'x'));
  EXPECT_TRUE(Read_PrgMode(true)) << "the file is of no model, the working image is right";
}

TEST_F(ProgrammingImage, OnlyTheWorkingImageIsEverWritten) {
  fill(PrgMode, std::string(file_size, 'w'));
  fill(PrgModeComparison, std::string(file_size, 'c'));
  Write_PrgMode();
  EXPECT_EQ(bytes(file), std::string(file_size, 'w'));
}

}  // namespace
}  // namespace ecr::test
