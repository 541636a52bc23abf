#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QHeaderView>
#include <QPlainTextEdit>
#include <QPrintDialog>
#include <QTabWidget>
#include <QTableView>
#include <QTimer>

#include "core/global.h"
#include "lang/language.h"
#include "reports/chart_view.h"
#include "reports/layout.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class FrmReportViewTest : public ScreenTest {
 protected:
  FrmReportViewTest() {
    start_session(Global::model_z320);
    make_folder("Report");
  }

  void open_viewer() { open("FrmReportView"); }
  [[nodiscard]] QTableView& table() const { return control<QTableView>("Fg_Report"); }
  [[nodiscard]] QString cell(int row, int column) const {
    return table().model()->index(row, column).data().toString();
  }
  [[nodiscard]] QString sum(int column) const {
    return control<QTableView>("Fg_Sums").model()->index(0, column).data().toString();
  }
  [[nodiscard]] QTabWidget& tabs() const { return control<QTabWidget>("Tabs"); }
  [[nodiscard]] int rows() const { return table().model()->rowCount(); }

  void write_hours() const {
    std::string csv = "SalesCount;SalesTotal\r\n";
    for (int hour = 0; hour < 24; ++hour) csv += hour == 9 ? "4;12.50\r\n" : hour == 10 ? "11;3.00\r\n" : "0;0.00\r\n";
    write("Report/TIME.csv", csv);
  }
};

TEST_F(FrmReportViewTest, WithoutAnyReportItSaysSo) {
  open_viewer();
  EXPECT_EQ(caption("L_Rows"), QStringLiteral("No report has been exported yet."));
  EXPECT_FALSE(button("C_Print").isEnabled());
  EXPECT_FALSE(button("C_Pdf").isEnabled());
  EXPECT_TRUE(log().empty());
}

TEST_F(FrmReportViewTest, SpeaksTheChosenLanguageInEveryTextOfItsOwn) {
  write_hours();
  LanguageNumber = 1;
  open_viewer();
  EXPECT_EQ(caption("L_File"), QStringLiteral("Informe"));
  EXPECT_EQ(caption("L_Rows"), QStringLiteral("2 de 24 filas"));
  EXPECT_EQ(cell(0, 0), QStringLiteral("09:00"));
  EXPECT_EQ(sum(0), QStringLiteral("Suma"));
  EXPECT_EQ(tabs().tabText(0), QStringLiteral("Tabla"));
  EXPECT_EQ(table().accessibleName(), QStringLiteral("El informe como tabla"));
  EXPECT_EQ(control<ChartView>("P_Charts").accessibleName(), QStringLiteral("Ventas por hora, Tiques por hora"));
  EXPECT_EQ(button("C_Pdf").text(), QStringLiteral("PDF..."));
}

TEST_F(FrmReportViewTest, ListsTheFilesThatHoldSomething) {
  write_hours();
  write("Report/RELEASE.csv", "");
  write("Report/notes.csv", "A;B\r\n1;2\r\n");
  write("Report/other.txt", "x");
  open_viewer();
  EXPECT_EQ(entries_of(list("Cmb_File")), (QStringList{QStringLiteral("TIME"), QStringLiteral("notes")}));
}

TEST_F(FrmReportViewTest, ShowsRowsWithFiguresAndTheirSums) {
  write_hours();
  open_viewer();
  EXPECT_EQ(rows(), 2);
  EXPECT_EQ(cell(0, 0), QStringLiteral("09:00"));
  EXPECT_EQ(cell(0, 2), QStringLiteral("12.50"));
  EXPECT_EQ(sum(0), QStringLiteral("Sum"));
  EXPECT_EQ(sum(1), QStringLiteral("15"));
  EXPECT_EQ(sum(2), QStringLiteral("15.50"));
  EXPECT_EQ(caption("L_Rows"), QStringLiteral("2 of 24 rows"));
  click("Chk_Figures");
  EXPECT_EQ(rows(), 24);
  EXPECT_EQ(sum(2), QStringLiteral("15.50"));
}

TEST_F(FrmReportViewTest, TheFilterNarrowsRowsAndSums) {
  write_hours();
  open_viewer();
  click("E_Filter");
  type("12.");
  EXPECT_EQ(rows(), 1);
  EXPECT_EQ(sum(2), QStringLiteral("12.50"));
  type("x");
  EXPECT_EQ(rows(), 0);
  EXPECT_EQ(sum(2), QStringLiteral("0"));
  press(Qt::Key_Backspace, Qt::NoModifier, 4);
  EXPECT_EQ(rows(), 2);
}

TEST_F(FrmReportViewTest, AHeadingSortsByItsColumn) {
  write_hours();
  open_viewer();
  auto* header = table().horizontalHeader();
  const auto click_heading = [&](int column) {
    click_at(*header->viewport(), {header->sectionViewportPosition(column) + 20, header->height() / 2});
  };
  click_heading(1);
  EXPECT_EQ(cell(0, 1), QStringLiteral("4")) << "4 before 11";
  click_heading(1);
  EXPECT_EQ(cell(0, 1), QStringLiteral("11"));
  click_heading(2);
  EXPECT_EQ(cell(0, 2), QStringLiteral("3.00"));
}

TEST_F(FrmReportViewTest, SortsByKeyboardToo) {
  write_hours();
  open_viewer();
  tab_to(table());
  press(Qt::Key_Home);
  press(Qt::Key_Right);
  press(Qt::Key_Up, Qt::AltModifier);
  EXPECT_EQ(cell(0, 1), QStringLiteral("11"));
  EXPECT_EQ(table().currentIndex().column(), 1);
  press(Qt::Key_Down, Qt::AltModifier);
  EXPECT_EQ(cell(0, 1), QStringLiteral("4"));
}

TEST_F(FrmReportViewTest, PrintAsksForThePrinter) {
  write_hours();
  open_viewer();
  bool asked = false;
  QTimer look;
  QObject::connect(&look, &QTimer::timeout, &look, [&] {
    auto* dialog = qobject_cast<QPrintDialog*>(QApplication::activeModalWidget());
    if (dialog == nullptr) return;
    asked = true;
    look.stop();
    dialog->reject();
  });
  look.start(1);
  click("C_Print");
  EXPECT_TRUE(asked);
  EXPECT_EQ(top(), QStringLiteral("FrmReportView"));
}

TEST_F(FrmReportViewTest, NumbersStandAtTheRight) {
  write_hours();
  open_viewer();
  const auto alignment = [this](int column) {
    return table().model()->index(0, column).data(Qt::TextAlignmentRole).toInt() & Qt::AlignHorizontal_Mask;
  };
  EXPECT_EQ(alignment(0), Qt::AlignLeft);
  EXPECT_EQ(alignment(2), Qt::AlignRight);
}

TEST_F(FrmReportViewTest, TheLastExportIsShownFirstTheOthersCanBeChosen) {
  write("Report/notes.csv", "A;B\r\n1;2\r\nA;B\r\n3;4\r\n");
  open_viewer();
  EXPECT_EQ(entries_of(list("Cmb_Export")), (QStringList{QStringLiteral("1 of 2"), QStringLiteral("2 of 2")}));
  EXPECT_EQ(cell(0, 0), QStringLiteral("3"));
  pick(list("Cmb_Export"), 0);
  EXPECT_EQ(cell(0, 0), QStringLiteral("1"));
  EXPECT_FALSE(control("Fg_Sums").isVisible()) << "nobody knows what these columns are";
}

TEST_F(FrmReportViewTest, PicturesAreThereWhereAReportHasSome) {
  write_hours();
  write("Report/notes.csv", "A;B\r\n1;2\r\n");
  open_viewer();
  EXPECT_TRUE(tabs().isTabVisible(1));
  EXPECT_EQ(control<ChartView>("P_Charts").charts().size(), 2U);
  tabs().setCurrentIndex(1);
  let_screens_settle();
  EXPECT_TRUE(control("P_Charts").isVisible());
  pick(list("Cmb_File"), 1);
  EXPECT_FALSE(tabs().isTabVisible(1));
  EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(FrmReportViewTest, AJournalIsPagedThroughReceiptByReceipt) {
  const std::string blank = std::string(24, ' ').append("\r\n");
  write("Report/FULL EJ.csv",
        "LineFromEj\r\nCOFFEE; black\r\nTOTAL 2.50\r\n" + blank + "TEA\r\n" + blank + "CAF\xC9\r\n" + blank);
  open_viewer();
  EXPECT_EQ(tabs().currentIndex(), 2);
  EXPECT_FALSE(tabs().isTabVisible(0));
  auto& paper = control<QPlainTextEdit>("T_Receipt");
  EXPECT_EQ(paper.toPlainText(), QStringLiteral("COFFEE; black\nTOTAL 2.50\n"));
  EXPECT_EQ(caption("L_Receipt"), QStringLiteral("Receipt 1 of 3"));
  EXPECT_FALSE(button("C_Previous").isEnabled());
  click("C_Next");
  click("C_Next");
  EXPECT_EQ(paper.toPlainText(), QStringLiteral("CAFÉ\n"));
  EXPECT_FALSE(button("C_Next").isEnabled());
  click("C_Previous");
  EXPECT_EQ(caption("L_Receipt"), QStringLiteral("Receipt 2 of 3"));
  click("E_Filter");
  type("coff");
  EXPECT_EQ(caption("L_Receipt"), QStringLiteral("Receipt 1 of 1"));
  type("xx");
  EXPECT_EQ(caption("L_Receipt"), QStringLiteral("Not found"));
  EXPECT_EQ(paper.toPlainText(), QString{});
}

TEST_F(FrmReportViewTest, BehindAJournalAReportIsATableFirst) {
  write_hours();
  write("Report/FULL EJ.csv", "LineFromEj\r\nTEA\r\n");
  open_viewer();
  pick(list("Cmb_File"), list("Cmb_File").findText(QStringLiteral("FULL EJ")));
  EXPECT_EQ(tabs().currentIndex(), 2);
  pick(list("Cmb_File"), list("Cmb_File").findText(QStringLiteral("TIME")));
  EXPECT_TRUE(tabs().isTabVisible(1));
  EXPECT_EQ(tabs().currentIndex(), 0);
}

TEST_F(FrmReportViewTest, AFileThatVanishesIsLoggedAndShownAsEmpty) {
  write_hours();
  write("Report/notes.csv", "A;B\r\n1;2\r\n");
  open_viewer();
  remove("Report/notes.csv");
  pick(list("Cmb_File"), 1);
  EXPECT_EQ(rows(), 0);
  ASSERT_EQ(log().size(), 1U);
  EXPECT_TRUE(log()[0].starts_with("FrmReportView notes.csv: "));
  EXPECT_FALSE(button("C_Print").isEnabled());
}

}  // namespace
}  // namespace ecr::test
