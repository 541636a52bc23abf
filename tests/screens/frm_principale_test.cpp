#include "screens/frm_principale.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "core/catalogue.h"
#include "core/global.h"
#include "image/prg_plu.h"
#include "link/firmware.h"
#include "support/fake_system.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

/// A programming that can be told from others by its first password.
PrgModeImage marked_image(std::uint8_t model, std::uint8_t mark) {
  PrgModeImage image = good_image(model);
  image.Perm0.bytes[0] = mark;
  return image;
}

std::string item_file(std::uint8_t mark) {
  std::string bytes = empty_item_file() + std::string(44, static_cast<char>(mark));
  bytes[0] = 1;
  return bytes;
}

class FrmPrincipaleTest : public ScreenTest {
 protected:
  FrmPrincipaleTest() {
    Global::choose_model(Global::model_z320);
    link().be_a_register();
  }

  FrmPrincipale& opened(const QString& port = QStringLiteral("4")) {
    screen = new FrmPrincipale{port};
    open(screen);
    link().calls.clear();
    return *screen;
  }

  /// Default files of both models, each with a mark of its own.
  void install_defaults() const {
    write("Dati/ECRZ300/ECRZ300_PRG_MODE.BIN", file_bytes(marked_image(Global::model_z300, 30)));
    write("Dati/ECRZ300/ECRZ300_PRG_PLU.BIN", item_file(30));
    write("Dati/ECRZ300/V105/ECRZ300_PRG_MODE.BIN", file_bytes(marked_image(Global::model_z300, 35)));
    write("Dati/ECRZ300/V105/ECRZ300_PRG_PLU.BIN", item_file(35));
    write("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN", file_bytes(marked_image(Global::model_z320, 20)));
    write("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN", item_file(20));
    write("Dati/ECRZ320/V105/ECRZ320_PRG_MODE.BIN", file_bytes(marked_image(Global::model_z320, 25)));
    write("Dati/ECRZ320/V105/ECRZ320_PRG_PLU.BIN", item_file(25));
  }

  [[nodiscard]] static int mark_in_memory() { return PrgMode.Perm0.bytes[0]; }
  [[nodiscard]] int mark_on_disk() const {
    return static_cast<unsigned char>(image_file()[offsetof(PrgModeImage, Perm0)]);
  }

  void answer_update(Answer answer) {
    expect_box(BoxKind::plain, "Get Setting from Cash register?", answer);
    click("C_ModificaProgrammazione");
    let_screens_settle();
  }
  void answer_new(Answer answer) {
    expect_box(BoxKind::plain, "Overwrite current setting with default?", answer);
    click("C_NuovaProgrammazione");
    let_screens_settle();
  }

  FrmPrincipale* screen = nullptr;
};

constexpr const char* ping = "send_cmd folder=. direction=0 file=12 timeout=2 port=4";
constexpr const char* read_image = "send_cmd folder=. direction=0 file=0 timeout=120 port=4";
constexpr const char* read_items = "send_cmd folder=. direction=0 file=1 timeout=180 port=4";

TEST_F(FrmPrincipaleTest, ThePortIsTheStartScreensNumberElseOne) {
  const std::pair<const char*, int> ports[] = {
      {"", 1},    {"0", 1},   {"1", 1},    {"4", 4}, {"255", 255}, {"256", 1}, {"99999999999999999999999999999999", 1},
      {"abc", 1}, {"007", 7}, {"12x", 12}, {"-3", 1}};
  for (const auto& [text, port] : ports) {
    Global::ComPort = 99;
    opened(QString::fromLatin1(text));
    EXPECT_EQ(Global::ComPort, port) << text;
    EXPECT_EQ(bytes("port.ini"), std::string(1, static_cast<char>(port))) << text;
  }
}

TEST_F(FrmPrincipaleTest, APortThatDoesNotFitIsLogged) {
  opened("256");
  EXPECT_EQ(log(), Lines{"FrmPrincipale Form_load: Overflow"});
}

TEST_F(FrmPrincipaleTest, TheLinkIsAskedOnThePortThatWasTaken) {
  screen = new FrmPrincipale{QStringLiteral("7")};
  open(screen);
  EXPECT_EQ(link().calls, Lines{"send_cmd folder=. direction=0 file=22 timeout=3 port=7"});
}

TEST_F(FrmPrincipaleTest, TheTitleNamesTheModel) {
  Global::choose_model(Global::model_z300);
  opened();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Vermanto ECR Programming Tool -    ECRZ300"));
  Global::choose_model(Global::model_z320);
  opened();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Vermanto ECR Programming Tool -    ECRZ320"));
  set_message(Key::FRM_PRINCIPALE_TITLE, "Outil");
  opened();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Outil   ECRZ320"));
  EXPECT_EQ(log(), Lines{});
}

TEST_F(FrmPrincipaleTest, AnotherModelIsLoggedAndTheScreenGoesOn) {
  Global::EcrModel = 7;
  opened();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Vermanto ECR Programming Tool - "));
  EXPECT_EQ(log(), Lines{"Vermanto ECR Programming Tool - "});
  EXPECT_EQ(bytes("port.ini"), "\x04");
}

TEST_F(FrmPrincipaleTest, ButtonsHaveTheirBuiltInCaptionsOrTheCataloguesTexts) {
  opened();
  EXPECT_EQ(caption("C_NuovaProgrammazione"), QStringLiteral("PROGRAM A NEW CASH REGISTER"));
  EXPECT_EQ(caption("C_ModificaProgrammazione"), QStringLiteral("UPDATE CASH REGISTER PROGRAMMING"));
  EXPECT_EQ(caption("C_Logo"), QStringLiteral("SET UP A LOGO"));
  EXPECT_EQ(caption("C_Back"), QStringLiteral("BACK"));
  for (std::size_t i = 0; i < key_count; ++i)
    set_message(static_cast<Key>(i), std::string{name_of(static_cast<Key>(i))});
  opened();
  EXPECT_EQ(caption("C_NuovaProgrammazione"), QStringLiteral("FRM_PRINCIPALE_C_NUOVA_PROGRAMMAZIONE"));
  EXPECT_EQ(caption("C_ModificaProgrammazione"), QStringLiteral("FRM_PRINCIPALE_C_MODIFICA_PROGRAMMAZIONE"));
  EXPECT_EQ(caption("C_Logo"), QStringLiteral("FRM_PRINCIPALE_C_LOGO"));
  EXPECT_EQ(caption("C_Back"), QStringLiteral("FRM_PRINCIPALE_C_BACK"));
}

TEST_F(FrmPrincipaleTest, TheFocusIsOnAButton) {
  opened();
  EXPECT_NE(qobject_cast<CommandButton*>(QApplication::focusWidget()), nullptr);
}

TEST_F(FrmPrincipaleTest, ShowsTheBannerOfTheRegister) {
  opened();
  EXPECT_EQ(caption("L_Release_Fw"), QStringLiteral("ECRZ300/ECRZ320F    FW rel.1.04     "));
  EXPECT_EQ(Global::FwLevel, 0);
}

TEST_F(FrmPrincipaleTest, WithoutARegisterTheBannerStaysEmptyAndTheMenuOpens) {
  link().answer = {1, 1025};
  opened();
  EXPECT_EQ(caption("L_Release_Fw"), QString{});
  EXPECT_EQ(Global::FwLevel, 0);
  EXPECT_EQ(shell.seconds_waited, std::vector<double>{0.5});
  EXPECT_EQ(log(), (Lines{"Get_Release error. Code: 401 Desc: The USB-COM port cannot be opened.",
                          "Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened."}));
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
}

TEST_F(FrmPrincipaleTest, AVeryOldFirmwareIsToldByTheLinkTest) {
  link().answers[22] = {1, 4098};
  opened();
  EXPECT_EQ(Global::FwLevel, 1);
}

TEST_F(FrmPrincipaleTest, ARegisterOfAnotherFamilyEndsTheProgram) {
  link().be_a_register("SOMETHING ELSE ALTOGETHER  1.0      ");
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  expect_program_ends([this] {
    expect_box(BoxKind::plain, "SOMETHING ELSE ALTOGETHER  1.0      \rWrong register");
    open(new FrmPrincipale{QStringLiteral("4")});
  });
  EXPECT_EQ(log(), Lines{"Linked:SOMETHING ELSE ALTOGETHER  1.0      "});
  EXPECT_FALSE(exists("port.ini")) << "nothing of the load runs on";
}

TEST_F(FrmPrincipaleTest, BackShowsTheStartScreenAgain) {
  auto* below = &open("FrmProgramMode");
  opened();
  click("C_Back");
  let_screens_settle();
  EXPECT_EQ(stage.top(), below);
  EXPECT_TRUE(below->isVisible());
}

// A new programming.

TEST_F(FrmPrincipaleTest, ANewProgrammingThatIsDeclinedTouchesNothing) {
  install_defaults();
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  answer_new(Answer::no);
  EXPECT_EQ(mark_on_disk(), 7);
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(watched.boxes[0].buttons, BoxButtons::yes_no);
}

TEST_F(FrmPrincipaleTest, ANewProgrammingStartsFromTheModelsDefaults) {
  install_defaults();
  for (const auto& [model, mark] : {std::pair{Global::model_z300, 30}, std::pair{Global::model_z320, 20}}) {
    Global::choose_model(model);
    opened();
    lay_down(marked_image(model, 7));
    answer_new(Answer::yes);
    EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
    EXPECT_EQ(mark_on_disk(), mark);
    EXPECT_EQ(mark_in_memory(), mark);
    EXPECT_EQ(PrgPlu.PluCount, 1);
    EXPECT_EQ(PrgPlu.Row[0].Code.bytes[0], mark);
    EXPECT_FALSE(screen->isVisible());
    EXPECT_EQ(link().calls, Lines{});
  }
}

TEST_F(FrmPrincipaleTest, ANewProgrammingAsksInTheCataloguesWords) {
  set_message(Key::FRM_PRINCIPALE_NUOVA_PRG_MSG, "Overschrijven?");
  opened();
  expect_box(BoxKind::plain, "Overschrijven?", Answer::no);
  click("C_NuovaProgrammazione");
}

TEST_F(FrmPrincipaleTest, ANewProgrammingWithoutItsDefaultImageIsToldAndStops) {
  opened();
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  expect_box(BoxKind::plain, "Overwrite current setting with default?", Answer::yes);
  expect_box(BoxKind::plain, "Error During copy PRG_MODE_FILE");
  expect_box(BoxKind::plain, "Wrong register");
  click("C_NuovaProgrammazione");
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(log(), Lines{"copia_def_file: 53 File not found"});
}

TEST_F(FrmPrincipaleTest, AnEarlierProgrammingDoesNotGoOnInPlaceOfOneThatIsNotThere) {
  auto* below = &open("FrmProgramMode");
  install_defaults();
  opened();
  answer_new(Answer::yes);
  ASSERT_EQ(top(), QStringLiteral("FrmSetup"));
  click("C_Exit");
  let_screens_settle();
  ASSERT_EQ(stage.top(), screen);

  remove("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN");
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  expect_box(BoxKind::plain, "Overwrite current setting with default?", Answer::yes);
  expect_box(BoxKind::plain, "Error During copy PRG_MODE_FILE");
  expect_box(BoxKind::plain, "Wrong register");
  click("C_NuovaProgrammazione");
  EXPECT_EQ(stage.top(), screen);
  EXPECT_EQ(image_file(), "");

  // The empty file that the read left is no programming either.
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::no);
  expect_box(BoxKind::plain, "Wrong register");
  click("C_ModificaProgrammazione");
  let_screens_settle();
  EXPECT_EQ(stage.top(), below);
}

TEST_F(FrmPrincipaleTest, ANewProgrammingWithoutItsDefaultItemsGoesOn) {
  install_defaults();
  remove("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN");
  opened();
  expect_box(BoxKind::plain, "Overwrite current setting with default?", Answer::yes);
  expect_box(BoxKind::plain, "Error During copy PRG_MODE_PLUE");
  click("C_NuovaProgrammazione");
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
}

TEST_F(FrmPrincipaleTest, ANewProgrammingFromAnImageOfTheOtherModelStops) {
  install_defaults();
  copy("Dati/ECRZ300/ECRZ300_PRG_MODE.BIN", "Dati/ECRZ320/ECRZ320_PRG_MODE.BIN");
  opened();
  expect_box(BoxKind::plain, "Overwrite current setting with default?", Answer::yes);
  expect_box(BoxKind::plain, "");
  click("C_NuovaProgrammazione");
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
}

TEST_F(FrmPrincipaleTest, ANewProgrammingOfAVeryOldFirmwareKeepsTheFilesThatAreThere) {
  install_defaults();
  link().answers[22] = {1, 4098};
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  answer_new(Answer::yes);
  EXPECT_EQ(mark_on_disk(), 7);
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
  EXPECT_EQ(log().back(), "Selected new ecr with very old fw release");
}

// An update.

TEST_F(FrmPrincipaleTest, AnUpdateThatIsCancelledTouchesNothing) {
  install_defaults();
  opened();
  answer_update(Answer::cancel);
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
  EXPECT_EQ(link().calls, Lines{});
  EXPECT_EQ(watched.boxes[0].buttons, BoxButtons::yes_no_cancel);
}

TEST_F(FrmPrincipaleTest, AnUpdateAsksInTheCataloguesWords) {
  set_message(Key::FRM_PRINCIPALE_MODIFICA_PRG_MSG, "Ophalen?");
  opened();
  expect_box(BoxKind::plain, "Ophalen?", Answer::cancel);
  click("C_ModificaProgrammazione");
}

TEST_F(FrmPrincipaleTest, AnUpdateTakesBothFilesFromTheRegister) {
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  link().deliveries[0] = {"PRG_MODE.BIN", file_bytes(marked_image(Global::model_z320, 99))};
  link().deliveries[1] = {"PRG_PLU.BIN", item_file(98)};
  shell.pointers.clear();
  answer_update(Answer::yes);
  EXPECT_EQ(link().calls, (Lines{ping, read_image, read_items}));
  EXPECT_EQ(mark_on_disk(), 99);
  EXPECT_EQ(mark_in_memory(), 99);
  EXPECT_EQ(PrgPlu.Row[0].Code.bytes[0], 98);
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
  EXPECT_EQ(shell.seconds_waited.back(), 0.1);
  EXPECT_EQ(shell.pointers.front(), Pointer::busy);
  EXPECT_EQ(std::count(shell.pointers.begin(), shell.pointers.end(), Pointer::busy),
            std::count(shell.pointers.begin(), shell.pointers.end(), Pointer::normal));
}

TEST_F(FrmPrincipaleTest, TheOldItemsAreGoneBeforeTheNewOnesCome) {
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  link().deliveries[0] = {"PRG_MODE.BIN", file_bytes(marked_image(Global::model_z320, 99))};
  link().after_call = [this] {
    const bool is_items = link().calls.back() == read_items;
    EXPECT_TRUE(!is_items || !exists("Dati/PRG_PLU.BIN"));
  };
  answer_update(Answer::yes);
  EXPECT_EQ(link().calls.back(), read_items);
}

TEST_F(FrmPrincipaleTest, AnUpdateFromASilentRegisterIsToldWithAnX) {
  opened();
  link().answers[12] = {1, 1025};
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::plain, "Comunicatione error: X");
  click("C_ModificaProgrammazione");
  EXPECT_EQ(link().calls, Lines{ping});
  EXPECT_EQ(log(), (Lines{"Receive_ReportEcr error. File 12 Code: 401 Desc: The USB-COM port cannot be opened.",
                          "C_ModificaProgrammazione: registratore non collegato e richiesta lettura dati"}));
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  set_message(Key::FRM_PRINCIPALE_COMUNICATION_ERROR_MSG, "Fout ");
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::plain, "Fout X");
  click("C_ModificaProgrammazione");
}

TEST_F(FrmPrincipaleTest, AnImageThatTheRegisterRefusesIsToldAndStops) {
  opened();
  link().answers[0] = {1, 4097};
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::critical, "Comunicatione error: The ECR side is in the state of BUSY.");
  shell.pointers.clear();
  click("C_ModificaProgrammazione");
  EXPECT_EQ(link().calls, (Lines{ping, read_image}));
  EXPECT_EQ(log(), Lines{"REGWIRE return error: 1001 . File 0"});
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
}

TEST_F(FrmPrincipaleTest, ItemsThatTheRegisterRefusesAreToldWithABlankAndADescription) {
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  link().deliveries[0] = {"PRG_MODE.BIN", file_bytes(marked_image(Global::model_z320, 99))};
  link().answers[1] = {1, 4098};
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::critical, "Comunicatione error:  The error was returned from the ECR side.");
  click("C_ModificaProgrammazione");
  EXPECT_EQ(log(), Lines{"REGWIRE return error: 1002 . File 1 Desc: The error was returned from the ECR side."});
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
  EXPECT_EQ(mark_in_memory(), 7) << "nothing is read";
}

TEST_F(FrmPrincipaleTest, ATimeOutEndsTheToolThatIsLeftHanging) {
  FakeSystem system;
  opened();
  system.running = {{42, "regwire.exe"}};
  link().answers[0] = {1, 9999};
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::critical, "Comunicatione error: Timeout Error");
  click("C_ModificaProgrammazione");
  EXPECT_EQ(system.ended, std::vector<std::uint64_t>{42});
}

TEST_F(FrmPrincipaleTest, AToolThatCannotBeRunIsToldAndTheFilesThatStandAreTaken) {
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  link().answers[0] = {0, 0};
  set_message(Key::FRM_PRINCIPALE_ECR_REGWIRE_KO_MSG, "Tool does not run");
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::plain, "Tool does not run");
  click("C_ModificaProgrammazione");
  EXPECT_EQ(log(), Lines{"Errore nella chiamata di REGWIRE. File 0"});
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
  EXPECT_EQ(mark_in_memory(), 7);
}

TEST_F(FrmPrincipaleTest, TheTextOfAToolThatCannotBeRunIsEmptyWithoutACatalogue) {
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  link().answers[0] = {0, 0};
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::plain, "");
  click("C_ModificaProgrammazione");
}

TEST_F(FrmPrincipaleTest, AnImageOfTheOtherModelSendsTheUserBackToTheStart) {
  auto* below = &open("FrmProgramMode");
  opened();
  link().deliveries[0] = {"PRG_MODE.BIN", file_bytes(marked_image(Global::model_z300, 99))};
  link().deliveries[1] = {"PRG_PLU.BIN", item_file(98)};
  set_message(Key::FRM_ALL_WRONG_ECR, "Wrong register");
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::yes);
  expect_box(BoxKind::plain, "Wrong register");
  shell.pointers.clear();
  click("C_ModificaProgrammazione");
  let_screens_settle();
  EXPECT_EQ(stage.top(), below);
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
}

TEST_F(FrmPrincipaleTest, AnUpdateFromTheFilesThatAreThereNeedsNoRegister) {
  install_defaults();
  link().answer = {1, 1025};
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  write("Dati/PRG_PLU.BIN", item_file(8));
  PrgMode = {};
  answer_update(Answer::no);
  EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
  EXPECT_EQ(mark_in_memory(), 7);
  EXPECT_EQ(PrgPlu.Row[0].Code.bytes[0], 8);
  EXPECT_EQ(link().calls, Lines{});
}

TEST_F(FrmPrincipaleTest, MissingFilesAreSuppliedTheImageFromItsOwnFolderAndTheItemsNot) {
  install_defaults();
  for (const auto& [model, image_mark, item_mark] :
       {std::tuple{Global::model_z300, 35, 30}, std::tuple{Global::model_z320, 25, 20}}) {
    remove("Dati/PRG_MODE.BIN");
    remove("Dati/PRG_PLU.BIN");
    Global::choose_model(model);
    opened();
    answer_update(Answer::no);
    EXPECT_EQ(top(), QStringLiteral("FrmSetup"));
    EXPECT_EQ(mark_on_disk(), image_mark);
    EXPECT_EQ(mark_in_memory(), image_mark);
    EXPECT_EQ(PrgPlu.Row[0].Code.bytes[0], item_mark);
  }
}

TEST_F(FrmPrincipaleTest, OnlyTheFileThatIsMissingIsSupplied) {
  install_defaults();
  opened();
  lay_down(marked_image(Global::model_z320, 7));
  remove("Dati/PRG_PLU.BIN");
  answer_update(Answer::no);
  EXPECT_EQ(mark_on_disk(), 7);
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), item_file(20));
}

TEST_F(FrmPrincipaleTest, AnUpdateWithoutAnyImageSendsTheUserBackToTheStart) {
  auto* below = &open("FrmProgramMode");
  opened();
  expect_box(BoxKind::plain, "Get Setting from Cash register?", Answer::no);
  expect_box(BoxKind::plain, "");
  click("C_ModificaProgrammazione");
  let_screens_settle();
  EXPECT_EQ(stage.top(), below);
}

TEST_F(FrmPrincipaleTest, TheSetupMenuBringsThisScreenBackAndTheFilesStay) {
  install_defaults();
  opened();
  answer_new(Answer::yes);
  click("C_Exit");
  let_screens_settle();
  EXPECT_EQ(stage.top(), screen);
  EXPECT_EQ(mark_on_disk(), 20);
  EXPECT_EQ(mark_in_memory(), 20);
}

// The import from an old register.

class ImportTest : public FrmPrincipaleTest {
 protected:
  ImportTest() {
    std::string items = empty_item_file();
    items[0] = 3;
    for (int row = 1; row <= 3; ++row) items += std::string(38, static_cast<char>(row));
    link().deliveries[0] = {"PRG_MODE.BIN", file_bytes(marked_image(Global::model_z320, 99))};
    link().deliveries[1] = {"PRG_PLU.BIN", items};
    opened();
    shell.pointers.clear();
  }
  const std::string question = "Do you want to import data From Old cash register?";
};

TEST_F(ImportTest, ThatIsDeclinedAsksNothingOfTheRegister) {
  expect_box(BoxKind::plain, question, Answer::no);
  screen->import_old_configuration();
  EXPECT_EQ(watched.boxes[0].buttons, BoxButtons::yes_no);
  EXPECT_EQ(link().calls, Lines{});
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
}

TEST_F(ImportTest, TakesTheOldItemsOverAndSaysSo) {
  expect_box(BoxKind::plain, question, Answer::yes);
  expect_box(BoxKind::information, "Import old configuration Completed");
  screen->import_old_configuration();
  EXPECT_EQ(link().calls, (Lines{read_image, read_items}));
  EXPECT_EQ(mark_in_memory(), 99);
  EXPECT_EQ(PrgPlu.PluCount, 3);
  EXPECT_EQ(PrgPlu.Row[0].Code.bytes[0], 1);
  EXPECT_EQ(PrgPlu.Row[1].Code.bytes[0], 2);
  EXPECT_EQ(PrgPlu.Row[2].Code.bytes[0], 0) << "the last one is left out";
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN").size(), empty_item_file().size() + 3 * sizeof(PluRecord));
  EXPECT_EQ(shell.seconds_waited.back(), 0.1);
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
  EXPECT_EQ(top(), QStringLiteral("FrmPrincipale"));
}

TEST_F(ImportTest, ThatFailsIsToldAsAnUpdateIs) {
  link().answers[1] = {1, 4098};
  expect_box(BoxKind::plain, question, Answer::yes);
  expect_box(BoxKind::critical, "Comunicatione error:  The error was returned from the ECR side.");
  screen->import_old_configuration();
  EXPECT_EQ(shell.pointers.back(), Pointer::normal);
  EXPECT_EQ(PrgPlu.PluCount, 0);
}

TEST_F(ImportTest, GoesOnFromAnImageOfAnotherModel) {
  link().deliveries[0] = {"PRG_MODE.BIN", file_bytes(marked_image(Global::model_z300, 99))};
  expect_box(BoxKind::plain, question, Answer::yes);
  expect_box(BoxKind::plain, "");
  expect_box(BoxKind::information, "Import old configuration Completed");
  screen->import_old_configuration();
  EXPECT_EQ(PrgPlu.PluCount, 3);
}

TEST_F(ImportTest, HasNoButton) {
  EXPECT_EQ(screen->findChild<QWidget*>(QStringLiteral("C_Import")), nullptr);
}

}  // namespace
}  // namespace ecr::test
