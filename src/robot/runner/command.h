#pragma once
// The commands of the script language: how each is written, and what runs it.

#include <cstdint>
#include <span>
#include <vector>

#include "robot/runner/script.h"

namespace ecr::robot {

class Session;

/// The words behind a command, already checked against the way it is written.
class Arguments {
 public:
  explicit Arguments(const std::vector<Word>& words) : words_{words} {}

  [[nodiscard]] std::size_t count() const { return words_.size(); }
  [[nodiscard]] bool has(std::size_t index) const { return index < words_.size(); }
  [[nodiscard]] const Word& word(std::size_t index) const { return words_.at(index); }
  [[nodiscard]] const QString& text(std::size_t index) const { return words_.at(index).text; }
  [[nodiscard]] qsizetype number(std::size_t index) const { return text(index).toInt(); }
  [[nodiscard]] int small_number(std::size_t index) const { return text(index).toInt(); }
  [[nodiscard]] double seconds(std::size_t index) const { return text(index).toDouble(); }
  [[nodiscard]] QByteArray bytes(std::size_t index) const { return QByteArray::fromHex(text(index).toLatin1()); }

  /// Whether the word is the first of a pair such as "on|off".
  [[nodiscard]] bool is(std::size_t index, const char* literal) const { return text(index) == QLatin1String(literal); }

 private:
  const std::vector<Word>& words_;
};

enum class Trying : std::uint8_t {
  once,   ///< acting, and what makes no sense to try again
  again,  ///< an expectation, tried again for a while before it fails
};

struct Command {
  const char* name = nullptr;  ///< one word, or two such as "register on"
  /// What stands behind the name: N and the like are whole numbers, SECONDS a decimal number, HEX pairs of hexadecimal
  /// digits, KEY a key's name, words with "|" one of these, "[...]" may be left out, "..." any number of the last.
  const char* form = nullptr;
  Trying trying = Trying::once;
  /// None for `include`, whose place the included lines take when the script is read.
  void (*run)(Session& session, const Arguments& arguments) = nullptr;
  bool waits_as_told = false;  ///< the limit of a line does not apply
};

[[nodiscard]] std::span<const Command> starting_commands();
[[nodiscard]] std::span<const Command> acting_commands();
[[nodiscard]] std::span<const Command> screen_commands();
[[nodiscard]] std::span<const Command> file_commands();
[[nodiscard]] std::span<const Command> trace_commands();
[[nodiscard]] std::span<const Command> register_commands();

/// The command that the words begin with; takes its name out of them. Throws a ScriptFault if there is none.
[[nodiscard]] const Command* find_command(std::vector<Word>& words);

/// Throws a ScriptFault if the words are not what the command's form asks for.
void check_words(const Command& command, const std::vector<Word>& words);

}  // namespace ecr::robot
