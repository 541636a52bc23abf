#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "emulator/emulator_test.h"

namespace ecr::test {
namespace {

using BadInputTest = EmulatorTest;

TEST_F(BadInputTest, ACallWithoutAFolderOrAPlaceForItsCodeIsNotMade) {
  std::string folder = application_folder();
  std::string empty;
  char* pointer = folder.data();
  char* to_empty = empty.data();
  char* null = nullptr;
  std::int32_t code = Outcome::untouched;
  for (char** bad : {static_cast<char**>(nullptr), &null, &to_empty}) {
    EXPECT_EQ(calls.send_cmd(bad, upload, 0, &code, 60, 4), 0);
    EXPECT_EQ(calls.range_report(bad, 12, &code, 60, 1, 99, 4), 0);
    EXPECT_EQ(calls.send_logo(bad, "x", "y", &code, 60), 0);
  }
  EXPECT_EQ(code, Outcome::untouched);
  EXPECT_EQ(calls.send_cmd(&pointer, upload, 0, nullptr, 60, 4), 0);
  EXPECT_EQ(calls.range_report(&pointer, 12, nullptr, 60, 1, 99, 4), 0);
  EXPECT_EQ(calls.send_logo(&pointer, "x", "y", nullptr, 60), 0);
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
}

TEST_F(BadInputTest, AConversionThatLacksATargetSaysSo) {
  write("register/calls.txt", "");
  std::string folder = application_folder();
  char* pointer = folder.data();
  std::int32_t code = Outcome::untouched;
  EXPECT_EQ(calls.send_logo(&pointer, nullptr, "y", &code, 60), 1);
  EXPECT_EQ(code, 0x04010000);
  code = Outcome::untouched;
  EXPECT_EQ(calls.send_logo(&pointer, "x", nullptr, &code, -1), 1);
  EXPECT_EQ(code, 0x04010000);
  EXPECT_EQ(bytes("register/calls.txt"), "send_logo source=" + folder + " target1= target2=y timeout=60\n" +
                                             "send_logo source=" + folder + " target1=x target2= timeout=-1\n");
}

TEST_F(BadInputTest, AFolderThatIsNotThereHoldsAFreshRegisterThatHasNothing) {
  std::string folder = host("missing/");
  char* pointer = folder.data();
  const std::vector<std::pair<std::pair<int, int>, std::int32_t>> cases = {
      {{0, 0}, 2049}, {{0, 22}, 2051}, {{0, 12}, 2051}, {{1, 0}, 2049}, {{1, 22}, 519}, {{0, 23}, 517}};
  for (const auto& [asked, answered] : cases) {
    std::int32_t code = Outcome::untouched;
    EXPECT_EQ(calls.send_cmd(&pointer, static_cast<std::uint8_t>(asked.first), static_cast<std::uint8_t>(asked.second),
                             &code, 60, 4),
              1);
    EXPECT_EQ(code, answered);
  }
  EXPECT_FALSE(exists("missing"));
}

TEST_F(BadInputTest, AFolderOfAnyBytesIsTaken) {
  for (std::string folder : {std::string(100000, 'x'), std::string("\x01\xFF\n/\\//"), random_bytes(3, 500),
                             host("register/register.txt")}) {
    std::replace(folder.begin(), folder.end(), '\0', 'x');
    char* pointer = folder.data();
    for (int number = 0; number < 256; ++number) {
      std::int32_t code = 0;
      EXPECT_EQ(calls.send_cmd(&pointer, static_cast<std::uint8_t>(number % 3), static_cast<std::uint8_t>(number),
                               &code, -1, 4),
                1);
      EXPECT_NE(code, 0);
    }
    std::int32_t code = 0;
    EXPECT_EQ(calls.send_logo(&pointer, folder.c_str(), folder.c_str(), &code, 60), 1);
    EXPECT_EQ(code, 0x08010000);
  }
}

TEST_F(BadInputTest, EveryArgumentIsTaken) {
  for (int direction = 0; direction < 256; direction += 5) {
    for (int file = 0; file < 256; ++file) {
      const Outcome outcome = send_cmd(static_cast<std::uint8_t>(direction), static_cast<std::uint8_t>(file));
      const bool answered = direction == 0 && (file < 2 || (file >= 3 && file <= 22));
      ASSERT_EQ(outcome.returned, 1);
      ASSERT_EQ(outcome.code == 0, answered) << "direction " << direction << ", file " << file;
    }
  }
}

TEST_F(BadInputTest, AFileThatIsCutAnywhereDisturbsNothing) {
  const std::string whole = fresh_register + "answer.12 = 4097\nfails.1 = yes\nhang = 2\nlogo = 0x10020000\n";
  for (std::size_t length = 0; length <= whole.size(); ++length) {
    write("register/register.txt", whole.substr(0, length));
    const auto before = register_files();
    EXPECT_EQ(send_cmd(upload, 0), done) << length;
    EXPECT_EQ(send_cmd(upload, 22), done) << length;
    EXPECT_EQ(send_logo("x").returned, 1) << length;
    EXPECT_TRUE(register_files() == before) << length;
  }
}

TEST_F(BadInputTest, AFileOfRandomBytesCountsAsTheFreshOne) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    const std::string noise = random_bytes(seed, seed * 7 % 3000);
    write("register/register.txt", noise);
    EXPECT_EQ(send_cmd(upload, 0), done) << seed;
    EXPECT_EQ(send_cmd(upload, 22), done) << seed;
    EXPECT_EQ(bytes("Dati/RELEASE.BIN"), "ECRZ300/ECRZ320F    FW rel.1.04     ") << seed;
    EXPECT_EQ(bytes("register/register.txt"), noise) << seed;
  }
}

TEST_F(BadInputTest, AFileWithBytesOverwrittenAtRandomIsTaken) {
  for (unsigned seed = 0; seed < 300; ++seed) {
    std::string text = fresh_register;
    const std::string noise = random_bytes(seed, 40);
    for (std::size_t i = 0; i + 3 < noise.size(); i += 4) {
      const std::size_t place = static_cast<unsigned char>(noise[i]) * 256U + static_cast<unsigned char>(noise[i + 1]);
      text[place % text.size()] = noise[i + 2];
    }
    write("register/register.txt", text);
    const Outcome outcome = send_cmd(upload, 22);
    EXPECT_EQ(outcome.returned, 1) << seed;
    EXPECT_EQ(bytes("register/register.txt"), text) << seed;
  }
}

TEST_F(BadInputTest, NothingIsWrittenToTheRunLog) {
  set("answer = 4098");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(4098));
  remove("Dati");
  set("");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(2051));
  EXPECT_FALSE(exists("Log/memo_log.txt"));
}

TEST_F(BadInputTest, CallsMayComeFromManyThreads) {
  write("register/calls.txt", "");
  constexpr int threads = 8;
  constexpr int rounds = 20;
  std::vector<std::vector<Outcome>> outcomes(threads);
  {
    std::vector<std::jthread> running;
    for (std::vector<Outcome>& mine : outcomes) {
      running.emplace_back([this, &mine] {
        for (int i = 0; i < rounds; ++i) mine.push_back(send_cmd(upload, i % 2 == 0 ? 0 : 22));
      });
    }
  }
  for (const std::vector<Outcome>& mine : outcomes) {
    ASSERT_EQ(mine.size(), std::size_t{rounds});
    for (const Outcome& outcome : mine) EXPECT_EQ(outcome, done);
  }
  const std::string list = bytes("register/calls.txt");
  EXPECT_EQ(std::count(list.begin(), list.end(), '\n'), threads * rounds);
}

}  // namespace
}  // namespace ecr::test
