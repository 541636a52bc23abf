#pragma once
// The time of day and the date, behind a seam so that a test can set them.

#include <functional>
#include <string>

namespace ecr {

struct Moment {
  int day = 1;    ///< 1 to 31
  int month = 1;  ///< 1 to 12
  int year = 2000;
  double second_of_day = 0;  ///< 0 up to, but not including, 86400; local time
};

/// Now, in local time.
[[nodiscard]] Moment now();

/// Replaces the clock; an empty function puts the system's own back.
void install_clock(std::function<Moment()> clock);

/// "dd-mm-yy".
[[nodiscard]] std::string date_text(const Moment& moment);

/// "hh:mm:ss", 24 hours.
[[nodiscard]] std::string time_text(const Moment& moment);

}  // namespace ecr
