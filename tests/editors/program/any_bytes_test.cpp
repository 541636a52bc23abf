// Every smaller editor over images of random bytes, on both models: whatever stands there, each field is entered and
// left and the screen saved, and no byte outside of what the screen owns has changed.

#include <gtest/gtest.h>

#include "editors/program/editor_test.h"

namespace ecr::test {
namespace {

struct Bytes {
  std::size_t offset;
  std::size_t size;
};
struct Owner {
  const char* screen;
  std::vector<Bytes> owns;
};

class AnyBytes : public ScreenTest, public ::testing::WithParamInterface<Owner> {};

TEST_P(AnyBytes, EndOnTheScreenOrInTheLogAndHarmNothingElse) {
  watched.answer = [](const WatchedShell::Box&) { return Answer::ok; };
  Random random{4711};
  for (int round = 0; round < 16; ++round) {
    SCOPED_TRACE("round " + std::to_string(round));
    const std::uint8_t model = round % 2 == 0 ? Global::model_z300 : Global::model_z320;
    start_session(model);
    const PrgModeImage image = random_image(model, random);
    lay_down(image);
    open(QString::fromLatin1(GetParam().screen));
    for (Field* each : stage.top()->findChildren<Field*>()) {
      if (!each->isVisible()) continue;
      each->setFocus(Qt::OtherFocusReason);
      let_screens_settle();
    }
    click("C_Salva");
    std::string after = file_bytes(PrgMode);
    std::string before = file_bytes(image);
    for (const Bytes& own : GetParam().owns) {
      after.replace(own.offset, own.size, own.size, '\0');
      before.replace(own.offset, own.size, own.size, '\0');
    }
    EXPECT_EQ(after, before);
    EXPECT_EQ(image_file().size(), prg_mode_size);
    EXPECT_EQ(top(), QString::fromLatin1(GetParam().screen));
    stage.top()->unload();
    let_screens_settle();
  }
}

INSTANTIATE_TEST_SUITE_P(OfTheImage, AnyBytes,
                         ::testing::Values(Owner{"FrmDeptGroupSetting", {{3137, 12}}},
                                           Owner{"FrmInstoreBarcodeSetting", {{94, 8}}},
                                           Owner{"FrmTenderMenuSetting", {{2991, 126}}},
                                           Owner{"FrmClerkSystemProgram", {{2507, 25}, {2533, 2}}},
                                           Owner{"FrmPercentageMenu", {{54, 8}, {66, 1}}},
                                           Owner{"FrmPORAMPKeyMenu", {{62, 5}}}, Owner{"FrmNSMenuSetting", {{69, 1}}},
                                           Owner{"FrmFCRatingSetting", {{2927, 64}}},
                                           Owner{"FrmPermissionProgram", {{30, 8}}},
                                           Owner{"FrmSystemOption", {{67, 2}, {326, 2}, {3117, 20}}}),
                         [](const auto& owner) { return std::string{owner.param.screen}; });

}  // namespace
}  // namespace ecr::test
