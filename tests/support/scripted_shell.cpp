#include "support/scripted_shell.h"

#include <gtest/gtest.h>
#include <utility>

namespace ecr::test {

ScriptedShell::ScriptedShell() : before_{install_shell(this)} {
  install_clock([this] { return moment; });
}

ScriptedShell::~ScriptedShell() {
  for (const ExpectedBox& box : expected_) ADD_FAILURE() << "a box was expected and did not come: " << box.text;
  install_clock({});
  install_shell(before_);
}

void ScriptedShell::expect_box(BoxKind kind, std::string text, Answer answer) {
  expected_.push_back({kind, std::move(text), answer});
}

Answer ScriptedShell::box(BoxKind kind, BoxButtons buttons, std::string_view text, std::string_view title) {
  box_titles.emplace_back(title);
  if (on_box) on_box();
  if (expected_.empty()) {
    ADD_FAILURE() << "no box was expected, but one came: " << text;
    // Something that shows boxes without an end would never let the test fail.
    if (++unexpected_boxes_ == 10) throw ProgramEnded{};
    return buttons == BoxButtons::ok ? Answer::ok : Answer::no;
  }
  const ExpectedBox expected = expected_.front();
  expected_.pop_front();
  EXPECT_EQ(static_cast<int>(expected.kind), static_cast<int>(kind)) << "kind of the box: " << text;
  EXPECT_EQ(expected.text, text);
  const bool offered = expected.answer == Answer::ok       ? buttons == BoxButtons::ok
                       : expected.answer == Answer::cancel ? buttons == BoxButtons::yes_no_cancel
                                                           : buttons != BoxButtons::ok;
  EXPECT_TRUE(offered) << "the box has no such button: " << text;
  return expected.answer;
}

void ScriptedShell::let_screens_work() {
  moment.second_of_day += 0.05;
  if (moment.second_of_day >= 86400) moment.second_of_day -= 86400;
  if (on_screens_work) on_screens_work();
}

void ScriptedShell::run_beside(const WorkInHand& what, Waiting waiting, const std::function<void()>& job) {
  waits.push_back(what);
  waiting_kinds.push_back(waiting);
  job();
}

void ScriptedShell::wait_until(const WorkInHand& what, double seconds, const std::function<bool()>& done) {
  waits.push_back(what);
  seconds_waited.push_back(seconds);
  while (!done()) let_screens_work();
}

}  // namespace ecr::test
