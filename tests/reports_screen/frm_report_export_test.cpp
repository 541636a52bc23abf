#include <gtest/gtest.h>

#include <QCheckBox>

#include "core/catalogue.h"
#include "core/global.h"
#include "lang/language.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

constexpr int shown[] = {3, 4, 5, 7, 9, 10, 12, 13, 14, 16, 20, 21};
constexpr int hidden[] = {6, 8, 11, 15, 17, 18, 19};

class FrmReportExportTest : public ScreenTest {
 protected:
  FrmReportExportTest() {
    start_session(Global::model_z320);
    Global::ComPort = 4;
    make_folder("Report");
    make_folder("Dati/Report");
    link().deliveries[22] = {"RELEASE.BIN", "banner"};
  }

  void open_screen() { open("FrmReportExport"); }
  [[nodiscard]] QCheckBox& tick(int number) const { return control<QCheckBox>(member_name("Chk_Report", number)); }

  void store_ticks(std::initializer_list<std::size_t> numbers) const {
    std::string file(24, '\0');
    for (const std::size_t number : numbers) file[number] = '\1';
    write("Setup/ExportOption.ini", file);
  }

  static std::string fetch(int number, int timeout) {
    return "send_cmd folder=. direction=0 file=" + std::to_string(number) + " timeout=" + std::to_string(timeout) +
           " port=4";
  }
};

TEST_F(FrmReportExportTest, EverythingHasItsBuiltInCaption) {
  open_screen();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Report Export"));
  const std::pair<const char*, const char*> captions[] = {{"L_Titolo", "REPORT EXPORT"},
                                                          {"Chk_Report(3)", "Cash In Drawer Report"},
                                                          {"Chk_Report(4)", "Financial (Z1) Report"},
                                                          {"Chk_Report(5)", "Range Department Report"},
                                                          {"Chk_Report(6)", "Department Group Report"},
                                                          {"Chk_Report(7)", "All PLU Report"},
                                                          {"Chk_Report(8)", "Range PLU Report"},
                                                          {"Chk_Report(9)", "All Normal CLERK Report"},
                                                          {"Chk_Report(10)", "All Training CLERK Report"},
                                                          {"Chk_Report(11)", "Normal + Training CLERK Report"},
                                                          {"Chk_Report(12)", "Time Report"},
                                                          {"Chk_Report(13)", "Training Report"},
                                                          {"Chk_Report(14)", "Financial (Z2) Report"},
                                                          {"Chk_Report(15)", "Open Table Report"},
                                                          {"Chk_Report(16)", "Full Report for EJ"},
                                                          {"Chk_Report(17)", "Oldest Report for EJ"},
                                                          {"Chk_Report(18)", "Lastest Report for EJ"},
                                                          {"Chk_Report(19)", "Daily Report for EJ"},
                                                          {"Chk_Report(20)", "All PLU Stock Report"},
                                                          {"Chk_Report(21)", "Mini PLU Stock Report"},
                                                          {"L_MPS_Level", "Min. Qty Level"},
                                                          {"L_MPS_Min", "(max. 9999)"},
                                                          {"C_Salva", "Save Setting"},
                                                          {"C_Export", "Export"},
                                                          {"C_Annulla", "Back"},
                                                          {"C_View", "View"}};
  for (const auto& [name, text] : captions) EXPECT_EQ(caption(name), QString::fromLatin1(text)) << name;
}

TEST_F(FrmReportExportTest, CaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_screen();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("FRM_REPORT_EXPORT_TITLE"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("FRM_REPORT_EXPORT_L_TITOLO"));
  for (const int number : shown) {
    EXPECT_EQ(caption(member_name("Chk_Report", number)),
              QStringLiteral("FRM_REPORT_EXPORT_CHK_REPORT_%1").arg(number));
  }
  EXPECT_EQ(caption("Chk_Report(17)"), QStringLiteral("Oldest Report for EJ"));
  EXPECT_EQ(caption("L_MPS_Level"), QStringLiteral("FRM_REPORT_EXPORT_L_MPS_LEVEL"));
  EXPECT_EQ(caption("L_MPS_Min"), QStringLiteral("MSG_MAX_9999"));
  EXPECT_EQ(caption("C_Salva"), QStringLiteral("FRM_REPORT_EXPORT_C_SALVA"));
  EXPECT_EQ(caption("C_Export"), QStringLiteral("FRM_REPORT_EXPORT_C_EXPORT"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("FRM_ALL_C_ANNULLA"));
}

TEST_F(FrmReportExportTest, SevenBoxesAreNeverSeen) {
  open_screen();
  for (const int number : shown) EXPECT_TRUE(tick(number).isVisible()) << number;
  for (const int number : hidden) EXPECT_FALSE(tick(number).isVisible()) << number;
}

TEST_F(FrmReportExportTest, AStoredOneIsATick) {
  std::string file(24, '\0');
  file[3] = '\1';
  file[4] = '\2';
  file[5] = '\xFF';
  file[19] = '\1';
  write("Setup/ExportOption.ini", file);
  open_screen();
  for (int number = 3; number <= 21; ++number)
    EXPECT_EQ(tick(number).isChecked(), number == 3 || number == 19) << number;
}

TEST_F(FrmReportExportTest, SaveWritesEachBoxAndKeepsWhatNoneStandsFor) {
  std::string file(24, '\0');
  file[0] = '\7';
  file[22] = '\5';
  file[23] = '\6';
  file[11] = '\1';
  write("Setup/ExportOption.ini", file);
  open_screen();
  click("Chk_Report(3)");
  click("Chk_Report(21)");
  click("C_Salva");
  file[3] = '\1';
  file[21] = '\1';
  EXPECT_EQ(bytes("Setup/ExportOption.ini"), file);
  EXPECT_EQ(top(), QStringLiteral("FrmReportExport"));
  EXPECT_TRUE(log().empty());
}

TEST_F(FrmReportExportTest, HiddenTicksTakePartInTheExport) {
  store_ticks({6, 8, 11, 15, 17, 18, 19});
  open_screen();
  link().calls.clear();
  click("C_Export");
  EXPECT_EQ(link().calls, (Lines{fetch(6, 60), fetch(8, 60), fetch(11, 60), fetch(15, 60), fetch(17, 360),
                                 fetch(18, 60), fetch(19, 360), fetch(22, 60)}));
}

TEST_F(FrmReportExportTest, TheZ300HasNoOpenTables) {
  Global::choose_model(Global::model_z300);
  store_ticks({3, 15});
  open_screen();
  EXPECT_FALSE(tick(15).isChecked());
  EXPECT_FALSE(tick(15).isEnabled());
  EXPECT_TRUE(tick(3).isChecked());
  EXPECT_EQ(bytes("Setup/ExportOption.ini")[15], '\1') << "the file stays until a save";
  link().calls.clear();
  click("C_Export");
  EXPECT_EQ(link().calls, (Lines{fetch(3, 60), fetch(22, 60)}));
  click("C_Salva");
  EXPECT_EQ(bytes("Setup/ExportOption.ini")[15], '\0');
  EXPECT_EQ(bytes("Setup/ExportOption.ini")[3], '\1');
}

TEST_F(FrmReportExportTest, ThePointerIsBusyForTheWholeExport) {
  open_screen();
  shell.pointers.clear();
  std::size_t changes_during_the_calls = 0;
  link().after_call = [&] { changes_during_the_calls = shell.pointers.size(); };
  click("Chk_Report(12)");
  click("C_Export");
  EXPECT_EQ(shell.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
  EXPECT_EQ(changes_during_the_calls, 1U);
}

TEST_F(FrmReportExportTest, AnExportSavesNoTicksAndTellsNobody) {
  open_screen();
  click("Chk_Report(12)");
  click("C_Export");
  EXPECT_EQ(bytes("Setup/ExportOption.ini"), "");
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmReportExportTest, FilesThatCannotBeWrittenAreNamedOnTheScreenUntilTheNextExport) {
  link().deliveries[3] = {"C-I-D.bin", ""};
  link().deliveries[12] = {"TIME.bin", ""};
  make_folder("Report/C-I-D.csv");
  make_folder("Report/TIME.csv");
  open_screen();
  EXPECT_EQ(caption("L_Progress"), QString{});
  click("Chk_Report(3)");
  click("Chk_Report(12)");
  click("C_Export");
  EXPECT_EQ(caption("L_Progress"),
            QStringLiteral("Not written: C-I-D.csv, TIME.csv. Another program may have the file open."));
  EXPECT_EQ(log().back(), "C_Export_click err: 75 Desc: Path or file access error");
  EXPECT_TRUE(watched.boxes.empty());
  remove("Report/C-I-D.csv");
  remove("Report/TIME.csv");
  click("C_Export");
  EXPECT_EQ(caption("L_Progress"), QString{});
  EXPECT_TRUE(exists("Report/C-I-D.csv"));
}

TEST_F(FrmReportExportTest, TheWordsForAFileThatCannotBeWrittenFollowTheLanguage) {
  LanguageNumber = 3;
  make_folder("Report/RELEASE.csv");
  open_screen();
  click("C_Export");
  EXPECT_EQ(caption("L_Progress"),
            QStringLiteral("Nicht geschrieben: RELEASE.csv. Vielleicht hat ein anderes Programm die Datei geöffnet."));
  LanguageNumber = 0;
}

TEST_F(FrmReportExportTest, TheLowestQuantityStartsAtZeroEachTime) {
  open_screen();
  EXPECT_EQ(field("Txt_MPS_Min").text(), QStringLiteral("0"));
  click("Txt_MPS_Min");
  press(Qt::Key_A, Qt::ControlModifier);
  type("4a7-");
  EXPECT_EQ(field("Txt_MPS_Min").text(), QStringLiteral("47"));
  click("Chk_Report(21)");
  link().calls.clear();
  click("C_Export");
  EXPECT_EQ(link().calls.at(0), "range_report folder=. file=21 timeout=120 from=47 to=9999 port=4");
  click("C_Annulla");
  let_screens_settle();
  open_screen();
  EXPECT_EQ(field("Txt_MPS_Min").text(), QStringLiteral("0"));
  click("Chk_Report(21)");
  link().calls.clear();
  click("C_Export");
  EXPECT_EQ(link().calls.at(0), "range_report folder=. file=21 timeout=120 from=0 to=9999 port=4");
}

TEST_F(FrmReportExportTest, ASaveThatCannotBeWrittenIsSilent) {
  make_folder("Setup/ExportOption.ini");
  open_screen();
  click("Chk_Report(3)");
  click("C_Salva");
  EXPECT_EQ(top(), QStringLiteral("FrmReportExport"));
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(FrmReportExportTest, ViewOpensTheViewerOverIt) {
  open_screen();
  click("C_View");
  EXPECT_EQ(top(), QStringLiteral("FrmReportView"));
  click("C_Annulla");
  let_screens_settle();
  EXPECT_EQ(top(), QStringLiteral("FrmReportExport"));
}

}  // namespace
}  // namespace ecr::test
