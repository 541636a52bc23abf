#include "make_programming/source.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <utility>

#include "core/files.h"
#include "core/text.h"

namespace ecr {
namespace {

constexpr int deepest_include = 8;

std::string_view trimmed(std::string_view text) {
  text.remove_prefix(std::min(text.find_first_not_of(" \t"), text.size()));
  while (!text.empty() && (text.back() == ' ' || text.back() == '\t')) text.remove_suffix(1);
  return text;
}

/// One line, cut where `=`, `,` and `#` stand outside quotes.
class Line {
 public:
  explicit Line(std::string_view text) {
    bool quoted = false;
    std::size_t start = 0;
    std::size_t i = 0;
    const auto cut = [&] {
      pieces_.emplace_back(trimmed(text.substr(start, i - start)));
      start = i + 1;
    };
    for (; i < text.size(); ++i) {
      if (quoted && text[i] == '\\') {
        ++i;
      } else if (text[i] == '"') {
        quoted = !quoted;
      } else if (quoted) {
        continue;
      } else if (text[i] == '#') {
        break;
      } else if (text[i] == '=' && !assigns_) {
        assigns_ = true;
        cut();
      } else if (text[i] == ',' && assigns_) {
        cut();
      }
    }
    closed_ = !quoted;
    i = std::min(i, text.size());
    cut();
  }

  [[nodiscard]] bool closed() const { return closed_; }
  [[nodiscard]] bool assigns() const { return assigns_; }
  [[nodiscard]] const std::vector<std::string>& pieces() const { return pieces_; }

 private:
  std::vector<std::string> pieces_;  // the target or the whole line first
  bool assigns_ = false;
  bool closed_ = true;
};

std::vector<Statement> read_at_depth(const std::string& file, int depth);

void add_include(const std::string& from, int line, std::string_view rest, int depth,
                 std::vector<Statement>& statements) {
  rest = trimmed(rest);
  if (rest.size() < 3 || rest.front() != '"' || rest.back() != '"') {
    throw SourceError{from, line, "behind include stands a file name in quotes"};
  }
  if (depth == deepest_include) throw SourceError{from, line, "the includes go too deep"};
  const std::filesystem::path folder = std::filesystem::path{from}.parent_path();
  const std::filesystem::path file = folder / std::string{rest.substr(1, rest.size() - 2)};
  if (!std::filesystem::is_regular_file(file)) throw SourceError{from, line, "there is no file " + std::string{rest}};
  std::vector<Statement> included = read_at_depth(file.lexically_normal().generic_string(), depth + 1);
  std::move(included.begin(), included.end(), std::back_inserter(statements));
}

std::vector<Statement> parse_at_depth(std::string_view text, const std::string& name, int depth) {
  constexpr std::string_view include = "include ";
  std::vector<Statement> statements;
  int number = 0;
  for (const std::string_view raw : lines_of(text)) {
    ++number;
    const Line line{raw};
    if (!line.closed()) throw SourceError{name, number, "a quote is not closed"};
    const std::string& target = line.pieces().front();
    if (!line.assigns() && target.empty()) continue;
    if (!line.assigns() && target.starts_with(include)) {
      add_include(name, number, std::string_view{target}.substr(include.size()), depth, statements);
      continue;
    }
    if (!line.assigns()) throw SourceError{name, number, "a line reads \"name = value\""};
    if (target.empty()) throw SourceError{name, number, "a name is missing in front of \"=\""};
    statements.push_back({name, number, target, {line.pieces().begin() + 1, line.pieces().end()}});
  }
  return statements;
}

std::vector<Statement> read_at_depth(const std::string& file, int depth) {
  std::string bytes;
  const Fault fault = read_file(file, bytes);
  if (fault.stands()) throw SourceError{file, 0, std::string{fault.description()}};
  return parse_at_depth(bytes, file, depth);
}

}  // namespace

std::vector<Statement> parse_source(std::string_view text, const std::string& name) {
  return parse_at_depth(text, name, 0);
}

std::vector<Statement> read_source(const std::string& file) {
  return read_at_depth(file, 0);
}

}  // namespace ecr
