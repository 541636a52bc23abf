// What the Linux system layer does to files.

#include <algorithm>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <iterator>
#include <string>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <system_error>
#include <unistd.h>
#include <vector>

#include "core/unfinished_save.h"
#include "platform/platform.h"
#include "support/installation.h"
#include "support/random.h"
#include "support/unprivileged_linux.h"

namespace {

/// The path behind each descriptor that was flushed, in order, with a bar and what the watched file held then.
std::vector<std::string>* flushed = nullptr;
std::string watched_file;

}  // namespace

/// Takes the place of the C library's own: what a flush does to a disk cannot be seen, when it comes can.
extern "C" int fsync(int descriptor) {
  if (flushed != nullptr) {
    std::error_code ignored;
    std::ifstream file{watched_file, std::ios::binary};
    flushed->push_back(
        std::filesystem::read_symlink("/proc/self/fd/" + std::to_string(descriptor), ignored).filename().string() +
        "|" + std::string{std::istreambuf_iterator<char>{file}, std::istreambuf_iterator<char>{}});
  }
  return static_cast<int>(::syscall(SYS_fsync, descriptor));
}

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

class HostFiles : public InstallationTest {
 protected:
  [[nodiscard]] std::vector<std::string> names(std::string_view folder) const {
    std::vector<std::string> result;
    for (const auto& entry : fs::directory_iterator{host(folder)}) result.push_back(entry.path().filename().string());
    std::sort(result.begin(), result.end());
    return result;
  }

  [[nodiscard]] unsigned mode(std::string_view path) const {
    struct stat status {};
    EXPECT_EQ(::stat(host(path).c_str(), &status), 0) << path;
    return status.st_mode & 07777U;
  }

  [[nodiscard]] Fault replace(std::string_view path, std::string_view content) const {
    return host_system().replace_file(host(path), content);
  }
};

TEST_F(HostFiles, AReplacedFileIsAnotherFileUnderTheSameName) {
  make_folder("x");
  write("x/file", "old bytes");
  fs::create_hard_link(host("x/file"), host("x/witness"));
  EXPECT_FALSE(replace("x/file", "new").stands());
  EXPECT_EQ(bytes("x/file"), "new");
  EXPECT_EQ(bytes("x/witness"), "old bytes") << "the old file was not written to";
  EXPECT_EQ(names("x"), (std::vector<std::string>{"file", "witness"}));
}

TEST_F(HostFiles, AnOpenReaderOfTheOldFileReadsItToItsEnd) {
  make_folder("x");
  write("x/file", "old bytes");
  const int reader = ::open(host("x/file").c_str(), O_RDONLY | O_CLOEXEC);
  ASSERT_GE(reader, 0);
  EXPECT_FALSE(replace("x/file", "new").stands());
  char read[32];
  EXPECT_EQ(::read(reader, read, sizeof read), 9);
  ::close(reader);
}

TEST_F(HostFiles, BytesOfEveryKindAndLengthArriveUnchanged) {
  Random random{72001};
  make_folder("x");
  for (const std::size_t length : {0U, 1U, 5656U, 132802U, 3'000'000U}) {
    const std::string content = random.bytes(length);
    EXPECT_FALSE(replace("x/file", content).stands());
    EXPECT_EQ(bytes("x/file"), content) << length;
  }
}

TEST_F(HostFiles, TheNewFileIsFlushedBeforeTheRenameAndTheFolderBehindIt) {
  make_folder("x");
  make_folder("y");
  write("y/target", "old");
  fs::create_symlink(host("y/target"), host("x/link"));
  std::vector<std::string> flushes;
  flushed = &flushes;
  watched_file = host("y/target");
  EXPECT_FALSE(replace("x/link", "new").stands());
  flushed = nullptr;
  ASSERT_EQ(flushes.size(), 2U);
  EXPECT_TRUE(flushes[0].starts_with("target.")) << flushes[0];
  EXPECT_TRUE(is_unfinished_save(flushes[0].substr(0, flushes[0].find('|')))) << flushes[0];
  EXPECT_TRUE(flushes[0].ends_with("|old")) << flushes[0];
  EXPECT_EQ(flushes[1], "y|new") << "the folder of the file itself, not that of the link";
}

TEST_F(HostFiles, AFileInAFolderThatCannotBeListedIsSavedAllTheSame) {
  make_folder("x");
  fs::permissions(host("x"), static_cast<fs::perms>(0333));
  {
    const Unprivileged nobody;
    EXPECT_FALSE(replace("x/file", "new").stands());
  }
  fs::permissions(host("x"), static_cast<fs::perms>(0755));
  EXPECT_EQ(bytes("x/file"), "new");
}

TEST_F(HostFiles, AFreshFileHasTheModeThatTheProcessGivesItsFiles) {
  make_folder("x");
  write("x/as others", "x");
  EXPECT_FALSE(replace("x/file", "new").stands());
  EXPECT_EQ(mode("x/file"), mode("x/as others"));
}

TEST_F(HostFiles, AReplacedFileKeepsItsMode) {
  make_folder("x");
  for (const unsigned bits : {0600U, 0640U, 0666U, 0755U}) {
    write("x/file", "old");
    fs::permissions(host("x/file"), static_cast<fs::perms>(bits));
    EXPECT_FALSE(replace("x/file", "new").stands());
    EXPECT_EQ(mode("x/file"), bits);
    EXPECT_EQ(bytes("x/file"), "new");
    remove("x/file");
  }
}

TEST_F(HostFiles, ALinkIsWrittenThroughAndStaysALink) {
  make_folder("x");
  make_folder("y");
  write("y/target", "old");
  fs::create_symlink(host("y/target"), host("x/link"));
  fs::create_symlink(host("x/link"), host("x/link to link"));
  EXPECT_FALSE(replace("x/link to link", "new").stands());
  EXPECT_TRUE(fs::is_symlink(host("x/link to link")));
  EXPECT_TRUE(fs::is_symlink(host("x/link")));
  EXPECT_EQ(bytes("y/target"), "new");
  EXPECT_EQ(names("x"), (std::vector<std::string>{"link", "link to link"}));
  EXPECT_EQ(names("y"), std::vector<std::string>{"target"});
}

TEST_F(HostFiles, ALinkThatLeadsToNoFileBecomesTheFile) {
  make_folder("x");
  fs::create_symlink(host("x/nothing"), host("x/link"));
  EXPECT_FALSE(replace("x/link", "new").stands());
  EXPECT_EQ(bytes("x/link"), "new");
}

TEST_F(HostFiles, AReadOnlyFileIsReplacedForRootAndKeepsItsMode) {
  make_folder("x");
  write("x/file", "old");
  fs::permissions(host("x/file"), static_cast<fs::perms>(0444));
  const Fault fault = replace("x/file", "new");
  const bool root = ::geteuid() == 0;
  EXPECT_EQ(fault.code, root ? FaultCode::none : FaultCode::permission_denied);
  EXPECT_EQ(bytes("x/file"), root ? "new" : "old");
  EXPECT_EQ(mode("x/file"), 0444U);
  EXPECT_EQ(names("x"), std::vector<std::string>{"file"});
}

TEST_F(HostFiles, AReadOnlyFileIsLeftAloneForOthersThoughItsFolderIsOpen) {
  make_folder("x");
  fs::permissions(host("x"), static_cast<fs::perms>(0777));
  write("x/file", "old");
  fs::permissions(host("x/file"), static_cast<fs::perms>(0444));
  {
    const Unprivileged nobody;
    EXPECT_EQ(replace("x/file", "new").code, FaultCode::permission_denied);
    EXPECT_EQ(host_system().append_file(host("x/file"), "new").code, FaultCode::permission_denied);
  }
  EXPECT_EQ(bytes("x/file"), "old");
  EXPECT_EQ(names("x"), std::vector<std::string>{"file"});
}

TEST_F(HostFiles, AFolderThatTakesNoFilesIsToldAsDenied) {
  make_folder("x");
  write("x/file", "old");
  fs::permissions(host("x/file"), static_cast<fs::perms>(0666));
  fs::permissions(host("x"), static_cast<fs::perms>(0555));
  {
    const Unprivileged nobody;
    EXPECT_EQ(replace("x/file", "new").code, FaultCode::permission_denied);
    EXPECT_EQ(replace("x/fresh", "new").code, FaultCode::permission_denied);
  }
  EXPECT_EQ(bytes("x/file"), "old");
  fs::permissions(host("x"), static_cast<fs::perms>(0755));
}

TEST_F(HostFiles, AFolderIsNotReplaced) {
  make_folder("x/folder");
  EXPECT_TRUE(replace("x/folder", "new").stands());
  EXPECT_TRUE(fs::is_directory(host("x/folder")));
  EXPECT_EQ(names("x"), std::vector<std::string>{"folder"}) << "the fresh file is gone again";
}

TEST_F(HostFiles, AMissingFolderIsToldAsSuch) {
  EXPECT_EQ(replace("nowhere/file", "x").code, FaultCode::path_not_found);
  EXPECT_EQ(host_system().append_file(host("nowhere/file"), "x").code, FaultCode::path_not_found);
  EXPECT_FALSE(exists("nowhere"));
  write("file", "x");
  EXPECT_EQ(replace("file/below", "x").code, FaultCode::path_not_found);
  EXPECT_EQ(host_system().append_file(host("file/below"), "x").code, FaultCode::path_not_found);
}

TEST_F(HostFiles, AFullDiskLeavesTheOldFile) {
  // Only a device says so on demand; it is replaced like any file, so the write itself is what must fail here.
  EXPECT_EQ(host_system().append_file("/dev/full", "x").code, FaultCode::disk_full);
}

TEST_F(HostFiles, AnAppendCreatesTheFileAndAddsToIt) {
  EXPECT_FALSE(host_system().append_file(host("file"), "one").stands());
  EXPECT_FALSE(host_system().append_file(host("file"), "").stands());
  EXPECT_FALSE(host_system().append_file(host("file"), "two").stands());
  EXPECT_EQ(bytes("file"), "onetwo");
}

TEST_F(HostFiles, AnAppendToAHeldFileSaysSoAtOnce) {
  write("file", "one");
  const int holder = ::open(host("file").c_str(), O_RDWR | O_CLOEXEC);
  ASSERT_GE(holder, 0);
  ASSERT_EQ(::flock(holder, LOCK_EX), 0);
  EXPECT_EQ(host_system().append_file(host("file"), "two").code, FaultCode::permission_denied);
  EXPECT_EQ(bytes("file"), "one");
  ::close(holder);
  EXPECT_FALSE(host_system().append_file(host("file"), "two").stands());
  EXPECT_EQ(bytes("file"), "onetwo");
}

TEST_F(HostFiles, AnAppendToAFolderIsAPathFault) {
  make_folder("folder");
  EXPECT_EQ(host_system().append_file(host("folder"), "x").code, FaultCode::path_access);
}

}  // namespace
}  // namespace ecr::test
