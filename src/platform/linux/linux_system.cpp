#include <cerrno>
#include <charconv>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <limits>
#include <random>
#include <string>
#include <string_view>
#include <sys/file.h>
#include <sys/stat.h>
#include <sys/utsname.h>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <utility>
#include <vector>

#include "core/unfinished_save.h"
#include "platform/linux/linux_devices.h"
#include "platform/platform.h"

namespace ecr {
namespace fs = std::filesystem;
namespace {

/// A file descriptor that closes itself.
class Descriptor {
 public:
  explicit Descriptor(int number) noexcept : number_{number} {}
  Descriptor(const Descriptor&) = delete;
  Descriptor& operator=(const Descriptor&) = delete;
  ~Descriptor() { close(); }
  [[nodiscard]] int get() const noexcept { return number_; }
  [[nodiscard]] bool open() const noexcept { return number_ >= 0; }
  void close() noexcept {
    if (number_ >= 0) ::close(std::exchange(number_, -1));
  }

 private:
  int number_;
};

/// Answers 0 or the errno of the failure.
int write_all(int descriptor, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t written = ::write(descriptor, bytes.data(), bytes.size());
    if (written < 0 && errno != EINTR) return errno;
    if (written > 0) bytes.remove_prefix(static_cast<std::size_t>(written));
  }
  return 0;
}

/// A file that cannot be made because its folder is not there tells so.
Fault fault_of_making(int error) {
  return error == ENOENT ? Fault{FaultCode::path_not_found} : fault_of_errno(error);
}

/// A file that nobody else has, beside `target`, under a name that becomes `path`. Answers its descriptor, or -1 with
/// errno set.
int file_beside(const std::string& target, std::string& path) {
  constexpr int attempts = 100;
  std::random_device random;
  for (int attempt = 1;; ++attempt) {
    path = target + unfinished_save_ending(random());
    const int file = ::open(path.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, 0600);
    if (file >= 0 || errno != EEXIST || attempt == attempts) return file;
  }
}

class LinuxLibrary final : public Library {
 public:
  explicit LinuxLibrary(void* handle) : handle_{handle} {}
  ~LinuxLibrary() override { ::dlclose(handle_); }
  [[nodiscard]] void* symbol(const char* name) const override { return ::dlsym(handle_, name); }

 private:
  void* handle_;
};

std::string executable_of(const std::string& process) {
  std::error_code error;
  std::string name = fs::read_symlink("/proc/" + process + "/exe", error).filename().string();
  if (constexpr std::string_view gone = " (deleted)"; name.ends_with(gone)) name.resize(name.size() - gone.size());
  return name;
}

class LinuxSystem final : public System {
 public:
  Fault write_beside(const std::string& path, std::string_view bytes, FreshFile& fresh) override {
    std::error_code ignored;
    const fs::path resolved = fs::canonical(path, ignored);
    fresh.target = resolved.empty() ? path : resolved.string();
    struct stat old {};
    const bool exists = ::stat(fresh.target.c_str(), &old) == 0;
    if (exists && ::access(fresh.target.c_str(), W_OK) != 0) return fault_of_errno(errno);

    const Descriptor file{file_beside(fresh.target, fresh.path)};
    if (!file.open()) return fault_of_making(errno);
    int error = write_all(file.get(), bytes);
    if (error == 0 && ::fchmod(file.get(), exists ? old.st_mode & 07777 : 0666 & ~mask_) != 0) error = errno;
    if (error == 0 && ::fsync(file.get()) != 0) error = errno;
    if (error != 0) ::unlink(fresh.path.c_str());
    return fault_of_errno(error);
  }

  Fault rename_over(const FreshFile& fresh) override {
    if (::rename(fresh.path.c_str(), fresh.target.c_str()) == 0) return {};
    const int error = errno;
    ::unlink(fresh.path.c_str());
    return fault_of_errno(error);
  }

  Fault flush_folder_of(const std::string& target) override {
    const fs::path folder = fs::path{target}.parent_path();
    const Descriptor opened{::open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)};
    if (!opened.open()) {
      if (errno != EACCES) return fault_of_errno(errno);
      // A folder that takes files and may not be listed. Everything is flushed, so it is too.
      ::sync();
      return {};
    }
    if (::fsync(opened.get()) == 0) return {};
    // Some file systems know no flush of folders.
    return errno == EINVAL || errno == ENOTSUP ? Fault{} : fault_of_errno(errno);
  }

  Fault append_file(const std::string& path, std::string_view bytes) override {
    const Descriptor file{::open(path.c_str(), O_WRONLY | O_APPEND | O_CREAT | O_CLOEXEC, 0666)};
    if (!file.open()) return fault_of_making(errno);
    if (::flock(file.get(), LOCK_EX | LOCK_NB) != 0) return fault_of_errno(errno);
    return fault_of_errno(write_all(file.get(), bytes));
  }

  std::vector<ProcessEntry> processes() override {
    std::vector<ProcessEntry> entries;
    std::error_code error;
    for (fs::directory_iterator entry{"/proc", error}, end; !error && entry != end; entry.increment(error)) {
      const std::string name = entry->path().filename().string();
      std::uint64_t id = 0;
      const auto [rest, fault] = std::from_chars(name.data(), name.data() + name.size(), id);
      if (fault != std::errc{} || rest != name.data() + name.size()) continue;
      std::string executable = executable_of(name);
      if (!executable.empty()) entries.push_back({id, std::move(executable)});
    }
    return entries;
  }

  bool end_process(std::uint64_t id) override {
    // 0 and everything that becomes negative would name whole groups of processes.
    if (id == 0 || id > static_cast<std::uint64_t>(std::numeric_limits<pid_t>::max())) return false;
    return ::kill(static_cast<pid_t>(id), SIGKILL) == 0;
  }

  Fault start_minimised(const std::string& program, const std::vector<std::string>& arguments) override {
    std::vector<std::string> words{program};
    words.insert(words.end(), arguments.begin(), arguments.end());
    std::vector<char*> argv;
    argv.reserve(words.size() + 1);
    for (std::string& word : words) argv.push_back(word.data());
    argv.push_back(nullptr);

    // A pipe that closes itself when the program starts carries back why it did not. The program is a grandchild, so
    // that nobody here has to wait for its end.
    int ends[2];
    if (::pipe2(ends, O_CLOEXEC) != 0) return fault_of_errno(errno);
    const Descriptor reading{ends[0]};
    Descriptor writing{ends[1]};
    const pid_t child = ::fork();
    if (child < 0) return fault_of_errno(errno);
    if (child == 0) {
      if (::fork() == 0) {
        ::setsid();
        const int null = ::open("/dev/null", O_RDWR);
        for (int stream = 0; stream <= 2; ++stream) ::dup2(null, stream);
        ::execv(argv[0], argv.data());
        const int error = errno;
        static_cast<void>(::write(writing.get(), &error, sizeof error) == 0);
      }
      ::_exit(0);
    }
    writing.close();
    ::waitpid(child, nullptr, 0);
    int error = 0;
    return ::read(reading.get(), &error, sizeof error) == sizeof error ? fault_of_errno(error) : Fault{};
  }

  [[nodiscard]] bool driver_tools_apply() const override { return false; }

  std::optional<std::vector<std::string>> device_captions() override {
    std::vector<std::string> captions = linux_serial_captions("/sys/class/tty");
    captions.emplace_back(sizeof(void*) == 8 ? "Processor x64" : "Processor x86");
    return captions;
  }

  [[nodiscard]] std::string version_text() const override {
    return std::to_string(version_part(0)) + "." + std::to_string(version_part(1));
  }
  [[nodiscard]] int build_number() const override { return version_part(2); }

  [[nodiscard]] std::string_view link_library_name() const override { return "libtilbridge2.so"; }

  std::unique_ptr<Library> load_library(const std::string& path, std::string& why) override {
    void* handle = ::dlopen(path.c_str(), RTLD_NOW | RTLD_LOCAL);
    if (handle == nullptr) {
      const char* reason = ::dlerror();
      why = reason != nullptr ? reason : "";
      return nullptr;
    }
    return std::make_unique<LinuxLibrary>(handle);
  }

 private:
  /// What new files are not allowed. Asking the system for it the usual way would change it for a moment, for all
  /// threads.
  static mode_t mask_of_process() {
    std::ifstream status{"/proc/self/status"};
    std::string word;
    while (status >> word) {
      if (word != "Umask:") continue;
      mode_t mask = 0;
      if (status >> std::oct >> mask) return mask;
    }
    return 022;
  }

  /// The first, second or third number of the kernel's release.
  static int version_part(int index) {
    utsname names{};
    ::uname(&names);
    std::string_view release = names.release;
    int number = 0;
    for (int i = 0; i <= index; ++i) {
      number = 0;
      const auto rest = std::from_chars(release.data(), release.data() + release.size(), number).ptr;
      release.remove_prefix(static_cast<std::size_t>(rest - release.data()));
      if (!release.empty()) release.remove_prefix(1);
    }
    return number;
  }

  const mode_t mask_ = mask_of_process();
};

}  // namespace

System& host_system() {
  static LinuxSystem system;
  return system;
}

}  // namespace ecr
