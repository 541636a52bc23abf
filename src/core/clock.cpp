#include "core/clock.h"

#include <chrono>
#include <cstdio>
#include <ctime>
#include <utility>

namespace ecr {
namespace {

std::function<Moment()> installed_clock;

Moment system_moment() {
  const auto time_point = std::chrono::system_clock::now();
  const std::time_t seconds = std::chrono::system_clock::to_time_t(time_point);
  std::tm parts{};
#ifdef _WIN32
  localtime_s(&parts, &seconds);
#else
  localtime_r(&seconds, &parts);
#endif
  const auto whole = std::chrono::time_point_cast<std::chrono::seconds>(time_point);
  const std::chrono::duration<double> fraction = time_point - whole;
  return {parts.tm_mday, parts.tm_mon + 1, parts.tm_year + 1900,
          parts.tm_hour * 3600 + parts.tm_min * 60 + parts.tm_sec + fraction.count()};
}

std::string two_digits(int number) {
  std::string text = std::to_string(number % 100);
  return text.size() < 2 ? "0" + text : text;
}

}  // namespace

Moment now() {
  return installed_clock ? installed_clock() : system_moment();
}

void install_clock(std::function<Moment()> clock) {
  installed_clock = std::move(clock);
}

std::string date_text(const Moment& moment) {
  return two_digits(moment.day) + "-" + two_digits(moment.month) + "-" + two_digits(moment.year);
}

std::string time_text(const Moment& moment) {
  const int seconds = static_cast<int>(moment.second_of_day);
  return two_digits(seconds / 3600) + ":" + two_digits(seconds / 60 % 60) + ":" + two_digits(seconds % 60);
}

}  // namespace ecr
