#include "fields/names.h"

#include <gtest/gtest.h>
#include <memory>
#include <string>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "fields/book.h"
#include "fields/caption_meanings.h"
#include "lang/language.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using namespace fields;

class NamesTest : public InstallationTest {
 protected:
  NamesTest() {
    reset_catalogue();
    reset_caption_descriptions();
  }
  ~NamesTest() override {
    reset_catalogue();
    reset_caption_descriptions();
  }

  [[nodiscard]] std::string record(std::string_view id, std::size_t number) const {
    return record_name(*programming, {&field(id), number});
  }

  std::unique_ptr<Programming> programming = std::make_unique<Programming>();
};

TEST_F(NamesTest, OfFieldsAreTheirLabelsWithoutColon) {
  EXPECT_EQ(name_of(field("dept.price")), "Price");
  EXPECT_EQ(name_of(field("clerk.negative")), "Negative Dept & PLU");
  EXPECT_EQ(name_of(field("working.fc-conversion")), "FC Convert Calculation");
  EXPECT_EQ(name_of(field("pop-plu.entry7")), "PLU 7");
  EXPECT_EQ(caption_text(field("dept.price").name), "Price :") << "a screen has it as it is";
  set_message(Key::FRM_DEPARTMENT_PROGRAM_L_PRICE,
              "Preis\rje St\xFC"
              "ck:");
  EXPECT_EQ(name_of(field("dept.price")),
            "Preis je St\xFC"
            "ck");
  EXPECT_EQ(name_of(Section::departments), "Program Departments");
}

TEST_F(NamesTest, OfWhatNoControlShowsComeInTheLanguage) {
  EXPECT_EQ(name_of(field("vat.rate")), "Rate");
  EXPECT_EQ(name_of(field("plu.has-price2")), "Has a price 2");
  LanguageNumber = 3;
  EXPECT_EQ(name_of(field("vat.rate")), "Satz");
  EXPECT_EQ(name_of(field("carried.byte-21")), "Unver\xE4ndert mitgef\xFChrt");
}

TEST_F(NamesTest, OfRecordsAreWhatAPersonKnowsThemBy) {
  programming->image.Dept[11].Name.set("Wine");
  number_to_bcds(programming->image.VatRate[1], "10000");
  programming->image.Tender[3].Name.set("VISA");
  programming->image.ForeignCurrency[0].Name.set("  US DOLLAR");
  number_to_bcds(programming->items.Row[0].Code, "5901234123457");
  programming->items.Row[0].Name.set("Bread");
  EXPECT_EQ(record("dept.price", 12), "12 Wine");
  EXPECT_EQ(record("dept.carried-13", 12), "12 Wine");
  EXPECT_EQ(record("vat.rate", 2), "VAT Rate 2 (10.000 %)");
  EXPECT_EQ(record("tender.drawer", 4), "CARD 1 (VISA)");
  EXPECT_EQ(record("currency.rate", 1), "1 US DOLLA");
  EXPECT_EQ(record("plu.price1", 1), "5901234123457 Bread");
  EXPECT_EQ(record("plu.price1", 2), "0");
  EXPECT_EQ(record("plu-page.first", 3), "PLU Page 3");
  EXPECT_EQ(record("pop-plu.entry7", 2), "List 2");
  EXPECT_EQ(record("chain.all-plu", 5), "CHAIN FUNC 5");
  EXPECT_EQ(record("pop-key.void", 1), "POP LIST 1");
  EXPECT_EQ(record("header.text", 3), "Header 3");
  EXPECT_EQ(record("barcode.flag", 4), "4");
  EXPECT_EQ(record("print.tax-rate", 1), "");
}

TEST_F(NamesTest, OfKeysGoByTheModel) {
  EXPECT_EQ(record("key.function", 1), "Key 7");
  EXPECT_EQ(record("key.function", 0), "Position 0");
  programming->model = Global::model_z320;
  EXPECT_EQ(record("key.function", 1), "Key 11");
}

TEST_F(NamesTest, OfShortCaptionsSayWhatTheyMean) {
  EXPECT_EQ(record("caption.text", 2), "2");
  EXPECT_EQ(record("other-line.text", 2), "Other 2");
  reset_caption_descriptions();
  std::string lines;
  for (int i = 1; i <= 79; ++i) lines += "meaning " + std::to_string(i) + "\r\n";
  write("Setup/DescCaption.ini", lines);
  EXPECT_EQ(record("caption.text", 2), "2 meaning 2");
  EXPECT_EQ(record("other-line.text", 1), "1 meaning 79");
  EXPECT_EQ(record("other-line.text", 2), "Other 2");
  EXPECT_EQ(record("other-line.text", 23), "Other 23");
}

TEST_F(NamesTest, OfEntriesReadAsTheirKeysSay) {
  const Choice crossed{.digit = 3, .literal = "3. GERMAN", .text = Key::FRM_ALL_YES, .decides = Key::FRM_ALL_NO};
  EXPECT_EQ(entry_text(crossed), "3. GERMAN");
  EXPECT_EQ(choice_words(crossed), "GERMAN");
  set_message(Key::FRM_ALL_YES, "Deutsch");
  EXPECT_EQ(entry_text(crossed), "3. GERMAN");
  set_message(Key::FRM_ALL_NO, "any");
  EXPECT_EQ(entry_text(crossed), "3. Deutsch");
  EXPECT_EQ(choice_words(crossed), "Deutsch");
  set_message(Key::FRM_ALL_YES, "");
  EXPECT_EQ(entry_text(crossed), "3. ");
  EXPECT_EQ(choice_words(crossed), "GERMAN") << "a value without words would say nothing";
  const Choice without_blank{.digit = 0, .literal = "1. DISCOUNT", .text = Key::FRM_ALL_ADDON, .prefix = Prefix::point};
  EXPECT_EQ(entry_text(without_blank), "1. DISCOUNT");
  set_message(Key::FRM_ALL_ADDON, "Add on");
  EXPECT_EQ(entry_text(without_blank), "0.Add on");
  EXPECT_EQ(entry_text({.digit = 2, .literal = "2. 1.5 mm"}), "2. 1.5 mm");
  EXPECT_EQ(entry_text({.digit = 4}), "");
}

}  // namespace
}  // namespace ecr::test
