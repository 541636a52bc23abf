#include "widgets/qt_shell.h"

#include <atomic>
#include <future>
#include <gtest/gtest.h>
#include <thread>

#include <QApplication>
#include <QElapsedTimer>
#include <QProgressBar>
#include <QPushButton>
#include <QTest>

#include "core/catalogue.h"
#include "lang/language.h"
#include "widgets/plain_screen.h"
#include "widgets/real_shell.h"
#include "widgets/wait_panel.h"

namespace ecr::test {
namespace {

constexpr std::chrono::seconds patience{20};

/// Counts how often something is painted.
class Paints : public QObject {
 public:
  explicit Paints(QWidget& watched) { watched.installEventFilter(this); }
  int count = 0;

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return QObject::eventFilter(watched, event);
  }
};

/// A job that goes on until the screen thread releases it.
class HeldJob {
 public:
  void operator()() {
    ran_on = std::this_thread::get_id();
    in_time = released_.get_future().wait_for(patience) == std::future_status::ready;
  }
  void release() {
    if (!told_.exchange(true)) released_.set_value();
  }
  std::thread::id ran_on;
  std::atomic<bool> in_time = false;

 private:
  std::promise<void> released_;
  std::atomic<bool> told_ = false;
};

class QtShellTest : public RealShellTest {
 protected:
  QtShellTest()
      : screen{new PlainScreen},
        button{screen->put(new CommandButton{QStringLiteral("C_Go"), screen})},
        field{screen->put(new Field{QStringLiteral("E_Field"), screen})} {
    button.on_click([this] { ++pressed; });
    screen->first = &button;
    open(screen);
  }

  [[nodiscard]] QWidget* panel() const { return stage.findChild<QWidget*>(QStringLiteral("WaitPanel")); }
  [[nodiscard]] bool panel_is_up() const { return panel() != nullptr && panel()->isVisible(); }

  /// A person who does not see that a wait is on: presses the button, types into the field, closes the window.
  void try_everything() {
    QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      button.mapTo(&stage, button.rect().center()));
    QTest::mouseClick(&button, Qt::LeftButton);
    QTest::keyClick(&button, Qt::Key_Space);
    QTest::keyClick(&field, Qt::Key_X);
    stage.close();
  }

  PlainScreen* screen;
  CommandButton& button;
  Field& field;
  int pressed = 0;
};

using Buttons = QMessageBox::StandardButtons;

TEST_F(QtShellTest, ABoxHasTheIconOfItsKind) {
  const std::pair<BoxKind, QMessageBox::Icon> icons[] = {{BoxKind::plain, QMessageBox::NoIcon},
                                                         {BoxKind::information, QMessageBox::Information},
                                                         {BoxKind::question, QMessageBox::Question},
                                                         {BoxKind::warning, QMessageBox::Warning},
                                                         {BoxKind::critical, QMessageBox::Critical}};
  for (const auto& [kind, icon] : icons) {
    QMessageBox::Icon shown{};
    when_a_box_is_up([&](QMessageBox& box) {
      shown = box.icon();
      box.button(QMessageBox::Ok)->click();
    });
    EXPECT_EQ(real.box(kind, BoxButtons::ok, "text", ""), Answer::ok);
    EXPECT_EQ(shown, icon);
  }
}

TEST_F(QtShellTest, ABoxHasItsButtonsAndAnswersTheOneThatIsPressed) {
  struct Case {
    BoxButtons buttons;
    Buttons shown;
    QMessageBox::StandardButton press;
    Answer answer;
  };
  const Buttons yes_no = QMessageBox::Yes | QMessageBox::No;
  const Case cases[] = {{BoxButtons::ok, QMessageBox::Ok, QMessageBox::Ok, Answer::ok},
                        {BoxButtons::yes_no, yes_no, QMessageBox::Yes, Answer::yes},
                        {BoxButtons::yes_no, yes_no, QMessageBox::No, Answer::no},
                        {BoxButtons::yes_no_cancel, yes_no | QMessageBox::Cancel, QMessageBox::Yes, Answer::yes},
                        {BoxButtons::yes_no_cancel, yes_no | QMessageBox::Cancel, QMessageBox::No, Answer::no},
                        {BoxButtons::yes_no_cancel, yes_no | QMessageBox::Cancel, QMessageBox::Cancel, Answer::cancel}};
  for (const Case& one : cases) {
    Buttons shown;
    when_a_box_is_up([&](QMessageBox& box) {
      shown = box.standardButtons();
      test::click(*box.button(one.press));
    });
    EXPECT_EQ(real.box(BoxKind::plain, one.buttons, "text", ""), one.answer);
    EXPECT_EQ(shown, one.shown);
  }
}

TEST_F(QtShellTest, EnterAnswersYesAndEscapeTheButtonThatDoesNothing) {
  struct Case {
    BoxButtons buttons;
    Qt::Key key;
    Answer answer;
  };
  const Case cases[] = {{BoxButtons::ok, Qt::Key_Return, Answer::ok},
                        {BoxButtons::ok, Qt::Key_Escape, Answer::ok},
                        {BoxButtons::yes_no, Qt::Key_Return, Answer::yes},
                        {BoxButtons::yes_no, Qt::Key_Escape, Answer::no},
                        {BoxButtons::yes_no_cancel, Qt::Key_Return, Answer::yes},
                        {BoxButtons::yes_no_cancel, Qt::Key_Escape, Answer::cancel}};
  for (const Case& one : cases) {
    when_a_box_is_up([&](QMessageBox&) { press(one.key); });
    EXPECT_EQ(real.box(BoxKind::question, one.buttons, "text", ""), one.answer);
  }
}

TEST_F(QtShellTest, ABoxReadsItsTextAsItIs) {
  QString text;
  Qt::TextFormat format{};
  when_a_box_is_up([&](QMessageBox& box) {
    text = box.text();
    format = box.textFormat();
    box.close();
  });
  real.box(BoxKind::plain, BoxButtons::ok, "one\rtwo <b>&</b> \x80", "");
  EXPECT_EQ(text, QStringLiteral("one\ntwo <b>&</b> €"));
  EXPECT_EQ(format, Qt::PlainText);
}

TEST_F(QtShellTest, AnEmptyTextIsAnEmptyBox) {
  QString text = QStringLiteral("not looked at");
  when_a_box_is_up([&](QMessageBox& box) {
    text = box.text();
    box.close();
  });
  EXPECT_EQ(real.box(BoxKind::plain, BoxButtons::ok, "", ""), Answer::ok);
  EXPECT_EQ(text, QString{});
}

TEST_F(QtShellTest, ABoxHasItsOwnTitleOrTheProgramsName) {
  QStringList titles;
  for (const char* title : {"Reset\x85", ""}) {
    when_a_box_is_up([&](QMessageBox& box) {
      titles.append(box.windowTitle());
      box.close();
    });
    real.box(BoxKind::plain, BoxButtons::ok, "text", title);
  }
  EXPECT_EQ(titles, QStringList({QStringLiteral("Reset…"), QStringLiteral("Vermanto ECR Programming Utility")}));
}

TEST_F(QtShellTest, AQuestionsAnswersReadTheCataloguesWords) {
  set_message(Key::FRM_ALL_YES, "Ja");
  set_message(Key::FRM_ALL_NO, "Nee");
  QStringList words;
  when_a_box_is_up([&](QMessageBox& box) {
    words = {box.button(QMessageBox::Yes)->text(), box.button(QMessageBox::No)->text()};
    test::click(*box.button(QMessageBox::No));
  });
  EXPECT_EQ(real.box(BoxKind::plain, BoxButtons::yes_no_cancel, "text", ""), Answer::no);
  EXPECT_EQ(words, QStringList({"Ja", "Nee"}));
}

TEST_F(QtShellTest, TheScreensTakeNoInputWhileABoxIsUp) {
  when_a_box_is_up([&](QMessageBox& box) {
    QTest::mouseClick(stage.windowHandle(), Qt::LeftButton, Qt::NoModifier,
                      button.mapTo(&stage, button.rect().center()));
    box.close();
  });
  real.box(BoxKind::plain, BoxButtons::ok, "text", "");
  EXPECT_EQ(pressed, 0);
}

TEST_F(QtShellTest, ThePointerIsThePersonsOwnWhileABoxIsUp) {
  bool busy_under_box = true;
  when_a_box_is_up([&](QMessageBox& box) {
    busy_under_box = QApplication::overrideCursor() != nullptr;
    box.close();
  });
  const BusyPointer outer;
  const BusyPointer inner;
  real.box(BoxKind::plain, BoxButtons::ok, "text", "");
  EXPECT_FALSE(busy_under_box);
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
}

TEST_F(QtShellTest, TheBusyPointerStaysUntilTheLastWhoAskedForItIsDone) {
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  {
    const BusyPointer outer;
    EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    {
      const BusyPointer inner;
      EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::WaitCursor);
    }
    ASSERT_NE(QApplication::overrideCursor(), nullptr);
  }
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  real.pointer(Pointer::normal);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  real.pointer(Pointer::busy);
  EXPECT_NE(QApplication::overrideCursor(), nullptr) << "one normal too many counts for nothing";
  real.pointer(Pointer::normal);
}

TEST_F(QtShellTest, LettingTheScreensWorkHandlesWhatHasComeIn) {
  int turns = 0;
  QTimer::singleShot(0, &stage, [&turns] { ++turns; });
  real.let_screens_work();
  EXPECT_EQ(turns, 1);
}

TEST_F(QtShellTest, AJobRunsOnAThreadOfItsOwnWhileTimersAndPaintingGoOn) {
  for (const Waiting waiting : {Waiting::modal, Waiting::background}) {
    HeldJob job;
    Paints paints{*screen};
    int ticks = 0;
    QTimer timer;
    QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
      if (++ticks == 1) screen->update();
      if (ticks > 3 && paints.count > 0) job.release();
    });
    timer.start(1);
    real.run_beside({}, waiting, [&job] { job(); });
    EXPECT_TRUE(job.in_time);
    EXPECT_NE(job.ran_on, std::this_thread::get_id());
    EXPECT_GT(ticks, 3);
  }
}

TEST_F(QtShellTest, AJobThatIsDoneAtOnceReturns) {
  for (int i = 0; i < 50; ++i) {
    bool ran = false;
    real.run_beside({}, i % 2 == 0 ? Waiting::modal : Waiting::background, [&ran] { ran = true; });
    EXPECT_TRUE(ran);
  }
}

TEST_F(QtShellTest, AModalJobSwallowsInput) {
  HeldJob job;
  QTimer::singleShot(0, &stage, [&] {
    try_everything();
    job.release();
  });
  real.run_beside({}, Waiting::modal, [&job] { job(); });
  EXPECT_EQ(pressed, 0);
  EXPECT_EQ(field.text(), QString{});
  EXPECT_EQ(stage.top(), screen) << "the close box does nothing either";
  EXPECT_TRUE(stage.isVisible());
  click(button);
  EXPECT_EQ(pressed, 1) << "behind the job everything is as before";
}

TEST_F(QtShellTest, ABackgroundJobLetsInputIn) {
  HeldJob job;
  QTimer::singleShot(0, &stage, [&] {
    click(button);
    click(field);
    type(QStringLiteral("x"));
    job.release();
  });
  real.run_beside({}, Waiting::background, [&job] { job(); });
  EXPECT_EQ(pressed, 1);
  EXPECT_EQ(field.text(), QStringLiteral("x"));
  EXPECT_EQ(panel(), nullptr);
}

TEST_F(QtShellTest, AHandlerDuringABackgroundJobMayRunAnotherJob) {
  HeldJob outer;
  bool inner_ran = false;
  button.on_click([&] {
    real.run_beside({}, Waiting::modal, [&inner_ran] { inner_ran = true; });
    outer.release();
  });
  QTimer::singleShot(0, &stage, [&] { click(button); });
  real.run_beside({}, Waiting::background, [&outer] { outer(); });
  EXPECT_TRUE(inner_ran);
  EXPECT_TRUE(outer.in_time);
}

TEST_F(QtShellTest, AnOuterJobThatEndsFirstIsNotMissed) {
  std::promise<void> outer_over;
  std::future<void> over = outer_over.get_future();
  button.on_click([&] {
    real.run_beside({}, Waiting::background, [&] { EXPECT_EQ(over.wait_for(patience), std::future_status::ready); });
  });
  QTimer::singleShot(0, &stage, [&] { click(button); });
  bool asked = false;
  real.run_beside({}, Waiting::background, [&] {
    outer_over.set_value();
    asked = true;
  });
  EXPECT_TRUE(asked);
  let_screens_settle();
}

TEST_F(QtShellTest, AWaitThatIsOverAtOnceShowsNothing) {
  int asked = 0;
  real.wait_until({}, 60, [&] {
    ++asked;
    return true;
  });
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(panel(), nullptr);
}

TEST_F(QtShellTest, AShortWaitShowsNoPanel) {
  int asked = 0;
  bool seen = false;
  real.wait_until({}, 60, [&] {
    seen = seen || panel_is_up();
    return ++asked == 3;
  });
  EXPECT_EQ(asked, 3);
  EXPECT_FALSE(seen);
  EXPECT_EQ(panel(), nullptr) << "behind the wait it is gone";
}

TEST_F(QtShellTest, ALongerWaitShowsWhatGoesOnAfterAMoment) {
  QElapsedTimer since_start;
  since_start.start();
  qint64 shown_after = -1;
  QString what;
  int value = -1;
  int most = 0;
  QString rest;
  real.wait_until({Work::taking_in_items}, 60, [&] {
    if (!panel_is_up()) return false;
    if (shown_after < 0) shown_after = since_start.elapsed();
    what = panel()->findChild<QLabel*>(QStringLiteral("WaitWhat"))->text();
    const auto* bar = panel()->findChild<QProgressBar*>(QStringLiteral("WaitBar"));
    rest = panel()->findChild<QLabel*>(QStringLiteral("WaitRest"))->text();
    most = bar->maximum();
    if (value < 0) value = bar->value();
    // The bar moves on.
    return bar->value() > value;
  });
  EXPECT_GE(shown_after, WaitPanel::shown_after_ms - 5);
  EXPECT_EQ(what, QStringLiteral("The register is taking in the changed items"));
  EXPECT_EQ(most, 60'000);
  EXPECT_TRUE(rest == QStringLiteral("1:00 left") || rest == QStringLiteral("0:59 left")) << qPrintable(rest);
}

TEST_F(QtShellTest, AWaitIsNamedInTheChosenLanguage) {
  LanguageNumber = 3;
  QString what;
  real.wait_until({Work::taking_in_items}, 60, [&] {
    if (panel_is_up()) what = panel()->findChild<QLabel*>(QStringLiteral("WaitWhat"))->text();
    return !what.isEmpty();
  });
  LanguageNumber = 0;
  EXPECT_EQ(what, QStringLiteral("Die Kasse übernimmt die geänderten Artikel"));
}

TEST_F(QtShellTest, AWaitTellsItsRestInTheChosenLanguage) {
  LanguageNumber = 6;
  QString rest;
  real.wait_until({}, 60, [&] {
    if (panel_is_up()) rest = panel()->findChild<QLabel*>(QStringLiteral("WaitRest"))->text();
    return !rest.isEmpty();
  });
  LanguageNumber = 0;
  EXPECT_TRUE(rest == QStringLiteral("1:00 tilbage") || rest == QStringLiteral("0:59 tilbage")) << qPrintable(rest);
}

TEST_F(QtShellTest, AWaitOfUnknownLengthRunsToAndFro) {
  HeldJob job;
  bool endless = false;
  bool tells_rest = true;
  QTimer timer;
  QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
    if (!panel_is_up()) return;
    const auto* bar = panel()->findChild<QProgressBar*>(QStringLiteral("WaitBar"));
    endless = bar->minimum() == 0 && bar->maximum() == 0;
    tells_rest = panel()->findChild<QLabel*>(QStringLiteral("WaitRest"))->isVisible();
    job.release();
  });
  timer.start(1);
  real.run_beside({Work::reading_items}, Waiting::modal, [&job] { job(); });
  EXPECT_TRUE(endless);
  EXPECT_FALSE(tells_rest);
  EXPECT_EQ(panel(), nullptr);
}

TEST_F(QtShellTest, TheStepsOfOneWorkTellHowFarItIs) {
  struct Seen {
    QString what;
    QString rest;
    int value;
    int most;
    qint64 after;
  };
  std::vector<Seen> seen;
  {
    WaitSteps steps{3};
    for (const char* what : {"All items", "", "Hours"}) {
      steps.next(QString::fromLatin1(what));
      QElapsedTimer since_start;
      since_start.start();
      HeldJob job;
      QTimer timer;
      QObject::connect(&timer, &QTimer::timeout, &timer, [&] {
        if (!panel_is_up()) return;
        const auto* bar = panel()->findChild<QProgressBar*>(QStringLiteral("WaitBar"));
        seen.push_back({panel()->findChild<QLabel*>(QStringLiteral("WaitWhat"))->text(),
                        panel()->findChild<QLabel*>(QStringLiteral("WaitRest"))->text(), bar->value(), bar->maximum(),
                        since_start.elapsed()});
        timer.stop();
        job.release();
      });
      timer.start(1);
      real.run_beside({Work::reading_items}, Waiting::modal, [&job] { job(); });
    }
  }
  ASSERT_EQ(seen.size(), 3U);
  EXPECT_EQ(seen[0].what, QStringLiteral("All items"));
  EXPECT_EQ(seen[1].what, QStringLiteral("Reading the items from the register"));
  EXPECT_EQ(seen[2].what, QStringLiteral("Hours"));
  EXPECT_EQ(seen[0].rest, QStringLiteral("1 of 3"));
  EXPECT_EQ(seen[2].rest, QStringLiteral("3 of 3"));
  EXPECT_EQ(seen[2].value, 2);
  EXPECT_EQ(seen[2].most, 3);
  EXPECT_GE(seen[0].after, WaitPanel::shown_after_ms - 5);
  EXPECT_LT(seen[1].after, WaitPanel::shown_after_ms) << "once the panel is up it comes up again at once";
}

TEST_F(QtShellTest, ThePanelCoversTheWholeWindowAlsoWhenThatGrows) {
  QRect before;
  QRect after;
  real.wait_until({}, 60, [&] {
    if (!panel_is_up()) return false;
    before = panel()->geometry();
    stage.resize(stage.size() + QSize{60, 40});
    QCoreApplication::processEvents();
    after = panel()->geometry();
    return true;
  });
  EXPECT_EQ(before.size() + QSize(60, 40), after.size());
  EXPECT_EQ(after, stage.rect());
}

TEST_F(QtShellTest, AWaitSwallowsInputFromItsFirstMomentOn) {
  int turn = 0;
  real.wait_until({}, 60, [&] {
    // Not at the first question, which comes before the wait.
    if (++turn == 2) try_everything();
    return turn == 4;
  });
  EXPECT_EQ(pressed, 0);
  EXPECT_EQ(field.text(), QString{});
  EXPECT_EQ(stage.top(), screen);
  click(button);
  EXPECT_EQ(pressed, 1);
}

TEST_F(QtShellTest, WhatCameInBeforeAWaitIsHandled) {
  QMetaObject::invokeMethod(
      &button, [this] { button.click(); }, Qt::QueuedConnection);
  int pressed_at_first = -1;
  real.wait_until({}, 1, [&] {
    pressed_at_first = pressed;
    return true;
  });
  EXPECT_EQ(pressed_at_first, 1);
}

using QtShellDeathTest = QtShellTest;

TEST_F(QtShellDeathTest, EndsTheProcessAtOnceWithStatus0) {
  EXPECT_EXIT(real.end_program(), ::testing::ExitedWithCode(0), "");
}

TEST_F(QtShellDeathTest, EndsItFromWithinAHandlerAsWell) {
  button.on_click([this] { real.end_program(); });
  EXPECT_EXIT(click(button), ::testing::ExitedWithCode(0), "");
}

}  // namespace
}  // namespace ecr::test
