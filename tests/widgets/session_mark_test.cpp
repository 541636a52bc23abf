#include "widgets/session_mark.h"

#include <gtest/gtest.h>

#include <QImage>

#include "core/global.h"
#include "support_qt/screen_test.h"
#include "widgets/glyphs.h"
#include "widgets/look.h"

namespace ecr::test {
namespace {

class SessionMarkTest : public ScreenTest {
 protected:
  SessionMarkTest() { start_session(Global::model_z320); }
};

QColor dot_of(SessionMark& mark) {
  mark.resize(mark.sizeHint());
  return mark.grab().toImage().pixelColor(4, mark.height() / 2);
}

TEST_F(SessionMarkTest, TellsPortModelAndFile) {
  SessionMark mark{nullptr};
  Global::ComPort = 4;
  mark.show_session(QStringLiteral("PRG_MODE.BIN"));
  EXPECT_EQ(mark.text(), QStringLiteral("COM 4   ECRZ320   PRG_MODE.BIN"));
  EXPECT_EQ(dot_of(mark), text_green());
}

TEST_F(SessionMarkTest, IsRedWithoutAPort) {
  SessionMark mark{nullptr};
  Global::choose_model(Global::model_z300);
  Global::ComPort = 0;
  mark.show_session({});
  EXPECT_EQ(mark.text(), QStringLiteral("COM –   ECRZ300"));
  EXPECT_EQ(dot_of(mark), text_red());
}

TEST_F(SessionMarkTest, EveryEditorAndMenuBearsIt) {
  Global::ComPort = 7;
  open("FrmProgramMode");
  EXPECT_EQ(caption("L_Session"), QStringLiteral("COM 7   ECRZ320"));
  open("FrmSetVatRate");
  EXPECT_EQ(caption("L_Session"), QStringLiteral("COM 7   ECRZ320   PRG_MODE.BIN"));
  EXPECT_EQ(button("C_Salva").toolTip(),
            QStringLiteral("→ ") + QString::fromStdString(Global::PathDati) + QStringLiteral("PRG_MODE.BIN"));
  EXPECT_EQ(button("C_Invia_Ecr").toolTip(), QStringLiteral("PRG_MODE.BIN → COM 7   ECRZ320"));
}

TEST_F(SessionMarkTest, TheTwoGlyphsDifferAndAreNotEmpty) {
  const QImage in = glyph(Glyph::to_file, Qt::black).pixmap(16).toImage();
  const QImage out = glyph(Glyph::to_register, Qt::black).pixmap(16).toImage();
  EXPECT_NE(in, out);
  // The tray is the same; the arrow points into it or out of it.
  EXPECT_EQ(in.pixelColor(8, 13), out.pixelColor(8, 13));
  EXPECT_GT(in.pixelColor(8, 13).alpha(), 128);
}

}  // namespace
}  // namespace ecr::test
