#pragma once
// Why a script line does not do what it says. All three are thrown and caught by whoever runs the line.

#include <QString>

namespace ecr::robot {

/// An expectation does not hold, or a person could not have acted so: status 1.
struct Unmet {
  QString expected;
  QString found;
  bool for_good = false;  ///< trying again is no use
};

/// The script asks for what does not exist: status 2.
struct ScriptFault {
  QString expected;
  QString found;
  bool may_pass = false;  ///< a screen that comes up in a moment may have it
};

}  // namespace ecr::robot
