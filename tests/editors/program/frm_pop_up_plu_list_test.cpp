#include <gtest/gtest.h>

#include <QTabWidget>

#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/global.h"
#include "image/prg_plu.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

class FrmPopUpPluListTest : public ScreenTest {
 protected:
  FrmPopUpPluListTest() { start_session(Global::model_z320); }

  void open_editor() { open("FrmPopUpPluList"); }
  [[nodiscard]] QTabWidget& tabs() const { return control<QTabWidget>("Tab_PopUpPluList"); }
  static QString field_name(int list, int entry) { return QStringLiteral("E_Plu%1(%2)").arg(list).arg(entry); }
  [[nodiscard]] QString shown(int list, int entry) const { return field(field_name(list, entry)).text(); }
  void enter(int list, int entry, const QString& text) const {
    tabs().setCurrentIndex(list - 1);
    let_screens_settle();
    click(field_name(list, entry));
    press(Qt::Key_A, Qt::ControlModifier);
    type(text);
  }
  [[nodiscard]] std::string stored(int list, int entry) const {
    return bytes("Dati/PRG_PLU.BIN").substr(static_cast<std::size_t>(2 + 160 * (list - 1) + 8 * (entry - 1)), 8);
  }
};

TEST_F(FrmPopUpPluListTest, HasFiveTabsAndItsCaptions) {
  open_editor();
  EXPECT_EQ(tabs().count(), 5);
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Pop Up Plu List"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("POP UP PLU LIST"));
  EXPECT_EQ(caption("C_Salva"), QStringLiteral("Save Setup"));
}

TEST_F(FrmPopUpPluListTest, BuiltInLabelsCountFromOneAndTheCataloguesFromZero) {
  open_editor();
  for (int list = 1; list <= 5; ++list) {
    EXPECT_EQ(caption(QStringLiteral("L_Plu%1(1)").arg(list)), QStringLiteral("PLU 1:"));
    EXPECT_EQ(caption(QStringLiteral("L_Plu%1(20)").arg(list)), QStringLiteral("PLU 20:"));
  }
  stage.top()->unload();
  let_screens_settle();
  set_message(Key::FRM_ALL_PLU_MSG, "Artikel");
  set_message(Key::FRM_POP_UP_PLU_LIST_TITLE_MSG, "Listen");
  open_editor();
  EXPECT_EQ(caption("L_Plu3(1)"), QStringLiteral("Artikel 0"));
  EXPECT_EQ(caption("L_Plu3(20)"), QStringLiteral("Artikel 19"));
  EXPECT_EQ(caption("L_Titolo"), QStringLiteral("Listen"));
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Listen"));
}

TEST_F(FrmPopUpPluListTest, EveryEntryIsShownAndSavedAtItsPlace) {
  for (std::size_t list = 0; list < 5; ++list) {
    for (std::size_t entry = 0; entry < 20; ++entry) {
      number_to_bcds(PrgPlu.Lists[list][entry], std::to_string(1000 * (list + 1) + entry));
    }
  }
  const auto before = PrgPlu.Lists;
  open_editor();
  for (int list = 1; list <= 5; ++list) {
    for (int entry = 1; entry <= 20; ++entry) {
      EXPECT_EQ(shown(list, entry), QString::number(1000 * list + entry - 1));
    }
  }
  PrgPlu.Lists = {};
  click("C_Salva");
  EXPECT_EQ(PrgPlu.Lists, before);
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN").substr(2, 800),
            std::string(reinterpret_cast<const char*>(&before), sizeof before));
}

TEST_F(FrmPopUpPluListTest, ASaveKeepsTheItems) {
  PrgPlu.PluCount = 1;
  number_to_bcds(PrgPlu.Row[0].Code, "77");
  PrgPlu.Row[0].PluListLink = 2;
  number_to_bcds(PrgPlu.Lists[1][0], "77");
  open_editor();
  enter(2, 1, QStringLiteral("0"));
  click("C_Salva");
  EXPECT_EQ(stored(2, 1), std::string(8, '\0'));
  EXPECT_EQ(PrgPlu.Row[0].PluListLink, 2) << "the item's link stays";
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN").size(), 802U + 44U);
}

TEST_F(FrmPopUpPluListTest, ACodeMayStandInTwoListsAndNeedNoItem) {
  open_editor();
  enter(1, 3, QStringLiteral("4711"));
  enter(5, 20, QStringLiteral("4711"));
  click("C_Salva");
  EXPECT_EQ(stored(1, 3), std::string("\x11\x47\0\0\0\0\0\0", 8));
  EXPECT_EQ(stored(5, 20), stored(1, 3));
}

TEST_F(FrmPopUpPluListTest, FourteenDigitsAreTakenAndNotMore) {
  open_editor();
  enter(1, 1, QStringLiteral("99999999999999"));
  EXPECT_TRUE(watched.boxes.empty());
  expect_box(BoxKind::critical, "Value insert to high!");
  type(QStringLiteral("0"));
  EXPECT_EQ(shown(1, 1), QStringLiteral("99999999999999"));
  click("C_Salva");
  EXPECT_EQ(stored(1, 1), std::string("\x99\x99\x99\x99\x99\x99\x99\0", 8));
}

TEST_F(FrmPopUpPluListTest, AZeroIsGoneWhileTheFieldIsEntered) {
  open_editor();
  click(field_name(1, 1));
  EXPECT_EQ(shown(1, 1), QString{});
  press(Qt::Key_Tab);
  EXPECT_EQ(shown(1, 1), QStringLiteral("0"));
  click(field_name(1, 4));
  type(QStringLiteral("a1-2"));
  EXPECT_EQ(shown(1, 4), QStringLiteral("12"));
}

TEST_F(FrmPopUpPluListTest, AnEmptyFieldThatNeverLostTheFocusStoresZero) {
  number_to_bcds(PrgPlu.Lists[0][0], "5");
  open_editor();
  field(field_name(1, 1)).show_text({});
  click("C_Salva");
  EXPECT_EQ(stored(1, 1), std::string(8, '\0'));
}

TEST_F(FrmPopUpPluListTest, AnEntryThatCannotBeReadStaysAndTheOthersAreSaved) {
  PrgPlu.Lists[1][2].bytes = {0x0B, 1, 2, 3, 4, 5, 6, 7};
  open_editor();
  EXPECT_EQ(shown(2, 3), QString{});
  enter(2, 2, QStringLiteral("47"));
  press(Qt::Key_Tab);
  press(Qt::Key_Tab);
  click("C_Salva");
  EXPECT_EQ(stored(2, 2), std::string("\x47\0\0\0\0\0\0\0", 8));
  EXPECT_EQ(stored(2, 3), "\x0B\x01\x02\x03\x04\x05\x06\x07");
  EXPECT_EQ(stored(2, 4), std::string(8, '\0'));
}

TEST_F(FrmPopUpPluListTest, SendSendsTheItemsWithTheButtonsEnabled) {
  link().be_a_register();
  open_editor();
  bool enabled = false;
  watched.on_run_beside = [&](Waiting) {
    enabled = control("C_Salva").isEnabled() && control("C_Annulla").isEnabled() && control("C_Invia_Ecr").isEnabled();
  };
  std::vector<Pointer> pointers;
  watched.on_pointer = [&](Pointer pointer) { pointers.push_back(pointer); };
  click("C_Invia_Ecr");
  EXPECT_TRUE(enabled);
  EXPECT_EQ(pointers, (std::vector<Pointer>{Pointer::busy, Pointer::normal}));
  EXPECT_EQ(link().received.count(0), 0U);
  EXPECT_EQ(link().received.count(1), 1U);
}

TEST_F(FrmPopUpPluListTest, AFailedSendTells) {
  link().be_a_register();
  link().answers[1] = {1, 4097};
  open_editor();
  expect_box(BoxKind::critical, "Programmation sending Failed");
  click("C_Invia_Ecr");
}

}  // namespace
}  // namespace ecr::test
