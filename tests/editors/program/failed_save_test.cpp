// A save that ends with a fault, in the editors of the image in which one can: memory and file are as they were before.

#include <gtest/gtest.h>

#include "editors/program/editor_test.h"

namespace ecr::test {
namespace {

struct Editor {
  const char* screen;
  const char* first;  ///< a field that is stored before the other one
  const char* last;
  const char* log_line;
};

class FailedSave : public ScreenTest, public ::testing::WithParamInterface<Editor> {
 protected:
  FailedSave() { start_session(Global::model_z320); }
};

TEST_P(FailedSave, LeavesMemoryAndFileAsTheyWere) {
  open(QString::fromLatin1(GetParam().screen));
  const std::string before = file_bytes(PrgMode);
  const std::string on_disk = image_file();
  const QString first = QString::fromLatin1(GetParam().first);
  click(first);
  press(Qt::Key_A, Qt::ControlModifier);
  type(QStringLiteral("7"));
  click(QString::fromLatin1(GetParam().last));
  paste_over(QStringLiteral("no number"));
  const QString typed = field(first).text();
  // By its key the button leaves the focus in the field, whose text is saved as it stands.
  button("C_Salva").click();
  EXPECT_EQ(log().back(), GetParam().log_line);
  EXPECT_EQ(file_bytes(PrgMode), before);
  EXPECT_EQ(image_file(), on_disk);
  EXPECT_EQ(Global::DecimalPoint, PrgMode.SysOpt0);
  EXPECT_EQ(field(first).text(), typed) << "what was typed stays on the screen";

  // With the word gone the same save goes through.
  paste_over(QStringLiteral("1"));
  click("C_Salva");
  EXPECT_NE(file_bytes(PrgMode), before);
  EXPECT_EQ(image_file(), file_bytes(PrgMode));
}

INSTANTIATE_TEST_SUITE_P(OfTheImage, FailedSave,
                         ::testing::Values(Editor{"FrmSetVatRate", "E_VatRate(1)", "E_VatRate(4)",
                                                  "FrmSetVatRate Salva: Type mismatch"},
                                           Editor{"FrmPercentageMenu", "E_P1KeyRate", "E_P2KeyRateLimit",
                                                  "FrmPercentageMenu Salva: Type mismatch"},
                                           Editor{"FrmDepartmentProgram", "E_DeptName", "E_Price",
                                                  "FrmDepartmentProgram Salva: Type mismatch"},
                                           Editor{"FrmSystemOption", "E_ConsecutiveReceipt", "E_GTCounterSetting",
                                                  "FrmSystemOption Salva: Type mismatch"}),
                         [](const auto& editor) { return std::string{editor.param.screen}; });

}  // namespace
}  // namespace ecr::test
