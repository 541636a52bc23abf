#include <gtest/gtest.h>

#include <QApplication>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/global.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

constexpr std::size_t rates_at = 38;
constexpr std::size_t rates_end = 54;

class FrmSetVatRateTest : public ScreenTest {
 protected:
  FrmSetVatRateTest() { start_session(Global::model_z320); }

  void open_editor() { open("FrmSetVatRate"); }

  [[nodiscard]] Field& rate(int index) const { return field(member_name("E_VatRate", index)); }

  void set_rate(int index, const std::string& digits) const {
    number_to_bcds(PrgMode.VatRate[static_cast<std::size_t>(index - 1)], digits);
  }

  void enter(int index, const QString& digits) {
    click(rate(index));
    press(Qt::Key_A, Qt::ControlModifier);
    type(digits);
  }

  /// The four bytes of a rate in the file.
  [[nodiscard]] std::string stored(int index) const {
    return image_file().substr(rates_at + 4 * static_cast<std::size_t>(index - 1), 4);
  }

  void save() { click("C_Salva"); }
  void expect_refusal() { expect_box(BoxKind::critical, "Value insert to high!"); }
};

std::string four(std::initializer_list<int> bytes) {
  std::string text;
  for (const int byte : bytes) text += static_cast<char>(byte);
  return text;
}

TEST_F(FrmSetVatRateTest, EverythingHasItsBuiltInCaption) {
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Set VAT Rate"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("SET VAT RATE"));
  EXPECT_EQ(caption("L_VatRate(1)"), QStringLiteral("VAT Rate 1:"));
  EXPECT_EQ(caption("L_VatRate(2)"), QStringLiteral("VAT Rate 2:"));
  EXPECT_EQ(caption("L_VatRate(3)"), QStringLiteral("VAT Rate 3"));
  EXPECT_EQ(caption("L_VatRate(4)"), QStringLiteral("VAT Rate 4"));
  for (int i = 1; i <= 4; ++i) EXPECT_EQ(caption(member_name("L_MaxValue", i)), QStringLiteral("(Max Value 99999)"));
}

TEST_F(FrmSetVatRateTest, CaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_SET_VAT_RATE_TITLE"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("FRM_SET_VAT_RATE_L_TITOLO"));
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(caption(member_name("L_VatRate", i)), QStringLiteral("FRM_SET_VAT_RATE_L_VAT_RATE%1").arg(i));
    EXPECT_EQ(caption(member_name("L_MaxValue", i)), QStringLiteral("FRM_SET_VAT_RATE_L_MAX_VALUE"));
  }
  EXPECT_EQ(caption("C_Salva"), QStringLiteral("FRM_ALL_C_SALVA"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("FRM_ALL_C_ANNULLA"));
  EXPECT_EQ(caption("C_Invia_Ecr"), QStringLiteral("FRM_ALL_C_INVIA_ECR"));
}

TEST_F(FrmSetVatRateTest, TheLoadShowsThreeDecimals) {
  const std::pair<const char*, const char*> forms[] = {
      {"7500", "7.500 %"},   {"22000", "22.000 %"},   {"0", "0.000 %"},           {"1", "0.001 %"},
      {"99999", "99.999 %"}, {"100000", "100.000 %"}, {"99999999", "99999.999 %"}};
  for (const auto& [digits, shown] : forms) {
    for (int i = 1; i <= 4; ++i) {
      PrgMode.VatRate = {};
      set_rate(i, digits);
      open_editor();
      EXPECT_EQ(rate(i).text(), QString::fromLatin1(shown));
      EXPECT_EQ(rate(i % 4 + 1).text(), QStringLiteral("0.000 %")) << "each field has its own rate";
    }
  }
  EXPECT_TRUE(watched.boxes.empty()) << "a rate from elsewhere is shown as it is";
}

TEST_F(FrmSetVatRateTest, TheFocusIsWhereItChangesNoText) {
  open_editor();
  EXPECT_TRUE(control("C_Annulla").hasFocus());
}

TEST_F(FrmSetVatRateTest, EnteringShowsWholeThousandths) {
  open_editor();
  click(rate(4));
  EXPECT_EQ(rate(4).text(), QStringLiteral("7500"));
  click(rate(1));
  EXPECT_EQ(rate(1).text(), QStringLiteral("22000"));
}

TEST_F(FrmSetVatRateTest, EnteringARateOfZeroEmptiesTheField) {
  set_rate(2, "0");
  open_editor();
  click(rate(2));
  EXPECT_EQ(rate(2).text(), QString{});
  click(rate(1));
  EXPECT_EQ(rate(2).text(), QStringLiteral("0 %"));
}

TEST_F(FrmSetVatRateTest, LeavingShowsThePlainDecimalFormNotThreeDecimals) {
  open_editor();
  const std::pair<const char*, const char*> forms[] = {{"7500", "7.5 %"},     {"22000", "22 %"}, {"1", "0.001 %"},
                                                       {"99999", "99.999 %"}, {"0", "0 %"},      {"10", "0.01 %"},
                                                       {"00750", "0.75 %"}};
  for (const auto& [digits, shown] : forms) {
    enter(1, QString::fromLatin1(digits));
    press(Qt::Key_Tab);
    EXPECT_EQ(rate(1).text(), QString::fromLatin1(shown));
  }
}

TEST_F(FrmSetVatRateTest, EnteringAndLeavingAgainAndAgainKeepsTheValue) {
  open_editor();
  for (int i = 0; i < 3; ++i) {
    click(rate(4));
    EXPECT_EQ(rate(4).text(), QStringLiteral("7500"));
    click(rate(1));
    EXPECT_EQ(rate(4).text(), QStringLiteral("7.5 %"));
  }
}

TEST_F(FrmSetVatRateTest, AnEmptyFieldIsZeroPercentAndSavesAsFourZeroBytes) {
  open_editor();
  click(rate(1));
  press(Qt::Key_A, Qt::ControlModifier);
  press(Qt::Key_Delete);
  click(rate(2));
  EXPECT_EQ(rate(1).text(), QStringLiteral("0 %"));
  save();
  EXPECT_EQ(stored(1), four({0, 0, 0, 0}));
}

TEST_F(FrmSetVatRateTest, TheMaximumIsTakenDigitByDigitAndAFurtherDigitIsCut) {
  open_editor();
  enter(1, QStringLiteral("99999"));
  EXPECT_TRUE(watched.boxes.empty());
  EXPECT_EQ(rate(1).text(), QStringLiteral("99999"));
  expect_refusal();
  type(QStringLiteral("9"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("99999"));
  save();
  EXPECT_EQ(stored(1), four({0x99, 0x99, 0x09, 0x00}));
}

TEST_F(FrmSetVatRateTest, TheRefusalIsInTheCataloguesWords) {
  set_message(Key::FRM_ALL_MASSIMO_SUPERATO_MSG, "Te hoog");
  carica_messaggi_default();
  open_editor();
  expect_box(BoxKind::critical, "Te hoog");
  enter(3, QStringLiteral("100000"));
  EXPECT_EQ(rate(3).text(), QStringLiteral("10000"));
}

TEST_F(FrmSetVatRateTest, ARateAboveTheMaximumIsRefusedOnlyWhereItIsTyped) {
  set_rate(1, "12345678");
  open_editor();
  EXPECT_EQ(rate(1).text(), QStringLiteral("12345.678 %"));
  click(rate(1));
  EXPECT_EQ(rate(1).text(), QStringLiteral("12345678"));
  click(rate(2));
  EXPECT_EQ(rate(1).text(), QStringLiteral("12345.678 %"));
  EXPECT_TRUE(watched.boxes.empty());
  save();
  EXPECT_EQ(stored(1), four({0x78, 0x56, 0x34, 0x12}));
  click(rate(1));
  press(Qt::Key_End);
  expect_refusal();
  press(Qt::Key_Backspace);
  EXPECT_EQ(rate(1).text(), QStringLiteral("123456")) << "one for the key, one for the refusal";
}

TEST_F(FrmSetVatRateTest, LettersAreDropped) {
  open_editor();
  enter(1, QStringLiteral("2a2.0,0-0"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("22000"));
  enter(1, QStringLiteral("7.5 %,-+aZ"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("75"));
}

TEST_F(FrmSetVatRateTest, APastedRateIsTakenAsItIsUnlessADroppedLetterWentBefore) {
  open_editor();
  click(rate(1));
  paste_over(QStringLiteral("1234567"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("1234567"));
  type(QStringLiteral("x"));
  expect_refusal();
  paste_over(QStringLiteral("123456"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("12345"));
  paste_over(QStringLiteral("654321"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("654321"));
  save();
  EXPECT_EQ(rate(1).text(), QStringLiteral("654.321 %"));
  EXPECT_EQ(stored(1), four({0x21, 0x43, 0x65, 0x00}));
}

TEST_F(FrmSetVatRateTest, LeadingZerosDoNotCountTowardsTheMaximum) {
  open_editor();
  enter(1, QStringLiteral("00000750"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("00000750"));
  save();
  EXPECT_EQ(rate(1).text(), QStringLiteral("0.75 %"));
  EXPECT_EQ(stored(1), four({0x50, 0x07, 0x00, 0x00}));
}

TEST_F(FrmSetVatRateTest, ADigitTypedInFrontPushesTheLastOneOut) {
  open_editor();
  click(rate(1));
  press(Qt::Key_Home);
  expect_refusal();
  type(QStringLiteral("9"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("92200"));
  EXPECT_EQ(rate(1).cursorPosition(), 1);
}

TEST_F(FrmSetVatRateTest, EnterGoesToSaveAndASecondOneSaves) {
  open_editor();
  for (int i = 1; i <= 4; ++i) {
    enter(i, QString::number(1000 * i));
    press(Qt::Key_Return);
    EXPECT_TRUE(control("C_Salva").hasFocus());
    EXPECT_EQ(rate(i).text(), QString::number(i) + QStringLiteral(" %"));
  }
  EXPECT_NE(stored(1), four({0x00, 0x10, 0, 0}));
  press(Qt::Key_Return);
  EXPECT_EQ(stored(1), four({0x00, 0x10, 0x00, 0x00}));
  EXPECT_EQ(stored(4), four({0x00, 0x40, 0x00, 0x00}));
}

TEST_F(FrmSetVatRateTest, SaveWritesTheFourRatesAndNothingElse) {
  open_editor();
  const std::string before = image_file();
  enter(1, QStringLiteral("22000"));
  enter(2, QStringLiteral("7500"));
  enter(3, QStringLiteral("99999"));
  enter(4, QStringLiteral("1"));
  save();
  const std::string after = image_file();
  EXPECT_EQ(after.size(), before.size());
  EXPECT_EQ(after.substr(rates_at, 16), four({0x00, 0x20, 0x02, 0x00,  //
                                              0x00, 0x75, 0x00, 0x00,  //
                                              0x99, 0x99, 0x09, 0x00,  //
                                              0x01, 0x00, 0x00, 0x00}));
  EXPECT_EQ(after.substr(0, rates_at), before.substr(0, rates_at));
  EXPECT_EQ(after.substr(rates_end), before.substr(rates_end));
  EXPECT_EQ(file_bytes(PrgMode), after) << "memory and file are the same";
  EXPECT_EQ(top(), QStringLiteral("FrmSetVatRate"));
  EXPECT_EQ(rate(1).text(), QStringLiteral("22 %")) << "the screen stays as it is";
}

TEST_F(FrmSetVatRateTest, BothFormsOfAValueSaveTheSameBytes) {
  open_editor();
  save();
  const std::string from_three_decimals = image_file();
  EXPECT_EQ(rate(4).text(), QStringLiteral("7.500 %"));
  click(rate(4));
  click(rate(3));
  EXPECT_EQ(rate(4).text(), QStringLiteral("7.5 %"));
  save();
  EXPECT_EQ(image_file(), from_three_decimals);
  open_editor();
  EXPECT_EQ(rate(4).text(), QStringLiteral("7.500 %"));
}

TEST_F(FrmSetVatRateTest, WhatIsTypedAndNotSavedIsDiscarded) {
  const std::string before = image_file();
  open("FrmProgramMode");
  open_editor();
  enter(1, QStringLiteral("5"));
  click("C_Annulla");
  let_screens_settle();
  EXPECT_EQ(top(), QStringLiteral("FrmProgramMode"));
  EXPECT_EQ(image_file(), before);
  EXPECT_EQ(file_bytes(PrgMode), before);
  open_editor();
  EXPECT_EQ(rate(1).text(), QStringLiteral("22.000 %"));
}

TEST_F(FrmSetVatRateTest, SendSendsWhatWasSavedLast) {
  link().be_a_register();
  open_editor();
  enter(1, QStringLiteral("5"));
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0].substr(rates_at, 4), four({0x00, 0x20, 0x02, 0x00}));
  EXPECT_EQ(rate(1).text(), QStringLiteral("0.005 %")) << "the screen keeps what was typed";
  save();
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0].substr(rates_at, 4), four({0x05, 0x00, 0x00, 0x00}));
}

TEST_F(FrmSetVatRateTest, ABrokenRateIsLoggedAndTheOthersAreShownAndSaved) {
  const std::string shown_before[] = {"22.000 %", "", "4.000 %", "7.500 %"};
  set_rate(3, "4000");
  PrgMode.VatRate[1].bytes = {0x0A, 0x11, 0x22, 0x33};
  open_editor();
  EXPECT_EQ(log(), (Lines{"bcds_to_number Type mismatch", "FrmSetVatRate Form_load: Type mismatch"}));
  for (int i = 1; i <= 4; ++i) {
    EXPECT_EQ(rate(i).text().toStdString(), shown_before[static_cast<std::size_t>(i - 1)]) << i;
  }
  EXPECT_EQ(top(), QStringLiteral("FrmSetVatRate"));
  enter(4, QStringLiteral("9000"));
  save();
  EXPECT_EQ(log().size(), 2U) << "nothing is refused";
  EXPECT_EQ(stored(2), four({0x0A, 0x11, 0x22, 0x33})) << "what could not be shown is as it was";
  EXPECT_EQ(stored(3), four({0x00, 0x40, 0x00, 0x00}));
  EXPECT_EQ(stored(4), four({0x00, 0x90, 0x00, 0x00}));
}

TEST_F(FrmSetVatRateTest, AFaultInTheSaveIsLoggedAndNothingIsWritten) {
  const std::string before = image_file();
  open_editor();
  click(rate(2));
  paste_over(QStringLiteral("no number"));
  save();
  EXPECT_EQ(log().back(), "FrmSetVatRate Salva: Type mismatch");
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmSetVatRateTest, AFieldWithATextThatIsNoNumberIsLoggedUnderItsName) {
  open_editor();
  click(rate(2));
  paste_over(QStringLiteral("no number"));
  click(rate(3));
  EXPECT_EQ(log(), Lines{"FrmSetVatRate E_VatRate(2): Type mismatch"});
  EXPECT_EQ(rate(2).text(), QStringLiteral("no number"));
}

TEST_F(FrmSetVatRateTest, AnyGoodRatesSurviveLoadAndSave) {
  Random random{20};
  for (int round = 0; round < 40; ++round) {
    PrgModeImage image = random_image(Global::model_z320, random);
    for (auto& one : image.VatRate) number_to_bcds(one, random.digits(8));
    lay_down(image);
    open_editor();
    save();
    EXPECT_EQ(image_file(), file_bytes(image));
    stage.top()->unload();
    let_screens_settle();
  }
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmSetVatRateTest, BytesOfAnyKindEndInAShownOrALoggedRate) {
  Random random{21};
  for (int round = 0; round < 40; ++round) {
    const PrgModeImage image = random_image(Global::model_z300, random);
    lay_down(image);
    open_editor();
    for (int i = 1; i <= 4; ++i) click(rate(i));
    save();
    const std::string after = image_file();
    const std::string before = file_bytes(image);
    EXPECT_EQ(after.substr(0, rates_at), before.substr(0, rates_at));
    EXPECT_EQ(after.substr(rates_end), before.substr(rates_end));
    stage.top()->unload();
    let_screens_settle();
  }
}

}  // namespace
}  // namespace ecr::test
