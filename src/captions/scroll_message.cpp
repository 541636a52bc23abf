#include "captions/scroll_message.h"

#include <algorithm>

namespace ecr {
namespace {

std::u16string_view without_blanks_behind(std::u16string_view text) {
  const std::size_t last = text.find_last_not_of(u' ');
  return text.substr(0, last == std::u16string_view::npos ? 0 : last + 1);
}

}  // namespace

std::size_t display_period(std::u16string_view message) {
  return without_blanks_behind(message).size() + display_columns;
}

std::u16string display_window(std::u16string_view message, std::size_t step) {
  std::u16string tape{without_blanks_behind(message)};
  tape.append(display_columns, u' ');
  std::rotate(tape.begin(), tape.begin() + static_cast<std::ptrdiff_t>(step % tape.size()), tape.end());
  tape.resize(display_columns);
  return tape;
}

int scroll_interval_ms(int speed) {
  constexpr int slow = 450;
  constexpr int medium = 280;
  constexpr int fast = 140;
  return speed == 0 ? slow : speed == 2 ? fast : medium;
}

}  // namespace ecr
