#include "link/library.h"

#include <atomic>
#include <functional>
#include <gtest/gtest.h>
#include <memory>
#include <mutex>
#include <string>
#include <thread>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "core/text.h"
#include "link/tilbridge2.h"
#include "platform/platform.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/threaded_shell.h"

namespace ecr::test {
namespace {

using Lines = std::vector<std::string>;

// Calls through the fake

class LinkCalls : public InstallationTest {
 protected:
  LinkCalls() { Global::ComPort = 4; }

  std::int32_t send_cmd(std::uint8_t direction, std::uint8_t file, std::int32_t timeout = 120) {
    return util_send_cmd_to_ecr(Global::PathApp, direction, file, code, timeout, Global::ComPort);
  }

  std::int32_t code = 77;
};

TEST_F(LinkCalls, CarryTheirArgumentsAsTheyAre) {
  FakeLink& fake = link();
  send_cmd(TILBRIDGE_UPLOAD, 0, 120);
  send_cmd(TILBRIDGE_DOWNLOAD, 255, 60);
  Global::ComPort = 255;
  util_get_range_report(Global::PathApp, 21, code, 120, 0, 9999, Global::ComPort);
  util_send_logo_to_ecr(Global::PathApp, Global::PathDati, "logo.bmp", code, 60);
  EXPECT_EQ(fake.calls, (Lines{"send_cmd folder=. direction=0 file=0 timeout=120 port=4",
                               "send_cmd folder=. direction=1 file=255 timeout=60 port=4",
                               "range_report folder=. file=21 timeout=120 from=0 to=9999 port=255",
                               "send_logo source=. target1=Dati target2=logo.bmp timeout=60"}));
}

TEST_F(LinkCalls, ClearTheResultCodeBeforeTheyAreMade) {
  link().answer = {0, 4097};
  EXPECT_EQ(send_cmd(TILBRIDGE_UPLOAD, 0), 0);
  EXPECT_EQ(code, 0) << "a library that could not run its tool leaves no code";
  code = 77;
  link().answer = {1, 0};
  EXPECT_EQ(send_cmd(TILBRIDGE_UPLOAD, 0), 1);
  EXPECT_EQ(code, 0);
}

TEST_F(LinkCalls, HandBackWhatTheLibraryAnswers) {
  for (const std::int32_t returned : {0, 1, 2, -1, 12345}) {
    link().answer = {returned, 0};
    EXPECT_EQ(send_cmd(TILBRIDGE_UPLOAD, 0), returned);
    EXPECT_EQ(util_get_range_report(Global::PathApp, 5, code, 120, 1, 99, 4), returned);
    EXPECT_EQ(util_send_logo_to_ecr(Global::PathApp, "", "", code, 60), returned);
  }
  for (const std::int32_t result : {1, 1025, 4098, 9999, -7, 0x10040000}) {
    link().answer = {1, result};
    send_cmd(TILBRIDGE_UPLOAD, 0);
    EXPECT_EQ(code, result);
    util_get_range_report(Global::PathApp, 5, code, 120, 1, 99, 4);
    EXPECT_EQ(code, result);
    util_send_logo_to_ecr(Global::PathApp, "", "", code, 60);
    EXPECT_EQ(code, result);
  }
}

TEST_F(LinkCalls, TakeTheFolderBackFromTheLibrary) {
  link().rewritten_folder = "/some/other/place/";
  send_cmd(TILBRIDGE_UPLOAD, 22, 3);
  EXPECT_EQ(Global::PathApp, "\\some\\other\\place\\");
  EXPECT_EQ(Global::PathDati.find("some"), std::string::npos) << "the other folders are not built anew";
  std::string folder = "x\\";
  util_get_range_report(folder, 5, code, 120, 1, 99, 4);
  EXPECT_EQ(folder, "\\some\\other\\place\\");
  folder = "x\\";
  util_send_logo_to_ecr(folder, "y\\", "z", code, 60);
  EXPECT_EQ(folder, "\\some\\other\\place\\");
}

TEST_F(LinkCalls, CrossInTheHostsFormOfAPath) {
  FakeLink& fake = link();
  std::string folder = "a\\b\\";
  util_send_logo_to_ecr(folder, "c\\d\\", "e.bmp", code, 60);
  EXPECT_EQ(fake.calls, Lines{"send_logo source=a/b target1=c/d target2=e.bmp timeout=60"});
  EXPECT_EQ(folder, "a\\b\\");
}

TEST_F(LinkCalls, NameWhatIsGoingOn) {
  struct Row {
    std::uint8_t direction;
    std::uint8_t file;
    WorkInHand what;
  };
  const Row rows[] = {
      {TILBRIDGE_UPLOAD, 0, {Work::reading_programming}},    {TILBRIDGE_DOWNLOAD, 0, {Work::sending_programming}},
      {TILBRIDGE_UPLOAD, 1, {Work::reading_items}},          {TILBRIDGE_DOWNLOAD, 1, {Work::sending_items}},
      {TILBRIDGE_DOWNLOAD, 2, {Work::sending_logo}},         {TILBRIDGE_UPLOAD, 12, {Work::looking_for_register}},
      {TILBRIDGE_UPLOAD, 22, {Work::asking_release}},        {TILBRIDGE_UPLOAD, 3, {Work::reading_report, "C-I-D"}},
      {TILBRIDGE_UPLOAD, 20, {Work::reading_report, "ASK"}}, {TILBRIDGE_UPLOAD, 24, {Work::reading_report}},
      {TILBRIDGE_UPLOAD, 25, {Work::reading_report}},        {TILBRIDGE_UPLOAD, 255, {Work::reading_report}},
  };
  link();
  for (const Row& row : rows) {
    shell.waits.clear();
    send_cmd(row.direction, row.file);
    EXPECT_EQ(shell.waits, std::vector<WorkInHand>{row.what});
  }
  shell.waits.clear();
  util_get_range_report(Global::PathApp, 5, code, 120, 1, 99, 4);
  util_send_logo_to_ecr(Global::PathApp, "", "", code, 60);
  EXPECT_EQ(shell.waits, (std::vector<WorkInHand>{{Work::reading_report, "RANGE DEPT"}, {Work::converting_logo}}));
}

TEST_F(LinkCalls, NameWhatIsGoingOnWhateverTheyMove) {
  link();
  for (int file = 0; file < 256; ++file) {
    send_cmd(TILBRIDGE_UPLOAD, static_cast<std::uint8_t>(file));
    send_cmd(TILBRIDGE_DOWNLOAD, static_cast<std::uint8_t>(file));
  }
  ASSERT_EQ(shell.waits.size(), 512U);
  for (const WorkInHand& what : shell.waits) EXPECT_NE(what.work, Work::unnamed);
}

TEST_F(LinkCalls, TakeNoInputUnlessTheyAreMadeInTheBackground) {
  link();
  send_cmd(TILBRIDGE_UPLOAD, 12, 2);
  {
    const BackgroundCalls outer;
    send_cmd(TILBRIDGE_UPLOAD, 12, 2);
    {
      const BackgroundCalls inner;
      send_cmd(TILBRIDGE_UPLOAD, 12, 2);
    }
    send_cmd(TILBRIDGE_UPLOAD, 12, 2);
  }
  send_cmd(TILBRIDGE_UPLOAD, 12, 2);
  EXPECT_EQ(shell.waiting_kinds, (std::vector<Waiting>{Waiting::modal, Waiting::background, Waiting::background,
                                                       Waiting::background, Waiting::modal}));
}

TEST_F(LinkCalls, AreInFlightUntilTheLibraryReturns) {
  std::vector<bool> in_flight;
  link().after_call = [&in_flight] { in_flight.push_back(link_call_in_flight()); };
  EXPECT_FALSE(link_call_in_flight());
  send_cmd(TILBRIDGE_UPLOAD, 0);
  EXPECT_FALSE(link_call_in_flight());
  EXPECT_EQ(in_flight, std::vector<bool>{true});
}

// Beside the screen thread

TEST_F(LinkCalls, RunBesideTheScreenThreadWhileTheScreensWork) {
  ThreadedShell threaded;
  std::thread::id ran_on;
  std::atomic<int> turns = 0;
  threaded.on_screens_work = [&turns] { ++turns; };
  link().after_call = [&] {
    ran_on = std::this_thread::get_id();
    const int at_first = turns;
    while (turns < at_first + 3) std::this_thread::yield();
  };
  EXPECT_EQ(send_cmd(TILBRIDGE_UPLOAD, 0), 1);
  EXPECT_NE(ran_on, std::this_thread::get_id());
  EXPECT_NE(ran_on, std::thread::id{});
  EXPECT_GE(turns, 3);
}

/// A link that notes when a call enters and leaves it, and holds the first one until it is let go.
class HoldingLink final : public LinkLibrary {
 public:
  std::int32_t send_cmd(std::string&, std::uint8_t, std::uint8_t file, std::int32_t& code, std::int32_t,
                        std::uint8_t) override {
    note("in " + std::to_string(file));
    if (file == 12) {
      while (!let_go) std::this_thread::yield();
    }
    code = file + 1000;
    note("out " + std::to_string(file));
    return 1;
  }
  std::int32_t range_report(std::string&, std::uint8_t, std::int32_t&, std::int32_t, std::int32_t, std::int32_t,
                            std::uint8_t) override {
    return 0;
  }
  std::int32_t send_logo(std::string&, const std::string&, const std::string&, std::int32_t&, std::int32_t) override {
    return 0;
  }

  Lines noted() {
    const std::lock_guard lock{mutex_};
    return notes_;
  }
  std::atomic<bool> let_go = false;

 private:
  void note(std::string line) {
    const std::lock_guard lock{mutex_};
    notes_.push_back(std::move(line));
  }
  std::mutex mutex_;
  Lines notes_;
};

TEST_F(LinkCalls, MadeByAHandlerDuringAnotherWaitForItsEnd) {
  auto owned = std::make_unique<HoldingLink>();
  HoldingLink& holding = *owned;
  install_link_library(std::move(owned));
  ThreadedShell threaded;

  bool handler_ran = false;
  int turns_of_the_wait = 0;
  std::int32_t code_of_second = 77;
  threaded.on_screens_work = [&] {
    if (!handler_ran) {
      // The handler of a button, pressed while the first call is on its way.
      handler_ran = true;
      EXPECT_TRUE(link_call_in_flight());
      EXPECT_EQ(util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, 22, code_of_second, 3, 4), 1);
    } else if (!holding.let_go && ++turns_of_the_wait == 3) {
      EXPECT_NE(holding.noted(), (Lines{"in 12", "in 22"})) << "two calls at a time";
      holding.let_go = true;
    }
  };
  EXPECT_EQ(send_cmd(TILBRIDGE_UPLOAD, 12, 2), 1);
  EXPECT_TRUE(handler_ran);
  EXPECT_EQ(holding.noted(), (Lines{"in 12", "out 12", "in 22", "out 22"}));
  EXPECT_EQ(code, 1012);
  EXPECT_EQ(code_of_second, 1022) << "each call has its own result";
  EXPECT_FALSE(link_call_in_flight());
}

// The library of the application folder

class LoadedLink : public InstallationTest {
 protected:
  LoadedLink() { Global::ComPort = 7; }
  ~LoadedLink() override { install_link_library(nullptr); }

  static std::string name() { return std::string{host_system().link_library_name()}; }

  /// Puts one of the libraries that were built for this test into the application folder.
  void install(const char* library) const {
    std::string content;
    ASSERT_FALSE(read_file(backslash_path(library), content).stands()) << library;
    write(name(), content);
  }

  std::int32_t send_cmd() {
    return util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_DOWNLOAD, 1, code, 180, Global::ComPort);
  }
  std::int32_t range_report() { return util_get_range_report(Global::PathApp, 5, code, 120, 1, 99, Global::ComPort); }
  std::int32_t send_logo() { return util_send_logo_to_ecr(Global::PathApp, Global::PathDati, "logo.bmp", code, 60); }

  void expect_not_used(const char* library, const std::string& call) {
    install(library);
    for (int i = 0; i < 2; ++i) {
      code = 77;
      EXPECT_EQ(send_cmd(), 0);
      EXPECT_EQ(range_report(), 0);
      EXPECT_EQ(send_logo(), 0);
      EXPECT_EQ(code, 0);
    }
    EXPECT_EQ(log(), Lines{"Link library " + name() + " not used: it lacks the call " + call});
    EXPECT_EQ(shell.waits, std::vector<WorkInHand>{});
  }

  /// A function that the sample library offers beside the three calls.
  template <typename Function>
  Function* sample(const char* function) {
    if (library_ == nullptr) {
      std::string why;
      library_ = host_system().load_library(host(name()), why);
      EXPECT_NE(library_, nullptr) << why;
    }
    return reinterpret_cast<Function*>(library_->symbol(function));
  }
  Lines recorded() {
    const std::string calls = sample<const char*()>("sample_calls")();
    Lines lines;
    for (const std::string_view line : lines_of(calls)) lines.emplace_back(line);
    return lines;
  }
  void answer(int folder, std::int32_t returned = 1, std::int32_t result = 0) {
    sample<void(int, std::int32_t, std::int32_t)>("sample_answer")(folder, returned, result);
  }

  std::int32_t code = 77;

 private:
  std::unique_ptr<Library> library_;
};

TEST_F(LoadedLink, IsCalledWithTheExactArguments) {
  install(SAMPLE_LIBRARY);
  EXPECT_EQ(send_cmd(), 1);
  EXPECT_EQ(range_report(), 1);
  EXPECT_EQ(send_logo(), 1);
  const std::string app = host_path(Global::PathApp);
  EXPECT_EQ(recorded(), (Lines{"send_cmd " + app + " 1 1 0 180 7", "range_report " + app + " 5 0 120 1 99 7",
                               "send_logo " + app + " " + app + "Dati/ logo.bmp 0 60"}));
  EXPECT_EQ(code, 0);
  EXPECT_TRUE(log().empty());
}

TEST_F(LoadedLink, HandsBackResultsAndReturnValues) {
  install(SAMPLE_LIBRARY);
  answer(0, 1, 4098);
  EXPECT_EQ(send_cmd(), 1);
  EXPECT_EQ(code, 4098);
  answer(0, 0, 0);
  EXPECT_EQ(send_logo(), 0);
  EXPECT_EQ(code, 0);
  answer(0, -3, 9999);
  EXPECT_EQ(range_report(), -3);
  EXPECT_EQ(code, 9999);
}

TEST_F(LoadedLink, IsCalledOnAThreadBesideTheScreens) {
  install(SAMPLE_LIBRARY);
  ThreadedShell threaded;
  EXPECT_EQ(send_cmd(), 1);
  EXPECT_NE(sample<std::size_t()>("sample_thread")(), std::hash<std::thread::id>{}(std::this_thread::get_id()));
}

TEST_F(LoadedLink, MayRewriteTheFolder) {
  install(SAMPLE_LIBRARY);
  const std::string app = Global::PathApp;
  struct Row {
    int what;
    std::string folder;
  };
  const Row rows[] = {{0, app},
                      {1, "\\written\\over\\"},
                      {2, "\\a\\text\\of\\its\\own\\"},
                      {3, ""},
                      {4, std::string(TILBRIDGE_TEXT_SIZE, 'f')},
                      {5, ""}};
  for (const Row& row : rows) {
    SCOPED_TRACE(row.what);
    answer(row.what);
    const std::function<std::int32_t()> calls_of_all_kinds[] = {
        [this] { return send_cmd(); }, [this] { return range_report(); }, [this] { return send_logo(); }};
    for (const auto& call : calls_of_all_kinds) {
      Global::PathApp = app;
      EXPECT_EQ(call(), 1);
      EXPECT_EQ(Global::PathApp, row.folder);
    }
  }
  Global::PathApp = app;
}

TEST_F(LoadedLink, MayHaveARewrittenFolderLongerThanItWas) {
  install(SAMPLE_LIBRARY);
  answer(4);
  std::string folder = "x\\";
  util_send_cmd_to_ecr(folder, 0, 0, code, 1, 1);
  EXPECT_EQ(folder.size(), static_cast<std::size_t>(TILBRIDGE_TEXT_SIZE));
  answer(0);
  std::string long_folder(3 * TILBRIDGE_TEXT_SIZE, 'l');
  const std::string before = long_folder;
  util_send_cmd_to_ecr(long_folder, 0, 0, code, 1, 1);
  EXPECT_EQ(long_folder, before) << "a longer folder than the library may write crosses whole";
}

TEST_F(LoadedLink, IsLoadedAtTheFirstCallAndKept) {
  FakeSystem system;
  int loads = 0;
  system.on_load = [&loads](const std::string& path, std::string& why) {
    ++loads;
    return host_system().load_library(path, why);
  };
  install(SAMPLE_LIBRARY);
  EXPECT_EQ(loads, 0);
  for (int i = 0; i < 3; ++i) EXPECT_EQ(send_cmd(), 1);
  EXPECT_EQ(loads, 1);
  install_link_library(nullptr);
  EXPECT_EQ(send_cmd(), 1);
  EXPECT_EQ(loads, 2) << "it is looked for again where another one was taken away";
}

TEST_F(LoadedLink, IsMissedWithOneLineAndEveryCallAnswers0) {
  for (int i = 0; i < 2; ++i) {
    code = 77;
    EXPECT_EQ(send_cmd(), 0);
    EXPECT_EQ(code, 0);
    EXPECT_EQ(range_report(), 0);
    EXPECT_EQ(send_logo(), 0);
  }
  const Lines lines = log();
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_TRUE(lines[0].starts_with("Link library " + name() + " not loaded: ")) << lines[0];
  EXPECT_NE(lines[0].find(host(name())), std::string::npos) << lines[0];
  EXPECT_EQ(shell.waits, std::vector<WorkInHand>{}) << "nobody is kept waiting for a call that is not made";
  EXPECT_FALSE(link_call_in_flight());
}

TEST_F(LoadedLink, IsNotUsedWhereItLacksTheCallThatMovesAFile) {
  expect_not_used(SAMPLE_WITHOUT_SEND_CMD, "util_send_cmd_to_ecr");
}

TEST_F(LoadedLink, IsNotUsedWhereItLacksTheCallForRanges) {
  expect_not_used(SAMPLE_WITHOUT_RANGE_REPORT, "util_get_range_report");
}

TEST_F(LoadedLink, IsNotUsedWhereItLacksTheCallForLogos) {
  expect_not_used(SAMPLE_WITHOUT_SEND_LOGO, "util_send_logo_to_ecr");
}

TEST_F(LoadedLink, IsNotLoadedFromAnythingThatIsNoLibrary) {
  write(name(), "this is a text");
  EXPECT_EQ(send_cmd(), 0);
  remove(name());
  make_folder(name());
  install_link_library(nullptr);
  EXPECT_EQ(send_cmd(), 0);
  remove(name());
  write(name(), "");
  install_link_library(nullptr);
  EXPECT_EQ(send_cmd(), 0);
  const Lines lines = log();
  ASSERT_EQ(lines.size(), 3U);
  for (const std::string& line : lines) {
    EXPECT_TRUE(line.starts_with("Link library " + name() + " not loaded: ")) << line;
  }
}

}  // namespace
}  // namespace ecr::test
