// Import and export of the item editor: the file chooser, the remembered name, the screen behind an import.

#include <gtest/gtest.h>

#include "editors/program/plu_editor_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class PluExchange : public PluEditorTest {
 protected:
  void import_from(const std::string& path) {
    answer_chooser(path);
    exchange("C_Import");
  }
  void export_to(const std::string& path) {
    answer_chooser(path);
    exchange("C_Export");
  }
  void cancel(const char* button) {
    cancel_chooser();
    exchange(button);
  }

 private:
  void exchange(const char* button) {
    click(button);
    // What a window manager does when the chooser is gone.
    stage.activateWindow();
    let_screens_settle();
  }
};

TEST_F(PluExchange, TheChooserHasItsNameItsTitleAndItsFilter) {
  open_editor();
  export_to("items.csv");
  EXPECT_EQ(seen.name, QStringLiteral("Comm_Percorso"));
  EXPECT_EQ(seen.title, QStringLiteral("Percorso Immagine"));
  EXPECT_EQ(seen.filters, QStringList{"File CSV(*.csv)"});
  EXPECT_EQ(seen.named, QString{});
  import_from("items.csv");
  EXPECT_EQ(seen.name, QStringLiteral("Comm_Percorso"));
  EXPECT_EQ(seen.title, QStringLiteral("Percorso Immagine"));
  EXPECT_EQ(seen.filters, QStringList{"File CSV(*.csv)"});
  EXPECT_EQ(seen.named, QStringLiteral("items.csv")) << "the remembered name is offered";
}

TEST_F(PluExchange, AnExportWritesTheTableOverAnOlderFile) {
  write("items.csv", std::string(5000, 'x'));
  open_editor();
  export_to("items.csv");
  const std::string text = bytes("items.csv");
  EXPECT_EQ(lines_of(text).size(), 6U);
  EXPECT_EQ(lines_of(text)[0], ";;;;;;;;;");
  EXPECT_EQ(lines_of(text)[1], "1;ITEM 10         ;10;12;100;0;1;2;1;0;");
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(PluExchange, AnExportTakesTheSavedItemsNotWhatIsTyped) {
  open_editor();
  enter("E_Name", QStringLiteral("Typed"));
  export_to("items.csv");
  EXPECT_EQ(lines_of(bytes("items.csv"))[1], "1;ITEM 10         ;10;12;100;0;1;2;1;0;");
}

TEST_F(PluExchange, AnExportThatIsCancelledFailsWithoutANameAndIsLogged) {
  open_editor();
  cancel("C_Export");
  EXPECT_EQ(log(), Lines{"FrmPrgPlu Errore: Path or file access error"});
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(PluExchange, AnExportIntoAFolderThatIsNotThereIsLogged) {
  open_editor();
  export_to("nowhere/items.csv");
  ASSERT_EQ(log().size(), 1U);
  EXPECT_TRUE(log()[0].starts_with("FrmPrgPlu Errore: "));
}

TEST_F(PluExchange, ACancelledExportGoesToTheRememberedFile) {
  open_editor();
  export_to("items.csv");
  write("items.csv", "spoilt");
  cancel("C_Export");
  EXPECT_EQ(lines_of(bytes("items.csv")).size(), 6U);
}

TEST_F(PluExchange, ACancelledImportReadsTheRememberedFile) {
  open_editor();
  export_to("items.csv");
  item(1).Tax = 4;
  cancel("C_Import");
  EXPECT_EQ(item(1).Tax, 2);
}

TEST_F(PluExchange, ACancelledImportWithoutANameDoesNothing) {
  open_editor();
  cancel("C_Import");
  EXPECT_EQ(log(), Lines{});
  EXPECT_EQ(PrgPlu.PluCount, 5);
  EXPECT_TRUE(watched.boxes.empty());
}

TEST_F(PluExchange, AFileThatIsNotThereEndsTheImportInSilence) {
  open_editor();
  import_from("missing.csv");
  EXPECT_EQ(log(), Lines{});
  EXPECT_EQ(PrgPlu.PluCount, 5);
}

TEST_F(PluExchange, TheNameIsForgottenWithTheScreen) {
  open_editor();
  export_to("items.csv");
  open_again();
  export_to("items.csv");
  EXPECT_EQ(seen.named, QString{});
}

TEST_F(PluExchange, AnImportShowsTheFirstItemAndWritesNothing) {
  write("items.csv", "h\r\n1;Tea;70;5;250;0;2;1;4;12.5;\r\n2;Milk;60;6;90;80;1;1;1;0;\r\n");
  const std::string before = file();
  open_editor();
  go_to(4);
  import_from("items.csv");
  EXPECT_EQ(PrgPlu.PluCount, 2);
  EXPECT_EQ(number().number(), 1);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("70"));
  EXPECT_EQ(shown("E_Name"), QStringLiteral("Tea             "));
  EXPECT_EQ(marked_row(), 1);
  EXPECT_EQ(grid().rowAt(0) + 1, 1);
  EXPECT_EQ(cells(1), QStringList({"1", "70", "Tea             ", "preset", "5", "tax1 taxable", "tax4 taxable", "2.50",
                                   "0.00", "12.5"}));
  EXPECT_EQ(cells(2).mid(1, 2), QStringList({"60", "Milk            "})) << "nothing is sorted";
  EXPECT_EQ(cells(3).mid(1, 1), QStringList{"30"}) << "rows above the lines keep what they had";
  EXPECT_EQ(file(), before);
}

TEST_F(PluExchange, TheNextSaveSortsAndFlagsTheSavedItem) {
  write("items.csv", "h\r\n1;Tea;70;5;\r\n2;Milk;60;6;\r\n3;Rum;65;6;\r\n4;D;0;\r\n5;E;0;\r\n");
  open_editor();
  import_from("items.csv");
  save();
  EXPECT_EQ(code(1), "60");
  EXPECT_EQ(code(2), "65");
  EXPECT_EQ(code(3), "70");
  EXPECT_EQ(PrgPlu.PluCount, 3);
  EXPECT_EQ(file_count(), 3);
  EXPECT_EQ(item(3).SendFlag, 1) << "the import had marked row 1";
  EXPECT_EQ(item(1).SendFlag, 0);
}

TEST_F(PluExchange, EveryImportedRowIsMarked) {
  write("items.csv", "h\r\n1;Tea;10;5;\r\n2;Milk;20;6;\r\n");
  open_editor();
  import_from("items.csv");
  for (int i = 0; i < 3; ++i) save();
  EXPECT_EQ(item(1).SendFlag, 1);
  EXPECT_EQ(item(2).SendFlag, 1);
  EXPECT_EQ(item(3).SendFlag, 0);
}

TEST_F(PluExchange, AHeadingAloneLeavesGridAndScreen) {
  write("items.csv", "h\r\n");
  open_editor();
  go_to(2);
  import_from("items.csv");
  EXPECT_EQ(PrgPlu.PluCount, 0);
  EXPECT_EQ(number().number(), 2);
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("20"));
  EXPECT_EQ(cell(5, 1), QStringLiteral("50"));
}

TEST_F(PluExchange, AnEmptyFileSetsTheCountToMinusOneUntilASave) {
  write("items.csv", "");
  open_editor();
  import_from("items.csv");
  EXPECT_EQ(PrgPlu.PluCount, -1);
  save();
  EXPECT_EQ(PrgPlu.PluCount, 5);
  EXPECT_EQ(file_count(), 5);
}

TEST_F(PluExchange, AnEmptyFileAndASendBringTheCountToTheFile) {
  link().be_a_register();
  write("items.csv", "");
  open_editor();
  import_from("items.csv");
  click("C_Invia_Ecr");
  EXPECT_EQ(file_count(), -1);
  EXPECT_EQ(file().size(), 802U);
}

TEST_F(PluExchange, TooManyRowsStopTheImportAndLeaveTheGrid) {
  std::string text = "h\r\n";
  for (int i = 1; i <= 3002; ++i) text += "1;Tea;" + std::to_string(i) + ";5;\r\n";
  write("items.csv", text);
  open_editor();
  import_from("items.csv");
  EXPECT_EQ(log(), Lines{"Frm_PrgPlu_Import Index out of range"});
  EXPECT_EQ(PrgPlu.PluCount, 5);
  EXPECT_EQ(code(3000), "3000");
  EXPECT_EQ(cell(2, 1), QStringLiteral("20"));
  EXPECT_EQ(shown("E_FreeCode"), QStringLiteral("10"));
}

TEST_F(PluExchange, BehindAStoppedImportASaveSortsByTheCodesThatTheGridShows) {
  std::string text = "h\r\n";
  for (int i = 1; i <= 3002; ++i) text += "1;Tea;" + std::to_string(5000 - i) + ";5;\r\n";
  write("items.csv", text);
  open_editor();
  import_from("items.csv");
  save();
  EXPECT_EQ(code(1), "10") << "the code in the field";
  EXPECT_EQ(code(2), "4998") << "the grid's 20 stood in order";
  EXPECT_EQ(PrgPlu.PluCount, 5) << "by the rows that the grid showed";
  EXPECT_EQ(cell(2, 1), QStringLiteral("4998")) << "now it shows what the table holds";
  EXPECT_EQ(cell(3000, 1), QStringLiteral("2000"));
  save();
  EXPECT_EQ(code(2), "2000") << "and the next save sorts by that";
  EXPECT_EQ(code(3000), "4998");
  EXPECT_EQ(PrgPlu.PluCount, 5) << "without an empty row the count stays";
}

TEST_F(PluExchange, A3001stRowIsCountedAndWritten) {
  std::string text = "h\r\n";
  for (int i = 1; i <= 3001; ++i) text += "1;Tea;" + std::to_string(i) + ";5;\r\n";
  write("items.csv", text);
  open_editor();
  import_from("items.csv");
  EXPECT_EQ(PrgPlu.PluCount, 3001);
  save();
  EXPECT_EQ(PrgPlu.PluCount, 3001) << "all rows have codes: the count stays";
  EXPECT_EQ(file().size(), 802 + 3001 * record_size);
}

TEST_F(PluExchange, ListLinksAndFlagsOfRowsAboveTheCountComeBack) {
  item(4).PluListLink = 3;
  item(4).SendFlag = 1;
  open_editor();
  write("two.csv", "h\r\n1;A;10;1;\r\n2;B;20;1;\r\n");
  write("four.csv", "h\r\n1;A;10;1;\r\n2;B;20;1;\r\n3;C;30;1;\r\n4;D;40;1;\r\n");
  import_from("two.csv");
  Write_PrgPlu();
  Read_PrgPlu();
  EXPECT_EQ(code(4), "0");
  import_from("four.csv");
  go_to(4);
  EXPECT_EQ(list("Cmb_PluListLink").text(), QStringLiteral("3"));
  EXPECT_EQ(item(4).SendFlag, 1);
}

TEST_F(PluExchange, NamesWithTheRegistersOwnCharactersDoNotComeBack) {
  item(1).Name.set("CR\xDBME");
  open_editor();
  export_to("items.csv");
  EXPECT_EQ(lines_of(bytes("items.csv"))[1], "1;CR\xC8ME           ;10;12;100;0;1;2;1;0;");
  import_from("items.csv");
  EXPECT_EQ(item(1).Name.view(), "CR\xC8ME           ");
}

}  // namespace
}  // namespace ecr::test
