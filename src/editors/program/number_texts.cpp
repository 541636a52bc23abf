#include "editors/program/number_texts.h"

#include <array>
#include <charconv>
#include <string_view>

#include "core/global.h"
#include "core/text.h"
#include "widgets/field.h"
#include "widgets/screen_text.h"

namespace ecr {

Decimal numeric_value(const QString& text) {
  const std::string bytes = page_bytes(text);
  const std::size_t start = bytes.find_first_not_of(' ');
  if (start == std::string::npos) return {};
  std::size_t end = start + (bytes[start] == '-' || bytes[start] == '+' ? 1 : 0);
  bool point_seen = false;
  for (; end < bytes.size(); ++end) {
    const bool is_point = bytes[end] == '.';
    if (is_point ? point_seen : bytes[end] < '0' || bytes[end] > '9') break;
    point_seen = point_seen || is_point;
  }
  return Decimal::parse(std::string_view{bytes}.substr(start, end - start)).value_or(Decimal{});
}

QString with_zeros(const QString& text, int digits) {
  const std::optional<Decimal> number = Decimal::parse(page_bytes(text));
  return number ? screen_text(number->text(0, digits)) : text;
}

QString through_double(const QString& text) {
  const std::string digits = numeric_value(text).text();
  double value = 0;
  std::from_chars(digits.data(), digits.data() + digits.size(), value);
  std::array<char, 40> form{};
  const auto [end, fault] =
      std::to_chars(form.data(), form.data() + form.size(), value, std::chars_format::general, 15);
  return screen_text(upper_ascii(std::string_view{form.data(), static_cast<std::size_t>(end - form.data())}));
}

Decimal amount_in(const Field& field) {
  const Decimal shown = field.text().isEmpty() ? Decimal{} : Decimal::from_text(page_bytes(field.text()));
  return shown.scaled(Global::DecimalPoint);
}

void make_whole_number_field(Field& field, int maximum) {
  field.let_in(Field::Keys::digits);
  field.on_entered([&field] {
    if (value_of(field.text()).is_zero()) field.clear();
  });
  field.on_change([&field, most = Decimal{maximum}] {
    if (value_of(field.text()) > most) refuse_value(field);
  });
}

}  // namespace ecr
