#pragma once
// What the robot and the agent inside the program say to each other.
//
// One JSON object a line, UTF-8. The robot writes requests to the program's standard input:
//   {"id": 7, "do": "click", "control": "C_Salva"}
// and the agent answers on standard output, with the request's id, in the order in which the answers come about:
//   {"id": 7, "is": "done"}                                        an acting line is over
//   {"id": 7, "is": "value", "value": ...}                         what was asked for
//   {"id": 7, "is": "failed", "expected": "...", "found": "..."}   a person could not have done this
//   {"id": 7, "is": "fault", "expected": "...", "found": "..."}    the script asks for what does not exist
// Whatever else the program writes to standard output is none of the robot's business. The end of standard input means
// that the robot is gone: the program then ends at once.

namespace ecr::robot {

/// The environment variable that tells the program to listen to a robot.
inline constexpr char switch_variable[] = "VERMANTO_ROBOT";

}  // namespace ecr::robot
