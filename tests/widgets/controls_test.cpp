#include "widgets/controls.h"

#include <gtest/gtest.h>

#include "support_qt/screen_test.h"
#include "widgets/plain_screen.h"

namespace ecr::test {
namespace {

class ControlsTest : public ScreenTest {
 protected:
  ControlsTest() : screen{new PlainScreen} {}

  PlainScreen* screen;
  int pressed = 0;
  const std::function<void()> press_it = [this] { ++pressed; };
};

TEST_F(ControlsTest, AButtonIsPressedByPointerEnterAndBlank) {
  auto& button = screen->put(new CommandButton{QStringLiteral("C_Go"), screen});
  button.on_click(press_it);
  open(screen);
  click(button);
  EXPECT_EQ(pressed, 1);
  press(Qt::Key_Return);
  press(Qt::Key_Enter);
  press(Qt::Key_Space);
  EXPECT_EQ(pressed, 4);
}

TEST_F(ControlsTest, AButtonTakesTheFocusBeforeItActs) {
  auto& field = screen->put(new Field{QStringLiteral("E_Field"), screen});
  auto& button = screen->put(new CommandButton{QStringLiteral("C_Go"), screen});
  button.setText(QStringLiteral("&Go"));
  button.on_click([&] {
    ++pressed;
    EXPECT_TRUE(button.hasFocus());
  });
  open(screen);
  click(field);
  click(button);
  EXPECT_EQ(pressed, 1);
  click(field);
  press(Qt::Key_G, Qt::AltModifier);
  // A letter shows the button pressed for a moment before it acts.
  work_until([this] { return pressed == 2; });
}

TEST_F(ControlsTest, ADisabledButtonDoesNothing) {
  auto& button = screen->put(new CommandButton{QStringLiteral("C_Go"), screen});
  button.setText(QStringLiteral("&Go"));
  button.on_click(press_it);
  button.setEnabled(false);
  open(screen);
  press(Qt::Key_G, Qt::AltModifier);
  button.click();
  EXPECT_EQ(pressed, 0);
}

TEST_F(ControlsTest, APictureIsClickedWhereItIsLetGo) {
  auto& picture = screen->put(new Picture{QStringLiteral("I_Help"), screen});
  picture.setMinimumSize(40, 40);
  picture.on_click(press_it);
  open(screen);
  click(picture);
  EXPECT_EQ(pressed, 1);
}

TEST_F(ControlsTest, APictureInTheTabOrderIsPressedByEnterAndBlank) {
  auto& picture = screen->put(new Picture{QStringLiteral("I_Help"), screen});
  picture.setFocusPolicy(Qt::TabFocus);
  picture.on_click(press_it);
  open(screen);
  tab_to(picture);
  press(Qt::Key_Return);
  press(Qt::Key_Space);
  EXPECT_EQ(pressed, 2);
  type(QStringLiteral("x"));
  EXPECT_EQ(pressed, 2);
}

TEST_F(ControlsTest, APictureComesFromTheSetupFolderScaledDownToItsPlace) {
  install_setup();
  Picture picture{QStringLiteral("I_Flag"), nullptr};
  picture.show_file(QStringLiteral("UK.gif"), {36, 24});
  const QPixmap shown = picture.pixmap(Qt::ReturnByValue);
  ASSERT_FALSE(shown.isNull());
  const QSizeF size = shown.deviceIndependentSize();
  EXPECT_LE(size.width(), 36.5);
  EXPECT_LE(size.height(), 24.5);
}

TEST_F(ControlsTest, AMissingPictureLeavesItsPlaceEmpty) {
  Picture picture{QStringLiteral("I_Flag"), nullptr};
  picture.show_file(QStringLiteral("none.gif"), {36, 24});
  EXPECT_TRUE(picture.pixmap(Qt::ReturnByValue).isNull());
  write("Setup/broken.gif", "no picture");
  picture.show_file(QStringLiteral("broken.gif"), {36, 24});
  EXPECT_TRUE(picture.pixmap(Qt::ReturnByValue).isNull());
}

TEST(MemberName, CarriesTheIndexInBrackets) {
  EXPECT_EQ(member_name("E_VatRate", 1), QStringLiteral("E_VatRate(1)"));
  EXPECT_EQ(member_name("Opt_Lang", 0), QStringLiteral("Opt_Lang(0)"));
}

}  // namespace
}  // namespace ecr::test
