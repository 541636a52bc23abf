#include "captions/frm_caption_setting.h"

#include <algorithm>

#include <QAbstractButton>
#include <QTabBar>
#include <QTabWidget>

#include "core/catalogue.h"
#include "core/code_page.h"
#include "core/global.h"
#include "core/register_text.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

struct Section {
  const char* array;
  std::size_t at;
  int count;
  std::size_t width;
};
constexpr Section line_sections[] = {{"E_ReceiptHeader", 3257, 10, 24},
                                     {"E_ReceiptFooter", 3497, 10, 24},
                                     {"E_Abr", 3947, 7, 24},
                                     {"E_ExtraInvoice", 4115, 5, 24},
                                     {"E_Other", 5015, 23, 24}};

struct Message {
  const char* field;
  std::size_t at;
};
constexpr Message messages[] = {{"E_OffModeScrollMessage", 3737},
                                {"E_PrgXZ_ModeScrollMessage", 3779},
                                {"E_RegModeSalesScrollMessage", 3821},
                                {"E_IdleAMScrollMessage", 3863},
                                {"E_IdlePMScrollMessage", 3905}};

constexpr std::size_t invoice_at = 4115;
constexpr std::size_t invoice_end = 4235;
constexpr std::size_t wait_at = 174;
constexpr std::size_t speed_at = 175;

class FrmCaptionSettingTest : public ScreenTest {
 protected:
  FrmCaptionSettingTest() {
    start_session(Global::model_z320);
    write("Setup/DescCaption.ini", "");
  }

  /// Random texts everywhere.
  void lay_down_random(std::uint8_t model, std::uint64_t seed) {
    Global::choose_model(model);
    Random random{seed};
    lay_down(random_image(model, random));
  }
  Screen& open_editor() { return open("FrmCaptionSetting"); }
  void save() const { click("C_Salva"); }
  [[nodiscard]] QTabWidget& tabs(const char* name) const { return control<QTabWidget>(name); }
  /// Enters a field, pastes over it and leaves it.
  void put(const QString& name, const QString& text) const {
    field(name).setFocus(Qt::OtherFocusReason);
    paste_over(text);
    control("C_Annulla").setFocus(Qt::OtherFocusReason);
  }
  static std::string there_and_back(std::string_view stored) {
    return sostituzione_to_ecr(std::string_view{sostituzione_from_ecr(stored)});
  }
};

TEST_F(FrmCaptionSettingTest, FieldsShowTheImageAtFullWidth) {
  lay_down_random(Global::model_z320, 1);
  open_editor();
  for (const Section& section : line_sections) {
    for (int i = 0; i < section.count; ++i) {
      const std::string stored =
          image_file().substr(section.at + static_cast<std::size_t>(i) * section.width, section.width);
      const std::u16string shown = unicode_of(sostituzione_from_ecr(stored));
      EXPECT_EQ(field(member_name(section.array, i)).text().toStdU16String(), shown) << section.array << i;
    }
  }
  for (const Message& message : messages) {
    const std::u16string shown = unicode_of(sostituzione_from_ecr(image_file().substr(message.at, 42)));
    EXPECT_EQ(field(message.field).text().toStdU16String(), shown) << message.field;
  }
}

TEST_F(FrmCaptionSettingTest, OpeningChangesNothing) {
  lay_down_random(Global::model_z320, 2);
  const std::string before = image_file();
  open_editor();
  EXPECT_EQ(bytes_of_image(PrgMode), before);
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmCaptionSettingTest, ASaveWritesEveryTextThereAndBackAndNothingElse) {
  for (std::uint64_t seed = 3; seed < 8; ++seed) {
    lay_down_random(Global::model_z320, seed);
    std::string expected = image_file();
    expected[wait_at] = 2;
    expected[speed_at] = 1;
    for (const Section& section : line_sections) {
      const std::size_t length = section.width * static_cast<std::size_t>(section.count);
      expected.replace(section.at, length, there_and_back(expected.substr(section.at, length)));
    }
    expected.replace(3737, 5 * 42, there_and_back(expected.substr(3737, 5 * 42)));
    expected.replace(4235, 780, there_and_back(expected.substr(4235, 780)));
    open_editor();
    list("Cmb_WaitTime").show_number(2);
    list("Cmb_ScrollSpeed").show_number(1);
    save();
    EXPECT_TRUE(image_file() == expected) << "seed " << seed;
    EXPECT_TRUE(bytes_of_image(PrgMode) == expected);
    stage.top()->unload();
  }
}

TEST_F(FrmCaptionSettingTest, ASaveOnTheZ300KeepsTheInvoiceLinesWhateverTheScreenShows) {
  Global::choose_model(Global::model_z300);
  PrgModeImage image = good_image(Global::model_z300);
  for (auto& line : image.ExtraInvoice) line.set("as it was");
  lay_down(image);
  const std::string before = image_file().substr(invoice_at, invoice_end - invoice_at);
  open_editor();
  EXPECT_TRUE(field("E_ExtraInvoice(0)").isEnabled());
  tabs("Tab_Invoice").setCurrentIndex(2);
  put("E_ExtraInvoice(0)", QStringLiteral("Customer:"));
  tabs("Tab_Invoice").setCurrentIndex(0);
  put("E_ReceiptHeader(0)", QStringLiteral("Oven"));
  save();
  EXPECT_EQ(image_file().substr(invoice_at, invoice_end - invoice_at), before);
  EXPECT_EQ(image_file().substr(3257, 5), "Oven ");
}

TEST_F(FrmCaptionSettingTest, ASaveOnTheZ320WritesTheInvoiceLines) {
  open_editor();
  tabs("Tab_Invoice").setCurrentIndex(2);
  put("E_ExtraInvoice(4)", QStringLiteral("Signature:"));
  save();
  EXPECT_EQ(image_file().substr(invoice_at + 4 * 24, 24), "Signature:              ");
}

TEST_F(FrmCaptionSettingTest, OnlyTheZ300TellsThatItKeepsItsInvoiceLines) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    start_session(model);
    open_editor();
    tabs("Tab_Invoice").setCurrentIndex(2);
    EXPECT_EQ(control("L_NoZ300").isVisible(), model == Global::model_z300);
    EXPECT_EQ(caption("L_NoZ300"), QStringLiteral("Option not supported on ECRZ300"));
    stage.top()->unload();
  }
}

TEST_F(FrmCaptionSettingTest, EachLineIsSavedInItsPlace) {
  open_editor();
  int tab = 0;
  for (const char* array : {"E_ReceiptHeader", "E_ReceiptFooter", "E_ExtraInvoice", "E_Other", "E_Abr"}) {
    tabs("Tab_Invoice").setCurrentIndex(tab++);
    const auto* section = std::find_if(std::begin(line_sections), std::end(line_sections),
                                       [array](const Section& one) { return std::string_view{one.array} == array; });
    for (int i = 0; i < section->count; ++i) put(member_name(array, i), member_name(array, i));
  }
  save();
  for (const Section& section : line_sections) {
    for (int i = 0; i < section.count; ++i) {
      const std::string expected = member_name(section.array, i).leftJustified(24).toStdString();
      EXPECT_EQ(image_file().substr(section.at + static_cast<std::size_t>(i) * 24, 24), expected);
    }
  }
}

TEST_F(FrmCaptionSettingTest, ALineThatIsBeingWrittenIsFilledBeforeItIsSaved) {
  open_editor();
  field("E_ReceiptHeader(0)").setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("·O·V·E·N 123456789012345678"));
  click("C_Salva");
  EXPECT_EQ(field("E_ReceiptHeader(0)").text(), QStringLiteral("·O·V·E·N 123456789012345"));
  EXPECT_EQ(image_file().substr(3257, 24),
            "\xFFO\xFFV\xFF"
            "E\xFFN 123456789012345");
}

TEST_F(FrmCaptionSettingTest, AMessageOfMoreThan42CharactersIsCutOnSaving) {
  open_editor();
  tabs("Tab_Print").setCurrentIndex(2);
  const QString text = QStringLiteral("12345678901234567890123456789012345678901234567890");
  for (const Message& message : messages) {
    put(message.field, text);
    EXPECT_EQ(field(message.field).text(), text) << "the field keeps it";
  }
  save();
  for (const Message& message : messages) {
    EXPECT_EQ(image_file().substr(message.at, 42), text.left(42).toStdString());
  }
  EXPECT_EQ(image_file()[3947], '\0') << "what stands behind the messages";
}

TEST_F(FrmCaptionSettingTest, EnteringAMessagePutsTheCursorBehindItsText) {
  PrgMode.OffModeScrollMessage.set("CLOSED");
  open_editor();
  tabs("Tab_Print").setCurrentIndex(2);
  field("E_OffModeScrollMessage").setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(field("E_OffModeScrollMessage").text(), QStringLiteral("CLOSED").leftJustified(42));
  EXPECT_EQ(field("E_OffModeScrollMessage").cursorPosition(), 6);
  type(QStringLiteral(" NOW"));
  save();
  EXPECT_EQ(image_file().substr(3737, 12), "CLOSED NOW  ");
}

TEST_F(FrmCaptionSettingTest, ListsHaveTheirChoicesWithoutACatalogue) {
  open_editor();
  EXPECT_EQ(entries_of(list("Cmb_WaitTime")), QStringList({"0. NO", "1. 3 minutes", "2. 5 minutes", "3. 10 minutes"}));
  EXPECT_EQ(entries_of(list("Cmb_ScrollSpeed")), QStringList({"0. SLOW", "1. MEDIUM", "2. FAST"}));
}

TEST_F(FrmCaptionSettingTest, ListsPutTheNumberInFrontOfACataloguesText) {
  set_message(Key::FRM_CAPTION_WAIT_TIME_2_MSG, "a while");
  set_message(Key::FRM_CAPTION_SCROLL_SPEED_0_MSG, "creeping");
  open_editor();
  EXPECT_EQ(entries_of(list("Cmb_WaitTime")), QStringList({"0. NO", "1. 3 minutes", "2. a while", "3. 10 minutes"}));
  EXPECT_EQ(entries_of(list("Cmb_ScrollSpeed")), QStringList({"0. creeping", "1. MEDIUM", "2. FAST"}));
}

TEST_F(FrmCaptionSettingTest, EachCodeShowsItsEntryAndIsSavedAgain) {
  for (int wait = 0; wait <= 3; ++wait) {
    for (int speed = 0; speed <= 2; ++speed) {
      PrgMode.CaptionOpt0 = static_cast<std::uint8_t>(wait);
      PrgMode.CaptionOpt1 = static_cast<std::uint8_t>(speed);
      open_editor();
      EXPECT_EQ(list("Cmb_WaitTime").currentIndex(), wait);
      EXPECT_EQ(list("Cmb_ScrollSpeed").currentIndex(), speed);
      save();
      EXPECT_EQ(image_file()[wait_at], wait);
      EXPECT_EQ(image_file()[speed_at], speed);
      stage.top()->unload();
    }
  }
}

TEST_F(FrmCaptionSettingTest, AChosenEntryIsSavedByItsNumber) {
  open_editor();
  tabs("Tab_Print").setCurrentIndex(2);
  let_screens_settle();
  pick(list("Cmb_WaitTime"), 3);
  pick(list("Cmb_ScrollSpeed"), 1);
  save();
  EXPECT_EQ(image_file()[wait_at], 3);
  EXPECT_EQ(image_file()[speed_at], 1);
}

TEST_F(FrmCaptionSettingTest, ACodeOutsideAListSelectsNothingAndIsSavedAsZero) {
  PrgMode.CaptionOpt0 = 4;
  PrgMode.CaptionOpt1 = 255;
  open_editor();
  EXPECT_EQ(list("Cmb_WaitTime").text(), QString{});
  EXPECT_EQ(list("Cmb_ScrollSpeed").text(), QString{});
  save();
  EXPECT_EQ(image_file()[wait_at], 0);
  EXPECT_EQ(image_file()[speed_at], 0);
}

TEST_F(FrmCaptionSettingTest, CaptionsAreBuiltInWithoutACatalogue) {
  open_editor();
  const std::pair<const char*, QStringList> expected[] = {
      {"Tab_Print", {"ON RECEIPT", "CUSTOM TEXT", "SCROLL MESSAGE"}},
      {"Tab_Invoice", {"HEADER", "FOOTER", "EXTRA INVOICE", "OTHER", "ABR"}}};
  for (const auto& [name, captions] : expected) {
    QStringList found;
    for (int i = 0; i < tabs(name).count(); ++i) found.append(tabs(name).tabText(i));
    EXPECT_EQ(found, captions);
  }
  EXPECT_EQ(caption("L_Other(22)"), QStringLiteral("Other 23"));
}

TEST_F(FrmCaptionSettingTest, EachCaptionTakesTheTextOfItsOwnKey) {
  for (std::size_t i = 0; i < key_count; ++i) {
    const auto key = static_cast<Key>(i);
    set_message(key, "text of " + std::string{name_of(key)});
  }
  open_editor();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("text of FRM_CAPTION_SETTING_MODE_TITLE"));
  const std::pair<const char*, const char*> controls[] = {
      {"Chk_Double", "FRM_CAPTION_CHK_DOUBLE"},
      {"ChK_Double2", "FRM_CAPTION_CHK_DOUBLE"},
      {"L_Preview", "FRM_CAPTION_PREVIEW"},
      {"L_Preview2", "FRM_CAPTION_PREVIEW"},
      {"L_Desc", "FRM_CAPTION_L_DESC"},
      {"C_Apply", "FRM_CAPTION_C_APPLY"},
      {"C_Cancel", "FRM_CAPTION_C_CANCEL"},
      {"F_LcdOption", "FRM_CAPTION_F_LCDOPTION_MSG"},
      {"L_WaitTime", "FRM_CAPTION_L_WAIT_TIME_MSG"},
      {"L_ScrollSpeed", "FRM_CAPTION_L_SCROLL_SPEED_MSG"},
      {"L_OffModeScrollMessage", "FRM_CAPTION_OFF_MODE_SCROLL_MESSAGE_MSG"},
      {"L_PrgXZ_ModeScrollMessage", "FRM_CAPTION_PRG_X_Z_MODE_SCROLL_MESSAGE_MSG"},
      {"L_RegModeSalesScrollMessage", "FRM_CAPTION_REG_MODE_SALES_SCROLL_MESSAGE_MSG"},
      {"L_IdleAMScrollMessage", "FRM_CAPTION_IDLE_AM_SCROLL_MESSAGE_MSG"},
      {"L_IdlePMScrollMessage", "FRM_CAPTION_IDEL_PM_MODE_SCROLL_MESSAGE_MSG"}};
  for (const auto& [name, key] : controls) {
    EXPECT_EQ(caption(name), QStringLiteral("text of ") + QString::fromLatin1(key)) << name;
  }
  for (int i = 0; i < 3; ++i) {
    EXPECT_EQ(tabs("Tab_Print").tabText(i), QStringLiteral("text of FRM_CAPTION_TAB_PRINT%1").arg(i + 1));
  }
  for (int i = 0; i < 5; ++i) {
    EXPECT_EQ(tabs("Tab_Invoice").tabText(i), QStringLiteral("text of FRM_CAPTION_TAB_INVOICE%1").arg(i + 1));
  }
  EXPECT_EQ(caption("L_ReceiptHeader(9)"), QStringLiteral("text of FRM_CAPTION_HEADER_N10"));
  EXPECT_EQ(caption("L_ReceiptFooter(0)"), QStringLiteral("text of FRM_CAPTION_FOOTER_N1"));
  EXPECT_EQ(caption("L_ExtraInvoice(4)"), QStringLiteral("text of FRM_CAPTION_EXTRA_INVOICE_N5"));
  EXPECT_EQ(caption("L_Other(17)"), QStringLiteral("text of FRM_CAPTION_EXTRA_OTHER_N18"));
  EXPECT_EQ(caption("L_Abr(6)"), QStringLiteral("text of FRM_CAPTION_ABR_N7"));
}

TEST_F(FrmCaptionSettingTest, Lines79To96LabelTheFirst18OfTheOtherLines) {
  std::string bytes;
  for (int i = 1; i <= 96; ++i) bytes += "line " + std::to_string(i) + "\r\n";
  write("Setup/DescCaption.ini", bytes);
  open_editor();
  EXPECT_EQ(caption("L_Other(0)"), QStringLiteral("line 79"));
  EXPECT_EQ(caption("L_Other(17)"), QStringLiteral("line 96"));
  EXPECT_EQ(caption("L_Other(18)"), QStringLiteral("Other 19"));
  EXPECT_TRUE(log().empty());
}

TEST_F(FrmCaptionSettingTest, Of78LinesTheLabelsOfTheOtherLinesKeepTheirCaptions) {
  std::string bytes;
  for (int i = 1; i <= 78; ++i) bytes += "line " + std::to_string(i) + "\r\n";
  write("Setup/DescCaption.ini", bytes);
  open_editor();
  for (int i = 0; i < 23; ++i) EXPECT_EQ(caption(member_name("L_Other", i)), QStringLiteral("Other %1").arg(i + 1));
}

TEST_F(FrmCaptionSettingTest, ALineTooManyIsLogged) {
  write("Setup/DescCaption.ini", std::string(97, '\n'));
  open_editor();
  EXPECT_EQ(log(), std::vector<std::string>{"Number of caption description to High"});
}

TEST_F(FrmCaptionSettingTest, AMissingFileOfDefinitionsIsToldInAWarningAndTheCaptionsStay) {
  remove("Setup/DescCaption.ini");
  for (std::size_t i = 0; i < 78; ++i) PrgMode.Caption[i].set("CAP " + std::to_string(i + 1));
  expect_box(BoxKind::warning, "Warning! The Language file definition is not present");
  open_editor();
  auto& cells = control<RecordGrid>("FG_Caption").cells();
  for (int row = 1; row <= 78; ++row) {
    EXPECT_EQ(cells.cell(row, 0), QString{});
    EXPECT_EQ(cells.cell(row, 1), QStringLiteral("CAP %1").arg(row).leftJustified(10));
  }
  save();
  EXPECT_EQ(image_file().substr(4235, 10), "CAP 1     ");
  EXPECT_EQ(image_file().substr(4235 + 770, 10), "CAP 78    ");
}

TEST_F(FrmCaptionSettingTest, TheWarningHasTheTextOfItsKey) {
  remove("Setup/DescCaption.ini");
  set_message(Key::FRM_CAPTION_LANG_NOT_DEFINE_MSG_DEF, "no definitions");
  expect_box(BoxKind::warning, "no definitions");
  open_editor();
}

TEST_F(FrmCaptionSettingTest, DefinitionsOfAnyBytesAndLengthDoNoHarm) {
  Random random{11};
  write("Setup/DescCaption.ini", random.bytes(200'000) + "\n" + std::string(500'000, 'x') + "\n" + random.bytes(5000));
  open_editor();
  control<QTabWidget>("Tab_Print").setCurrentIndex(1);
  let_screens_settle();
  EXPECT_EQ(top(), QStringLiteral("FrmCaptionSetting"));
}

TEST_F(FrmCaptionSettingTest, ALabelOfAnyLengthLeavesItsFieldInSight) {
  const std::string one_word(20'000, 'x');
  std::string words;
  while (words.size() < 20'000) words += "word ";
  write("Setup/DescCaption.ini", std::string(78, '\n') + one_word + "\n" + words + "\nshort\n");
  open_editor();
  tabs("Tab_Invoice").setCurrentIndex(3);
  let_screens_settle();
  EXPECT_EQ(caption("L_Other(0)").size(), 20'000);
  for (const char* name : {"E_Other(0)", "E_Other(1)", "E_Other(2)"}) {
    EXPECT_FALSE(control(name).visibleRegion().isEmpty()) << name;
    EXPECT_GT(control(name).width(), 200) << name;
  }
}

TEST_F(FrmCaptionSettingTest, SendTakesTheFileAndNotTheScreen) {
  link().be_a_register();
  open_editor();
  put("E_ReceiptHeader(0)", QStringLiteral("not saved"));
  const std::string before = image_file();
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0].substr(3257, 24), before.substr(3257, 24));
  for (const char* name : {"C_Salva", "C_Invia_Ecr", "C_Annulla"}) EXPECT_TRUE(control(name).isEnabled()) << name;
}

TEST_F(FrmCaptionSettingTest, BackDropsWhatWasTypedAndNotSaved) {
  open_editor();
  put("E_ReceiptHeader(0)", QStringLiteral("not saved"));
  click("C_Annulla");
  let_screens_settle();
  open_editor();
  EXPECT_EQ(field("E_ReceiptHeader(0)").text(), QString(24, QChar{0}));
}

TEST_F(FrmCaptionSettingTest, AHalfLetterEndsTheProgramBeforeAnythingIsWritten) {
  const std::string before = image_file();
  open_editor();
  put("E_ReceiptHeader(0)", QStringLiteral("OlÃ"));
  expect_program_ends([this] { save(); });
  EXPECT_EQ(image_file(), before);
}

TEST_F(FrmCaptionSettingTest, ACharacterThatTheRegisterLacksIsLeftOutAndLogged) {
  open_editor();
  put("E_ReceiptHeader(0)", QStringLiteral("Łódź"));
  save();
  EXPECT_EQ(image_file().substr(3257, 4),
            "\x8F"
            "d  ");
  EXPECT_EQ(log().size(), 2U);
}

TEST_F(FrmCaptionSettingTest, ATabPressedLeavesTheLineThatIsBeingWritten) {
  open_editor();
  field("E_ReceiptHeader(0)").setFocus(Qt::OtherFocusReason);
  paste_over(QStringLiteral("Oven"));
  QTabBar& bar = *tabs("Tab_Invoice").tabBar();
  click_at(bar, bar.tabRect(1).center());
  EXPECT_EQ(tabs("Tab_Invoice").currentIndex(), 1);
  EXPECT_EQ(field("E_ReceiptHeader(0)").text(), QStringLiteral("Oven").leftJustified(24));
  EXPECT_EQ(field("E_ReceiptFooter(0)").text().size(), 24) << "no line of the other tab is entered by it";
}

}  // namespace
}  // namespace ecr::test
