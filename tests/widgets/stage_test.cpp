#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>

#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

class StageTest : public ScreenTest {
 protected:
  PlainScreen* opened(const char* name) {
    auto* screen = new PlainScreen{QString::fromLatin1(name)};
    screen->setWindowTitle(QStringLiteral("Title of ") + screen->objectName());
    screen->first = &screen->put(new Field{QStringLiteral("E_First"), screen});
    screen->put(new Field{QStringLiteral("E_Second"), screen});
    open(screen);
    return screen;
  }
};

TEST_F(StageTest, AnOpenedScreenIsLoadedOnceAndHidesTheOneBelow) {
  auto* below = opened("FrmBelow");
  auto* above = opened("FrmAbove");
  EXPECT_EQ(stage.top(), above);
  EXPECT_TRUE(above->isVisible());
  EXPECT_FALSE(below->isVisible());
  EXPECT_EQ(above->times_loaded, 1);
  EXPECT_EQ(above->times_seen_again, 0);
}

TEST_F(StageTest, AScreenIsLoadedBeforeItIsSeen) {
  auto* screen = new PlainScreen;
  bool seen_while_loading = true;
  screen->on_load = [&] { seen_while_loading = screen->isVisible(); };
  open(screen);
  EXPECT_FALSE(seen_while_loading);
  EXPECT_TRUE(screen->isVisible());
}

TEST_F(StageTest, TheFocusIsWhereTheScreenSays) {
  auto* screen = opened("FrmOne");
  EXPECT_TRUE(screen->first->hasFocus());
}

TEST_F(StageTest, AClosedScreenGoesAwayAndTheOneBelowIsSeenAgain) {
  auto* below = opened("FrmBelow");
  const QPointer<PlainScreen> above = opened("FrmAbove");
  EXPECT_FALSE(above->is_unloading());
  above->unload();
  EXPECT_EQ(stage.top(), below);
  EXPECT_TRUE(above->is_unloading());
  let_screens_settle();
  EXPECT_TRUE(above.isNull());
  EXPECT_TRUE(below->isVisible());
  EXPECT_EQ(below->times_seen_again, 1);
  EXPECT_EQ(below->times_loaded, 1);
}

TEST_F(StageTest, TheFocusComesBackToTheControlThatHadIt) {
  opened("FrmBelow");
  click("E_Second");
  auto* above = opened("FrmAbove");
  above->unload();
  EXPECT_TRUE(control("E_Second").hasFocus());
}

TEST_F(StageTest, TheWindowsTitleIsThatOfTheTopScreen) {
  auto* below = opened("FrmBelow");
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Title of FrmBelow"));
  auto* above = opened("FrmAbove");
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("Title of FrmAbove"));
  above->setWindowTitle(QStringLiteral("changed"));
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("changed"));
  below->setWindowTitle(QStringLiteral("changed below"));
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("changed"));
  above->unload();
  EXPECT_EQ(stage.windowTitle(), QStringLiteral("changed below"));
}

TEST_F(StageTest, TheCloseBoxClosesTheTopScreenAndNotTheWindow) {
  auto* below = opened("FrmBelow");
  opened("FrmAbove");
  EXPECT_FALSE(stage.close());
  EXPECT_TRUE(stage.isVisible());
  EXPECT_EQ(stage.top(), below);
}

TEST_F(StageTest, AScreenBelowThatUnloadsLeavesTheTopAlone) {
  auto* below = opened("FrmBelow");
  auto* above = opened("FrmAbove");
  below->unload();
  EXPECT_EQ(stage.top(), above);
  EXPECT_TRUE(above->isVisible());
}

TEST_F(StageTest, AScreenOpensOthersOverItself) {
  auto* below = opened("FrmBelow");
  auto* above = new PlainScreen{QStringLiteral("FrmAbove")};
  below->open(above);
  EXPECT_EQ(stage.top(), above);
}

TEST_F(StageTest, AControlKnowsItsScreen) {
  auto* screen = opened("FrmOne");
  EXPECT_EQ(Screen::of(screen->first), screen);
  EXPECT_EQ(Screen::of(screen), screen);
  EXPECT_EQ(Screen::of(&stage), nullptr);
  EXPECT_EQ(Screen::of(nullptr), nullptr);
}

TEST_F(StageTest, IsNeverSmallerThanTheSmallestDisplayNeeds) {
  stage.resize(100, 100);
  EXPECT_EQ(stage.size(), QSize(900, 600));
}

}  // namespace
}  // namespace ecr::test
