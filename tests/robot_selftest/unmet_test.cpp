// Every expecting word fails when it should, and a person's limits are the robot's too: status 1.

#include "robot_run.h"

namespace ecr::test {
namespace {

using AnUnmetLine = WrongScript;

TEST_P(AnUnmetLine, FailsWithWhatWasExpectedAndWhatWasFound) {
  check(1);
}

// clang-format off
constexpr Wrong screens[] = {
    {"screen", "start\nscreen FrmPracticeFields", "screen FrmPracticeFields and no message box", "screen FrmPracticeStart"},
    {"screen_behind_a_box", "start\nclick C_Box(1)\nscreen FrmPracticeStart", "screen FrmPracticeStart and no message box", "a message box is up: \"One\rTwo\""},
    {"nobox", "start\nclick C_Box(1)\nnobox", "no message box", "a message box is up: \"One\rTwo\""},
    {"expect", "start\nexpect C_Ask ask", "the text of C_Ask \"ask\"", "\"Ask\""},
    {"expect_like", "start\nexpect-like C_Ask A*s", "the text of C_Ask like \"A*s\"", "\"Ask\""},
    {"expect_title", "start\nexpect-title Practice", "the title \"Practice\"", "\"Practice é\""},
    {"expect_title_like", "start\nexpect-title-like *x", "the title like \"*x\"", "\"Practice é\""},
    {"expect_items", "start\nclick C_Lists\nexpect-items Cmb_Number 1 3 2", "the entries of Cmb_Number \"1\" \"3\" \"2\"", "\"1\" \"2\" \"3\""},
    {"expect_items_none", "start\nclick C_Lists\nexpect-items Cmb_Number", "the entries of Cmb_Number nothing", "\"1\" \"2\" \"3\""},
    {"expect_count_of_a_list", "start\nclick C_Lists\nexpect-count Cmb_Number 2", "the count of Cmb_Number 2", "3"},
    {"expect_count_of_a_grid", "start\nclick C_Lists\nexpect-count Fg_Grid 99", "the count of Fg_Grid 99", "100"},
    {"expect_count_of_tabs", "start\nclick C_Lists\nexpect-count Tab_Few 2", "the count of Tab_Few 2", "3"},
    {"expect_cell", "start\nclick C_Lists\nexpect-cell Fg_Grid 2 1 \"name 1\"", "row 2, column 1 of Fg_Grid \"name 1\"", "\"name 2\""},
    {"expect_cell_in_the_heading", "start\nclick C_Lists\nexpect-cell Fg_Grid 0 0 1", "row 0, column 0 of Fg_Grid \"1\"", "\"No.\""},
    {"expect_cell_outside", "start\nclick C_Lists\nexpect-cell Fg_Grid 100 0 100", "a cell in row 100, column 0", "the grid has rows 0 to 99, columns 0 to 2"},
    {"expect_tab", "start\nclick C_Lists\nexpect-tab Tab_Few 1", "the front tab of Tab_Few 1", "0"},
    {"expect_tab_caption", "start\nclick C_Lists\nexpect-tab Tab_Few 1 One", "tab 1 of Tab_Few \"One\"", "\"Two & three\""},
    {"expect_tab_outside", "start\nclick C_Lists\nexpect-tab Tab_Few 3 One", "a tab 3 of Tab_Few", "it has 3 tabs"},
    {"expect_checked", "start\nclick C_Fields\nexpect-checked Chk_Option on", "the state of Chk_Option on", "off"},
    {"expect_unchecked", "start\nclick C_Fields\nexpect-checked F_Frame off", "the state of F_Frame off", "on"},
    {"expect_visible", "start\nclick C_Fields\nexpect-visible C_Hidden yes", "C_Hidden visible", "not visible"},
    {"expect_invisible", "start\nclick C_Fields\nexpect-visible C_Count no", "C_Count not visible", "visible"},
    {"expect_invisible_on_a_tab", "start\nclick C_Lists\nexpect-visible E_OnTwo no", "E_OnTwo not visible", "visible"},
    {"expect_enabled", "start\nclick C_Fields\nexpect-enabled C_Disabled yes", "C_Disabled enabled", "disabled"},
    {"expect_disabled", "start\nclick C_Fields\nexpect-enabled C_Count no", "C_Count disabled", "enabled"},
    {"expect_focus", "start\nclick C_Fields\nfocus E_Name\nexpect-focus E_Rate", "the focus on E_Rate", "on E_Name"},
    {"expect_cursor", "start\nclick C_Fields\nexpect-cursor E_Name 3", "the cursor of E_Name 3", "4"},
    {"expect_colour", "start\nclick C_Fields\nexpect-colour L_Red green", "the text's colour of L_Red green", "red"},
    {"expect_colour_black", "start\nclick C_Fields\nexpect-colour L_Green black", "the text's colour of L_Green black", "green"},
    {"expect_maxlength", "start\nclick C_Fields\nexpect-maxlength E_Name 11", "the maximum length of E_Name 11", "10"},
    {"expect_box_title", "start\nclick C_Ask\nexpect-box-title Title", "a message box with the title \"Title\"", "\"Box title\""},
    {"expect_box_title_without_a_box", "start\nexpect-box-title Title", "a message box with the title \"Title\"", "screen FrmPracticeStart"},
    {"expect_ended", "start\nexpect-ended", "the program has ended", "it runs: screen FrmPracticeStart"},
};

constexpr Wrong boxes_and_choosers[] = {
    {"box_of_another_kind", "start\nclick C_Box(3)\nbox plain * Ok", "a box plain * with a button Ok", "a box critical \"One\\rTwo\" with the buttons Ok"},
    {"box_plain_is_no_information", "start\nclick C_Box(0)\nbox information * Ok", "a box information * with a button Ok", "a box plain \"One\\rTwo\" with the buttons Ok"},
    {"box_with_another_text", "start\nclick C_Ask\nbox question sure? Yes", "a box question \"sure?\" with a button Yes", "a box question \"Sure?\" with the buttons Yes, No, Cancel"},
    {"box_without_the_button", "start\nclick C_Ask\nbox question Sure? Ok", "a box question \"Sure?\" with a button Ok", "a box question \"Sure?\" with the buttons Yes, No, Cancel"},
    {"box_that_is_not_up", "start\nbox any * Ok", "a box any * with a button Ok", "screen FrmPracticeStart, no message box"},
    {"chooser_with_another_title", "start\nclick C_SaveAs\nexpect-chooser Save \"File (*.txt)\"", "a file chooser \"Save\" \"File (*.txt)\"", "a file chooser \"Save a text\" \"File (*.txt)\""},
    {"chooser_with_another_filter", "start\nclick C_SaveAs\nexpect-chooser \"Save a text\" \"File (*.txt)|*.csv\"", "a file chooser \"Save a text\" \"File (*.txt)|*.csv\"", "a file chooser \"Save a text\" \"File (*.txt)\""},
    {"chooser_with_too_few_filters", "start\nclick C_Open\nexpect-chooser \"Open a text\" \"File (*.txt)\"", "a file chooser \"Open a text\" \"File (*.txt)\"", "a file chooser \"Open a text\" \"File (*.txt);;All (*.*)\""},
    {"chooser_that_is_not_up", "start\nexpect-chooser a b", "a file chooser \"a\" \"b\"", "screen FrmPracticeStart"},
    {"file_without_a_chooser", "start\nfile cancel", "a file chooser", "screen FrmPracticeStart"},
};

constexpr Wrong acting[] = {
    {"click_on_a_disabled_control", "start\nclick C_Fields\nclick C_Disabled", "C_Disabled can be used", "it is disabled"},
    {"click_on_a_hidden_control", "start\nclick C_Fields\nclick C_Hidden", "C_Hidden can be used", "it is hidden"},
    {"click_on_a_covered_control", "start\nclick C_Fields\nclick C_Covered", "C_Covered can be clicked", "W_Cover lies over it"},
    {"click_behind_a_box", "start\nclick C_Ask\nclick C_Fields", "C_Fields can be used", "a message box is up: \"Sure?\""},
    {"click_behind_a_chooser", "start\nclick C_SaveAs\nclick C_Fields", "C_Fields can be used", "a file chooser is up: \"Save a text\""},
    {"doubleclick_on_a_disabled_control", "start\nclick C_Fields\ndoubleclick C_Disabled", "C_Disabled can be used", "it is disabled"},
    {"focus_on_a_label", "start\nclick C_Fields\nfocus L_Raw", "L_Raw gets the focus", "it takes no focus"},
    {"focus_in_a_disabled_frame", "start\nclick C_Fields\nfocus E_Off", "E_Off can be used", "it is disabled"},
    {"type_on_another_tab", "start\nclick C_Lists\ntype E_OnTwo x", "E_OnTwo can be used", "it is on a tab that is not in front"},
    {"type_behind_a_box", "start\nclick C_Fields\ntype E_Limited 9999\ntype E_Limited 1", "E_Limited can be used", "a message box is up: \"Too high\""},
    {"paste_into_a_read_only_field", "start\nclick C_Fields\npaste E_ReadOnly x", "E_ReadOnly can be changed", "it is read-only"},
    {"choose_what_is_not_there", "start\nclick C_Lists\nchoose Cmb_Number 4", "Cmb_Number has an entry \"4\"", "\"1\", \"2\", \"3\""},
    {"choose_from_an_empty_list", "start\nclick C_Lists\nchoose Cmb_Empty x", "Cmb_Empty has an entry \"x\"", "an empty list"},
    {"choose_a_position_outside", "start\nclick C_Lists\nchoose Cmb_Number #3", "Cmb_Number has an entry at position 3", "it has 3 entries"},
    {"choose_a_disabled_entry", "start\nclick C_Lists\nchoose Lst_View \"entry 2\"", "the entry of Lst_View can be chosen", "it is disabled"},
    {"row_outside", "start\nclick C_Lists\nrow Fg_Grid 100", "Fg_Grid has a row 100", "its last row is 99"},
    {"tab_outside", "start\nclick C_Lists\ntab Tab_Few 3", "Tab_Few has a tab 3", "it has 3 tabs"},
    {"tab_disabled", "start\nclick C_Lists\ntab Tab_Few 2", "Tab_Few has a tab 2", "the tab is disabled"},
    {"check_behind_a_box", "start\nclick C_Ask\ncheck Chk_Refuse on", "Chk_Refuse can be used", "a message box is up: \"Sure?\""},
    {"close_behind_a_box", "start\nclick C_Ask\nclose", "the screen can be closed", "a message box is up: \"Sure?\""},
    {"a_crash", "start\nclick C_Crash", "the program runs on, or ends by itself with exit code 0", "it crashed, *"},
    {"a_wrong_exit_code", "start\nclick C_ExitCode", "the program runs on, or ends by itself with exit code 0", "it ended with exit code 3"},
    {"a_crash_between_lines", "start\nclick C_CrashSoon\nwait 30", "the program runs on, or ends by itself with exit code 0", "it crashed, *"},
    {"a_crash_on_restart", "start\ncheck Chk_CrashOnClose on\nrestart", "the program runs on, or ends by itself with exit code 0", "it crashed, *"},
    {"click_when_the_program_has_ended", "start\nclick C_HardExit\nexpect-ended\nclick C_Ask", "a program that runs", "it has ended"},
    {"screen_when_the_program_has_ended", "start\nclose\nexpect-ended\nscreen FrmPracticeStart", "a program that runs", "it has ended"},
};

constexpr Wrong files[] = {
    {"file_exists", "expect-file Setup/none.txt exists", "Setup/none.txt exists", "nothing there"},
    {"file_missing", "expect-file Setup/words.txt missing", "Setup/words.txt missing", "a file of 15 bytes"},
    {"file_folder", "expect-file Setup/words.txt folder", "Setup/words.txt folder", "a file of 15 bytes"},
    {"file_size", "expect-file Setup/words.txt size 14", "Setup/words.txt size 14", "a file of 15 bytes"},
    {"file_size_of_a_folder", "expect-file Setup size 0", "Setup size 0", "a folder"},
    {"bytes", "expect-bytes Setup/words.txt 0 6f6E66", "6F6E66 from byte 0 on", "6F6E65, the file has 15 bytes"},
    {"bytes_past_the_end", "expect-bytes Setup/words.txt 14 6500", "6500 from byte 14 on", "65, the file has 15 bytes"},
    {"bytes_of_no_file", "expect-bytes Setup/none.txt 0 00", "a file Setup/none.txt", "no such file"},
    {"same", "expect-same Setup/words.txt Setup/plain.txt", "Setup/words.txt and Setup/plain.txt are equal", "15 and 6 bytes that differ from byte 0 on: 6F6E650D0A74776F..., 706C61696E0A"},
    {"same_with_a_longer_one", "write a.txt ab\nwrite b.txt abc\nexpect-same a.txt b.txt", "a.txt and b.txt are equal", "2 and 3 bytes that differ from byte 2 on: , 63"},
    {"different", "expect-different Setup/words.txt Setup/words.txt", "Setup/words.txt and Setup/words.txt differ", "15 equal bytes"},
    {"different_from_no_file", "expect-different Setup/words.txt Setup/none.txt", "a file Setup/none.txt", "no such file"},
    {"text", "expect-text Setup/plain.txt plain", "Setup/plain.txt is \"plain\"", "\"plain\\n\""},
    {"line", "expect-line Setup/words.txt 2 three", "line 2 of Setup/words.txt \"three\"", "\"two\""},
    {"line_past_the_end", "expect-line Setup/words.txt 4 \"\"", "line 4 of Setup/words.txt \"\"", "it has 3 lines"},
    {"line_zero", "expect-line Setup/words.txt 0 one", "line 0 of Setup/words.txt \"one\"", "it has 3 lines"},
    {"lines", "expect-lines Setup/words.txt 4", "Setup/words.txt has 4 lines", "3"},
};

constexpr Wrong traces[] = {
    {"log", "start\nclick C_Log\nexpect-log café", "a log line \"café\"", "\"Start \", \"café one\", \"a line\\nand its second half\""},
    {"log_before_the_mark", "start\nclick C_Log\nmark-log\nexpect-log \"café one\"", "a log line \"café one\"", "no line since the mark"},
    {"log_before_the_start", "write Log/memo_log.txt \"01-01-24 10:00:00 old\\n\"\nstart\nexpect-log old", "a log line \"old\"", "\"Start \""},
    {"log_like", "start\nexpect-log-like \"*art\"", "a log line like \"*art\"", "\"Start \""},
    {"no_log", "start\nclick C_Log\nexpect-no-log \"caf\\xE9 one\"", "no log line \"café one\"", "one"},
    {"process", "start\nexpect-process regwire.exe yes", "a process regwire.exe: yes", "none runs"},
    {"no_process", "start\nclick C_Process\nexpect-process regwire.exe yes\nexpect-process RegWire.exe no", "a process RegWire.exe: no", "it runs"},
    {"calls", "start\nclick C_Calls\nexpect-calls 2", "2 calls", "3: send_cmd folder=. direction=1 file=0 timeout=120 port=4; range_report folder=Dati file=5 timeout=120 from=1 to=99 port=4; send_logo source=. target1=My pictures target2=a b.bmp timeout=60"},
    {"no_calls", "start\nexpect-calls 1", "1 calls", "0"},
    {"calls_that_were_counted", "start\nclick C_Calls\nexpect-calls 3\nexpect-calls 3", "3 calls", "0"},
    {"call", "start\nclick C_Calls\nexpect-calls 3\nexpect-call 1 \"send_cmd folder=. direction=1 file=1 timeout=120 port=4\"", "call 1 \"send_cmd folder=. direction=1 file=1 timeout=120 port=4\"", "\"send_cmd folder=. direction=1 file=0 timeout=120 port=4\""},
    {"call_that_was_not_made", "start\nexpect-calls 0\nexpect-call 1 send_cmd", "call 1 \"send_cmd\"", "0 calls were counted"},
};
// clang-format on

INSTANTIATE_TEST_SUITE_P(Screens, AnUnmetLine, ::testing::ValuesIn(screens), name_of);
INSTANTIATE_TEST_SUITE_P(BoxesAndChoosers, AnUnmetLine, ::testing::ValuesIn(boxes_and_choosers), name_of);
INSTANTIATE_TEST_SUITE_P(Acting, AnUnmetLine, ::testing::ValuesIn(acting), name_of);
INSTANTIATE_TEST_SUITE_P(Files, AnUnmetLine, ::testing::ValuesIn(files), name_of);
INSTANTIATE_TEST_SUITE_P(Traces, AnUnmetLine, ::testing::ValuesIn(traces), name_of);

}  // namespace
}  // namespace ecr::test
