// The tool that makes the programming files, and the table of fields that it works by.

#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <string_view>

#include "core/text.h"
#include "image/layout.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "make_programming/programming.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

std::string made(std::string_view source) {
  return make_programming(parse_source(source, "shop.txt"));
}

std::string made_image(std::string_view lines) {
  return made("file = PRG_MODE\n" + std::string{lines});
}

/// The bytes of one field of an image that the lines make.
std::string field(std::string_view lines, std::string_view name, std::size_t number = 1) {
  const FieldPlace* place = field_named(image_fields, name);
  if (place == nullptr) return "no such field";
  return made_image(lines).substr(place->offset_of(number), place->width);
}

/// What is wrong with the source; empty if nothing is.
std::string complaint(std::string_view source) {
  try {
    static_cast<void>(made(source));
  } catch (const SourceError& error) {
    return error.what();
  }
  return {};
}

std::string complaint_of_line(std::string_view line) {
  return complaint("file = PRG_MODE\n" + std::string{line});
}

// Bytes that are decimal or letters about half of the time, so that every written form is met.
std::string mixed_bytes(Random& random, std::size_t length) {
  std::string bytes(length, '\0');
  for (char& c : bytes) {
    switch (random.below(4)) {
      case 0:
        c = static_cast<char>(random.below(10) * 16 + random.below(10));
        break;
      case 1:
        c = "az AZ09\"\\#,"[random.below(11)];
        break;
      case 2:
        c = static_cast<char>(random.byte());
        break;
      default:
        break;
    }
  }
  return bytes;
}

std::string table_of(std::string lists_and_items) {
  const std::size_t count = (lists_and_items.size() - pop_up_lists_size) / sizeof(PluRecord);
  return std::string{static_cast<char>(count & 0xFF), static_cast<char>(count >> 8)} + std::move(lists_and_items);
}

TEST(ProgrammingSource, OfAnyImageMakesTheSameBytes) {
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    Random random{seed};
    for (const std::string& bytes : {random.bytes(prg_mode_size), mixed_bytes(random, prg_mode_size)}) {
      EXPECT_TRUE(made(explain_programming(bytes)) == bytes);
    }
  }
}

TEST(ProgrammingSource, OfAnyItemTableMakesTheSameBytes) {
  for (std::uint64_t seed = 1; seed <= 20; ++seed) {
    Random random{seed};
    const std::size_t length = pop_up_lists_size + sizeof(PluRecord) * random.below(80);
    for (const std::string& body : {random.bytes(length), mixed_bytes(random, length)}) {
      const std::string bytes = table_of(body);
      EXPECT_TRUE(made(explain_programming(bytes)) == bytes);
    }
  }
}

TEST(ProgrammingSource, OfAnyQuantityMakesTheSameBytes) {
  Random random{1};
  std::string body(pop_up_lists_size, '\0');
  for (int i = 0; i < 200; ++i) {
    std::string item(sizeof(PluRecord), '\0');
    for (std::size_t byte = 38; byte < 44; ++byte) {
      item[byte] = static_cast<char>(random.below(10) * 16 + random.below(10));
    }
    // Signs: none, the one that is written, and any other digit.
    const std::uint64_t sign = random.below(3);
    if (sign < 2) item[43] = static_cast<char>(sign * 16 + random.below(10));
    body += item;
  }
  const std::string bytes = table_of(body);
  EXPECT_TRUE(made(explain_programming(bytes)) == bytes);
}

TEST(ProgrammingSource, OfAnyKeyboardMakesTheSameBytes) {
  Random random{1};
  for (int i = 0; i < 20; ++i) {
    const std::string bytes = random.bytes(89);
    EXPECT_EQ(made(explain_programming(bytes)), bytes);
  }
}

TEST(ProgrammingSource, IsRefusedToBytesOfOtherLengths) {
  for (const std::size_t length : {0U, 88U, 90U, 801U, 803U, 5655U, 5657U}) {
    EXPECT_THROW(static_cast<void>(explain_programming(std::string(length, '\0'))), NotProgramming) << length;
  }
  // A count that the length does not bear out.
  EXPECT_THROW(static_cast<void>(explain_programming(std::string(plu_head_size, '\x01'))), NotProgramming);
}

TEST(ProgrammingSource, LeavesWhatItDoesNotSayEmpty) {
  const std::string bytes = made_image("");
  for (const FieldPlace& place : image_fields) {
    const char empty = place.name == "KeyLayout" ? '\xFF' : place.kind == FieldKind::text ? ' ' : '\0';
    for (std::size_t number = place.first; place.has(number); ++number) {
      EXPECT_EQ(bytes.substr(place.offset_of(number), place.width), std::string(place.width, empty))
          << name_of(place, number);
    }
  }
  EXPECT_EQ(made("file = PRG_PLU"), std::string(plu_head_size, '\0'));
  EXPECT_EQ(made("file = KEY_DEFAULT"), std::string(89, '\xFF'));
}

TEST(ProgrammingSource, WritesNumbersLowestPairFirst) {
  using namespace std::string_literals;
  EXPECT_EQ(field("VatRate = 22.000 %", "VatRate"), "\x00\x20\x02\x00"s);
  EXPECT_EQ(field("VatRate[2] = 7.5", "VatRate", 2), "\x00\x75\x00\x00"s);
  EXPECT_EQ(field("PluPage = 1, 2, 9999999999999", "PluPage", 3), "\x99\x99\x99\x99\x99\x99\x09\x00"s);
  EXPECT_EQ(field("Dept[7].Price = 12.5", "Dept.Price", 7), "\x50\x12\x00\x00"s);
  EXPECT_EQ(field("Spare4 = <01 02 0a FF>", "Spare4"), "\x01\x02\x0A\xFF"s);
  EXPECT_EQ(field("Perm0 = <AB CD>", "Perm0"), "\xAB\xCD"s);
}

TEST(ProgrammingSource, ConvertsTextsToTheRegister) {
  EXPECT_EQ(field("Dept[1].Name = \"Crème €ñøü\"", "Dept.Name"), "Cr\xEFme \xF8\x88\xBE\x94  ");
  EXPECT_EQ(field(R"(Dept[1].Name = "a\"\\\x7F#,=")", "Dept.Name"), "a\"\\\x7F#,=     ");
  EXPECT_EQ(field("ReceiptHeader = \"·A\"", "ReceiptHeader"),
            "\xFF"
            "A                      ");
}

TEST(ProgrammingSource, NamesBitsAndKeys) {
  EXPECT_EQ(field("Set17_Print = no-time+no-z-counters", "Set17_Print"), "\x82");
  EXPECT_EQ(field("Set09_ClerkMenu = bit3", "Set09_ClerkMenu"), "\x08");
  EXPECT_EQ(field("Set20_Print = 130", "Set20_Print"), "\x82");
  EXPECT_EQ(field("Dept[1].Status1 = negative+limit:4", "Dept.Status1"), "\x41");
  EXPECT_EQ(field("Dept[1].Status2 = preset", "Dept.Status2"), "\x02");
  EXPECT_EQ(field("AdvSet8[5] = fc+take-out", "AdvSet8", 5), std::string("\x00\x04\x00\x08\x00\x00\x00\x00", 8));
  EXPECT_EQ(field("KeyLayout[0] = \"DEPT 20\", 5, \"#NS, NEXT\"", "KeyLayout", 0), "\x65");
  EXPECT_EQ(field("KeyLayout[0] = \"DEPT 20\", 5, \"#NS, NEXT\"", "KeyLayout", 2), "\x15");
}

TEST(ProgrammingSource, WritesARecordOrManyInALine) {
  const std::string lines = "Clerk[2..3] = \"CLERK {n}\", none, 0, 10{n}\nClerk[1] = \"Ann\", training, 0, 7\n";
  EXPECT_EQ(field(lines, "Clerk.Name", 3), padded("CLERK 3", 24));
  EXPECT_EQ(field(lines, "Clerk.Password", 3), "\x03\x01");
  EXPECT_EQ(field(lines, "Clerk.Rights"), "\x80");
  EXPECT_EQ(field(lines, "Clerk.Name", 4), padded("", 24));
}

TEST(ProgrammingSource, WritesItemsInTheOrderOfTheirLines) {
  using namespace std::string_literals;
  const std::string bytes = made(
      "file = PRG_PLU\nPopUpList[2] = 7, 0, 9\n"
      "Plu = 9, \"Tea\", preset+price1, 12, 1, 2, 1.20, 0, 2, 0, -1.5\nPlu[20..21] = {n}, \"N{n}\", open, 1, 0, 0, 0, "
      "0, 0, 0, 0\n");
  ASSERT_EQ(bytes.size(), plu_head_size + 3 * sizeof(PluRecord));
  EXPECT_EQ(bytes.substr(0, 2), "\x03\x00"s);
  EXPECT_EQ(bytes.substr(2 + 160, 8 * 3), "\x07\0\0\0\0\0\0\0\0\0\0\0\0\0\0\0\x09\0\0\0\0\0\0\0"s);
  EXPECT_EQ(bytes.substr(plu_head_size, sizeof(PluRecord)),
            "\x09\0\0\0\0\0\0\0Tea             \x42\x12\x01\x02\x20\x01\0\0\0\0\0\0\x02\0\x00\x50\x01\0\0\x10"s);
  EXPECT_EQ(bytes.substr(plu_head_size + 2 * sizeof(PluRecord) + 8, 4), "N21 ");
}

TEST(ProgrammingSource, TellsFileAndLineOfWhatIsWrong) {
  EXPECT_EQ(complaint("file = PRG_MODE\n\n# fine\nPerm0 = 12345\n"), "shop.txt:4: Perm0: the field has 4 digits");
}

TEST(ProgrammingSource, RefusesWhatItsFieldCannotTake) {
  EXPECT_EQ(complaint_of_line("Dept[1].Name = \"thirteen long\""),
            "shop.txt:2: Dept[1].Name: the text has 13 characters, the field 12");
  EXPECT_EQ(complaint_of_line("Dept[1].Name = \"12 £\""), "shop.txt:2: Dept[1].Name: the register has no character £");
  // The lead byte of two; a letter beyond the code page; a character that the register shows as unknown.
  for (const std::string_view text : {"Ã", "ł", "×", "\x01", "😀"}) {
    EXPECT_NE(complaint_of_line("Dept[1].Name = \"" + std::string{text} + "\"").find("has no character"),
              std::string::npos)
        << text;
  }
  EXPECT_NE(complaint_of_line("Dept[1].Name = \"\xE9\"").find("not UTF-8"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[1].Name = Bread").find("a text in quotes"), std::string::npos);
  EXPECT_NE(complaint_of_line("VatRate = 1.2345").find("3 decimals"), std::string::npos);
  EXPECT_NE(complaint_of_line("VatRate = -1").find("below zero"), std::string::npos);
  EXPECT_NE(complaint_of_line("VatRate = 10000000000000000000000000000").find("shop.txt:2: VatRate[1]: "),
            std::string::npos);
  EXPECT_NE(complaint_of_line("VatRate = much").find("no number"), std::string::npos);
  EXPECT_NE(complaint_of_line("SysOpt0 = 256").find("0 to 255"), std::string::npos);
  EXPECT_NE(complaint_of_line("Spare4 = <01 02>").find("4 bytes"), std::string::npos);
  EXPECT_NE(complaint_of_line("Spare4 = 7").find("bytes between"), std::string::npos);
  EXPECT_NE(complaint_of_line("Set17_Print = no-such").find("no flag"), std::string::npos);
  EXPECT_NE(complaint_of_line("Set17_Print = no-time+no-time").find("again"), std::string::npos);
  EXPECT_NE(complaint_of_line("Set17_Print = bit8").find("no flag"), std::string::npos);
  EXPECT_NE(complaint_of_line("KeyLayout[1] = \"PO\"").find("no key function"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[1].Price =").find("a value is missing"), std::string::npos);
}

TEST(ProgrammingSource, RefusesLinesThatSayNothingKnown) {
  EXPECT_NE(complaint_of_line("Depth[1].Name = \"x\"").find("there is no Depth[1].Name"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[1].Colour = 1").find("there is no Dept[1].Colour"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept.Name = \"x\"").find("a record has a number"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[100].Name = \"x\"").find("counts from 1 to 99"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[0].Name = \"x\"").find("counts from 1 to 99"), std::string::npos);
  EXPECT_NE(complaint_of_line("KeyLayout[89] = 1").find("counts from 0 to 88"), std::string::npos);
  EXPECT_NE(complaint_of_line("VatRate = 1, 2, 3, 4, 5").find("counts from 1 to 4"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[1] = \"x\", none").find("takes 8 values, here are 2"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[x].Name = \"x\"").find("no number"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[3..1].Name = \"x\"").find("no range"), std::string::npos);
  EXPECT_NE(complaint_of_line("Dept[1.Name = \"x\"").find("missing"), std::string::npos);
  EXPECT_NE(complaint_of_line("Perm0").find("name = value"), std::string::npos);
  EXPECT_NE(complaint_of_line("Perm0 = \"1").find("not closed"), std::string::npos);
  EXPECT_NE(complaint_of_line("Perm0 = 1\nPerm0 = 2").find("shop.txt:3: Perm0 is said in line 2 already"),
            std::string::npos);
  EXPECT_NE(complaint("file = KEY_DEFAULT\nPerm0 = 1").find("holds no Perm0"), std::string::npos);
  EXPECT_NE(complaint("file = PRG_PLU\nPerm0 = 1").find("there is no Perm0"), std::string::npos);
  EXPECT_NE(complaint("file = PRG_PLU\nPopUpList[6] = 1").find("1 to 5"), std::string::npos);
  EXPECT_NE(complaint("file = PRG_PLU\nPlu[1..3001] = {n}, \"\", open, 1, 0, 0, 0, 0, 0, 0, 0").find("too many"),
            std::string::npos);
  EXPECT_NE(complaint("Perm0 = 1").find("begins with file"), std::string::npos);
  EXPECT_NE(complaint("").find("empty"), std::string::npos);
}

class ProgrammingFiles : public InstallationTest {};

TEST_F(ProgrammingFiles, TakeLinesFromOtherFilesAndCorrectThem) {
  write("shop/mine.txt", "file = PRG_MODE\ninclude \"../common.txt\"\nPerm0 = 2  # not 1\n");
  write("common.txt", "Perm0 = 1\r\nPerm1 = 3\r\n");
  const std::string bytes = make_programming(read_source(host("shop/mine.txt")));
  EXPECT_EQ(bytes.substr(30, 4), std::string("\x02\x00\x03\x00", 4));
}

TEST_F(ProgrammingFiles, TellWhichFileIsWrong) {
  const auto complaint_of = [&](std::string_view name) {
    try {
      static_cast<void>(make_programming(read_source(host(name))));
    } catch (const SourceError& error) {
      return std::string{error.what()};
    }
    return std::string{};
  };
  write("mine.txt", "file = PRG_MODE\ninclude \"other.txt\"\n");
  EXPECT_EQ(complaint_of("mine.txt"), host("mine.txt") + ":2: there is no file \"other.txt\"");
  write("other.txt", "\nPerm0 = x\n");
  EXPECT_EQ(complaint_of("mine.txt"), host("other.txt") + ":2: Perm0: \"x\" is no number");
  write("other.txt", "include \"mine.txt\"\n");
  EXPECT_NE(complaint_of("mine.txt").find("too deep"), std::string::npos);
  EXPECT_NE(complaint_of("missing.txt").find("missing.txt:0: "), std::string::npos);
}

}  // namespace
}  // namespace ecr::test
