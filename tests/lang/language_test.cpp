#include "lang/language.h"

#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/catalogue.h"
#include "core/global.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

constexpr const char* missing_file_text =
    "The file of the languagge specificated doesn't exist. The program work in english";

struct Row {
  const char* file;
  const char* help_folder;
  const char* help_file;
  const char* flag;
};
// By language number. Help file names are UTF-8, as everything that only the screen shows.
constexpr Row rows[] = {
    {"FrmDescEng.txt", "help\\eng\\", "ECRZ300S Programming Utility Help (GB).chm", "UK.gif"},
    {"FrmDescSpa.txt", "help\\es\\", "ECRZ300S Utilidad de programación (ES).chm", "Spain.gif"},
    {"FrmDescFra.txt", "help\\fr\\", "ECRZ300S Utilitaire de programmation (FR).chm", "France.gif"},
    {"FrmDescGer.txt", "help\\ge\\", "ECRZ300S Anwendungsprogramm (GE).chm", "Germany.gif"},
    {"FrmDescOla.txt", "help\\nl\\", "ECRZ300S Hulpprogramma voor programmering (NL).chm", "Netherlands.gif"},
    {"FrmDescPor.txt", "help\\pt\\", "ECRZ300S Utilitário de Programação (PT).chm", "Portugal.gif"},
    {"FrmDescDan.txt", "help\\dk\\", "ECRZ300S Programmeringshjælp (DK).chm", "Denmark.gif"},
    {"FrmDescNv.txt", "help\\nv\\", "ECR Z3x0 S Programmeringsverktyg(NV).chm", "Norway.gif"},
};
constexpr std::size_t english = 0;
constexpr std::size_t danish = 6;
constexpr std::size_t norwegian = 7;

class LanguageSelection : public InstallationTest {
 protected:
  void install(std::size_t number, std::string_view content) const {
    write(std::string{"Setup/"} + rows[number].file, content);
    write(std::string{"Setup/"} + rows[number].flag, "picture");
  }
};

TEST_F(LanguageSelection, EachNumberHasItsFilesItsHelpAndItsFlag) {
  ASSERT_EQ(languages.size(), std::size(rows));
  for (std::size_t number = 0; number < std::size(rows); ++number) {
    SCOPED_TRACE(number);
    install(number, "FRM_ALL_TITLE=language " + std::to_string(number) + "\n");
    selezione_lingua(static_cast<std::uint8_t>(number));
    EXPECT_EQ(LanguageNumber, number);
    EXPECT_EQ(LanguageFile, rows[number].file);
    EXPECT_EQ(Global::PathHelp, Global::PathApp + rows[number].help_folder);
    EXPECT_EQ(HelpFile, rows[number].help_file);
    EXPECT_EQ(FlagPicture, rows[number].flag);
    EXPECT_EQ(message(Key::FRM_ALL_TITLE), "language " + std::to_string(number));
  }
  EXPECT_TRUE(log().empty());
}

TEST_F(LanguageSelection, Number6IsDanishAnd7Norwegian) {
  install(danish, "FRM_ALL_TITLE=dansk\n");
  install(norwegian, "FRM_ALL_TITLE=norsk\n");
  selezione_lingua(6);
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "dansk");
  EXPECT_EQ(languages[6].name, "Dansk");
  selezione_lingua(7);
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "norsk");
  EXPECT_EQ(languages[7].name, "Norsk");
}

TEST_F(LanguageSelection, AMissingFileIsToldAndEnglishFollows) {
  install(english, "FRM_ALL_TITLE=english\n");
  shell.expect_box(BoxKind::information, missing_file_text);
  selezione_lingua(3);
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(LanguageFile, "FrmDescEng.txt");
  EXPECT_EQ(Global::PathHelp, Global::PathApp + "help\\eng\\");
  EXPECT_EQ(FlagPicture, "UK.gif");
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "english");
}

TEST_F(LanguageSelection, TheMessageOfAMissingFileIsTheCataloguesOnceTheSlotsAreFilled) {
  install(english, "FRM_ALL_FILE_LANG_KO_MSG=No such language\xA7Sorry\n");
  selezione_lingua(0);
  shell.expect_box(BoxKind::information, missing_file_text);
  selezione_lingua(1);
  carica_messaggi_default();
  shell.expect_box(BoxKind::information, "No such language\rSorry");
  selezione_lingua(1);
}

TEST_F(LanguageSelection, WithoutTheEnglishFileTheMessageComesAgainAndAgain) {
  for (int i = 0; i < 4; ++i) shell.expect_box(BoxKind::information, missing_file_text);
  int boxes = 0;
  shell.on_box = [&] {
    if (++boxes == 4) install(english, "FRM_ALL_TITLE=at last\n");
  };
  selezione_lingua(2);
  EXPECT_EQ(boxes, 4);
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "at last");
  EXPECT_EQ(LanguageNumber, 0);
}

TEST_F(LanguageSelection, AFolderInPlaceOfAFileEndsAsAMissingOne) {
  install(english, "FRM_ALL_TITLE=english\n");
  make_folder("Setup/FrmDescFra.txt");
  shell.expect_box(BoxKind::information, missing_file_text);
  selezione_lingua(2);
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "english");
}

TEST_F(LanguageSelection, AnEmptyFileIsALanguageWithoutTexts) {
  install(5, "");
  selezione_lingua(5);
  EXPECT_EQ(LanguageNumber, 5);
  EXPECT_EQ(LanguageFile, "FrmDescPor.txt");
}

TEST_F(LanguageSelection, ANumberOutsideTheTableKeepsTheFilesOfThePreviousCall) {
  install(3, "FRM_ALL_TITLE=deutsch\n");
  selezione_lingua(3);
  set_message(Key::FRM_ALL_TITLE, "");
  selezione_lingua(8);
  EXPECT_EQ(LanguageNumber, 8) << "the number is stored all the same";
  EXPECT_EQ(LanguageFile, "FrmDescGer.txt");
  EXPECT_EQ(Global::PathHelp, Global::PathApp + "help\\ge\\");
  EXPECT_EQ(FlagPicture, "Germany.gif");
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "deutsch") << "the same file is read again";
  selezione_lingua(255);
  EXPECT_EQ(LanguageNumber, 255);
  EXPECT_EQ(LanguageFile, "FrmDescGer.txt");
}

TEST_F(LanguageSelection, ANumberOutsideTheTableAtTheFirstStartNamesNoFileAndEnglishFollows) {
  install(english, "FRM_ALL_TITLE=english\n");
  shell.expect_box(BoxKind::information, missing_file_text);
  selezione_lingua(99);
  EXPECT_EQ(LanguageNumber, 0);
  EXPECT_EQ(LanguageFile, "FrmDescEng.txt");
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "english");
}

TEST_F(LanguageSelection, AChangeClearsNothing) {
  install(english, "FRM_ALL_TITLE=english title\nFRM_ALL_C_SALVA=Save\n");
  install(3, "FRM_ALL_TITLE=deutscher Titel\n");
  selezione_lingua(0);
  selezione_lingua(3);
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "deutscher Titel");
  EXPECT_EQ(message(Key::FRM_ALL_C_SALVA), "Save") << "a key that the new file lacks keeps its text";
}

TEST_F(LanguageSelection, AFlagThatCannotBeReadIsLogged) {
  install(english, "");
  remove("Setup/UK.gif");
  selezione_lingua(0);
  EXPECT_EQ(log(), Lines{"selezione_lingua File not found"});
}

TEST_F(LanguageSelection, ReadingAFileAloneChoosesNothing) {
  install(danish, "FRM_ALL_TITLE=dansk\n");
  EXPECT_TRUE(read_language_file("FrmDescDan.txt"));
  EXPECT_EQ(message(Key::FRM_ALL_TITLE), "dansk");
  EXPECT_EQ(LanguageFile, "");
  EXPECT_EQ(LanguageNumber, 0);
  shell.expect_box(BoxKind::information, missing_file_text);
  EXPECT_FALSE(read_language_file("FrmDescXxx.txt"));
  EXPECT_FALSE(exists("Setup/FrmDescXxx.txt")) << "a missing language is not created";
}

}  // namespace
}  // namespace ecr::test
