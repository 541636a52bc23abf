// The programming files that the installation carries: default files, keyboards, and what the emulated register holds.

#include "make_programming/programming.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "core/codecs.h"
#include "core/register_text.h"
#include "core/text.h"
#include "image/layout.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"

namespace ecr::test::programming_cases {
namespace {

constexpr std::uint8_t z300 = 0;
constexpr std::uint8_t z320 = 1;

std::string installed(std::string_view name) {
  std::ifstream file{VERMANTO_APP "/" + std::string{name}, std::ios::binary};
  EXPECT_TRUE(file.is_open()) << name;
  return {std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}};
}

PrgModeImage image_of(std::string_view bytes) {
  PrgModeImage image{};
  EXPECT_EQ(bytes.size(), sizeof image);
  std::memcpy(&image, bytes.data(), std::min(bytes.size(), sizeof image));
  return image;
}

std::vector<PluRecord> items_of(std::string_view bytes) {
  std::vector<PluRecord> items;
  for (std::size_t place = plu_head_size; place + sizeof(PluRecord) <= bytes.size(); place += sizeof(PluRecord)) {
    std::memcpy(&items.emplace_back(), bytes.data() + place, sizeof(PluRecord));
  }
  return items;
}

std::array<PopUpList, 5> lists_of(std::string_view bytes) {
  std::array<PopUpList, 5> lists{};
  EXPECT_GE(bytes.size(), plu_head_size);
  std::memcpy(&lists, bytes.data() + 2, sizeof lists);
  return lists;
}

bool is_decimal(std::span<const std::uint8_t> field) {
  return std::all_of(field.begin(), field.end(), [](std::uint8_t byte) { return byte >> 4 <= 9 && (byte & 15) <= 9; });
}

long long number(std::span<const std::uint8_t> field) {
  return std::stoll(bcds_to_number(field));
}

bool is_blank(std::string_view text) {
  return trim_end(text).empty();
}

/// What the fields of a file must be, whatever they mean.
void expect_valid_fields(std::string_view bytes, std::span<const FieldPlace> fields) {
  for (const FieldPlace& field : fields) {
    for (std::size_t place = field.first; field.has(place); ++place) {
      const std::string_view value = bytes.substr(field.offset_of(place), field.width);
      if (field.kind == FieldKind::bcd) {
        EXPECT_TRUE(is_decimal({reinterpret_cast<const std::uint8_t*>(value.data()), value.size()}))
            << name_of(field, place);
      }
      if (field.kind != FieldKind::text) continue;
      for (const char c : value) {
        const auto code = static_cast<std::uint8_t>(c);
        EXPECT_GE(code, 32) << name_of(field, place);
        EXPECT_NE(code, 127) << name_of(field, place);
        EXPECT_EQ(CharToEcr[CharFromEcr[code]], code) << name_of(field, place) << " holds code " << int{code};
      }
      EXPECT_TRUE(is_blank(value) || value.front() != ' ') << name_of(field, place) << " is not left-aligned";
    }
  }
}

// The number of the physical key at each position of the scan matrix, 0 for none.
// clang-format off
constexpr std::array<std::uint8_t, 89> keys_of_z300 = {
    0, 7, 8, 9, 10, 15, 20, 25, 0, 0, 1, 4,   0, 0, 0, 11, 16, 21, 26, 0, 0, 2, 5,
    0, 0, 0, 12, 17, 22, 27, 30, 32, 3, 6,    0, 0, 0, 13, 18, 23, 28, 31, 33, 0, 0,   0, 0, 0, 14, 19, 24, 29};
constexpr std::array<std::uint8_t, 89> keys_of_z320 = {
    0, 11, 17, 23, 29, 35, 41, 47, 53, 57, 59, 61, 0, 0,     1, 6, 12, 18, 24, 30, 36, 42, 48, 54, 58, 60, 62, 0, 0,
    2, 7, 13, 19, 25, 31, 37, 43, 49, 55, 0, 0, 0, 63, 67,   3, 8, 14, 20, 26, 32, 38, 44, 50, 56, 0, 0, 0, 64, 68,
    4, 9, 15, 21, 27, 33, 39, 45, 51, 0, 0, 0, 0, 65, 69,    5, 10, 16, 22, 28, 34, 40, 46, 52, 0, 0, 0, 0, 66, 0};
// clang-format on

constexpr std::uint8_t no_operation = 255;

void expect_good_keyboard(std::span<const std::uint8_t> layout, std::uint8_t model) {
  const auto& keys = model == z320 ? keys_of_z320 : keys_of_z300;
  ASSERT_EQ(layout.size(), keys.size());
  std::set<std::uint8_t> used;
  for (std::size_t position = 0; position < layout.size(); ++position) {
    const std::uint8_t code = layout[position];
    EXPECT_TRUE(code == no_operation || used.insert(code).second) << "code " << int{code} << " stands twice";
    if (keys[position] != 0) {
      // 39 pays out; it is the one function without a name.
      EXPECT_TRUE((code >= 20 && code <= 151)) << "key " << int{keys[position]} << " does nothing";
    } else {
      EXPECT_TRUE(code < 20 || code == no_operation) << "no key is at position " << position;
    }
  }
  // 0, 00 and the point lie below the digits.
  const std::size_t zero = model == z320 ? 84 : 45;
  EXPECT_EQ(layout[zero], 0);
  EXPECT_EQ(layout[zero + 1], 10);
  EXPECT_EQ(layout[zero + 2], 11);
}

/// The file's name as part of a test's name.
template <typename Info>
std::string readable_name(const Info& info) {
  std::string name{info.param.name};
  std::replace_if(
      name.begin(), name.end(), [](char c) { return c == '/' || c == '.'; }, '_');
  return name;
}

std::string model_name(const ::testing::TestParamInfo<std::uint8_t>& info) {
  return info.param == z320 ? "Z320" : "Z300";
}

// ---- images

struct ImageFile {
  std::string_view name;
  std::uint8_t model;
};
void PrintTo(const ImageFile& file, std::ostream* out) {
  *out << file.name;
}

class InstalledImage : public ::testing::TestWithParam<ImageFile> {
 protected:
  std::string bytes = installed(GetParam().name);
  PrgModeImage image = image_of(bytes);
};

INSTANTIATE_TEST_SUITE_P(Programming, InstalledImage,
                         ::testing::Values(ImageFile{"Dati/ECRZ300/ECRZ300_PRG_MODE.BIN", z300},
                                           ImageFile{"Dati/ECRZ320/ECRZ320_PRG_MODE.BIN", z320},
                                           ImageFile{"Dati/ECRZ300/V105/ECRZ300_PRG_MODE.BIN", z300},
                                           ImageFile{"Dati/ECRZ320/V105/ECRZ320_PRG_MODE.BIN", z320},
                                           ImageFile{"register/samples/Z300/PRG_MODE.BIN", z300},
                                           ImageFile{"register/samples/Z320/PRG_MODE.BIN", z320},
                                           ImageFile{"register/PRG_MODE.BIN", z320}),
                         readable_name<::testing::TestParamInfo<ImageFile>>);

TEST_P(InstalledImage, IsAnImageOfItsModelAndOfNoOther) {
  EXPECT_EQ(bytes.size(), prg_mode_size);
  EXPECT_TRUE(keypad_matches(image, GetParam().model));
  EXPECT_FALSE(keypad_matches(image, GetParam().model == z320 ? z300 : z320));
}

TEST_P(InstalledImage, HasReadableTextsAndDecimalNumbers) {
  expect_valid_fields(bytes, image_fields);
}

TEST_P(InstalledImage, HasAKeyboardWithoutGapsAndDoubles) {
  expect_good_keyboard(image.KeyLayout, GetParam().model);
}

TEST_P(InstalledImage, HasRatesThatTheEditorsTake) {
  for (const Bcd<4>& rate : image.VatRate) EXPECT_LE(number(rate), 99999);
  EXPECT_GT(number(image.VatRate[0]), 0);
  for (const auto& percent : {image.PercentA, image.PercentB}) {
    EXPECT_GT(number(percent[0]), 0);
    EXPECT_LE(number(percent[0]), number(percent[1])) << "the rate is above its limit";
  }
  for (const ForeignCurrencyRecord& currency : image.ForeignCurrency) {
    EXPECT_FALSE(is_blank(currency.Name.view()));
    EXPECT_GT(number(currency.Rate), 0);
    EXPECT_LE(number(currency.Rate), 999999);
    EXPECT_LE(currency.DecimalPositionForExchangedRate, 3);
    EXPECT_LE(currency.DecimalPositionForRate, 8);
  }
}

TEST_P(InstalledImage, NamesEveryDepartmentGroupClerkAndMedium) {
  for (const DeptRecord& dept : image.Dept) {
    EXPECT_FALSE(is_blank(dept.Name.view()));
    EXPECT_LE(dept.Status1 >> 4, 4);
    EXPECT_LE(dept.Status2, 2);
    EXPECT_EQ(dept.Changed, 0);
    EXPECT_TRUE(dept.Group <= 9 || dept.Group == 16) << int{dept.Group};
    EXPECT_LE(dept.Tax, 4);
    EXPECT_LE(dept.TakeOutTax, 4);
    EXPECT_LE(number(dept.Price), 9999999);
    EXPECT_EQ(dept.Status2 == 0, number(dept.Price) == 0) << "a price for an open department, or none for another";
  }
  for (const auto& name : image.DeptGroupName) EXPECT_FALSE(is_blank(name.view()));
  for (const ClerkRecord& clerk : image.Clerk) {
    EXPECT_FALSE(is_blank(clerk.Name.view()));
    EXPECT_LE(number(clerk.Password), 999);
  }
  for (const TenderRecord& tender : image.Tender) {
    EXPECT_FALSE(is_blank(tender.Name.view()));
    EXPECT_LE(tender.Halo, 4);
    EXPECT_LE(tender.Options, 7);
  }
}

TEST_P(InstalledImage, HasAWordForEverythingTheRegisterSays) {
  for (const auto& caption : image.Caption) EXPECT_FALSE(is_blank(caption.view()));
  for (const auto& line : image.Other) EXPECT_FALSE(is_blank(line.view()));
  for (const auto& line : image.Abr) EXPECT_FALSE(is_blank(line.view()));
  for (const auto& line : image.ExtraInvoice) EXPECT_FALSE(is_blank(line.view()));
  for (const auto& message : {image.OffModeScrollMessage, image.PrgXZ_ModeScrollMessage,
                              image.RegModeSalesScrollMessage, image.IdleAMScrollMessage, image.IdlePMScrollMessage}) {
    EXPECT_FALSE(is_blank(message.view()));
  }
  EXPECT_FALSE(is_blank(image.ReceiptHeader[0].view()));
  EXPECT_FALSE(is_blank(image.ReceiptFooter[0].view()));
}

TEST_P(InstalledImage, HasOptionsThatTheirScreensKnow) {
  EXPECT_EQ(image.SysOpt0, 2) << "two decimals";
  EXPECT_LE(image.SysOpt1, 2);
  EXPECT_LE(image.Set00_InitialMenu, 7);
  EXPECT_LE(image.Set01_Working, 2);
  EXPECT_LE(image.Set02_Working, 2);
  EXPECT_LE(image.Set03_Working, 1);
  EXPECT_LE(image.Set04_InitialMenu, 3);
  EXPECT_LE(image.Set05_Print, 3);
  EXPECT_LE(image.Set06_Print, 2);
  EXPECT_LE(image.Set07_Print, 3);
  EXPECT_LE(image.Set08_EJ, 2);
  EXPECT_LE(image.CaptionOpt0, 3);
  EXPECT_LE(image.CaptionOpt1, 2);
  for (const std::uint8_t limit : {image.KeyOpt0, image.KeyOpt1, image.KeyOpt2, image.KeyOpt3}) EXPECT_LE(limit, 4);
  for (const std::size_t port : {0U, 1U}) EXPECT_TRUE(image.SysOpt2[port] >= 1 && image.SysOpt2[port] <= 3);
  for (const Bcd<2>& password : {image.Perm0, image.Perm1, image.Perm2, image.Perm3}) EXPECT_EQ(number(password), 0);
  for (const InstoreBarcodeRecord& rule : image.InstoreBarcode) {
    EXPECT_LE(rule.DigitsOfFlag, 3);
    EXPECT_LE(rule.DigitsOfPrice, 8);
    EXPECT_LE(rule.NumberOfFc, 4);
    EXPECT_LE(rule.CodeLenght, 1);
    EXPECT_LE(rule.PriceCheckDigit, 1);
    EXPECT_LE(rule.NewsPaper, 1);
  }
}

TEST_P(InstalledImage, ReturnsFromItsSource) {
  EXPECT_EQ(make_programming(parse_source(explain_programming(bytes), "explained")), bytes);
}

// ---- item tables

struct ItemFile {
  std::string_view name;
  std::string_view image;
};
void PrintTo(const ItemFile& file, std::ostream* out) {
  *out << file.name;
}

class InstalledItems : public ::testing::TestWithParam<ItemFile> {
 protected:
  std::string bytes = installed(GetParam().name);
  std::vector<PluRecord> items = items_of(bytes);
};

INSTANTIATE_TEST_SUITE_P(
    Programming, InstalledItems,
    ::testing::Values(ItemFile{"Dati/ECRZ300/ECRZ300_PRG_PLU.BIN", "Dati/ECRZ300/ECRZ300_PRG_MODE.BIN"},
                      ItemFile{"Dati/ECRZ320/ECRZ320_PRG_PLU.BIN", "Dati/ECRZ320/ECRZ320_PRG_MODE.BIN"},
                      ItemFile{"register/samples/Z300/PRG_PLU.BIN", "register/samples/Z300/PRG_MODE.BIN"},
                      ItemFile{"register/samples/Z320/PRG_PLU.BIN", "register/samples/Z320/PRG_MODE.BIN"},
                      ItemFile{"register/PRG_PLU.BIN", "register/PRG_MODE.BIN"}),
    readable_name<::testing::TestParamInfo<ItemFile>>);

TEST_P(InstalledItems, AreAsManyAsTheirCountSays) {
  ASSERT_GE(bytes.size(), plu_head_size);
  const std::size_t count = static_cast<unsigned char>(bytes[0]) + 256U * static_cast<unsigned char>(bytes[1]);
  EXPECT_EQ(bytes.size(), plu_head_size + sizeof(PluRecord) * count);
  EXPECT_EQ(items.size(), count);
  EXPECT_GT(count, 0U);
}

TEST_P(InstalledItems, HaveReadableTextsAndDecimalNumbers) {
  for (std::size_t i = 0; i < items.size(); ++i) {
    expect_valid_fields(std::string_view{bytes}.substr(plu_head_size + i * sizeof(PluRecord), sizeof(PluRecord)),
                        item_fields);
    EXPECT_FALSE(is_blank(items[i].Name.view()));
  }
}

TEST_P(InstalledItems, StandByRisingCodeWithoutDoubles) {
  long long before = 0;
  for (const PluRecord& item : items) {
    const long long code = number(item.Code);
    EXPECT_GT(code, before);
    EXPECT_LE(code, 9999999999999);
    before = code;
  }
}

TEST_P(InstalledItems, WithLongCodesHaveTheRightCheckDigit) {
  for (const PluRecord& item : items) {
    const std::string code = bcds_to_number(item.Code);
    if (code.size() <= 4) continue;
    ASSERT_EQ(code.size(), 13U) << code;
    int sum = 0;
    for (std::size_t i = 0; i < code.size(); ++i) sum += (code[i] - '0') * (i % 2 == 0 ? 1 : 3);
    EXPECT_EQ(sum % 10, 0) << code;
  }
}

TEST_P(InstalledItems, BelongToNamedDepartmentsAndKnownTaxes) {
  const PrgModeImage image = image_of(installed(GetParam().image));
  for (const PluRecord& item : items) {
    ASSERT_TRUE(is_decimal(std::span{&item.LinkDept, 1}));
    const int dept = bcd_to_number(item.LinkDept);
    ASSERT_GE(dept, 1);
    const std::string_view name = trim_end(image.Dept[static_cast<std::size_t>(dept - 1)].Name.view());
    EXPECT_FALSE(name.empty());
    EXPECT_NE(name, "DEPT " + std::to_string(dept)) << "a department that nobody has named";
    EXPECT_LE(item.Tax, 4);
    EXPECT_LE(item.TakeOutTax, 4);
  }
}

TEST_P(InstalledItems, SayInTheirFlagsWhatTheirFieldsHold) {
  for (const PluRecord& item : items) {
    const int type = item.Flags1 & 3;
    EXPECT_LE(type, 2);
    EXPECT_EQ((item.Flags1 & 0x1C), 0);
    EXPECT_EQ(byte_bit_tst(item.Flags1, 6), number(item.Price1) > 0);
    EXPECT_EQ(byte_bit_tst(item.Flags1, 7), number(item.Price2) > 0);
    EXPECT_EQ(type == 0, number(item.Price1) == 0) << "a price for an open item, or none for another";
    EXPECT_LE(number(item.Price1), 9999999);
    EXPECT_LE(number(item.Price2), 9999999);
    EXPECT_EQ(item.SendFlag, 0);
    EXPECT_EQ(byte_bit_tst(item.Flags1, 5), byte_bit_tst(items.front().Flags1, 5)) << "stock is used by all or none";
  }
}

TEST_P(InstalledItems, StandInTheListThatTheyName) {
  const std::array<PopUpList, 5> lists = lists_of(bytes);
  std::set<std::pair<int, long long>> linked;
  for (const PluRecord& item : items) {
    ASSERT_LE(item.PluListLink, 5);
    if (item.PluListLink > 0) linked.emplace(item.PluListLink, number(item.Code));
  }
  std::set<std::pair<int, long long>> listed;
  for (std::size_t list = 0; list < lists.size(); ++list) {
    for (const Bcd<8>& entry : lists[list]) {
      if (number(entry) == 0) continue;
      EXPECT_TRUE(listed.emplace(static_cast<int>(list) + 1, number(entry)).second) << number(entry);
    }
  }
  EXPECT_EQ(linked, listed);
}

TEST_P(InstalledItems, ReturnFromTheirSource) {
  EXPECT_EQ(make_programming(parse_source(explain_programming(bytes), "explained")), bytes);
}

// ---- keyboards

class InstalledKeyboard : public ::testing::TestWithParam<std::uint8_t> {
 protected:
  std::string model = GetParam() == z320 ? "Z320" : "Z300";
  std::string bytes = installed("Dati/KEY_DEFAULT" + model + ".BIN");
};

INSTANTIATE_TEST_SUITE_P(Programming, InstalledKeyboard, ::testing::Values(z300, z320), model_name);

TEST_P(InstalledKeyboard, IsTheOneOfTheDefaultImage) {
  ASSERT_EQ(bytes.size(), 89U);
  expect_good_keyboard({reinterpret_cast<const std::uint8_t*>(bytes.data()), bytes.size()}, GetParam());
  const PrgModeImage image = image_of(installed("Dati/ECR" + model + "/ECR" + model + "_PRG_MODE.BIN"));
  EXPECT_TRUE(std::equal(image.KeyLayout.begin(), image.KeyLayout.end(), bytes.begin(),
                         [](std::uint8_t a, char b) { return a == static_cast<std::uint8_t>(b); }));
}

TEST_P(InstalledKeyboard, ReturnsFromItsSource) {
  EXPECT_EQ(make_programming(parse_source(explain_programming(bytes), "explained")), bytes);
}

// ---- the emulated register

class Sample : public ::testing::TestWithParam<std::uint8_t> {
 protected:
  std::string model = GetParam() == z320 ? "Z320" : "Z300";
  std::string folder = "register/samples/" + model + "/";
  std::string default_prefix = "Dati/ECR" + model + "/ECR" + model + "_";
};

INSTANTIATE_TEST_SUITE_P(Programming, Sample, ::testing::Values(z300, z320), model_name);

TEST_P(Sample, IsAShopOfItsOwn) {
  const PrgModeImage sample = image_of(installed(folder + "PRG_MODE.BIN"));
  const PrgModeImage fresh = image_of(installed(default_prefix + "PRG_MODE.BIN"));
  EXPECT_NE(sample.VatRate, fresh.VatRate);
  EXPECT_NE(sample.DeptGroupName, fresh.DeptGroupName);
  EXPECT_NE(sample.ReceiptHeader, fresh.ReceiptHeader);
  EXPECT_NE(sample.ReceiptFooter, fresh.ReceiptFooter);
  EXPECT_NE(sample.Caption, fresh.Caption);
  EXPECT_NE(sample.Dept[0].Name, fresh.Dept[0].Name);
  EXPECT_NE(sample.Clerk[0].Name, fresh.Clerk[0].Name);
  EXPECT_NE(installed(folder + "PRG_PLU.BIN"), installed(default_prefix + "PRG_PLU.BIN"));
}

TEST_P(Sample, HasTradedForAWhile) {
  const PrgModeImage sample = image_of(installed(folder + "PRG_MODE.BIN"));
  const PrgModeImage fresh = image_of(installed(default_prefix + "PRG_MODE.BIN"));
  const auto counters = [](const PrgModeImage& image) {
    return std::vector<long long>{number(image.SysOpt3), number(image.SysOpt4), number(image.SysOpt5),
                                  number(image.SysOpt6), number(image.SysOpt7)};
  };
  for (const long long counter : counters(sample)) EXPECT_GT(counter, 0);
  for (const long long counter : counters(fresh)) EXPECT_EQ(counter, 0);
}

TEST_P(Sample, HasManyItemsShortAndLongListedAndAccented) {
  const std::vector<PluRecord> items = items_of(installed(folder + "PRG_PLU.BIN"));
  EXPECT_GE(items.size(), 110U);
  EXPECT_LE(items.size(), 130U);
  const auto count = [&](auto&& which) { return std::count_if(items.begin(), items.end(), which); };
  EXPECT_GE(count([](const PluRecord& item) { return number(item.Code) > 9999; }), 20);
  EXPECT_GE(count([](const PluRecord& item) { return number(item.Code) <= 9999; }), 60);
  EXPECT_GE(count([](const PluRecord& item) { return item.PluListLink > 0; }), 30);
  EXPECT_GE(count([](const PluRecord& item) { return number(item.Stock) > 0; }), 40);
  EXPECT_GE(count([](const PluRecord& item) { return number(item.Stock) > 100000000000; }), 1) << "below zero";
  EXPECT_GE(count([](const PluRecord& item) {
              const std::string_view name = item.Name.view();
              return std::any_of(name.begin(), name.end(), [](char c) { return static_cast<unsigned char>(c) > 127; });
            }),
            10);
}

TEST(EmulatedRegister, IsAtFirstTheZ320OfTheSamples) {
  EXPECT_EQ(installed("register/PRG_MODE.BIN"), installed("register/samples/Z320/PRG_MODE.BIN"));
  EXPECT_EQ(installed("register/PRG_PLU.BIN"), installed("register/samples/Z320/PRG_PLU.BIN"));
  EXPECT_EQ(installed("register/TOTALS.BIN"), installed("register/samples/Z320/TOTALS.BIN"));
  EXPECT_EQ(installed("register/devices.txt"), "USB Serial Port (COM4)\n");
}

TEST(EmulatedRegister, AnswersAtFirstWithoutFaults) {
  std::vector<std::string> settings;
  const std::string bytes = installed("register/register.txt");
  for (const std::string_view line : lines_of(bytes)) {
    if (!line.empty() && line.front() != '#') settings.emplace_back(line);
  }
  EXPECT_EQ(settings, (std::vector<std::string>{"model = Z320", "port = 4", "banner = ECRZ300/ECRZ320F    FW rel.1.04",
                                                "release = RELEASE.BIN", "delay = 0", "answer = 0", "logo = normal",
                                                "fails = no", "hang = no", "trade = 0", "seed = 1"}));
}

}  // namespace
}  // namespace ecr::test::programming_cases
