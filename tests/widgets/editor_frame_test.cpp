#include "widgets/editor_frame.h"

#include <gtest/gtest.h>

#include <QApplication>

#include "core/catalogue.h"
#include "core/fault.h"
#include "core/global.h"
#include "image/prg_plu.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

/// An editor that holds nothing but its frame and one field.
class BareEditor : public Screen {
 public:
  explicit BareEditor(ScreenFrame::Corner corner = ScreenFrame::Corner::none)
      : Screen{QStringLiteral("FrmBare")}, frame{*this, corner}, field{new Field{QStringLiteral("E_Field"), this}} {
    frame.captions.add(*this, Key::FRM_ALL_TITLE, "Bare editor");
    frame.body->addWidget(field);
    field->on_entered([this] { ++entered; });
    field->on_left([this] { ++left; });
  }
  void load() override { frame.load(load_routine); }
  [[nodiscard]] QWidget* first_focus() override { return frame.C_Annulla; }

  EditorFrame frame;
  Field* field;
  std::function<void()> load_routine = [] {};
  int entered = 0;
  int left = 0;
};

class EditorFrameTest : public ScreenTest {
 protected:
  EditorFrameTest() : editor{new BareEditor} {
    start_session(Global::model_z320);
    link().be_a_register();
    menu = &open("FrmProgramMode");
  }

  BareEditor& opened() {
    open(editor);
    return *editor;
  }
  [[nodiscard]] std::string buttons() const {
    std::string text;
    for (const CommandButton* one : {editor->frame.C_Annulla, editor->frame.C_Invia_Ecr, editor->frame.C_Salva}) {
      text += one->isEnabled() ? "+" : "-";
    }
    return text;
  }
  /// Notes the order of what happens during a send, with the state of the three buttons.
  void note_what_happens() {
    watched.on_pointer = [this](Pointer pointer) {
      events.push_back((pointer == Pointer::busy ? "busy " : "normal ") + buttons());
    };
    watched.on_run_beside = [this](Waiting) { events.push_back("call " + buttons()); };
    shell.on_box = [this] { events.push_back("box " + buttons()); };
  }

  BareEditor* editor;
  Screen* menu = nullptr;
  std::vector<std::string> events;
};

TEST_F(EditorFrameTest, CarriesItsThreeButtonsItsHeadingAndItsHelp) {
  opened();
  EXPECT_EQ(caption("C_Salva"), QStringLiteral("Save Setup"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("Back"));
  EXPECT_EQ(caption("C_Invia_Ecr"), QStringLiteral("Send to ECR"));
  EXPECT_EQ(control("I_Help").toolTip(), QStringLiteral("Click here for open the guide"));
  EXPECT_NE(control<QLabel>("L_Titolo").font(), control<QLabel>("I_Help").font()) << "the heading stands out";
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Bare editor"));
}

TEST_F(EditorFrameTest, CaptionsComeFromTheCatalogueWhereItHasTexts) {
  set_message(Key::FRM_ALL_C_SALVA, "Guardar");
  set_message(Key::FRM_ALL_C_ANNULLA, "");
  set_message(Key::FRM_ALL_C_INVIA_ECR, "Enviar");
  set_message(Key::FRM_ALL_TITLE, "T\xEDtulo");
  opened();
  EXPECT_EQ(caption("C_Salva"), QStringLiteral("Guardar"));
  EXPECT_EQ(caption("C_Annulla"), QStringLiteral("Back"));
  EXPECT_EQ(caption("C_Invia_Ecr"), QStringLiteral("Enviar"));
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Título"));
}

TEST_F(EditorFrameTest, TheCornerPictureIsThereWhereTheEditorHasOne) {
  install_setup();
  opened();
  EXPECT_EQ(editor->findChild<Picture*>(QStringLiteral("I_Corner")), nullptr);
  editor->unload();
  open(new BareEditor{ScreenFrame::Corner::picture});
  EXPECT_FALSE(control<Picture>("I_Corner").pixmap(Qt::ReturnByValue).isNull());
}

TEST_F(EditorFrameTest, TheLoadRoutineRunsWithTheCaptionsLaid) {
  set_message(Key::FRM_ALL_C_SALVA, "Guardar");
  QString seen;
  editor->load_routine = [&] { seen = editor->frame.C_Salva->text(); };
  opened();
  EXPECT_EQ(seen, QStringLiteral("Guardar"));
}

TEST_F(EditorFrameTest, AFaultInTheLoadIsLoggedAndTheScreenStaysWithWhatItHas) {
  editor->load_routine = [this] {
    editor->field->show_text(QStringLiteral("first"));
    throw FaultError{FaultCode::type_mismatch};
  };
  opened();
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmBare Form_load: Type mismatch"}));
  EXPECT_EQ(top(), QStringLiteral("FrmBare"));
  EXPECT_EQ(field("E_Field").text(), QStringLiteral("first"));
}

TEST_F(EditorFrameTest, SaveRunsItsRoutineAndLogsItsFaults) {
  int saved = 0;
  editor->frame.on_save([&] {
    if (++saved == 2) throw FaultError{FaultCode::overflow};
  });
  opened();
  click("C_Salva");
  EXPECT_EQ(saved, 1);
  EXPECT_EQ(log(), std::vector<std::string>{});
  click("C_Salva");
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmBare Salva: Overflow"}));
  click("C_Salva");
  EXPECT_EQ(saved, 3) << "the screen goes on after a fault";
}

TEST_F(EditorFrameTest, ASaveThatEndsWithAFaultLeavesNothingInMemory) {
  PrgPlu.PluCount = 2;
  PrgPlu.Row[1].LinkDept = 0x12;
  const std::string image = file_bytes(PrgMode);
  const std::string on_disk = image_file();
  editor->frame.on_save([&] {
    PrgMode.Perm0.bytes[0] ^= 0xFF;
    PrgMode.KeyLayout.back() ^= 0xFF;
    PrgPlu.PluCount = 1;
    PrgPlu.Lists[4][19].bytes[7] = 9;
    PrgPlu.Row[1].LinkDept = 0x99;
    PrgPlu.Row.back().Tax = 4;
    Global::DecimalPoint = 3;
    throw FaultError{FaultCode::type_mismatch};
  });
  opened();
  click("C_Salva");
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmBare Salva: Type mismatch"}));
  EXPECT_EQ(file_bytes(PrgMode), image);
  EXPECT_EQ(image_file(), on_disk);
  EXPECT_EQ(PrgPlu.PluCount, 2);
  EXPECT_EQ(PrgPlu.Lists[4][19], Bcd<8>{});
  EXPECT_EQ(PrgPlu.Row[1].LinkDept, 0x12);
  EXPECT_EQ(PrgPlu.Row.back().Tax, 0);
  EXPECT_EQ(Global::DecimalPoint, 2);
}

TEST_F(EditorFrameTest, OnceTheFileIsWrittenASaveStandsWhateverComesAfter) {
  editor->frame.on_save([&] {
    PrgMode.Perm0.bytes[0] = 0x55;
    editor->frame.write_file();
    throw FaultError{FaultCode::overflow};
  });
  opened();
  click("C_Salva");
  EXPECT_EQ(PrgMode.Perm0.bytes[0], 0x55);
  EXPECT_EQ(image_file(), file_bytes(PrgMode));
  // A later save is not taken for that one.
  editor->frame.on_save([&] {
    PrgMode.Perm0.bytes[0] = 0x66;
    throw FaultError{FaultCode::overflow};
  });
  click("C_Salva");
  EXPECT_EQ(PrgMode.Perm0.bytes[0], 0x55);
}

TEST_F(EditorFrameTest, AnEditorMayKeepWhatItHasStoredBeforeAFault) {
  editor->frame.on_save(
      [] {
        PrgMode.Perm0.bytes[0] = 0x55;
        throw FaultError{FaultCode::overflow};
      },
      EditorFrame::AfterFault::memory_stays);
  opened();
  const std::string on_disk = image_file();
  click("C_Salva");
  EXPECT_EQ(PrgMode.Perm0.bytes[0], 0x55);
  EXPECT_EQ(image_file(), on_disk);
}

TEST_F(EditorFrameTest, WriteFileWritesTheFileThatTheEditorSavesTo) {
  const auto saved_to = [this](SavesTo file) {
    ++PrgMode.Perm0.bytes[0];
    ++PrgPlu.Lists[0][0].bytes[0];
    const std::string image = image_file();
    const std::string items = bytes("Dati/PRG_PLU.BIN");
    editor->frame.saves_to(file);
    editor->frame.on_save([this] { editor->frame.write_file(); });
    click("C_Salva");
    return std::pair{image_file() != image, bytes("Dati/PRG_PLU.BIN") != items};
  };
  opened();
  EXPECT_EQ(saved_to(SavesTo::image_file), std::pair(true, false));
  EXPECT_EQ(saved_to(SavesTo::item_file), std::pair(false, true));
  EXPECT_EQ(saved_to(SavesTo::no_file), std::pair(false, false));
}

TEST_F(EditorFrameTest, ALoadGoesOnAfterAPartThatCannotBeShown) {
  editor->load_routine = [this] {
    editor->frame.load_part([] { throw FaultError{FaultCode::overflow}; });
    editor->frame.load_field(*editor->field, [] { return QStringLiteral("shown"); });
  };
  opened();
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmBare Form_load: Overflow"}));
  EXPECT_EQ(editor->field->text(), QStringLiteral("shown"));
  EXPECT_FALSE(editor->field->is_unread());
}

TEST_F(EditorFrameTest, AFieldWhoseNumberCannotBeShownStandsEmptyAndUnread) {
  editor->field->show_text(QStringLiteral("of the record before"));
  editor->load_routine = [this] {
    editor->frame.load_field(*editor->field, []() -> QString { throw FaultError{FaultCode::type_mismatch}; });
  };
  opened();
  EXPECT_EQ(log(), (std::vector<std::string>{"FrmBare Form_load: Type mismatch"}));
  EXPECT_EQ(editor->field->text(), QString{});
  EXPECT_TRUE(editor->field->is_unread());
}

TEST_F(EditorFrameTest, AScreenMayHaveOtherWordsInFrontOfItsFaults) {
  editor->frame.log_prefixes("Bare form_load: ", "Bare save: ");
  editor->load_routine = [] { throw FaultError{FaultCode::overflow}; };
  editor->frame.on_save([] { throw FaultError{FaultCode::type_mismatch}; });
  opened();
  click("C_Salva");
  EXPECT_EQ(log(), (std::vector<std::string>{"Bare form_load: Overflow", "Bare save: Type mismatch"}));
}

TEST_F(EditorFrameTest, SaveShowsNoMessage) {
  editor->frame.on_save([] {});
  opened();
  click("C_Salva");
  EXPECT_TRUE(watched.boxes.empty());
  EXPECT_EQ(top(), QStringLiteral("FrmBare"));
}

TEST_F(EditorFrameTest, ASendDisablesTheButtonsBehindTheBusyPointerAndEnablesThemBeforeTheNormalOne) {
  opened();
  note_what_happens();
  click("C_Invia_Ecr");
  // The link is asked for its release, the image goes, the link is asked again, the items go.
  EXPECT_EQ(events,
            (std::vector<std::string>{"busy +++", "call ---", "call ---", "call ---", "call ---", "normal +++"}));
  EXPECT_EQ(link().calls, (std::vector<std::string>{"send_cmd folder=. direction=0 file=22 timeout=3 port=4",
                                                    "send_cmd folder=. direction=1 file=0 timeout=120 port=4",
                                                    "send_cmd folder=. direction=0 file=22 timeout=3 port=4",
                                                    "send_cmd folder=. direction=1 file=1 timeout=180 port=4"}));
  EXPECT_EQ(top(), QStringLiteral("FrmBare"));
}

TEST_F(EditorFrameTest, AFailedSendIsToldWhileTheButtonsAreStillDisabled) {
  opened();
  note_what_happens();
  link().answers[0] = {1, 4098};
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Invia_Ecr");
  EXPECT_EQ(events, (std::vector<std::string>{"busy +++", "call ---", "call ---", "box ---", "normal +++"}));
  EXPECT_EQ(buttons(), "+++");
  EXPECT_EQ(top(), QStringLiteral("FrmBare"));
}

TEST_F(EditorFrameTest, TheTextOfAFailedSendIsTheCataloguesOne) {
  set_message(Key::FRM_ALL_PROGRAM_KO_MSG, "No enviado");
  carica_messaggi_default();
  opened();
  link().answers[0] = {0, 0};
  expect_box(BoxKind::critical, "No enviado");
  click("C_Invia_Ecr");
}

TEST_F(EditorFrameTest, ItemsThatFailBehindTheImageAreToldToo) {
  opened();
  link().answers[1] = {1, 4097};
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Invia_Ecr");
  EXPECT_EQ(watched.boxes.size(), 1U);
  EXPECT_EQ(buttons(), "+++");
}

TEST_F(EditorFrameTest, WhatWasTypedAndNotSavedIsNotSent) {
  opened();
  const std::string on_disk = image_file();
  click("E_Field");
  type(QStringLiteral("typed"));
  PrgMode.Perm0.bytes[0] ^= 0xFF;
  click("C_Invia_Ecr");
  EXPECT_EQ(link().received[0], on_disk);
  EXPECT_EQ(image_file(), on_disk);
}

TEST_F(EditorFrameTest, TheFocusFallsIntoNoFieldDuringASend) {
  opened();
  QWidgetList focused;
  watched.on_run_beside = [&](Waiting) { focused.append(QApplication::focusWidget()); };
  tab_to(*editor->frame.C_Invia_Ecr);
  const int entered = editor->entered;
  press(Qt::Key_Return);
  ASSERT_EQ(focused.size(), 4);
  for (QWidget* widget : focused) EXPECT_EQ(qobject_cast<Field*>(widget), nullptr);
  EXPECT_EQ(editor->entered, entered);
  EXPECT_TRUE(editor->frame.C_Invia_Ecr->hasFocus()) << "it comes back to the button";
}

TEST_F(EditorFrameTest, AFieldIsLeftBeforeTheSend) {
  opened();
  int left_at_send = -1;
  watched.on_run_beside = [&](Waiting) { left_at_send = editor->left; };
  click("E_Field");
  click("C_Invia_Ecr");
  EXPECT_EQ(left_at_send, 1);
  EXPECT_EQ(editor->left, 1);
  EXPECT_EQ(editor->entered, 1);
}

TEST_F(EditorFrameTest, AnEditorMaySendInAnotherWayAndKeepItsButtons) {
  std::vector<std::string> order;
  editor->frame.send_with(
      [&] {
        order.push_back("send " + buttons());
        return true;
      },
      EditorFrame::WhileSending::buttons_enabled);
  editor->frame.after_send([&] { order.push_back("after " + buttons()); });
  opened();
  watched.on_pointer = [&](Pointer pointer) { order.push_back(pointer == Pointer::busy ? "busy" : "normal"); };
  click("C_Invia_Ecr");
  EXPECT_EQ(order, (std::vector<std::string>{"busy", "send +++", "normal", "after +++"}));
  EXPECT_EQ(link().calls, std::vector<std::string>{});
}

TEST_F(EditorFrameTest, BackBringsTheMenuBackAndSavesNothing) {
  bool saved = false;
  editor->frame.on_save([&] { saved = true; });
  opened();
  const std::string on_disk = image_file();
  click("E_Field");
  type(QStringLiteral("typed"));
  click("C_Annulla");
  let_screens_settle();
  EXPECT_EQ(stage.top(), menu);
  EXPECT_TRUE(menu->isVisible());
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Program Mode"));
  EXPECT_FALSE(saved);
  EXPECT_EQ(image_file(), on_disk);
  EXPECT_TRUE(watched.boxes.empty()) << "there is no question about unsaved changes";
}

TEST_F(EditorFrameTest, TheCloseBoxBringsTheMenuBackAsBackDoes) {
  opened();
  click("E_Field");
  stage.close();
  let_screens_settle();
  EXPECT_EQ(stage.top(), menu);
  EXPECT_TRUE(menu->isVisible());
  EXPECT_TRUE(stage.isVisible());
}

TEST_F(EditorFrameTest, ASendToASilentRegisterEndsTheProgram) {
  opened();
  link().answers[22] = {1, 1025};
  set_message(Key::FRM_ALL_WRONG_ECR, "wrong register");
  expect_program_ends([this] {
    expect_box(BoxKind::plain, "wrong register");
    click("C_Invia_Ecr");
  });
}

TEST_F(EditorFrameTest, TheHelpKeyAndTheHelpPictureOpenTheManual) {
  opened();
  press(Qt::Key_F1);
  click("I_Help");
  const std::string line = "Help: no manual in " + Global::PathHelp;
  EXPECT_EQ(log(), (std::vector<std::string>{line, line}));
}

}  // namespace
}  // namespace ecr::test
