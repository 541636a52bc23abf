#pragma once
// The manual: HTML pages in the help folder of the chosen language, one for each screen.

#include <QString>

class QWidget;

namespace ecr {

/// Opens the manual at a page, given without its folder and ending. Where the help file of the language lies in the
/// help folder it is opened in the system's viewer; else the pages are shown in a window of our own. Where there is
/// neither, the log says so.
void open_help(QWidget* over, const QString& page);

}  // namespace ecr
