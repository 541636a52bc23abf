#include <gtest/gtest.h>

#include "editors/program/editor_test.h"

namespace ecr::test::fc_rating_setting_cases {
namespace {

constexpr std::size_t first_at = 2927;
constexpr std::size_t width = 16;
constexpr std::size_t all = 4 * width;

class FrmFCRatingSettingTest : public EditorTest {
 protected:
  FrmFCRatingSettingTest() : EditorTest{"FrmFCRatingSetting"} {
    const char* names[] = {"DOLLAR", "POUND", "FRANC", "KRONE"};
    for (int i = 0; i < 4; ++i) {
      in_memory(i).Name.set(names[i]);
      set(i, "12345", 2);
      in_memory(i).DecimalPositionForRate = static_cast<std::uint8_t>(i);
    }
    lay_down(PrgMode);
  }

  static ForeignCurrencyRecord& in_memory(int i) { return PrgMode.ForeignCurrency[static_cast<std::size_t>(i)]; }
  static void set(int i, const char* rate, int decimals) {
    number_to_bcds(in_memory(i).Rate, rate);
    in_memory(i).DecimalPositionForExchangedRate = static_cast<std::uint8_t>(decimals);
  }
  [[nodiscard]] std::string record(int i) const {
    return stored(first_at + width * static_cast<std::size_t>(i), width);
  }
  [[nodiscard]] QString rate(int i) const { return shown(member_name("E_ExchangeRate", i)); }
  [[nodiscard]] ChoiceList& decimals(int i) const {
    return list(member_name("Cmb_DecimalPositionForExchangedRate", i));
  }
};

TEST_F(FrmFCRatingSettingTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program Foreign Currencies"));
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(caption(member_name("F_FC", i)), QStringLiteral("Foreign Currency %1 Setting").arg(i + 1));
    EXPECT_EQ(caption(member_name("L_Nome", i)), QStringLiteral("Name"));
    EXPECT_EQ(caption(member_name("L_ExchangeRate", i)), QStringLiteral("Exchange Rate"));
    EXPECT_EQ(caption(member_name("L_DecimalPositionForRate", i)), QStringLiteral("Decimal Position for Rate"));
    EXPECT_EQ(caption(member_name("L_DecimalPositionForExchangedRate", i)),
              QStringLiteral("Decimal Position for Exchanged Rate"));
  }
}

TEST_F(FrmFCRatingSettingTest, CaptionsComeFromTheCatalogueAndTheListsHoldBareNumbers) {
  name_every_key();
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_FC_RATING_SETTING_TITLE"));
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(caption(member_name("F_FC", i)), QStringLiteral("FRM_FC_RATING_SETTING_F_FC%1_TITLE").arg(i + 1));
    EXPECT_EQ(caption(member_name("L_Nome", i)), QStringLiteral("FRM_FC_RATING_SETTING_L_NOME"));
    EXPECT_EQ(caption(member_name("L_ExchangeRate", i)), QStringLiteral("FRM_FC_RATING_SETTING_L_EXCHANGE_RATE"));
    EXPECT_EQ(caption(member_name("L_DecimalPositionForRate", i)),
              QStringLiteral("FRM_FC_RATING_SETTING_L_DECIMAL_POSITION_FOR_RATE"));
    EXPECT_EQ(caption(member_name("L_DecimalPositionForExchangedRate", i)),
              QStringLiteral("FRM_FC_RATING_SETTING_L_DECIMAL_POSITION_FOR_EXCHANGED_RATE"));
    EXPECT_EQ(entries_of(list(member_name("Cmb_DecimalPositionForRate", i))),
              QStringList({"0", "1", "2", "3", "4", "5", "6", "7", "8"}));
    EXPECT_EQ(entries_of(decimals(i)), QStringList({"0", "1", "2", "3"}));
  }
}

TEST_F(FrmFCRatingSettingTest, EachCurrencyIsShownInItsFrame) {
  set(0, "92", 2);
  set(1, "117", 0);
  set(2, "5", 3);
  set(3, "999999", 1);
  open_editor();
  EXPECT_EQ(shown("E_Name(0)"), QStringLiteral("DOLLAR"));
  EXPECT_EQ(shown("E_Name(3)"), QStringLiteral("KRONE"));
  EXPECT_EQ(rate(0), QStringLiteral("0.92"));
  EXPECT_EQ(rate(1), QStringLiteral("117"));
  EXPECT_EQ(rate(2), QStringLiteral("0.005"));
  EXPECT_EQ(rate(3), QStringLiteral("99999.9"));
  for (int i = 0; i < 4; ++i) {
    EXPECT_EQ(list(member_name("Cmb_DecimalPositionForRate", i)).text(), QString::number(i));
    EXPECT_EQ(field(member_name("E_Name", i)).maxLength(), 10);
  }
}

TEST_F(FrmFCRatingSettingTest, TheRateIsEnteredWholeAndMovingThePointKeepsItsDigits) {
  set(0, "12345", 3);
  open_editor();
  EXPECT_EQ(rate(0), QStringLiteral("12.345"));
  click("E_ExchangeRate(0)");
  EXPECT_EQ(rate(0), QStringLiteral("12345"));
  pick(decimals(0), 2);
  EXPECT_EQ(rate(0), QStringLiteral("123.45"));
  pick(decimals(0), 0);
  EXPECT_EQ(rate(0), QStringLiteral("12345"));
  pick(decimals(0), 1);
  EXPECT_EQ(rate(0), QStringLiteral("1234.5"));
  save();
  EXPECT_EQ(record(0).substr(10), bytes_of({1, 0, 0x45, 0x23, 0x01, 0x00}));
}

TEST_F(FrmFCRatingSettingTest, ARateWithoutDecimalsStaysAPlainNumber) {
  set(1, "42", 0);
  open_editor();
  EXPECT_EQ(rate(1), QStringLiteral("42"));
  click("E_ExchangeRate(1)");
  EXPECT_EQ(rate(1), QStringLiteral("42"));
  press(Qt::Key_Tab);
  EXPECT_EQ(rate(1), QStringLiteral("42"));
}

TEST_F(FrmFCRatingSettingTest, AZeroIsShownAsANumberWhenItIsEntered) {
  set(0, "0", 2);
  set(1, "0", 0);
  open_editor();
  for (const auto& [i, outside] : {std::pair{0, "0.00"}, std::pair{1, "0"}}) {
    EXPECT_EQ(rate(i), QString::fromLatin1(outside));
    click(member_name("E_ExchangeRate", i));
    EXPECT_EQ(rate(i), QStringLiteral("0"));
    press(Qt::Key_Tab);
    EXPECT_EQ(rate(i), QString::fromLatin1(outside));
  }
}

TEST_F(FrmFCRatingSettingTest, DecimalsThatNoBinaryFractionHoldsLoseNothing) {
  const std::pair<const char*, int> rates[] = {{"29", 2},   {"435", 2},  {"1001", 3},  {"10", 1},
                                               {"4350", 3}, {"8115", 3}, {"57999", 3}, {"999999", 2}};
  for (const auto& [digits, places] : rates) {
    set(0, digits, places);
    open_editor();
    const auto before = in_memory(0);
    click("E_ExchangeRate(0)");
    EXPECT_EQ(rate(0), QString::fromLatin1(digits));
    click("E_Name(0)");
    save();
    EXPECT_EQ(in_memory(0).Rate, before.Rate) << digits;
  }
}

TEST_F(FrmFCRatingSettingTest, AnEmptyRateCountsAsZero) {
  set(1, "5", 0);
  open_editor();
  empty("E_ExchangeRate(0)");
  click("E_Name(0)");
  EXPECT_EQ(rate(0), QStringLiteral("0.00"));
  empty("E_ExchangeRate(1)");
  click("E_Name(1)");
  EXPECT_EQ(rate(1), QString{}) << "without decimals the text stays as it is";
  save();
  EXPECT_EQ(record(0).substr(12), std::string(4, '\0'));
  EXPECT_EQ(record(1).substr(12), std::string(4, '\0'));
  click("E_ExchangeRate(1)");
  EXPECT_EQ(rate(1), QStringLiteral("0"));
  EXPECT_EQ(log(), Lines{});
}

TEST_F(FrmFCRatingSettingTest, TheLengthLimitIsThatOfTheLoad) {
  set(0, "1", 0);
  set(1, "1", 3);
  open_editor();
  EXPECT_EQ(field("E_ExchangeRate(0)").maxLength(), 6);
  EXPECT_EQ(field("E_ExchangeRate(1)").maxLength(), 7);
  pick(decimals(0), 3);
  pick(decimals(1), 0);
  EXPECT_EQ(field("E_ExchangeRate(0)").maxLength(), 6);
  EXPECT_EQ(field("E_ExchangeRate(1)").maxLength(), 7);
}

TEST_F(FrmFCRatingSettingTest, ARateOfSixDigitsKeepsThemAllWhenItsPointMoves) {
  set(0, "999999", 0);
  open_editor();
  pick(decimals(0), 2);
  EXPECT_EQ(rate(0), QStringLiteral("9999.99"));
  click("C_Salva");
  EXPECT_EQ(bcds_to_number(PrgMode.ForeignCurrency[0].Rate), "999999");
}

TEST_F(FrmFCRatingSettingTest, ARateThatIsLongerThanCanBeTypedSurvivesOpeningAndSaving) {
  set(0, "12345678", 2);
  open_editor();
  click("C_Salva");
  EXPECT_EQ(bcds_to_number(PrgMode.ForeignCurrency[0].Rate), "12345678");
}

TEST_F(FrmFCRatingSettingTest, EnterGoesToSaveAndLettersAreDropped) {
  open_editor();
  enter("E_ExchangeRate(2)", QStringLiteral("7a.,7"));
  EXPECT_EQ(rate(2), QStringLiteral("77"));
  press(Qt::Key_Return);
  EXPECT_TRUE(control("C_Salva").hasFocus());
  EXPECT_EQ(rate(2), QStringLiteral("0.77"));
}

TEST_F(FrmFCRatingSettingTest, LoadingWritesTheTrimmedNamesIntoTheWorkingImage) {
  in_memory(0).Name.set("  YEN");
  in_memory(1).Name.set(" A B  ");
  lay_down(PrgMode);
  const std::string before = image_file();
  open_editor();
  EXPECT_EQ(shown("E_Name(0)"), QStringLiteral("YEN"));
  EXPECT_EQ(in_memory(0).Name.view(), "YEN       ");
  EXPECT_EQ(in_memory(1).Name.view(), "A B       ");
  EXPECT_EQ(image_file(), before) << "the file is as it was";
}

TEST_F(FrmFCRatingSettingTest, ANameOfTenCharactersKeepsAllAndALongerOneIsCut) {
  open_editor();
  enter("E_Name(3)", QStringLiteral("ABCDEFGHIJKL"));
  EXPECT_EQ(shown("E_Name(3)"), QStringLiteral("ABCDEFGHIJ"));
  enter("E_Name(2)", QStringLiteral("CRÈME €"));
  save();
  EXPECT_EQ(record(3).substr(0, 10), "ABCDEFGHIJ");
  EXPECT_EQ(record(2).substr(0, 10), "CR\xDBME \xF8   ");
}

TEST_F(FrmFCRatingSettingTest, ASaveWritesTheFourRecordsAndNoOtherByte) {
  open_editor();
  const std::string before = image_file();
  enter("E_Name(0)", QStringLiteral("EURO"));
  enter("E_ExchangeRate(0)", QStringLiteral("1955"));
  pick(list("Cmb_DecimalPositionForRate(0)"), 8);
  pick(decimals(0), 3);
  save();
  EXPECT_EQ(record(0), "EURO      " + bytes_of({3, 8, 0x55, 0x19, 0, 0}));
  EXPECT_EQ(record(1), "POUND     " + bytes_of({2, 1, 0x45, 0x23, 1, 0}));
  expect_untouched_outside(before, first_at, all);
  EXPECT_EQ(file_bytes(PrgMode), image_file());
  EXPECT_EQ(top(), QStringLiteral("FrmFCRatingSetting"));
}

TEST_F(FrmFCRatingSettingTest, PositionsOutsideOfTheListsAreShownAndWrittenBack) {
  in_memory(0).DecimalPositionForRate = 77;
  set(1, "12345", 5);
  open_editor();
  EXPECT_EQ(list("Cmb_DecimalPositionForRate(0)").text(), QStringLiteral("77"));
  EXPECT_EQ(decimals(1).text(), QStringLiteral("5"));
  EXPECT_EQ(rate(1), QStringLiteral("0.12345"));
  save();
  EXPECT_EQ(record(0)[11], 77);
  EXPECT_EQ(record(1).substr(10), bytes_of({5, 1, 0x45, 0x23, 1, 0}));
}

TEST_F(FrmFCRatingSettingTest, APastedWordStaysAndIsLoggedWhenItIsLeft) {
  open_editor();
  click("E_ExchangeRate(0)");
  paste_over(QStringLiteral("seven"));
  click("E_Name(0)");
  EXPECT_EQ(rate(0), QStringLiteral("seven"));
  EXPECT_EQ(log(), Lines{"FrmFCRatingSetting E_ExchangeRate(0): Type mismatch"});
}

TEST_F(FrmFCRatingSettingTest, AFaultInTheSaveIsLoggedUnderTheScreensOtherName) {
  set(0, "5", 200);
  open_editor();
  const std::string before = image_file();
  click("E_ExchangeRate(0)");
  enter("E_ExchangeRate(0)", QStringLiteral("5"));
  decimals(0).show_text(QStringLiteral("200"));
  button("C_Salva").click();
  EXPECT_EQ(log().back(), "FrmEcRatingSetting Salva: Overflow");
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmFCRatingSettingTest, APositionBeyondAllDecimalsIsSkippedByTheLoadAndRefusedByTheSave) {
  set(1, "12345678", 29);
  in_memory(0).Name.set("EURO");
  lay_down(PrgMode);
  open_editor();
  EXPECT_EQ(log(), Lines{"FrmEcRatingSetting Form load: Overflow"});
  EXPECT_EQ(rate(0), QStringLiteral("123.45"));
  EXPECT_EQ(rate(1), QStringLiteral("12345678")) << "the digits, without the point";
  EXPECT_EQ(rate(2), QStringLiteral("123.45")) << "the currencies after it are shown";
  EXPECT_EQ(shown("E_Name(3)"), QStringLiteral("KRONE"));
  const std::string before = image_file();
  const std::string memory = file_bytes(PrgMode);
  enter("E_Name(0)", QStringLiteral("KRONA"));
  click("E_ExchangeRate(1)");
  click("E_Name(2)");
  save();
  EXPECT_EQ(log().back(), "FrmEcRatingSetting Salva: Overflow");
  EXPECT_EQ(image_file(), before);
  EXPECT_EQ(file_bytes(PrgMode), memory);
  // A place for the point that there is, and the rate is itself again.
  pick(decimals(1), 2);
  EXPECT_EQ(rate(1), QStringLiteral("123456.78"));
  save();
  EXPECT_EQ(record(1).substr(10), bytes_of({2, 1, 0x78, 0x56, 0x34, 0x12}));
  EXPECT_EQ(record(0).substr(0, 5), "KRONA");
}

TEST_F(FrmFCRatingSettingTest, ARateOfZeroWithAPositionBeyondAllDecimalsIsRefusedToo) {
  set(1, "0", 255);
  lay_down(PrgMode);
  open_editor();
  const std::string before = image_file();
  save();
  EXPECT_EQ(log().back(), "FrmEcRatingSetting Salva: Overflow");
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmFCRatingSettingTest, ThePointDoesNotMakeAZeroOfARateThatCannotBeRead) {
  in_memory(2).Rate.bytes = {0xFF, 1, 2, 3};
  lay_down(PrgMode);
  open_editor();
  EXPECT_EQ(rate(2), QString{});
  pick(decimals(2), 3);
  EXPECT_EQ(rate(2), QString{});
  save();
  EXPECT_EQ(record(2).substr(10), bytes_of({3, 2, 0xFF, 1, 2, 3}));
}

TEST_F(FrmFCRatingSettingTest, AnyGoodRatesSurviveLoadAndSave) {
  Random random{15};
  for (int round = 0; round < 20; ++round) {
    PrgModeImage image = random_image(Global::model_z300, random);
    for (auto& currency : image.ForeignCurrency) {
      currency.Name.set("FC " + random.digits(4));
      currency.DecimalPositionForExchangedRate = static_cast<std::uint8_t>(random.below(4));
      number_to_bcds(currency.Rate, random.digits(6));
    }
    lay_down(image);
    open_editor();
    for (int i = 0; i < 4; ++i) click(member_name("E_ExchangeRate", i));
    save();
    EXPECT_EQ(image_file(), file_bytes(image));
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(FrmFCRatingSettingTest, BytesOfAnyKindDoNoHarmElsewhere) {
  Random random{16};
  for (int round = 0; round < 20; ++round) {
    const PrgModeImage image = random_image(Global::model_z320, random);
    lay_down(image);
    open_editor();
    for (int i = 0; i < 4; ++i) click(member_name("E_ExchangeRate", i));
    save();
    expect_untouched_outside(file_bytes(image), first_at, all);
    stage.top()->unload();
    let_screens_settle();
  }
}

TEST_F(FrmFCRatingSettingTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  const std::string before = image_file();
  enter("E_Name(0)", QStringLiteral("EURO"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0].substr(first_at, all), before.substr(first_at, all));
}

}  // namespace
}  // namespace ecr::test::fc_rating_setting_cases
