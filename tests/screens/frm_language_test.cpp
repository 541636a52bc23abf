#include "screens/frm_language.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>

#include "core/catalogue.h"
#include "lang/language.h"
#include "screens/start_screen.h"

namespace ecr::test {
namespace {

class FrmLanguageTest : public StartScreenTest {
 protected:
  FrmLanguageTest() {
    const char* texts[] = {"Quit", "Salir", "Quitter", "Ende", "Einde", "Sair", "Afslut", "Avslutt"};
    for (std::size_t i = 0; i < languages.size(); ++i) {
      write("Setup/" + std::string{languages[i].file},
            "FRM_PRES_C_EXIT=" + std::string{texts[i]} + "\nFRM_ALL_PROGRAM_KO_MSG=Ko " + texts[i] + "\n");
      write("Setup/" + std::string{languages[i].flag}, "");
    }
    selezione_lingua(0);
    carica_messaggi_default();
    open_start();
  }

  void open_languages() {
    click("C_LinguaSel");
    dialog = QApplication::activeModalWidget();
    ASSERT_NE(dialog, nullptr);
    ASSERT_EQ(dialog->objectName(), QStringLiteral("FrmLanguage"));
  }

  [[nodiscard]] QRadioButton& option(int i) const { return control<QRadioButton>(member_name("Opt_Lang", i)); }
  /// Where a click ticks an option, whatever the width of its place.
  void tick(int i) const { click_at(option(i), {8, option(i).height() / 2}); }

  [[nodiscard]] bool closed() const {
    let_screens_settle();
    return QApplication::activeModalWidget() == nullptr;
  }

  QPointer<QWidget> dialog;
};

TEST_F(FrmLanguageTest, HasEightOptionsWithTheirFlagsAndMarksTheCurrentLanguage) {
  LanguageNumber = 5;
  open_languages();
  for (int i = 0; i < 8; ++i) {
    EXPECT_EQ(option(i).isChecked(), i == 5) << i;
    EXPECT_TRUE(control(member_name("I_Lang", i)).isVisible());
  }
  EXPECT_TRUE(control("Frame1").isVisible());
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Language Selection"));
  EXPECT_EQ(caption("C_Save"), QStringLiteral("Save"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("Back"));
}

TEST_F(FrmLanguageTest, ANumberOutsideTheTableMarksNothing) {
  LanguageNumber = 200;
  open_languages();
  for (int i = 0; i < 8; ++i) EXPECT_FALSE(option(i).isChecked());
}

TEST_F(FrmLanguageTest, CaptionsComeFromTheCatalogue) {
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  open_languages();
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("FRM_LANGUAGE_TITLE"));
  EXPECT_EQ(caption("C_Save"), QStringLiteral("FRM_LANGUAGE_C_SAVE"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("FRM_LANGUAGE_C_ANNULLA"));
  for (int i = 0; i < 8; ++i) EXPECT_EQ(option(i).text(), QStringLiteral("FRM_LANGUAGE_OPT_LANG%1").arg(i + 1));
}

TEST_F(FrmLanguageTest, AnOptionAloneChangesNothing) {
  open_languages();
  tick(3);
  EXPECT_TRUE(option(3).isChecked());
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(message(Key::FRM_PRES_C_EXIT), "Quit");
}

TEST_F(FrmLanguageTest, SaveTakesTheLanguageLaysTheTextsAtOnceAndRemembersIt) {
  const char* exits[] = {"Quit", "Salir", "Quitter", "Ende", "Einde", "Sair", "Afslut", "Avslutt"};
  for (const int i : {6, 7, 1, 0}) {
    open_languages();
    tick(i);
    click("C_Save");
    ASSERT_TRUE(closed());
    EXPECT_EQ(caption("C_Exit"), QString::fromLatin1(exits[i]));
    EXPECT_EQ(LanguageNumber, i);
    EXPECT_EQ(bytes("Setup/Language.ini"), std::string(1, static_cast<char>(i)));
    EXPECT_EQ(MsgProgramKo, std::string{"Ko "} + exits[i]) << "the six messages follow";
    EXPECT_EQ(Global::PathHelp, Global::PathApp + std::string{languages[static_cast<std::size_t>(i)].help_folder});
    stage.activateWindow();
  }
}

TEST_F(FrmLanguageTest, AFlagTicksItsOption) {
  open_languages();
  // Flags without a picture have no size; the person clicks on the place.
  auto& flag = control<Picture>(member_name("I_Lang", 4));
  flag.setFixedSize(20, 20);
  let_screens_settle();
  click(flag);
  EXPECT_TRUE(option(4).isChecked());
  click("C_Save");
  EXPECT_EQ(LanguageNumber, 4);
}

TEST_F(FrmLanguageTest, TheFlagOfTheLanguageFollows) {
  install_setup();
  open_languages();
  const auto flag = [this] {
    return start->findChild<Picture*>(QStringLiteral("I_lingua"))->pixmap(Qt::ReturnByValue).toImage();
  };
  tick(2);
  click("C_Save");
  ASSERT_TRUE(closed());
  const QImage french = flag();
  stage.activateWindow();
  open_languages();
  tick(0);
  click("C_Save");
  EXPECT_FALSE(french.isNull());
  EXPECT_NE(french, flag());
}

TEST_F(FrmLanguageTest, BackChangesNothing) {
  open_languages();
  tick(3);
  click("C_Annulla");
  ASSERT_TRUE(closed());
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(caption("C_Exit"), QStringLiteral("Quit"));
  EXPECT_FALSE(exists("Setup/Language.ini"));
}

TEST_F(FrmLanguageTest, EscapeAndTheCloseBoxChangeNothingEither) {
  open_languages();
  tick(3);
  press(Qt::Key_Escape);
  ASSERT_TRUE(closed());
  stage.activateWindow();
  open_languages();
  EXPECT_TRUE(option(0).isChecked());
  tick(3);
  dialog->close();
  ASSERT_TRUE(closed());
  EXPECT_EQ(LanguageNumber, 0);
}

TEST_F(FrmLanguageTest, AMissingFileIsToldAndEnglishIsTaken) {
  remove("Setup/FrmDescFra.txt");
  open_languages();
  tick(2);
  expect_box(BoxKind::information, "The file of the languagge specificated doesn't exist. The program work in english");
  click("C_Save");
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(bytes("Setup/Language.ini"), std::string(1, '\0'));
}

TEST_F(FrmLanguageTest, KeysThatTheNewFileLacksKeepTheirTexts) {
  set_message(Key::FRM_PRES_TITLE2, "Old title");
  open_languages();
  tick(3);
  click("C_Save");
  EXPECT_EQ(start->findChild<QLabel*>(QStringLiteral("L_Titolo2"))->text(), QStringLiteral("Old title"));
}

TEST_F(FrmLanguageTest, CanBeWorkedByKeyboardAlone) {
  open_languages();
  EXPECT_TRUE(option(0).hasFocus());
  press(Qt::Key_Down, Qt::NoModifier, 2);
  EXPECT_TRUE(option(2).isChecked());
  tab_to(control("C_Save"));
  press(Qt::Key_Return);
  EXPECT_EQ(LanguageNumber, 2);
}

}  // namespace
}  // namespace ecr::test
