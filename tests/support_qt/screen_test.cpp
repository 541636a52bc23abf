#include "support_qt/screen_test.h"

#include <cstdlib>
#include <filesystem>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QPointer>
#include <QTest>

#include "app/entry.h"
#include "core/catalogue.h"
#include "core/global.h"
#include "image/prg_plu.h"
#include "keyboard/key_default.h"
#include "lang/language.h"
#include "logo/journal_file.h"
#include "reports/export_option.h"
#include "screens/frm_principale.h"
#include "screens/frm_setup.h"
#include "screens/screen_factory.h"

namespace ecr::test {
namespace fs = std::filesystem;

Answer WatchedShell::box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) {
  const Box shown{kind, buttons, std::string{text}, std::string{title}};
  boxes.push_back(shown);
  return answer ? answer(shown) : scripted_.box(kind, buttons, text, title);
}

void WatchedShell::let_screens_work() {
  scripted_.let_screens_work();
}

void WatchedShell::pointer(Pointer pointer) {
  if (on_pointer) on_pointer(pointer);
  scripted_.pointer(pointer);
}

void WatchedShell::run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) {
  if (on_run_beside) on_run_beside(waiting);
  scripted_.run_beside(what, waiting, job);
}

void WatchedShell::wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) {
  scripted_.wait_until(what, seconds, done);
}

void WatchedShell::end_program() {
  if (!in_copy) throw ProgramEnded{};
  const bool all_boxes_came = boxes.size() == expected;
  EXPECT_TRUE(all_boxes_came) << "not every box that was expected came before the program ended";
  std::_Exit(all_boxes_came && !::testing::Test::HasFailure() ? EXIT_SUCCESS : EXIT_FAILURE);
}

ScreenTest::ScreenTest() {
  register_screens();
  reset_export_option();
  reset_key_default();
  reset_journal();
  stage.show();
  work_until([this] { return stage.isActiveWindow(); });
}

void ScreenTest::TearDown() {
  let_screens_settle();
  stage.hide();
  qDeleteAll(stage.findChildren<QWidget*>(QString{}, Qt::FindDirectChildrenOnly));
}

Screen& ScreenTest::open(const QString& name) {
  if (name == QStringLiteral("FrmPrincipale")) return open(new FrmPrincipale{{}});
  if (name == QStringLiteral("FrmSetup")) return open(new FrmSetup);
  if (!has_screen(name)) throw std::runtime_error{"no such screen: " + name.toStdString()};
  return open(make_screen(name));
}

Screen& ScreenTest::open(Screen* screen) {
  stage.open(screen);
  let_screens_settle();
  return *screen;
}

QString ScreenTest::top() const {
  return stage.top() == nullptr ? QString{} : stage.top()->objectName();
}

QWidget* ScreenTest::find(const QString& name) const {
  const QWidget* within = QApplication::activeModalWidget();
  if (within == nullptr) within = stage.top();
  return within == nullptr ? nullptr : within->findChild<QWidget*>(name);
}

QString ScreenTest::caption(const QString& name) const {
  const QWidget& named = control(name);
  if (const auto* button = qobject_cast<const QAbstractButton*>(&named)) return button->text();
  if (const auto* label = qobject_cast<const QLabel*>(&named)) return label->text();
  if (const auto* box = qobject_cast<const QGroupBox*>(&named)) return box->title();
  throw std::runtime_error{"no caption: " + name.toStdString()};
}

void ScreenTest::expect_box(BoxKind kind, const std::string& text, Answer answer) {
  ++watched.expected;
  shell.expect_box(kind, text, answer);
}

void ScreenTest::lay_down(const PrgModeImage& image) const {
  write("Dati/PRG_MODE.BIN", file_bytes(image));
  write("Dati/PRG_PLU.BIN", empty_item_file());
  PrgMode = image;
  Read_PrgPlu();
}

void ScreenTest::start_session(std::uint8_t model) {
  Global::choose_model(model);
  Global::ComPort = 4;
  lay_down(good_image(model));
  take_decimal_point();
}

void ScreenTest::install_setup() const {
  ASSERT_TRUE(fs::exists(VERMANTO_SETUP)) << "the build has no Setup folder";
  fs::copy(VERMANTO_SETUP, host("Setup"), fs::copy_options::recursive | fs::copy_options::overwrite_existing);
}

void ScreenTest::fill_catalogue() const {
  install_setup();
  ASSERT_TRUE(read_language_file("FrmDescEng.txt"));
  carica_messaggi_default();
}

void ScreenTest::expect_program_ends(const std::function<void()>& body) {
  EXPECT_EXIT(
      {
        watched.in_copy = true;
        body();
      },
      ::testing::ExitedWithCode(EXIT_SUCCESS), "");
}

}  // namespace ecr::test
