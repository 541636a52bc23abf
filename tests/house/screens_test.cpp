// Every screen of the program on both models, at the size it opens with and at the smallest one, with and without a
// catalogue, each opened once for all checks. What lies at every size runs once more on a display with twice the
// pixels.

#include <cctype>
#include <gtest/gtest.h>

#include <QApplication>
#include <QTabWidget>

#include "app/entry.h"
#include "core/catalogue.h"
#include "core/global.h"
#include "house/screen_check.h"
#include "lang/language.h"
#include "screens/frm_pres.h"
#include "screens/frm_principale.h"
#include "screens/screen_factory.h"
#include "support_qt/screen_test.h"

namespace ecr::test {
namespace {

constexpr std::string_view english = "FrmDescEng.txt";

struct Check {
  const char* of;
  QStringList (*complaints)(QWidget& screen);
};

const std::vector<Check> all_checks = {
    {"names", [](QWidget& screen) { return complaints_about_names(screen); }},
    {"texts", [](QWidget& screen) { return complaints_about_cut_texts(screen); }},
    {"places", [](QWidget& screen) { return complaints_about_places(screen); }},
    {"letter marks", [](QWidget& screen) { return complaints_about_letter_marks(screen); }},
    {"silent controls", [](QWidget& screen) { return complaints_about_silent_controls(screen); }},
    {"the way by Tab", complaints_about_tab},
};
// What changes with the language.
const std::vector<Check> of_texts = {
    {"texts", [](QWidget& screen) { return complaints_about_cut_texts(screen); }},
    {"places", [](QWidget& screen) { return complaints_about_places(screen); }},
    {"letter marks", [](QWidget& screen) { return complaints_about_letter_marks(screen); }},
};

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

  static void look_at(QWidget& screen, const std::vector<Check>& checks, const std::string& when) {
    let_screens_settle();
    for (const Check& check : checks) {
      for (const QString& complaint : check.complaints(screen)) {
        ADD_FAILURE() << check.of << ": " << complaint.toStdString() << ", " << when;
      }
    }
  }

  /// The language that a file belongs to; what is built in without any is English.
  static std::uint8_t number_of(std::string_view file) {
    for (std::size_t i = 0; i < languages.size(); ++i) {
      if (languages[i].file == file) return static_cast<std::uint8_t>(i);
    }
    return 0;
  }

  /// Opens the screen in every combination, and checks on each of its tabs.
  void look(const std::vector<std::string_view>& files, const std::vector<std::uint8_t>& models,
            const std::vector<Check>& checks) {
    if (qEnvironmentVariableIsSet("QT_SCALE_FACTOR")) {
      ASSERT_EQ(stage.devicePixelRatioF(), qEnvironmentVariable("QT_SCALE_FACTOR").toDouble());
    }
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
          look_at(*screen, checks, when);
          for (auto* tabs : screen->findChildren<QTabWidget*>()) {
            for (int i = 1; i < tabs->count(); ++i) {
              tabs->setCurrentIndex(i);
              look_at(*screen, checks, when + ", tab " + std::to_string(i) + " of " + tabs->objectName().toStdString());
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

TEST_P(EveryScreen, StandsAndIsReachedAtEverySize) {
  look({"", english}, {Global::model_z300, Global::model_z320}, all_checks);
}

// English is among the above. The Z320 has every control that the Z300 has.
TEST_P(EveryScreen, HasRoomForEveryLanguageAndMarksNoLetterTwice) {
  std::vector<std::string_view> files;
  for (const Language& language : languages) {
    if (language.file != english) files.push_back(language.file);
  }
  look(files, {Global::model_z320}, of_texts);
}

std::vector<std::string> all_screens() {
  register_screens();
  std::vector<std::string> names = {"FrmPres", "FrmLanguage", "FrmPrincipale", "FrmSetup"};
  for (const QString& name : screen_names()) names.push_back(name.toStdString());
  return names;
}

INSTANTIATE_TEST_SUITE_P(OfTheProgram, EveryScreen, ::testing::ValuesIn(all_screens()),
                         [](const auto& screen) { return screen.param; });

}  // namespace
}  // namespace ecr::test
