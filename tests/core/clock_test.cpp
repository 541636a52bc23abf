#include "core/clock.h"

#include <ctime>
#include <gtest/gtest.h>
#include <string>

namespace ecr::test {
namespace {

TEST(Clock, WritesADateAsDayMonthAndTwoDigitsOfTheYear) {
  EXPECT_EQ(date_text({1, 2, 2003, 0}), "01-02-03");
  EXPECT_EQ(date_text({31, 12, 2026, 0}), "31-12-26");
  EXPECT_EQ(date_text({9, 10, 2100, 0}), "09-10-00");
}

TEST(Clock, WritesATimeInHoursMinutesAndSeconds) {
  EXPECT_EQ(time_text({1, 1, 2000, 0}), "00:00:00");
  EXPECT_EQ(time_text({1, 1, 2000, 3661.999}), "01:01:01");
  EXPECT_EQ(time_text({1, 1, 2000, 86399.99}), "23:59:59");
}

TEST(Clock, CanBeReplacedAndPutBack) {
  install_clock([] { return Moment{3, 4, 1999, 5}; });
  EXPECT_EQ(date_text(now()), "03-04-99");
  EXPECT_EQ(now().second_of_day, 5);
  install_clock({});
  EXPECT_NE(date_text(now()), "03-04-99");
}

TEST(Clock, TellsTheLocalTimeOfTheSystem) {
  install_clock({});
  const auto local = [](std::time_t time) {
    char text[32];
    const std::tm* parts = std::localtime(&time);
    return std::string{text, std::strftime(text, sizeof text, "%d-%m-%Y %H:%M:%S", parts)}.erase(6, 2);
  };
  // The clock may tick between two questions: then they are asked again.
  for (;;) {
    const std::string before = local(std::time(nullptr));
    const Moment moment = now();
    if (before != local(std::time(nullptr))) continue;
    EXPECT_EQ(date_text(moment) + " " + time_text(moment), before);
    EXPECT_GE(moment.second_of_day, 0);
    EXPECT_LT(moment.second_of_day, 86400);
    break;
  }
}

}  // namespace
}  // namespace ecr::test
