#include "robot/runner/installation.h"

#include <filesystem>
#include <system_error>

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QThread>

#include "robot/runner/failure.h"
#include "robot/runner/files.h"
#include "robot/runner/host.h"

namespace ecr::robot {
namespace {

/// Where a fresh installation is copied from: the folder `app` beside the robot, or the one that VERMANTO_ROBOT_FROM
/// names.
QString untouched_folder() {
  const QString named = qEnvironmentVariable("VERMANTO_ROBOT_FROM");
  return named.isEmpty() ? QCoreApplication::applicationDirPath() + QStringLiteral("/app") : named;
}

std::filesystem::path host_path(const QString& path) {
  return std::filesystem::path{path.toStdU16String()};
}

/// Executables and libraries, which nothing writes to. They may share their content with the untouched ones.
bool is_machine_code(const QString& path) {
  QFile file{path};
  if (!file.open(QIODevice::ReadOnly)) return false;
  const QByteArray head = file.read(4);
  return head ==
             QByteArray{
                 "\x7f"
                 "ELF"} ||
         head.startsWith("MZ");
}

/// The same of the manual's pages and pictures: the program reads them alone, and what a script does to them, or to any
/// other file, is a new file in the place of the old one.
bool is_manual(const QString& folder_entry) {
  return folder_entry == QLatin1String("help");
}

/// A copy of a file or of a folder with all in it; of a file that may `share` its content another name for it, where the
/// file system has such.
void lay_out(const std::filesystem::path& from, const std::filesystem::path& to, bool share) {
  namespace fs = std::filesystem;
  if (fs::is_directory(from)) {
    fs::create_directory(to);
    for (const fs::directory_entry& entry : fs::directory_iterator{from}) {
      lay_out(entry.path(), to / entry.path().filename(), share);
    }
    return;
  }
  if (share && !fs::is_symlink(from)) {
    std::error_code not_here;
    fs::create_hard_link(from, to, not_here);
    if (!not_here) return;
  }
  fs::copy_file(from, to);
  fs::permissions(to, fs::perms::owner_write, fs::perm_options::add);
}

/// Gives every file that shares its content a content of its own.
void part_from_others(const std::filesystem::path& folder) {
  namespace fs = std::filesystem;
  for (const fs::directory_entry& entry : fs::recursive_directory_iterator{folder}) {
    if (!entry.is_regular_file() || entry.hard_link_count() == 1) continue;
    fs::path own = entry.path();
    own += ".own";
    fs::copy_file(entry.path(), own);
    fs::rename(own, entry.path());
  }
}

/// Copies the installation. What is put where somebody may use it for long shares nothing with the untouched one.
void copy_installation(const QString& to, bool for_long) {
  const QDir from{untouched_folder()};
  if (!from.exists(QStringLiteral("vermanto") + QString::fromStdString(executable_suffix()))) {
    throw ScriptFault{QStringLiteral("an installation in %1").arg(from.path()),
                      QStringLiteral("the program is not there; build it first")};
  }
  QDir{}.mkpath(to);
  const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
  for (const QFileInfo& entry : from.entryInfoList(all)) {
    const bool share = !for_long && (entry.isDir() ? is_manual(entry.fileName()) : is_machine_code(entry.filePath()));
    try {
      lay_out(host_path(entry.filePath()), host_path(to + QLatin1Char('/') + entry.fileName()), share);
    } catch (const std::filesystem::filesystem_error& error) {
      throw ScriptFault{QStringLiteral("a copy of %1").arg(entry.filePath()),
                        QString::fromStdString(error.code().message())};
    }
  }
  // A machine's own serial ports are no part of a script.
  const QString devices = to + QStringLiteral("/register/devices.txt");
  const QByteArray shown = read_bytes(devices).value_or(QByteArray{});
  if (lines_of(shown).value(0) != "only") write_bytes(devices, "only\n" + shown);
}

QString simplified(QString folder) {
  folder.replace(QLatin1Char('\\'), QLatin1Char('/'));
  return QDir::cleanPath(folder);
}

Qt::CaseSensitivity path_case() {
  return paths_ignore_case() ? Qt::CaseInsensitive : Qt::CaseSensitive;
}

/// The part of a path below a folder: "." for the folder itself, nothing if it lies elsewhere.
std::optional<QString> below(const QString& path, const QString& folder) {
  if (folder.isEmpty()) return std::nullopt;  // else everything would lie below it
  if (path.compare(folder, path_case()) == 0) return QStringLiteral(".");
  if (!path.startsWith(folder + QLatin1Char('/'), path_case())) return std::nullopt;
  return path.mid(folder.size() + 1);
}

}  // namespace

Installation::Installation(const QString& used, const QString& script_folder)
    : temporary_{QDir::tempPath() + QStringLiteral("/vermanto-robot-XXXXXX")},
      folder_{QDir::cleanPath(QDir{}.absoluteFilePath(used))},
      script_folder_{QDir::cleanPath(script_folder)} {
  if (!temporary_.isValid()) throw ScriptFault{QStringLiteral("a temporary folder"), temporary_.errorString()};
  if (used.isEmpty()) {
    // The canonical form, since the program and the system may know the temporary folder by another name.
    folder_ = QFileInfo{temporary_.path()}.canonicalFilePath() + QStringLiteral("/app");
    copy_installation(folder_, false);
  } else if (QDir{folder_}.isEmpty()) {
    copy_installation(folder_, true);
  }
  require_program();
  real_folder_ = QFileInfo{folder_}.canonicalFilePath();
  for (const HostProcess& process : processes()) running_before_.insert(process.id);
}

Installation::~Installation() {
  end_processes();
}

QString Installation::private_folder(const char* name) const {
  QString folder = temporary_.filePath(QLatin1String(name));
  QDir{}.mkpath(folder);
  QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
  return folder;
}

QString Installation::executable(const char* name) const {
  return folder_ + QLatin1Char('/') + QLatin1String(name) + QString::fromStdString(executable_suffix());
}

QString Installation::path(const QString& words) const {
  const QLatin1String beside_script{"script/"};
  if (words.startsWith(beside_script)) {
    return QDir::cleanPath(script_folder_ + QLatin1Char('/') + words.mid(beside_script.size()));
  }
  return QDir::cleanPath(QDir{folder_}.absoluteFilePath(words));
}

QString Installation::path_to_change(const QString& words) const {
  const bool beside_script = words.startsWith(QLatin1String("script/"));
  QString full = path(words);
  const auto inside = below(full, beside_script ? script_folder_ : folder_);
  const bool around_installation = below(folder_, full).has_value();
  if (!inside || *inside == QLatin1String(".") || around_installation) {
    throw ScriptFault{QStringLiteral("a path inside the installation or beside the script"), full};
  }
  return full;
}

QString Installation::relative(const QString& folder) const {
  const QString path = simplified(folder);
  if (const auto inside = below(path, folder_)) return *inside;
  return below(path, real_folder_).value_or(path);
}

void Installation::require_program() const {
  const QString program = executable("vermanto");
  if (QFileInfo{program}.isFile()) return;
  throw ScriptFault{QStringLiteral("the program %1").arg(program), QStringLiteral("no such file")};
}

std::vector<HostProcess> Installation::processes() const {
  std::vector<HostProcess> found;
  // Ending everything that runs must not be one slip away.
  if (real_folder_.isEmpty() || QDir{real_folder_}.isRoot()) return found;
  for (HostProcess& process : running_processes()) {
    const QString executable = simplified(QString::fromStdString(process.executable));
    if (below(executable, real_folder_)) found.push_back(std::move(process));
  }
  return found;
}

bool Installation::runs_process(const QString& name) const {
  for (const HostProcess& process : processes()) {
    const QString executable = simplified(QString::fromStdString(process.executable));
    const QString file_name = executable.mid(executable.lastIndexOf(QLatin1Char('/')) + 1);
    if (!running_before_.contains(process.id) && file_name.endsWith(name, Qt::CaseInsensitive)) return true;
  }
  return false;
}

void Installation::end_processes() const {
  constexpr int patience = 5000;  // milliseconds until the system has taken them down
  constexpr int pause = 5;
  for (const QDeadlineTimer end{patience}; !end.hasExpired(); QThread::msleep(pause)) {
    bool any = false;
    for (const HostProcess& process : processes()) {
      if (running_before_.contains(process.id)) continue;
      end_process(process.id);
      any = true;
    }
    if (!any) return;
  }
}

std::optional<QString> Installation::keep() {
  if (below(folder_, QFileInfo{temporary_.path()}.canonicalFilePath()).has_value()) {
    temporary_.setAutoRemove(false);
    part_from_others(host_path(folder_));
    return folder_;
  }
  return std::nullopt;
}

}  // namespace ecr::robot
