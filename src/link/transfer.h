#pragma once
// The image and the PLU file to the register and back, and the default files from which a new programming starts.
//
// What a send takes is the file in PathDati, never what stands in memory alone.

namespace ecr {

/// Sends PRG_MODE.BIN, and with `sendPlu` PRG_PLU.BIN behind it. A failed link check ends the program after a message.
/// Without `skipMerge` the counters that the register owns are first read from it and merged into the working image.
/// Answers whether the image reached the register; a failure is logged, showing it is the caller's.
bool Send_PrgModeToEcr(const bool& sendPlu, const bool& skipMerge);

/// Sends PRG_PLU.BIN. A failed link check ends the program after a message. After a good send the send flags are
/// cleared, the register is given 1.4 seconds for each record that had one, and the table is written to its file.
bool Send_PrgPluToEcr();

/// Copies the chosen model's default files over those in PathDati. Does nothing for a very old firmware. A copy that
/// fails is shown in a box and logged.
void copia_def_file();

/// Reads both files from the register into PathDati, with boxes for what goes wrong. Answers whether to go on: false
/// only when the register refused; where the tool could not be run the files that stand are gone on with.
bool read_files_from_register();

}  // namespace ecr
