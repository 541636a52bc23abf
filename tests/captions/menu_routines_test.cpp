// What the menus do with the text files: the export on the Setup menu, the import on the program menu.

#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QPushButton>
#include <QTimer>

#include "core/global.h"
#include "core/text.h"
#include "support_qt/screen_test.h"
#include "widgets/screen_text.h"

namespace ecr::test {
namespace {

class MenuRoutinesTest : public ScreenTest {
 protected:
  MenuRoutinesTest() {
    start_session(Global::model_z320);
    write("Setup/DescCaption.ini", "");
    Global::DebugMode = true;
  }

  /// Presses the button of the import and lets `person` answer the chooser.
  void import(const std::function<void(QFileDialog&)>& person) {
    bool came = false;
    QTimer::singleShot(0, &stage, [&came, person] {
      auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(chooser, nullptr);
      came = true;
      person(*chooser);
    });
    button("C_Custom_Import").click();
    EXPECT_TRUE(came);
  }
  void import_file(std::string_view name) {
    const QString path = path_for_toolkit(host(name));
    import([&path](QFileDialog& chooser) {
      chooser.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(path);
    chooser.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Open)->click();
  });
}
};  // namespace

TEST_F(MenuRoutinesTest, TheExportWritesTheFileAndOpensTheScreenOfTheCaptions) {
  const Screen& menu = open("FrmSetup");
  click("C_ExportCaption");
  EXPECT_EQ(top(), QStringLiteral("FrmCaptionSetting"));
  EXPECT_FALSE(menu.isVisible());
  EXPECT_EQ(lines_of(bytes("Setup/caption.txt")).size(), 148U);
  stage.top()->unload();
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
}

TEST_F(MenuRoutinesTest, ASecondExportLeavesASecondCopy) {
  open("FrmSetup");
  click("C_ExportCaption");
  stage.top()->unload();
  let_screens_settle();
  click("C_ExportCaption");
  EXPECT_EQ(lines_of(bytes("Setup/caption.txt")).size(), 2 * 148U);
}

TEST_F(MenuRoutinesTest, TheScreenShowsTheTextsAsTheExportLeftThem) {
  PrgMode.ReceiptHeader[0].set("\xF0");  // in the register's own characters
  open("FrmSetup");
  click("C_ExportCaption");
  EXPECT_EQ(field("E_ReceiptHeader(0)").text().left(2), QStringLiteral("Æ ")) << "converted once more";
}

TEST_F(MenuRoutinesTest, AnExportThatFailsLeavesTheMenuUp) {
  make_folder("Setup/caption.txt");
  open("FrmSetup");
  click("C_ExportCaption");
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
  EXPECT_EQ(log().size(), 1U);
}

TEST_F(MenuRoutinesTest, TheImportAsksForATextFile) {
  open("FrmProgramMode");
  import([](QFileDialog& chooser) {
    EXPECT_EQ(chooser.windowTitle(), QStringLiteral("File Import Selection"));
  EXPECT_EQ(chooser.nameFilters(), QStringList{QStringLiteral("File (*.txt)")});
  chooser.reject();
});
}  // namespace ecr::test

TEST_F(MenuRoutinesTest, TheImportChangesTheWorkingImageAndNoFile) {
  const std::string before = image_file();
  write("bakery.txt", "RHE:01:2:Corner Oven\r\nVAR:03:Rolls:45:2:1\r\n");
  open("FrmProgramMode");
  import_file("bakery.txt");
  EXPECT_EQ(top(), QStringLiteral("FrmProgramMode"));
  EXPECT_EQ(trim_end(PrgMode.ReceiptHeader[0].view()), "Corner Oven");
  EXPECT_EQ(trim_end(PrgMode.Dept[2].Name.view()), "Rolls");
  EXPECT_EQ(image_file(), before);
  Write_PrgMode();  // as any editor's save does
  EXPECT_NE(image_file(), before);
}

TEST_F(MenuRoutinesTest, ACancelledChooserDoesNothing) {
  const std::string before{bytes_of_image(PrgMode)};
  open("FrmProgramMode");
  import([](QFileDialog& chooser) { chooser.reject();
});
EXPECT_EQ(bytes_of_image(PrgMode), before);
EXPECT_TRUE(log().empty());
}

TEST_F(MenuRoutinesTest, AnImportOfRandomBytesDoesNoHarm) {
  Random random{5};
  std::string noise = random.bytes(50'000);
  for (char& c : noise) {
    if (c == '\xC3') c = 'x';
  }
  write("noise.txt", noise + "\nRHE:01:2:Oven\n");
  open("FrmProgramMode");
  import_file("noise.txt");
  EXPECT_EQ(trim_end(PrgMode.ReceiptHeader[0].view()), "Oven");
}

}  // namespace
}  // namespace ecr::test
