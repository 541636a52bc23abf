// The walls between the rooms: what each file of src/ includes.

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <sstream>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace ecr::test {
namespace {

namespace fs = std::filesystem;
using Names = std::set<std::string>;

const fs::path src = fs::path{VERMANTO_ROOT} / "src";

struct Include {
  std::string name;
  bool own = false;  ///< in quotation marks: a header of this program
};

/// The header that a line takes in; an empty name for any other line.
Include include_in(std::string_view line) {
  const auto skip_blanks = [&line] { line.remove_prefix(std::min(line.find_first_not_of(" \t"), line.size())); };
  const auto take = [&](std::string_view word) {
    skip_blanks();
    if (!line.starts_with(word)) return false;
    line.remove_prefix(word.size());
    return true;
  };
  if (!take("#") || !take("include")) return {};
  skip_blanks();
  const bool own = line.starts_with('"');
  if (!own && !line.starts_with('<')) return {};
  line.remove_prefix(1);
  return {std::string{line.substr(0, line.find(own ? '"' : '>'))}, own};
}

std::vector<Include> includes_in(std::istream& text) {
  std::vector<Include> found;
  for (std::string line; std::getline(text, line);) {
    Include include = include_in(line);
    if (!include.name.empty()) found.push_back(std::move(include));
  }
  return found;
}

std::vector<Include> includes_of(const fs::path& file) {
  std::ifstream text{file};
  EXPECT_TRUE(text.good()) << file;
  return includes_in(text);
}

/// Whether a header is one of the toolkit's: QString, QtGlobal, QtCore/QString, qglobal.h.
bool is_of_the_toolkit(const std::string& header) {
  const std::size_t slash = header.rfind('/');
  const std::string folder = slash == std::string::npos ? "" : header.substr(0, slash);
  const std::string name = header.substr(slash == std::string::npos ? 0 : slash + 1);
  const auto is_letter = [](char c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); };
  const bool is_class = name.size() > 1 && name[0] == 'Q' && is_letter(name[1]);
  const bool is_file = name.starts_with('q') && name.ends_with(".h") && name.find('_') == std::string::npos;
  return is_class || is_file || folder.starts_with("Qt") || folder.find("/Qt") != std::string::npos;
}

std::string room_of(const std::string& header) {
  return header.substr(0, header.find('/'));
}
std::string room_of(const fs::path& file) {
  return fs::relative(file, src).begin()->string();
}

/// The model rooms' files: the sources that the build names, and all headers of this program that they take in.
std::set<fs::path> model_files() {
  std::set<fs::path> files;
  std::vector<fs::path> to_do;
  std::ifstream list{VERMANTO_MODEL_SOURCES};
  for (std::string line; std::getline(list, line);) {
    if (!line.empty()) to_do.emplace_back(line);
  }
  while (!to_do.empty()) {
    const fs::path file = to_do.back();
    to_do.pop_back();
    if (!files.insert(file).second) continue;
    for (const Include& include : includes_of(file)) {
      if (include.own && fs::exists(src / include.name)) to_do.push_back(src / include.name);
    }
    // A source's own header belongs to it even where it forgets to include it.
    const fs::path header = fs::path{file}.replace_extension(".h");
    if (fs::exists(header)) to_do.push_back(header);
  }
  return files;
}

std::vector<fs::path> all_files() {
  std::vector<fs::path> files;
  for (const auto& entry : fs::recursive_directory_iterator{src}) {
    const std::string extension = entry.path().extension().string();
    if (extension == ".h" || extension == ".cpp" || extension == ".inc") files.push_back(entry.path());
  }
  return files;
}

const Names models = {"captions", "keyboard", "reports", "logo"};

/// What the files of a room may include. A room with a model and a screen has a rule for each.
Names may_see(const std::string& room, bool is_model) {
  static const std::map<std::string, Names> rules = {
      {"core", {}},
      {"image", {"core"}},
      {"link", {"core", "image"}},
      {"lang", {"core", "image"}},
      {"fields", {"core", "image", "lang"}},
      {"platform", {"core"}},
      {"emulator", {"core", "image", "platform"}},
      {"robot", {}},
      {"widgets", {"core", "image", "link", "lang", "fields", "captions", "keyboard", "reports", "logo"}},
      {"screens", {"core", "image", "link", "lang", "fields", "captions", "keyboard", "reports", "logo", "widgets"}},
      {"editors", {"core", "image", "link", "lang", "fields", "captions", "keyboard", "reports", "logo", "widgets"}},
      {"app",
       {"core", "image", "link", "lang", "fields", "platform", "captions", "keyboard", "reports", "logo", "widgets",
        "screens", "editors", "robot"}}};
  if (models.count(room) == 1) {
    Names rule = {"core", "image", "link", "lang", "fields"};
    if (!is_model) rule.insert("widgets");
    return rule;
  }
  const auto found = rules.find(room);
  EXPECT_NE(found, rules.end()) << "a room that no arrow is drawn for: " << room;
  return found == rules.end() ? Names{} : found->second;
}

bool is_allowed(const std::string& room, const std::string& header, bool is_model) {
  // The emulated register exports the calls that the one declares, and answers with the reports that the other names.
  if (room == "emulator" && (header == "link/tilbridge2.h" || header == "link/report_rows.h")) return true;
  return room_of(header) == room || may_see(room, is_model).count(room_of(header)) == 1;
}

TEST(Wall, TheBuildNamesTheModelRooms) {
  Names rooms;
  for (const fs::path& file : model_files()) rooms.insert(room_of(file));
  for (const char* room : {"core", "image", "link", "lang", "fields", "platform", "emulator"})
    EXPECT_EQ(rooms.count(room), 1U) << room;
  EXPECT_GT(model_files().size(), 60U);
}

TEST(Wall, NoModelRoomKnowsTheToolkit) {
  for (const fs::path& file : model_files()) {
    for (const Include& include : includes_of(file)) {
      EXPECT_FALSE(is_of_the_toolkit(include.name)) << file << " includes " << include.name;
    }
  }
}

TEST(Wall, NoFileLooksUpwards) {
  const std::set<fs::path> model = model_files();
  for (const fs::path& file : all_files()) {
    const std::string room = room_of(file);
    for (const Include& include : includes_of(file)) {
      if (!include.own) continue;
      EXPECT_TRUE(is_allowed(room, include.name, model.count(file) == 1)) << file << " includes " << include.name;
    }
  }
}

TEST(Wall, EveryOwnHeaderIsNamedFromTheRootOfTheSources) {
  for (const fs::path& file : all_files()) {
    for (const Include& include : includes_of(file)) {
      EXPECT_TRUE(!include.own || fs::exists(src / include.name)) << file << " includes " << include.name;
    }
  }
}

TEST(Wall, HostsStayInTheirOwnFolders) {
  const Names of_linux = {"unistd.h",        "dlfcn.h",       "fcntl.h",    "dirent.h",   "signal.h",
                          "sys/stat.h",      "sys/types.h",   "sys/wait.h", "sys/file.h", "sys/mman.h",
                          "sys/ioctl.h",     "termios.h",     "spawn.h",    "poll.h",     "sys/utsname.h",
                          "sys/sysmacros.h", "linux/serial.h"};
  const Names of_windows = {"windows.h", "Windows.h", "winbase.h", "tlhelp32.h", "wbemidl.h", "comdef.h", "objbase.h"};
  for (const fs::path& file : all_files()) {
    const std::string inside = fs::relative(file, src).generic_string();
    for (const Include& include : includes_of(file)) {
      const bool in_linux = inside.find("/linux/") != std::string::npos;
      const bool in_windows = inside.find("/windows/") != std::string::npos;
      EXPECT_TRUE(in_linux || of_linux.count(include.name) == 0) << inside << " includes " << include.name;
      EXPECT_TRUE(in_windows || of_windows.count(include.name) == 0) << inside << " includes " << include.name;
    }
  }
}

// The rules themselves.

TEST(WallRules, KnowTheToolkitsHeaders) {
  for (const char* header :
       {"QString", "QtCore/QString", "QtGlobal", "qglobal.h", "QtWidgets/qwidget.h", "QApplication"}) {
    EXPECT_TRUE(is_of_the_toolkit(header)) << header;
  }
  for (const char* header : {"queue", "string", "core/text.h", "quick_exit", "cstdint", "widgets/qt_shell.h"}) {
    EXPECT_FALSE(is_of_the_toolkit(header)) << header;
  }
}

TEST(WallRules, ReadIncludesHoweverTheyAreWritten) {
  std::istringstream text{
      "#include <QString>\n  #  include \"core/text.h\"  // why\n// #include \"no/such.h\"\nint x;\n"};
  const std::vector<Include> found = includes_in(text);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].name, "QString");
  EXPECT_FALSE(found[0].own);
  EXPECT_EQ(found[1].name, "core/text.h");
  EXPECT_TRUE(found[1].own);
}

TEST(WallRules, LetArrowsRunDownwardsOnly) {
  EXPECT_TRUE(is_allowed("link", "image/prg_mode.h", true));
  EXPECT_TRUE(is_allowed("link", "link/ports.h", true));
  EXPECT_FALSE(is_allowed("image", "link/ports.h", true));
  EXPECT_FALSE(is_allowed("link", "lang/language.h", true));
  EXPECT_TRUE(is_allowed("fields", "lang/own_texts.h", true));
  EXPECT_TRUE(is_allowed("keyboard", "fields/book.h", true));
  EXPECT_TRUE(is_allowed("editors", "fields/book.h", false));
  EXPECT_FALSE(is_allowed("fields", "keyboard/free_layout.h", true));
  EXPECT_FALSE(is_allowed("fields", "link/transfer.h", true));
  EXPECT_FALSE(is_allowed("core", "widgets/field.h", true));
  EXPECT_FALSE(is_allowed("widgets", "screens/menu.h", false));
  EXPECT_FALSE(is_allowed("editors", "screens/menu.h", false));
  EXPECT_FALSE(is_allowed("reports", "widgets/field.h", true));
  EXPECT_TRUE(is_allowed("reports", "widgets/field.h", false));
  EXPECT_TRUE(is_allowed("emulator", "link/tilbridge2.h", true));
  EXPECT_FALSE(is_allowed("emulator", "link/library.h", true));
  EXPECT_FALSE(is_allowed("robot", "core/text.h", false));
}

}  // namespace
}  // namespace ecr::test
