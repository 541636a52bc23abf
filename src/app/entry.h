#pragma once
// The entry routine: the one way the program starts.

#include <QString>

namespace ecr {

class FrmPres;
class Stage;

/// Names every screen that the menus can open.
void register_screens();

/// The whole start, from the folders to the first screen. `application_folder` is a path of the host, `command_line`
/// the words behind the program's name. Returns when the start screen is up and its first search for the port is under
/// way; with the command line STOP it ends the program instead.
void Main(Stage& stage, const QString& application_folder, const QString& command_line);

}  // namespace ecr
