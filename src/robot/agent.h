#pragma once
// The robot's hand inside the program.

namespace ecr::robot {

/// Lets a robot drive this program through its standard input and output, if the environment variable VERMANTO_ROBOT is
/// set; does nothing otherwise. Call it on the screen thread, once, when the QApplication stands and before the first
/// screen is shown. It returns at once; nothing has to be undone at the end.
void attach();

}  // namespace ecr::robot
