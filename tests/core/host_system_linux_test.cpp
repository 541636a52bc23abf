// The rest of what the Linux system layer answers.

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <string>
#include <sys/utsname.h>
#include <unistd.h>

#include "platform/platform.h"
#include "support/installation.h"

namespace ecr::test {
namespace {

class HostSystem : public InstallationTest {};

TEST_F(HostSystem, KnowsTheNameOfItsLinkLibraryAndThatDriverToolsDoNotApply) {
  EXPECT_EQ(host_system().link_library_name(), "libtilbridge2.so");
  EXPECT_FALSE(host_system().driver_tools_apply());
}

TEST_F(HostSystem, WritesItsVersionWithAPointAsTheKernelCountsIt) {
  utsname names{};
  ASSERT_EQ(::uname(&names), 0);
  const std::string release = names.release;
  const std::string version = host_system().version_text();
  EXPECT_EQ(release.compare(0, version.size(), version), 0) << release << " and " << version;
  EXPECT_EQ(std::count(version.begin(), version.end(), '.'), 1);
  EXPECT_EQ(version.find(','), std::string::npos);
  EXPECT_EQ(release.compare(0, version.size() + 1, version + "."), 0) << release;
  EXPECT_EQ(release.compare(version.size() + 1, std::to_string(host_system().build_number()).size(),
                            std::to_string(host_system().build_number())),
            0)
      << release;
}

TEST_F(HostSystem, ListsThisVeryProcessByItsExecutable) {
  const std::string executable = std::filesystem::read_symlink("/proc/self/exe").filename().string();
  const auto processes = host_system().processes();
  const auto self = std::find_if(processes.begin(), processes.end(), [](const ProcessEntry& process) {
    return process.id == static_cast<std::uint64_t>(::getpid());
  });
  ASSERT_NE(self, processes.end());
  EXPECT_EQ(self->executable, executable);
}

TEST_F(HostSystem, SaysWhyALibraryCannotBeLoaded) {
  std::string why;
  EXPECT_EQ(host_system().load_library(host("libnothing.so"), why), nullptr);
  EXPECT_NE(why.find("libnothing.so"), std::string::npos) << why;
  write("libtext.so", "this is no library");
  why.clear();
  EXPECT_EQ(host_system().load_library(host("libtext.so"), why), nullptr);
  EXPECT_NE(why.find("libtext.so"), std::string::npos) << why;
}

TEST_F(HostSystem, SaysWhyAProgramCannotBeStarted) {
  EXPECT_EQ(host_system().start_minimised(host("nothing.exe"), {}).code, FaultCode::file_not_found);
  make_folder("folder.exe");
  EXPECT_EQ(host_system().start_minimised(host("folder.exe"), {"argument"}).code, FaultCode::permission_denied);
  write("plain.exe", "no program");
  EXPECT_EQ(host_system().start_minimised(host("plain.exe"), {}).code, FaultCode::permission_denied);
}

}  // namespace
}  // namespace ecr::test
