#include "logo/frm_set_logo.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFileDialog>
#include <QTimer>

#include "core/catalogue.h"
#include "core/global.h"
#include "logo/journal_file.h"
#include "logo/paper_preview.h"
#include "support/bitmap_file.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class FrmSetLogoTest : public ScreenTest {
 protected:
  FrmSetLogoTest() {
    start_session(Global::model_z320);
    make_folder("Pictures");
    write("Pictures/shop.bmp", BitmapFile{}.bytes());
  }

  /// Clicks the button; the chooser that comes up is answered with this file, or cancelled where the path is empty.
  void choose_with(const QString& button, const std::string& path) {
    bool answered = false;
    QTimer::singleShot(0, &stage, [&] {
      auto* chooser = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(chooser, nullptr);
      answered = true;
      EXPECT_EQ(chooser->objectName(), QStringLiteral("Comm_Percorso"));
      title = chooser->windowTitle();
      filters = chooser->nameFilters();
      if (path.empty()) {
        chooser->reject();
        return;
      }
      chooser->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"))->setText(QString::fromStdString(host(path)));
      static_cast<QDialog*>(chooser)->accept();
    });
    click(button);
    EXPECT_TRUE(answered);
    let_screens_settle();
  }
  void browse(const std::string& path) { choose_with(QStringLiteral("C_Sfoglia"), path); }
  void open_journal(const std::string& path) { choose_with(QStringLiteral("C_EJ"), path); }

  [[nodiscard]] bool previews() { return !control<PaperPreview>("I_Anteprima").pixmap(Qt::ReturnByValue).isNull(); }
  [[nodiscard]] std::string path() const { return caption("L_percorso").toStdString(); }

  QString title;
  QStringList filters;
};

TEST_F(FrmSetLogoTest, HasItsBuiltInTextsWithoutACatalogue) {
  open("FrmSetLogo");
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("SET LOGO"));
  EXPECT_EQ(caption("C_Sfoglia"), QStringLiteral("Browse"));
  EXPECT_EQ(caption("C_EJ"), QStringLiteral("EJ"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("Back"));
  EXPECT_EQ(caption("C_Invia_Ecr"), QStringLiteral("Send to ECR"));
  EXPECT_EQ(path(), "");
  EXPECT_FALSE(previews());
}

TEST_F(FrmSetLogoTest, TakesItsTextsFromTheCatalogue) {
  for (const Key key : {Key::FRM_SET_LOGO_TITLE, Key::FRM_SET_LOGO_L_TITOLO, Key::FRM_SET_LOGO_C_SFOGLIA,
                        Key::FRM_ALL_C_ANNULLA, Key::FRM_ALL_C_INVIA_ECR}) {
    set_message(key, "text of " + std::to_string(static_cast<int>(key)));
  }
  const Screen& screen = open("FrmSetLogo");
  const auto text = [](Key key) { return QStringLiteral("text of %1").arg(static_cast<int>(key)); };
  EXPECT_EQ(screen.windowTitle(), text(Key::FRM_SET_LOGO_TITLE));
  EXPECT_EQ(caption("L_Titolo"), text(Key::FRM_SET_LOGO_L_TITOLO));
  EXPECT_EQ(caption("C_Sfoglia"), text(Key::FRM_SET_LOGO_C_SFOGLIA));
  EXPECT_EQ(caption("C_Annulla"), text(Key::FRM_ALL_C_ANNULLA));
  EXPECT_EQ(caption("C_Invia_Ecr"), text(Key::FRM_ALL_C_INVIA_ECR));
}

TEST_F(FrmSetLogoTest, IsOpenedFromTheMainMenuAndLeadsBackThere) {
  open("FrmPrincipale");
  click("C_Logo");
  let_screens_settle();
  EXPECT_EQ(top(), QStringLiteral("FrmSetLogo"));
  click("C_Annulla");
  let_screens_settle();
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
}

// Browsing

TEST_F(FrmSetLogoTest, ABitmapOfTheRightLengthIsShown) {
  open("FrmSetLogo");
  browse("Pictures/shop.bmp");
  EXPECT_EQ(title, QStringLiteral("Percorso Immagine"));
  EXPECT_EQ(filters, QStringList{"File Bitmap(*.bmp)"});
  EXPECT_EQ(path(), host("Pictures/shop.bmp"));
  EXPECT_TRUE(previews());
  EXPECT_EQ(caption("L_Nota"), QStringLiteral("384 dots wide and 162 high."));
  EXPECT_EQ(stage.focusWidget(), &button("C_Invia_Ecr"));
}

TEST_F(FrmSetLogoTest, OneByteMoreOrLessIsRefusedAndEmptiesPathAndPreview) {
  for (const std::size_t length : {7837U, 7839U}) {
    open("FrmSetLogo");
    browse("Pictures/shop.bmp");
    ASSERT_TRUE(previews());
    std::string wrong = BitmapFile{}.bytes();
    wrong.resize(length);
    write("Pictures/wrong.bmp", wrong);
    expect_box(BoxKind::plain, "Image to upload not correct");
    browse("Pictures/wrong.bmp");
    EXPECT_EQ(path(), "");
    EXPECT_FALSE(previews());
  }
}

TEST_F(FrmSetLogoTest, ACancelledBrowseEmptiesPathAndPreview) {
  open("FrmSetLogo");
  browse("Pictures/shop.bmp");
  const QString before = caption("L_Nota");
  browse("");
  EXPECT_EQ(path(), "");
  EXPECT_FALSE(previews());
  EXPECT_NE(caption("L_Nota"), before);
}

TEST_F(FrmSetLogoTest, AFileOfTheRightLengthIsTakenWhateverItHolds) {
  open("FrmSetLogo");
  for (const std::string& bytes : {std::string(7838, '\0'), std::string("BM") + std::string(7836, '\xFF')}) {
    write("Pictures/noise.bmp", bytes);
    browse("Pictures/noise.bmp");
    EXPECT_EQ(path(), host("Pictures/noise.bmp"));
    EXPECT_FALSE(previews());
    EXPECT_TRUE(caption("L_Nota").contains(QStringLiteral("cannot be shown")));
  }
}

TEST_F(FrmSetLogoTest, APictureOfMoreBitsIsShownWithAWordOfWarning) {
  BitmapFile coloured;
  coloured.bits = 24;
  coloured.colours_used = 0;
  coloured.width = 108;
  coloured.height = 24;
  coloured.palette = {};
  coloured.rows = std::string(7784, '\x55');
  ASSERT_EQ(coloured.bytes().size(), 7838U);
  write("Pictures/coloured.bmp", coloured.bytes());
  open("FrmSetLogo");
  browse("Pictures/coloured.bmp");
  EXPECT_TRUE(previews());
  EXPECT_TRUE(caption("L_Nota").contains(QStringLiteral("will refuse it")));
}

// Sending

TEST_F(FrmSetLogoTest, WithoutAFileItSaysThatOneIsMissing) {
  link();
  open("FrmSetLogo");
  expect_box(BoxKind::information, "Select the file to send");
  click("C_Invia_Ecr");
  EXPECT_EQ(link().calls, std::vector<std::string>{});
}

TEST_F(FrmSetLogoTest, APathWithABlankIsRefusedAtTheSendAndNotBefore) {
  link();
  make_folder("My pictures");
  write("My pictures/shop.bmp", BitmapFile{}.bytes());
  write("Pictures/my shop.bmp", BitmapFile{}.bytes());
  open("FrmSetLogo");
  for (const std::string file : {"My pictures/shop.bmp", "Pictures/my shop.bmp"}) {
    browse(file);
    EXPECT_EQ(path(), host(file));
    EXPECT_TRUE(caption("L_Nota").contains(QStringLiteral("blank")));
    expect_box(BoxKind::critical, "Is not spossible send a logo that has a Space (' ') in the source path.");
    click("C_Invia_Ecr");
    EXPECT_EQ(path(), host(file)) << "the path stays";
  }
  EXPECT_EQ(link().calls, std::vector<std::string>{});
  EXPECT_TRUE(shell.pointers.empty()) << "the pointer is not busy for that";
}

TEST_F(FrmSetLogoTest, AGoodSendSaysSoWhileThePointerIsBusy) {
  link().answer = {1, 0x1000000};
  link().answers[2] = {1, 0};
  write("Pictures/GRAPHIC.BIN", "made by the conversion");
  open("FrmSetLogo");
  browse("Pictures/shop.bmp");
  shell.pointers.clear();
  expect_box(BoxKind::plain, "Logo Programmed");
  click("C_Invia_Ecr");
  EXPECT_EQ(link().calls, (std::vector<std::string>{"send_logo source=. target1=Pictures target2=shop.bmp timeout=60",
                                                    "send_cmd folder=. direction=1 file=2 timeout=60 port=4"}));
  EXPECT_EQ(link().received[2], "made by the conversion");
  EXPECT_EQ(shell.pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
  EXPECT_EQ(path(), host("Pictures/shop.bmp"));
  EXPECT_TRUE(button("C_Invia_Ecr").isEnabled());
}

TEST_F(FrmSetLogoTest, AFailedSendShowsNoBox) {
  link().answer = {1, 0x1000000};
  link().answers[2] = {1, 4097};
  write("Pictures/GRAPHIC.BIN", "made by the conversion");
  open("FrmSetLogo");
  browse("Pictures/shop.bmp");
  click("C_Invia_Ecr");
  link().answer = {1, 0};
  click("C_Invia_Ecr");
  EXPECT_TRUE(watched.boxes.empty());
  EXPECT_EQ(log().size(), 2U);
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "made by the conversion");
}

TEST_F(FrmSetLogoTest, ItsMessagesComeFromTheCatalogue) {
  set_message(Key::FRM_SET_LOGO_SEL_FILE_SEND_MSG, "Which?");
  set_message(Key::FRM_SET_LOGO_PROGRAMMED_MSG, "There.");
  set_message(Key::FRM_SET_LOGO_PATH_ERROR_MSG, "A blank!");
  link().answer = {1, 0x1000000};
  link().answers[2] = {1, 0};
  write("Pictures/GRAPHIC.BIN", "x");
  write("Pictures/my shop.bmp", BitmapFile{}.bytes());
  open("FrmSetLogo");
  expect_box(BoxKind::information, "Which?");
  click("C_Invia_Ecr");
  browse("Pictures/my shop.bmp");
  expect_box(BoxKind::critical, "A blank!");
  click("C_Invia_Ecr");
  browse("Pictures/shop.bmp");
  expect_box(BoxKind::plain, "There.");
  click("C_Invia_Ecr");
}

// The journal

TEST_F(FrmSetLogoTest, AJournalIsReadAndItsPathShown) {
  write("Dati/journal.bin", std::string(26, 'h') + std::string(3 * 26, 'r'));
  open("FrmSetLogo");
  browse("Pictures/shop.bmp");
  open_journal("Dati/journal.bin");
  EXPECT_EQ(title, QStringLiteral("Percorso File giornale"));
  EXPECT_EQ(filters, QStringList{"File Journal(*.bin)"});
  EXPECT_EQ(path(), host("Dati/journal.bin"));
  EXPECT_EQ(Ej.Records.size(), 3U);
  EXPECT_FALSE(previews()) << "the picture is not what would be sent";
  EXPECT_EQ(caption("L_Nota"), QStringLiteral("A journal file of 3 records."));
}

TEST_F(FrmSetLogoTest, ACancelledJournalLeavesPathAndPreview) {
  open("FrmSetLogo");
  browse("Pictures/shop.bmp");
  open_journal("");
  EXPECT_EQ(path(), host("Pictures/shop.bmp"));
  EXPECT_TRUE(previews());
}

TEST_F(FrmSetLogoTest, TheJournalsPathIsSentAsItStands) {
  write("Dati/journal.bin", std::string(52, 'r'));
  link().answer = {1, 0x10010000};
  open("FrmSetLogo");
  open_journal("Dati/journal.bin");
  click("C_Invia_Ecr");
  EXPECT_EQ(link().calls, std::vector<std::string>{"send_logo source=. target1=Dati target2=journal.bin timeout=60"});
}

TEST_F(FrmSetLogoTest, TheJournalsFilterStaysInTheChooserUntilTheScreenIsOpenedAnew) {
  write("Dati/journal.bin", std::string(52, 'r'));
  open("FrmSetLogo");
  open_journal("Dati/journal.bin");
  browse("");
  EXPECT_EQ(title, QStringLiteral("Percorso File giornale"));
  EXPECT_EQ(filters, QStringList{"File Journal(*.bin)"});
  open("FrmSetLogo");
  browse("");
  EXPECT_EQ(title, QStringLiteral("Percorso Immagine"));
}

TEST_F(FrmSetLogoTest, UnderTheJournalsFilterABitmapCanStillBeNamed) {
  open("FrmSetLogo");
  open_journal("");
  browse("Pictures/shop.bmp");
  EXPECT_EQ(path(), host("Pictures/shop.bmp"));
  EXPECT_TRUE(previews());
}

TEST_F(FrmSetLogoTest, ANameWithoutAFileIsNoBitmapAndNoJournal) {
  open("FrmSetLogo");
  expect_box(BoxKind::plain, "Image to upload not correct");
  browse("Pictures/missing.bmp");
  EXPECT_EQ(path(), "");
  browse("Pictures/shop.bmp");
  open_journal("Dati/missing.bin");
  EXPECT_EQ(path(), host("Pictures/shop.bmp"));
  EXPECT_FALSE(exists("Dati/missing.bin"));
}

TEST_F(FrmSetLogoTest, JournalFilesOfAnyBytesAreTaken) {
  open("FrmSetLogo");
  for (const std::size_t length : {0U, 1U, 25U, 26U, 27U, 39U, 40U, 1000U}) {
    write("Dati/journal.bin", std::string(length, '\xFF'));
    open_journal("Dati/journal.bin");
    EXPECT_EQ(path(), host("Dati/journal.bin")) << length;
  }
}

}  // namespace
}  // namespace ecr::test
