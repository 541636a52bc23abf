// The means of the screen tests themselves.

#include <gtest/gtest-spi.h>
#include <gtest/gtest.h>
#include <set>

#include <QPushButton>

#include "core/global.h"
#include "image/prg_plu.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

class SupportTest : public ScreenTest {};

TEST_F(SupportTest, AGoodImageIsThatOfItsModelAndOfNoOther) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    const auto other = model == Global::model_z300 ? Global::model_z320 : Global::model_z300;
    EXPECT_TRUE(keypad_matches(good_image(model), model));
    EXPECT_FALSE(keypad_matches(good_image(model), other));
    Random random{model};
    EXPECT_TRUE(keypad_matches(random_image(model, random), model));
  }
}

TEST_F(SupportTest, DepartmentsOfAGoodImageHaveNamesOfTheirOwn) {
  const PrgModeImage image = good_image(Global::model_z320);
  std::set<std::string> names;
  for (const DeptRecord& record : image.Dept) names.insert(std::string{record.Name.view()});
  EXPECT_EQ(names.size(), 99U);
}

TEST_F(SupportTest, ASessionHoldsTheSameOnDiskAndInMemory) {
  for (const auto model : {Global::model_z300, Global::model_z320}) {
    PrgMode = {};
    start_session(model);
    EXPECT_TRUE(Read_PrgMode());
    EXPECT_EQ(file_bytes(PrgMode), file_bytes(good_image(model)));
    EXPECT_EQ(image_file().size(), prg_mode_size);
    EXPECT_EQ(PrgPlu.PluCount, 0);
    EXPECT_EQ(Global::DecimalPoint, 2);
  }
}

TEST_F(SupportTest, ControlsAreFoundByNameAndKind) {
  start_session(Global::model_z320);
  open("FrmSetVatRate");
  EXPECT_EQ(field("E_VatRate(2)").objectName(), QStringLiteral("E_VatRate(2)"));
  EXPECT_THROW(static_cast<void>(field("E_VatRate(5)")), std::runtime_error);
  EXPECT_THROW(static_cast<void>(list("E_VatRate(1)")), std::runtime_error);
  EXPECT_THROW(open("FrmUnknown"), std::runtime_error);
}

QWidget* target = nullptr;

TEST_F(SupportTest, APersonCannotClickWhatCannotBeClicked) {
  QWidget window;
  QPushButton below{&window};
  QPushButton above{&window};
  below.setGeometry(0, 0, 80, 30);
  above.setGeometry(20, 0, 40, 30);
  window.show();
  target = &below;
  EXPECT_FATAL_FAILURE(test::click(*target), "something else lies over");
  above.hide();
  target->setEnabled(false);
  EXPECT_FATAL_FAILURE(test::click(*target), "can't be used");
  target->hide();
  EXPECT_FATAL_FAILURE(test::click(*target), "can't be seen");
}

TEST_F(SupportTest, AProgramThatGoesOnHasNotEnded) {
  static std::function<void()> expect;
  expect = [this] { expect_program_ends([] {}); };
  EXPECT_NONFATAL_FAILURE(expect(), "failed to die");
}

TEST_F(SupportTest, AProgramThatEndsWithoutItsBoxIsAtFault) {
  static std::function<void()> expect;
  expect = [this] {
    expect_program_ends([this] {
      expect_box(BoxKind::plain, "never shown");
      watched.end_program();
    });
  };
  EXPECT_NONFATAL_FAILURE(expect(), "died but not with expected exit code");
}

TEST_F(SupportTest, WhatACopyOfTheProcessWritesIsThere) {
  expect_program_ends([this] {
    write("Dati/left.txt", "behind");
    watched.end_program();
  });
  EXPECT_EQ(bytes("Dati/left.txt"), "behind");
}

}  // namespace
}  // namespace ecr::test
