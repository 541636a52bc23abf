// The paper and the display beside the fields.

#include <QAbstractButton>
#include <QScrollArea>
#include <QSignalSpy>
#include <QTabWidget>

#include "captions/lcd_picture.h"
#include "captions/paper.h"
#include "captions/scroll_message.h"
#include "core/global.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class PreviewTest : public ScreenTest {
 protected:
  PreviewTest() {
    start_session(Global::model_z320);
    write("Setup/DescCaption.ini", "");
    PrgMode.ReceiptHeader[0].set(
        "\xFF"
        "D\xFF"
        "E & C");
    PrgMode.ReceiptHeader[1].set({});
    PrgMode.IdleAMScrollMessage.set("GOOD MORNING");
    PrgMode.OffModeScrollMessage.set("CLOSED");
    PrgMode.CaptionOpt1 = 2;
    open("FrmCaptionSetting");
  }

  [[nodiscard]] PreviewRow& row(const char* name) const { return control<PreviewRow>(name); }
  [[nodiscard]] LcdPicture& display() const { return control<LcdPicture>("I_Display"); }
  void show_tab(const char* tabs, int tab) const {
    control<QTabWidget>(tabs).setCurrentIndex(tab);
    let_screens_settle();
  }
};

TEST_F(PreviewTest, EveryLineHasItsRowOf24Cells) {
  const std::pair<const char*, std::pair<const char*, int>> groups[] = {{"E_ReceiptHeader", {"T_Hraw", 10}},
                                                                        {"E_ReceiptFooter", {"T_Fraw", 10}},
                                                                        {"E_ExtraInvoice", {"T_Eraw", 5}},
                                                                        {"E_Abr", {"T_Abr", 7}}};
  for (const auto& [array, rows] : groups) {
    for (int i = 0; i < rows.second; ++i) {
      const QString text = QString::fromLatin1(array) + QString::number(i);
      field(member_name(array, i)).show_text(text);
      const QString name = QString::fromLatin1(rows.first) + QString::number(i + 1);
      EXPECT_EQ(control<PreviewRow>(name).text(), text.leftJustified(24)) << name.toStdString();
    }
  }
}

TEST_F(PreviewTest, AMarkedCharacterStandsInTwoCells) {
  EXPECT_EQ(row("T_Hraw1").text(), QStringLiteral("DDEE & C                "));
  EXPECT_EQ(row("T_Hraw1").cells()[0].part, PrintCell::Part::double_left);
  EXPECT_EQ(row("T_Hraw1").cells()[1].part, PrintCell::Part::double_right);
  EXPECT_EQ(row("T_Hraw1").cells()[4].part, PrintCell::Part::single);
}

TEST_F(PreviewTest, DoubleCellsLookDifferentFromSingleOnes) {
  PreviewRow& one = row("T_Hraw1");
  field("E_ReceiptHeader(0)").show_text(QStringLiteral("AA"));
  const QImage plain = one.grab().toImage();
  field("E_ReceiptHeader(0)").show_text(QStringLiteral("·A"));
  const QImage marked = one.grab().toImage();
  EXPECT_EQ(one.text().trimmed(), QStringLiteral("AA"));
  EXPECT_NE(plain, marked);
  // The ground of the mark shows at the edge of the cells; the paper shows there otherwise.
  const int middle = one.height() - 3;
  EXPECT_NE(marked.pixelColor(6, middle), plain.pixelColor(6, middle));
  EXPECT_EQ(marked.pixelColor(one.width() - 6, middle), plain.pixelColor(one.width() - 6, middle));
}

TEST_F(PreviewTest, ThePaperFollowsEachStroke) {
  field("E_ReceiptHeader(1)").setFocus(Qt::OtherFocusReason);
  QString typed;
  for (const QChar c : QStringLiteral("12 Mill Lane")) {
    type(QString{c});
    typed += c;
    EXPECT_EQ(row("T_Hraw2").text(), typed.leftJustified(24));
  }
}

TEST_F(PreviewTest, WhatIsBeyond24CellsIsCutOff) {
  field("E_ReceiptHeader(1)").show_text(QStringLiteral("1234567890123456789012345678"));
  EXPECT_EQ(row("T_Hraw2").text(), QStringLiteral("123456789012345678901234"));
}

TEST_F(PreviewTest, AHeaderIsPrintedAnewOnlyWhileOneOfTheFirstThreeTabsIsInFront) {
  for (int tab = 0; tab < 5; ++tab) {
    show_tab("Tab_Invoice", tab);
    const QString before = row("T_Hraw3").text();
    const QString text = QStringLiteral("seen from tab %1").arg(tab).leftJustified(24);
    field("E_ReceiptHeader(2)").show_text(text);
    EXPECT_EQ(row("T_Hraw3").text(), tab <= 2 ? text : before) << tab;
  }
  field("E_Abr(0)").show_text(QStringLiteral("x"));
  EXPECT_EQ(row("T_Hraw3").text().trimmed(), QStringLiteral("seen from tab 4")) << "any other line prints them all";
}

TEST_F(PreviewTest, TheLineThatIsWrittenIsSetOffAndInSight) {
  show_tab("Tab_Invoice", 4);
  const QImage before = row("T_Abr7").grab().toImage();
  field("E_Abr(6)").setFocus(Qt::OtherFocusReason);
  EXPECT_NE(row("T_Abr7").grab().toImage(), before);
  EXPECT_FALSE(row("T_Abr7").visibleRegion().isEmpty());
  show_tab("Tab_Invoice", 0);
  EXPECT_FALSE(row("T_Hraw1").visibleRegion().isEmpty());
  field("E_ReceiptHeader(0)").setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(row("T_Abr7").grab().toImage(), before);
}

TEST_F(PreviewTest, AFieldOutOfSightComesIntoSightWhenItIsEntered) {
  show_tab("Tab_Invoice", 3);
  EXPECT_TRUE(field("E_Other(22)").visibleRegion().isEmpty());
  field("E_Other(22)").setFocus(Qt::OtherFocusReason);
  let_screens_settle();
  EXPECT_FALSE(field("E_Other(22)").visibleRegion().isEmpty());
}

TEST_F(PreviewTest, TheDisplayShowsTheMessageThatWasEntered) {
  show_tab("Tab_Print", 2);
  EXPECT_EQ(display().text(), QStringLiteral("CLOSED              ")) << "the first one at first";
  field("E_IdleAMScrollMessage").setFocus(Qt::OtherFocusReason);
  EXPECT_EQ(display().text(), QStringLiteral("GOOD MORNING        "));
  type(QStringLiteral("!"));
  EXPECT_EQ(display().text(), QStringLiteral("GOOD MORNING!       "));
}

TEST_F(PreviewTest, PlayLetsItRunAtTheChosenSpeedAndStopEndsThat) {
  show_tab("Tab_Print", 2);
  EXPECT_FALSE(display().plays());
  click("C_Play");
  EXPECT_EQ(caption("C_Play"), QStringLiteral("Stop"));
  EXPECT_EQ(display().interval_ms(), scroll_interval_ms(2));
  work_until([this] { return display().text() != QStringLiteral("CLOSED              "); });
  list("Cmb_ScrollSpeed").show_number(0);
  EXPECT_EQ(display().interval_ms(), scroll_interval_ms(0)) << "another speed counts at once";
  EXPECT_TRUE(display().plays());
  click("C_Play");
  EXPECT_FALSE(display().plays());
  EXPECT_EQ(caption("C_Play"), QStringLiteral("Play"));
  EXPECT_EQ(display().text(), QStringLiteral("CLOSED              "));
}

TEST_F(PreviewTest, TheDisplayStopsWhenItsTabIsLeft) {
  show_tab("Tab_Print", 2);
  click("C_Play");
  show_tab("Tab_Print", 0);
  EXPECT_FALSE(display().plays());
  show_tab("Tab_Print", 2);
  EXPECT_EQ(caption("C_Play"), QStringLiteral("Play"));
}

TEST_F(PreviewTest, EachStepMovesTheMessageByOneCharacter) {
  LcdPicture& picture = display();
  picture.show_message(QStringLiteral("AB"));
  for (std::size_t step = 0; step < 50; ++step) {
    EXPECT_EQ(picture.text().toStdU16String(), display_window(u"AB", step)) << step;
    picture.step();
  }
}

}  // namespace
}  // namespace ecr::test
