// A script that is at fault is told so: status 2.

#include <QFile>

#include "robot_run.h"

namespace ecr::test {
namespace {

using AScriptAtFault = WrongScript;

TEST_P(AScriptAtFault, IsToldWhatWasExpectedAndWhatWasFound) {
  check(2);
}

// clang-format off
constexpr Wrong forms[] = {
    {"unknown_word", "clik C_Ask", "a command", "unknown word \"clik\""},
    {"unknown_word_in_capitals", "Start", "a command", "unknown word \"Start\""},
    {"unknown_register_word", "register burn", "a command", "unknown word \"register burn\""},
    {"register_alone", "register", "a command", "unknown word \"register\""},
    {"too_few_words", "expect C_Ask", "expect CONTROL TEXT", "no TEXT"},
    {"too_many_words", "close it", "close", "\"it\" too much"},
    {"no_number", "row Fg_Grid x", "row CONTROL ROW", "\"x\" for ROW"},
    {"negative_number", "tab Tab_Few -1", "tab CONTROL N", "\"-1\" for N"},
    {"number_far_too_large", "expect-count Tab_Few 12345678901", "expect-count CONTROL N", "\"12345678901\" for N"},
    {"no_seconds", "wait 1.2.3", "wait SECONDS", "\"1.2.3\" for SECONDS"},
    {"neither_on_nor_off", "check Chk_Option yes", "check CONTROL on|off", "\"yes\" for on|off"},
    {"neither_yes_nor_no", "expect-visible Chk_Option on", "expect-visible CONTROL yes|no", "\"on\" for yes|no"},
    {"unknown_kind_of_box", "box error * Ok", "box plain|information|question|warning|critical|any TEXT Ok|Yes|No|Cancel", "\"error\" for plain|information|question|warning|critical|any"},
    {"unknown_button", "box any * Abort", "box plain|information|question|warning|critical|any TEXT Ok|Yes|No|Cancel", "\"Abort\" for Ok|Yes|No|Cancel"},
    {"unknown_colour", "expect-colour L_Red blue", "expect-colour CONTROL black|red|green", "\"blue\" for black|red|green"},
    {"unknown_key", "key Return", "key KEY [N]", "\"Return\" for KEY"},
    {"unknown_modifier", "key Meta+A", "key KEY [N]", "\"Meta+A\" for KEY"},
    {"half_a_byte", "poke a 0 012", "poke PATH OFFSET HEX", "\"012\" for HEX"},
    {"no_hex", "expect-bytes a 0 0G", "expect-bytes PATH OFFSET HEX", "\"0G\" for HEX"},
    {"more_than_one_byte_to_fill", "fill a 0 1 0000", "fill PATH OFFSET N BYTE", "\"0000\" for BYTE"},
    {"unknown_word_about_a_file", "expect-file a there", "expect-file PATH exists|missing|folder / PATH size N", "\"there\" for size"},
    {"size_without_a_number", "expect-file a size", "expect-file PATH exists|missing|folder / PATH size N", "no N"},
    {"quote_left_open", "keys \"abc", "a text that ends with a double quote", "the end of the line"},
    {"quote_left_open_by_an_escape", "keys \"abc\\\"", "a text that ends with a double quote", "the end of the line"},
    {"text_right_behind_a_quote", "keys \"abc\"d", "a blank behind a text in quotes", "d"},
    {"unknown_escape", "keys \"a\\d\"", "\\\", \\\\, \\n, \\r, \\t or \\x with two hexadecimal digits", "\\d"},
    {"half_an_escaped_byte", "keys \"\\x4\"", "\\\", \\\\, \\n, \\r, \\t or \\x with two hexadecimal digits", "\\x4\""},
    {"unknown_model", "register model Z310", "register model Z300|Z320", "\"Z310\" for Z300|Z320"},
    {"unknown_release", "register release RELEASE", "register release RELEASE.BIN|RELEA.BIN|none", "\"RELEASE\" for RELEASE.BIN|RELEA.BIN|none"},
    {"include_of_nothing", "include", "include SCRIPT", "no SCRIPT"},
    {"include_of_two", "include a.robot b.robot", "include SCRIPT", "\"b.robot\" too much"},
    {"include_of_no_file", "include shared/none.robot", "a script shared/none.robot", "no such file"},
    {"include_of_a_folder", "include temporary", "a script temporary", "no such file"},
    {"include_of_itself", "# first\ninclude ./case.robot", "a script that is not being read already", "case.robot"},
    {"unknown_logo", "register logo abnormal", "register logo normal / CODE", "\"abnormal\" for CODE"},
};

constexpr Wrong controls[] = {
    {"no_such_control", "start\nclick C_Asks", "a control C_Asks on FrmPracticeStart", "no such control; nearest are C_Ask, *"},
    {"control_of_another_page", "start\nexpect E_Name Anna", "a control E_Name on FrmPracticeStart", "no such control; nearest are C_*"},
    {"control_of_a_window_behind", "start\nclick C_Dialog\nclick C_Ask", "a control C_Ask on FrmPracticeDialog", "no such control; nearest are C_Leave, C_Change, L_Text, FrmPracticeDialog"},
    {"checked_label", "start\nclick C_Fields\nexpect-checked L_Raw on", "L_Raw is a box that can be checked", "it is a QLabel"},
    {"entries_of_a_label", "start\nclick C_Fields\nexpect-items L_Raw", "L_Raw is a list", "it is a QLabel"},
    {"count_of_a_label", "start\nclick C_Fields\nexpect-count L_Raw 0", "L_Raw is a list", "it is a QLabel"},
    {"cell_of_a_label", "start\nclick C_Fields\nexpect-cell L_Raw 0 0 x", "L_Raw is a grid", "it is a QLabel"},
    {"tab_of_a_label", "start\nclick C_Fields\nexpect-tab L_Raw 0", "L_Raw is a tab control", "it is a QLabel"},
    {"cursor_of_a_label", "start\nclick C_Fields\nexpect-cursor L_Raw 0", "L_Raw is a field with a text cursor", "it is a QLabel"},
    {"length_of_a_label", "start\nclick C_Fields\nexpect-maxlength L_Raw 0", "L_Raw is a field with a maximum length", "it is a QLabel"},
    {"text_of_a_thing_without", "start\nclick C_Fields\nexpect W_Cover x", "W_Cover is something with a text", "it is a QWidget"},
    {"paste_into_a_button", "start\npaste C_Ask x", "C_Ask is a field", "nothing can be pasted into it"},
    {"choose_from_a_button", "start\nchoose C_Ask x", "C_Ask is a list", "it is a QPushButton"},
    {"row_of_a_button", "start\nrow C_Ask 1", "C_Ask is a grid", "it is a QPushButton"},
    {"tab_of_a_button", "start\ntab C_Ask 1", "C_Ask is a tab control", "it is a QPushButton"},
    {"check_a_button", "start\ncheck C_Ask on", "C_Ask is a box that can be checked", "it is a QPushButton"},
};

constexpr Wrong order[] = {
    {"click_before_the_start", "click C_Ask", "a program that runs", "no `start` before this line"},
    {"screen_before_the_start", "screen FrmPracticeStart", "a program that runs", "no `start` before this line"},
    {"picture_before_the_start", "picture a.png", "a program that runs", "no `start` before this line"},
    {"end_before_the_start", "expect-ended", "a program that was started", "no `start` before this line"},
    {"start_twice", "start\nstart", "a program that does not run", "it runs already"},
    {"copy_of_no_file", "copy Setup/none.txt a", "a file Setup/none.txt", "no such file"},
    {"delete_no_file", "delete Setup/none.txt", "a file Setup/none.txt", "no such file"},
    {"truncate_no_file", "truncate Setup/none.txt 0", "a file Setup/none.txt", "no such file"},
    {"report_of_no_file", "register report 12 Setup/none.txt", "a file Setup/none.txt", "no such file"},
    {"report_that_there_is_not", "register report 22 Setup/words.txt", "a report from 3 to 21", "22"},
    {"banner_too_long", "register banner 1234567890123456789012345678901234567", "a banner of at most 36 characters", "37 characters"},
    {"devices_on_two_lines", "register devices \"a\\nb\"", "one line in the 8-bit code page", "\"a\\nb\""},
    {"text_outside_the_code_page", "write a.txt Ω", "a text in the 8-bit code page", "\"Ω\""},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Forms, AScriptAtFault, ::testing::ValuesIn(forms), name_of);
INSTANTIATE_TEST_SUITE_P(Controls, AScriptAtFault, ::testing::ValuesIn(controls), name_of);
INSTANTIATE_TEST_SUITE_P(Order, AScriptAtFault, ::testing::ValuesIn(order), name_of);

class AFault : public RobotRun {
 protected:
  /// Runs a script and expects status 2 and this "found" line.
  void expect_found(const QString& text, const QString& found) {
    const Outcome outcome = run({script(text)});
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.text().contains(QStringLiteral("    found:    ") + found)) << outcome.text().toStdString();
    EXPECT_EQ(outcome.lines.last(), QStringLiteral("0 passed, 1 failed"));
  }
};

TEST_F(AFault, IsFoundBeforeAnyLineRuns) {
  const Outcome outcome = run({script(QStringLiteral("expect-file Setup missing\n\n# a remark\nclik C_Ask\n"))});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines.first(), QStringLiteral("case.robot:4: clik C_Ask"));
}

TEST_F(AFault, InAnIncludedScriptIsFoundBeforeAnyLineRunsToo) {
  script(QStringLiteral("expect-file Setup folder\nclik C_Ask"), QStringLiteral("shared/one.robot"));
  const Outcome outcome =
      run({script(QStringLiteral("expect-file Setup missing\ninclude shared/one.robot\nexpect-file Setup missing"))});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines,
            (QStringList{QStringLiteral("shared/one.robot:2: clik C_Ask"), QStringLiteral("    expected: a command"),
                         QStringLiteral("    found:    unknown word \"clik\""),
                         QStringLiteral("    included: case.robot:2: include shared/one.robot"),
                         QStringLiteral("0 passed, 1 failed")}));
}

TEST_F(AFault, IsAScriptThatLeadsBackToItself) {
  script(QStringLiteral("include two.robot"), QStringLiteral("shared/one.robot"));
  script(QStringLiteral("# second\ninclude one.robot"), QStringLiteral("shared/two.robot"));
  const Outcome outcome = run({script(QStringLiteral("include shared/one.robot"))});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines, (QStringList{QStringLiteral("shared/two.robot:2: include one.robot"),
                                        QStringLiteral("    expected: a script that is not being read already"),
                                        QStringLiteral("    found:    shared/one.robot"),
                                        QStringLiteral("    included: shared/one.robot:1: include two.robot"),
                                        QStringLiteral("    included: case.robot:1: include shared/one.robot"),
                                        QStringLiteral("0 passed, 1 failed")}));
}

TEST_F(AFault, IsAnIncludedScriptThatIsNotThereOrInAnotherCode) {
  script(QStringLiteral("include none.robot"), QStringLiteral("shared/one.robot"));
  Outcome outcome = run({script(QStringLiteral("include shared/one.robot"))});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines.value(0), QStringLiteral("shared/one.robot:1: include none.robot"));
  EXPECT_EQ(outcome.lines.value(1), QStringLiteral("    expected: a script shared/none.robot"));
  QFile file{path(QStringLiteral("shared/none.robot"))};
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("# caf\xE9\n");
  file.close();
  outcome = run({QStringLiteral("case.robot")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines.value(1), QStringLiteral("    expected: a script in UTF-8"));
  EXPECT_EQ(outcome.lines.value(3), QStringLiteral("    included: shared/one.robot:1: include none.robot"));
}

TEST_F(AFault, IsAScriptThatIsNotThere) {
  const Outcome outcome = run({QStringLiteral("none.robot")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines,
            (QStringList{QStringLiteral("none.robot:"), QStringLiteral("    expected: a script"),
                         QStringLiteral("    found:    no such file"), QStringLiteral("0 passed, 1 failed")}));
}

TEST_F(AFault, IsAScriptInAnotherCode) {
  QFile file{path(QStringLiteral("case.robot"))};
  ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  file.write("# caf\xE9\n");
  file.close();
  const Outcome outcome = run({QStringLiteral("case.robot")});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines.value(1), QStringLiteral("    expected: a script in UTF-8"));
}

TEST_F(AFault, IsAFileToChooseThatIsNotThere) {
  expect_found(QStringLiteral("start\nclick C_Open\nfile Setup/none.txt"), QStringLiteral("no such file"));
}

TEST_F(AFault, IsAChangeOutsideOfInstallationAndScript) {
  for (const char* line :
       {"delete ../x", "delete .", "delete script/.", "delete script/temporary", "write ../x y", "poke /x 0 00",
        "make-folder script/../../x", "copy Setup/words.txt ../x", "truncate ../case.robot 0"}) {
    const Outcome outcome = run({script(QString::fromLatin1(line))});
    EXPECT_EQ(outcome.status, 2) << line;
    EXPECT_EQ(outcome.lines.value(1),
              QStringLiteral("    expected: a path inside the installation or beside the script"))
        << line;
  }
}

TEST_F(AFault, IsAPictureThatCannotBeWritten) {
  expect_found(QStringLiteral("start\npicture Setup/words.txt/x.png"), QStringLiteral("it cannot be written"));
}

TEST_F(AFault, IsTradingWithARegisterThatCannot) {
  expect_found(QStringLiteral("delete regtrade" EXECUTABLE_SUFFIX "\nregister trade"), QStringLiteral("there is no "));
}

TEST_F(AFault, IsAModelWithoutSamples) {
  expect_found(QStringLiteral("delete register/samples/Z300\nregister model Z300"), QStringLiteral("no such folder"));
}

TEST_F(AFault, IsAnUntouchedInstallationThatIsNotThere) {
  set_environment("VERMANTO_ROBOT_FROM", path(QStringLiteral("nowhere")));
  expect_found(QStringLiteral("start"), QStringLiteral("the program is not there; build it first"));
}

TEST_F(AFault, IsAFolderWithoutTheProgram) {
  const Outcome outcome = run({QStringLiteral("--app"), QStringLiteral("."), script(QStringLiteral("start"))});
  EXPECT_EQ(outcome.status, 2);
  EXPECT_EQ(outcome.lines.value(2), QStringLiteral("    found:    no such file"));
}

TEST_F(AFault, IsACallThatCannotBeUnderstood) {
  for (const QStringList& arguments : {QStringList{}, QStringList{QStringLiteral("--kep"), QStringLiteral("a")},
                                       QStringList{QStringLiteral("a"), QStringLiteral("--app")}}) {
    const Outcome outcome = run(arguments);
    EXPECT_EQ(outcome.status, 2);
    EXPECT_TRUE(outcome.lines.value(0).startsWith(QLatin1String("usage: ")));
  }
}

}  // namespace
}  // namespace ecr::test
