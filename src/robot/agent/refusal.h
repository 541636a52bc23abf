#pragma once
// Why a request of the robot is not carried out.

#include <QString>

namespace ecr::robot {

struct Refusal {
  bool script_fault = false;  ///< the script asks for what does not exist; else a person could not have done it now
  QString expected;
  QString found;
};

[[nodiscard]] inline Refusal not_possible(QString expected, QString found) {
  return {false, std::move(expected), std::move(found)};
}

[[nodiscard]] inline Refusal script_fault(QString expected, QString found) {
  return {true, std::move(expected), std::move(found)};
}

}  // namespace ecr::robot
