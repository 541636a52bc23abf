#pragma once
// A fresh application folder for one test, with all shared state as before the program's start.

#include <gtest/gtest.h>
#include <string>
#include <string_view>
#include <vector>

#include "support/fake_link.h"
#include "support/scripted_shell.h"

namespace ecr::test {

/// The base of most tests: an application folder of its own below the system's temporary folder, made before and
/// removed behind each test; a scripted shell; the host's system layer; a fake link library.
class InstallationTest : public ::testing::Test {
 protected:
  InstallationTest();
  ~InstallationTest() override;

  /// Paths are relative to the application folder, with '/'.
  [[nodiscard]] std::string host(std::string_view path) const;
  void write(std::string_view path, std::string_view bytes) const;
  [[nodiscard]] std::string bytes(std::string_view path) const;
  [[nodiscard]] bool exists(std::string_view path) const;
  void make_folder(std::string_view path) const;
  void remove(std::string_view path) const;
  void copy(std::string_view from, std::string_view to) const;

  /// The texts of the run log's lines, without date and time.
  [[nodiscard]] std::vector<std::string> log() const;

  /// The fake in place of the link library; the object lives as long as the test.
  FakeLink& link();

  ScriptedShell shell;

 private:
  std::string folder_;
  FakeLink* link_ = nullptr;
};

/// A folder of files that the tests bring along; see tests/data.
[[nodiscard]] std::string test_data(std::string_view name);

}  // namespace ecr::test
