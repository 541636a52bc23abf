#include "link/link_call.h"

#include <gtest/gtest.h>
#include <limits>
#include <string>
#include <vector>

#include "core/global.h"
#include "link/tilbridge2.h"
#include "support/fake_system.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

struct Words {
  LinkCall call;
  const char* not_run;
  const char* refused;  ///< the line for the code 4098
  bool refusal_ends_tool;
  bool timeout_ends_tool;
};

const Words words_of_calls[] = {
    {LinkCall::read_image, "Errore nella chiamata di REGWIRE. File 7", "REGWIRE return error: 1002 . File 7", false,
     true},
    {LinkCall::read_items, "Errore nella chiamata di REGWIRE. File 7",
     "REGWIRE return error: 1002 . File 7 Desc: The error was returned from the ECR side.", false, true},
    {LinkCall::send_image, "Send_PrgModeToEcr error using regwire",
     "Send_PrgModeToEcr error. Code: 1002 Desc: The error was returned from the ECR side.", false, true},
    {LinkCall::send_items, "Send_PrgPluToEcr error using regwire",
     "Send_PrgPluToEcr error. Code: 1002 Desc: The error was returned from the ECR side.", true, true},
    {LinkCall::read_release, "Receive_ReportEcr error using regwire",
     "Get_Release error. Code: 1002 Desc: The error was returned from the ECR side.", false, true},
    {LinkCall::read_report, "Receive_ReportEcr error using regwire",
     "Receive_ReportEcr error. File 7 Code: 1002 Desc: The error was returned from the ECR side.", false, true},
    {LinkCall::read_report_range, "Receive_ReportEcr error using regwire",
     "Receive_ReportEcr error. File 7 Code: 1002 Desc: The error was returned from the ECR side.", false, false},
    {LinkCall::convert_logo, "Send_PrgModeToEcr error using regpix",
     "Send_LogoToEcr conversion error. Code: 1002 Desc:No description", false, false},
    {LinkCall::send_logo, "Send_LogoToEcr error using regwire",
     "Send_LogoToEcr error. Code: 1002 Desc: The error was returned from the ECR side.", false, true},
};

class LinkCallTest : public InstallationTest {
 protected:
  LinkCallTest() {
    Global::ComPort = 4;
    system.running = {{51, "regwire.exe"}};
  }

  LinkOutcome call(LinkCall which, std::int32_t answer, std::int32_t code, const TellOutcome& tell = {},
                   CallLog log = CallLog::failures) {
    remove("Log/memo_log.txt");
    system.ended.clear();
    system.running = {{51, "regwire.exe"}};
    const auto library = [&](std::int32_t& resultCode) {
      resultCode = code;
      return answer;
    };
    return make_link_call(which, 7, library, tell, log);
  }
  [[nodiscard]] bool tool_was_ended() const { return !system.ended.empty(); }

  FakeSystem system;
};

TEST_F(LinkCallTest, AToolThatCouldNotBeRunHasALineOfItsCall) {
  for (const Words& words : words_of_calls) {
    const LinkOutcome outcome = call(words.call, 0, 9999);
    EXPECT_EQ(outcome.end, LinkEnd::not_run) << words.not_run;
    EXPECT_EQ(outcome.code, 0) << "the code says nothing then";
    EXPECT_EQ(log(), Lines{words.not_run});
    EXPECT_FALSE(tool_was_ended()) << words.not_run;
  }
}

TEST_F(LinkCallTest, AFailureHasALineOfItsCallWithTheCodeInHexadecimal) {
  for (const Words& words : words_of_calls) {
    const LinkOutcome outcome = call(words.call, 1, 4098);
    EXPECT_EQ(outcome.end, LinkEnd::failed) << words.refused;
    EXPECT_EQ(outcome.code, 4098);
    EXPECT_EQ(log(), Lines{words.refused});
    EXPECT_EQ(tool_was_ended(), words.refusal_ends_tool) << words.refused;
  }
}

TEST_F(LinkCallTest, ATimeoutEndsTheToolWhereItIsLeftHanging) {
  for (const Words& words : words_of_calls) {
    EXPECT_EQ(call(words.call, 1, 9999).end, LinkEnd::failed);
    EXPECT_EQ(tool_was_ended(), words.timeout_ends_tool) << words.refused;
    for (const std::int32_t code : {1, 513, 1025, 4097, 9998, 10000}) {
      EXPECT_EQ(call(words.call, 1, code).end, LinkEnd::failed);
      EXPECT_FALSE(tool_was_ended()) << words.refused << " after " << code;
    }
  }
}

TEST_F(LinkCallTest, ACallThatDidItsWorkIsSilent) {
  const auto never = [](const LinkOutcome&) { ADD_FAILURE() << "there is nothing to tell"; };
  for (const Words& words : words_of_calls) {
    const std::int32_t good = words.call == LinkCall::convert_logo ? TILBRIDGE_LOGO_CONVERTED_FIRST : 0;
    const LinkOutcome outcome = call(words.call, 1, good, never);
    EXPECT_TRUE(outcome.is_done()) << words.refused;
    EXPECT_EQ(outcome.code, good);
    EXPECT_TRUE(log().empty());
    EXPECT_FALSE(tool_was_ended());
  }
}

TEST_F(LinkCallTest, OnlyTheReadsOfTheProgrammingTakeAnyAnswerButZeroForARun) {
  for (const std::int32_t answer : {2, -1}) {
    for (const Words& words : words_of_calls) {
      const bool is_lenient = words.call == LinkCall::read_image || words.call == LinkCall::read_items;
      EXPECT_EQ(call(words.call, answer, 4098).end, is_lenient ? LinkEnd::failed : LinkEnd::not_run) << words.refused;
    }
  }
}

TEST_F(LinkCallTest, AConversionIsGoodWithACodeOfItsRangeAlone) {
  for (const std::int32_t code : {16777216, 16777217, 16802915, 16802916}) {
    EXPECT_TRUE(call(LinkCall::convert_logo, 1, code).is_done()) << code;
  }
  for (const std::int32_t code : {0, 1, 16777215, 16802917, -1}) {
    EXPECT_EQ(call(LinkCall::convert_logo, 1, code).end, LinkEnd::failed) << code;
  }
  call(LinkCall::convert_logo, 1, 0x10030000);
  EXPECT_EQ(log(), Lines{"Send_LogoToEcr conversion error. Code: 10030000 Desc:Unknown file type."});
}

TEST_F(LinkCallTest, AMergeTakesWhateverCame) {
  for (const std::int32_t code :
       {0, 4098, 9999, std::numeric_limits<std::int32_t>::min(), std::numeric_limits<std::int32_t>::max()}) {
    EXPECT_TRUE(call(LinkCall::merge_image, 1, code).is_done());
    EXPECT_TRUE(log().empty());
    EXPECT_FALSE(tool_was_ended());
  }
  EXPECT_EQ(call(LinkCall::merge_image, 0, 0).end, LinkEnd::not_run);
  EXPECT_EQ(log(), Lines{"Send_PrgModeToEcr: Errore nella chiamata di REGWIRE. File 7"});
}

TEST_F(LinkCallTest, ThePersonIsToldAfterTheLogAndBeforeTheToolIsEnded) {
  std::vector<LinkEnd> told;
  const auto tell = [&](const LinkOutcome& outcome) {
    told.push_back(outcome.end);
    EXPECT_EQ(log().size(), 1U);
    EXPECT_FALSE(tool_was_ended());
  };
  call(LinkCall::read_image, 1, 9999, tell);
  EXPECT_TRUE(tool_was_ended());
  call(LinkCall::read_image, 0, 0, tell);
  EXPECT_EQ(told, (std::vector<LinkEnd>{LinkEnd::failed, LinkEnd::not_run}));
}

TEST_F(LinkCallTest, WithoutALogItIsToldAndTheToolEndedAllTheSame) {
  int told = 0;
  const auto tell = [&told](const LinkOutcome&) { ++told; };
  EXPECT_EQ(call(LinkCall::read_report, 1, 9999, tell, CallLog::nothing).end, LinkEnd::failed);
  EXPECT_EQ(told, 1);
  EXPECT_TRUE(tool_was_ended());
  EXPECT_TRUE(log().empty());
}

TEST_F(LinkCallTest, AMoveAsksForTheFileOfItsRow) {
  const std::vector<std::pair<LinkCall, const char*>> moves = {
      {LinkCall::read_image, "direction=0 file=0 timeout=120"},
      {LinkCall::read_items, "direction=0 file=1 timeout=180"},
      {LinkCall::merge_image, "direction=0 file=0 timeout=120"},
      {LinkCall::send_image, "direction=1 file=0 timeout=120"},
      {LinkCall::send_items, "direction=1 file=1 timeout=180"},
      {LinkCall::read_release, "direction=0 file=22 timeout=3"},
      {LinkCall::send_logo, "direction=1 file=2 timeout=60"}};
  for (const auto& [which, asked] : moves) {
    link().calls.clear();
    EXPECT_TRUE(move_file(which, Global::PathApp).is_done());
    EXPECT_EQ(link().calls, Lines{std::string{"send_cmd folder=. "} + asked + " port=4"});
  }
  link().answer = {1, 4098};
  int told = 0;
  EXPECT_EQ(move_file(LinkCall::send_image, Global::PathApp, [&told](const LinkOutcome&) { ++told; }).code, 4098);
  EXPECT_EQ(told, 1);
}

TEST_F(LinkCallTest, AMoveHandsBackTheFolderThatTheLibraryWrote) {
  link().rewritten_folder = "/some/other/place/";
  std::string folder = Global::PathApp;
  EXPECT_TRUE(move_file(LinkCall::send_logo, folder).is_done());
  EXPECT_EQ(folder, "\\some\\other\\place\\");
}

}  // namespace
}  // namespace ecr::test
