// Numbers that cannot be read, in every editor of the image: the field stands empty, the others are shown, and a save
// neither is refused nor writes over the bytes that nobody has seen.

#include <algorithm>
#include <gtest/gtest.h>

#include "editors/program/editor_test.h"

namespace ecr::test {
namespace {

struct Number {
  const char* screen;
  const char* field;
  std::size_t offset;
  std::size_t size;
};

class Unread : public ScreenTest, public ::testing::WithParamInterface<Number> {
 protected:
  Unread() {
    start_session(Global::model_z320);
    PrgModeImage image = PrgMode;
    // So that the decimals of each currency are those of the others.
    for (ForeignCurrencyRecord& currency : image.ForeignCurrency) currency.DecimalPositionForExchangedRate = 2;
    // No digit at all: what stands after it is not read.
    broken.front() = '\x1A';
    std::copy(broken.begin(), broken.end(), reinterpret_cast<char*>(&image) + GetParam().offset);
    lay_down(image);
  }

  void open_editor() { open(QString::fromLatin1(GetParam().screen)); }
  [[nodiscard]] Field& unread() const { return field(QString::fromLatin1(GetParam().field)); }
  [[nodiscard]] std::string stored() const { return image_file().substr(GetParam().offset, GetParam().size); }
  [[nodiscard]] bool log_tells_of_a_save() const {
    const Lines said = log();
    return std::any_of(said.begin(), said.end(),
                       [](const std::string& line) { return line.find("Salva") != std::string::npos; });
  }

  std::string broken = std::string(GetParam().size, '\x01');
};

TEST_P(Unread, AnEmptyFieldStandsForItAmongTheOthers) {
  open_editor();
  EXPECT_EQ(unread().text(), QString{});
  EXPECT_TRUE(unread().is_unread());
  EXPECT_EQ(log().front(), "bcds_to_number Type mismatch");
  for (const Field* each : stage.top()->findChildren<Field*>()) {
    if (each == &unread() || each->objectName().contains(QStringLiteral("Name"))) continue;
    EXPECT_FALSE(each->text().isEmpty()) << each->log_name();
  }
}

TEST_P(Unread, ASaveLeavesItsBytesAndStoresTheOthers) {
  open_editor();
  const std::string before = image_file();
  click("C_Salva");
  EXPECT_EQ(stored(), broken);
  EXPECT_EQ(image_file().size(), before.size());
  EXPECT_EQ(file_bytes(PrgMode), image_file());
  EXPECT_FALSE(log_tells_of_a_save());
}

TEST_P(Unread, PassingThroughTheFieldLeavesIt) {
  open_editor();
  tab_to(unread());
  EXPECT_EQ(unread().text(), QString{});
  press(Qt::Key_Tab);
  EXPECT_EQ(unread().text(), QString{});
  click("C_Salva");
  EXPECT_EQ(stored(), broken);
  EXPECT_FALSE(log_tells_of_a_save());
}

TEST_P(Unread, WhatIsTypedIntoItIsStored) {
  open_editor();
  tab_to(unread());
  type(QStringLiteral("5"));
  EXPECT_FALSE(unread().is_unread());
  click("C_Salva");
  EXPECT_EQ(stored(), '\x05' + std::string(GetParam().size - 1, '\0'));
}

TEST_P(Unread, EmptiedAgainByThePersonItIsAsAnyOtherEmptyField) {
  open_editor();
  tab_to(unread());
  type(QStringLiteral("5"));
  press(Qt::Key_Backspace);
  press(Qt::Key_Tab);
  click("C_Salva");
  // Which is zero, but for the manager's password: nothing is no number there, and ends the save.
  const bool empty_is_zero = std::string_view{GetParam().field} != "E_ManagerModePassword";
  EXPECT_EQ(stored(), empty_is_zero ? std::string(GetParam().size, '\0') : broken);
  EXPECT_EQ(log_tells_of_a_save(), !empty_is_zero);
}

INSTANTIATE_TEST_SUITE_P(OfTheImage, Unread,
                         ::testing::Values(Number{"FrmSetVatRate", "E_VatRate(2)", 42, 4},
                                           Number{"FrmPercentageMenu", "E_P1KeyRate", 54, 2},
                                           Number{"FrmFCRatingSetting", "E_ExchangeRate(1)", 2955, 4},
                                           Number{"FrmDepartmentProgram", "E_Price", 347, 4},
                                           Number{"FrmPluPageProgram", "E_PluPage(1)", 78, 8},
                                           Number{"FrmInstoreBarcodeSetting", "E_FlagCode", 94, 2},
                                           Number{"FrmClerkSystemProgram", "E_Password", 2533, 2},
                                           Number{"FrmPermissionProgram", "E_XModePasswordSetting", 32, 2},
                                           Number{"FrmPermissionProgram", "E_ManagerModePassword", 34, 2},
                                           Number{"FrmSystemOption", "E_ConsecutiveReceipt", 3117, 4},
                                           Number{"FrmSystemOption", "E_Z1CounterSetting", 3125, 2}),
                         [](const auto& number) {
                           std::string name = std::string{number.param.screen} + number.param.field;
                           std::erase_if(name, [](char c) { return c == '(' || c == ')' || c == '_'; });
                           return name;
                         });

}  // namespace
}  // namespace ecr::test
