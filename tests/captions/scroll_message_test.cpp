#include "captions/scroll_message.h"

#include <gtest/gtest.h>

namespace ecr::test {
namespace {

TEST(ScrollMessage, StandsAtTheLeftEndAtFirst) {
  EXPECT_EQ(display_window(u"CLOSED", 0), u"CLOSED              ");
  EXPECT_EQ(display_window(u"GOOD MORNING - CAPPUCCINO & CROISSANT 4 E", 0), u"GOOD MORNING - CAPPU");
}

TEST(ScrollMessage, MovesToTheLeftAndComesInAgainFromTheRight) {
  EXPECT_EQ(display_window(u"CLOSED", 1), u"LOSED               ");
  EXPECT_EQ(display_window(u"CLOSED", 5), u"D                   ");
  EXPECT_EQ(display_window(u"CLOSED", 6), u"                    ") << "for one moment the display is empty";
  EXPECT_EQ(display_window(u"CLOSED", 7), u"                   C");
  EXPECT_EQ(display_window(u"CLOSED", 25), u" CLOSED             ");
}

TEST(ScrollMessage, BeginsAgainAfterItsPeriod) {
  EXPECT_EQ(display_period(u"CLOSED"), 26U);
  for (std::size_t step = 0; step < 30; ++step) {
    EXPECT_EQ(display_window(u"CLOSED", step + 26), display_window(u"CLOSED", step)) << step;
  }
}

TEST(ScrollMessage, BlanksBehindTheMessageDoNotRunThrough) {
  EXPECT_EQ(display_period(u"CLOSED                                    "), display_period(u"CLOSED"));
  EXPECT_EQ(display_window(u"CLOSED            ", 7), display_window(u"CLOSED", 7));
}

TEST(ScrollMessage, AnEmptyMessageIsAnEmptyDisplay) {
  EXPECT_EQ(display_period(u"   "), 20U);
  for (std::size_t step = 0; step < 21; ++step) EXPECT_EQ(display_window(u"", step), std::u16string(20, u' '));
}

TEST(ScrollMessage, AFasterSpeedTakesLessTime) {
  EXPECT_GT(scroll_interval_ms(0), scroll_interval_ms(1));
  EXPECT_GT(scroll_interval_ms(1), scroll_interval_ms(2));
  EXPECT_GT(scroll_interval_ms(2), 0);
  EXPECT_EQ(scroll_interval_ms(7), scroll_interval_ms(1));
}

}  // namespace
}  // namespace ecr::test
