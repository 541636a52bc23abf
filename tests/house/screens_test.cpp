// Every screen of the program on both models, at the size it opens with and at the smallest one, with and without a
// catalogue. This program runs twice, the second time on a display with twice the pixels.

#include <cctype>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTabWidget>

#include "app/entry.h"
#include "core/catalogue.h"
#include "core/global.h"
#include "house/screen_check.h"
#include "image/side_files.h"
#include "lang/language.h"
#include "screens/frm_pres.h"
#include "screens/frm_principale.h"
#include "screens/screen_factory.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

using Check = std::function<QStringList(QWidget&)>;

class EveryScreen : public ScreenTest, public ::testing::WithParamInterface<std::string> {
 protected:
  EveryScreen() {
    install_setup();
    write("register/register.txt", "model = Z320\n");
    link().be_a_register();
    FlagPicture = "UK.gif";
    Global::DebugMode = true;
  }

  /// Opens the screen and answers what is to be looked at.
  QWidget* opened() {
    const QString name = QString::fromStdString(GetParam());
    if (name == QStringLiteral("FrmPres") || name == QStringLiteral("FrmLanguage")) {
      open(new FrmPres);
      if (name == QStringLiteral("FrmPres")) return stage.top();
      click("C_LinguaSel");
      return QApplication::activeModalWidget();
    }
    if (name == QStringLiteral("FrmPrincipale")) return &open(new FrmPrincipale{QStringLiteral("4")});
    return &open(name);
  }

  static void look_at(QWidget& screen, const Check& check, const std::string& when) {
    let_screens_settle();
    for (const QString& complaint : check(screen)) ADD_FAILURE() << complaint.toStdString() << ", " << when;
  }

  /// The language that a file belongs to; what is built in without any is English.
  static std::uint8_t number_of(std::string_view file) {
    for (std::size_t i = 0; i < languages.size(); ++i) {
      if (languages[i].file == file) return static_cast<std::uint8_t>(i);
    }
    return 0;
  }

  /// Runs the check in each of the ways in which the screen can be seen: with the built-in captions and in English.
  void look_in_every_way(const Check& check) {
    look({"", "FrmDescEng.txt"}, {Global::model_z300, Global::model_z320}, check);
  }

  void look(const std::vector<std::string_view>& files, const std::vector<std::uint8_t>& models, const Check& check) {
    for (const std::string_view file : files) {
      reset_catalogue();
      ASSERT_TRUE(file.empty() || read_language_file(file));
      LanguageNumber = number_of(file);
      for (const auto model : models) {
        for (const QSize size : {QSize{1024, 700}, QSize{900, 600}}) {
          start_session(model);
          stage.resize(size);
          QWidget* screen = opened();
          ASSERT_NE(screen, nullptr);
          ASSERT_EQ(stage.size(), size) << "the window can't be made that small";
          const std::string when = std::string{model == Global::model_z320 ? "Z320" : "Z300"} + " at " +
                                   std::to_string(size.width()) + " x " + std::to_string(size.height()) + ", " +
                                   (file.empty() ? "built-in captions" : std::string{file});
          look_at(*screen, check, when);
          for (auto* tabs : screen->findChildren<QTabWidget*>()) {
            for (int i = 1; i < tabs->count(); ++i) {
              tabs->setCurrentIndex(i);
              look_at(*screen, check, when + ", tab " + std::to_string(i) + " of " + tabs->objectName().toStdString());
            }
            // Tabs may lie on the first tab of others.
            tabs->setCurrentIndex(0);
          }
          if (screen->isWindow()) screen->close();
          let_screens_settle();
          stage.activateWindow();
        }
      }
    }
    LanguageNumber = 0;
  }
};

using AtEverySize = EveryScreen;
using InEveryLanguage = EveryScreen;

TEST_P(AtEverySize, ControlsHaveNamesOfTheirOwn) {
  look_in_every_way(complaints_about_names);
}

TEST_P(AtEverySize, NoTextIsCutOff) {
  look_in_every_way(complaints_about_cut_texts);
}

TEST_P(AtEverySize, NothingOverlapsOrReachesOut) {
  look_in_every_way(complaints_about_places);
}

TEST_P(AtEverySize, WhatTakesTheFocusSaysWhatItIs) {
  look_in_every_way(complaints_about_silent_controls);
}

TEST_P(AtEverySize, TabReachesEverything) {
  look_in_every_way(complaints_about_tab);
}

TEST_P(AtEverySize, TheDisplayIsTheOneThatWasAskedFor) {
  const double wanted =
      qEnvironmentVariableIsSet("QT_SCALE_FACTOR") ? qEnvironmentVariable("QT_SCALE_FACTOR").toDouble() : 1;
  EXPECT_EQ(stage.devicePixelRatioF(), wanted);
}

// The Z320 has every control that the Z300 has.
TEST_P(InEveryLanguage, EveryTextHasItsRoomAndNoLetterIsMarkedTwice) {
  std::vector<std::string_view> files;
  for (const Language& language : languages) files.push_back(language.file);
  look(files, {Global::model_z320}, [](QWidget& screen) {
    return complaints_about_cut_texts(screen) + complaints_about_places(screen) + complaints_about_letter_marks(screen);
  });
}

std::vector<std::string> all_screens() {
  register_screens();
  std::vector<std::string> names = {"FrmPres", "FrmLanguage", "FrmPrincipale", "FrmSetup"};
  for (const QString& name : screen_names()) names.push_back(name.toStdString());
  return names;
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, AtEverySize, ::testing::ValuesIn(all_screens()),
                         [](const auto& screen) { return screen.param; });
INSTANTIATE_TEST_SUITE_P(OfTheProgram, InEveryLanguage, ::testing::ValuesIn(all_screens()),
                         [](const auto& screen) { return screen.param; });

}  // namespace
}  // namespace ecr::test
