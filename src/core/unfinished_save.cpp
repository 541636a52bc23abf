#include "core/unfinished_save.h"

#include <array>

namespace ecr {
namespace {

constexpr std::string_view capitals = "ABCDEFGHIJKLMNOPQRSTUVWXYZ";
constexpr std::string_view small_letters = "abcdefghijklmnopqrstuvwxyz";
constexpr std::string_view digits = "0123456789";
constexpr std::string_view point = ".";
constexpr std::array<std::string_view, 7> ending = {point, capitals, digits, capitals, digits, capitals, small_letters};

}  // namespace

std::string unfinished_save_ending(std::uint32_t number) {
  std::string text;
  for (const std::string_view characters : ending) {
    text += characters[number % characters.size()];
    number /= static_cast<std::uint32_t>(characters.size());
  }
  return text;
}

bool is_unfinished_save(std::string_view name) {
  if (name.size() <= ending.size()) return false;
  name.remove_prefix(name.size() - ending.size());
  for (std::size_t i = 0; i < ending.size(); ++i) {
    if (ending.at(i).find(name[i]) == std::string_view::npos) return false;
  }
  return true;
}

}  // namespace ecr
