#pragma once
// The state that the whole program shares: folders, the chosen model, the port. One person and one register at a time,
// so these are plain variables; each is set where the comment says and read anywhere.

#include <cstdint>
#include <string>
#include <string_view>

namespace ecr::Global {

// Folders, all with backslashes and one at the end. Set by set_folders at the program's start.
extern std::string PathApp;         ///< the folder from which the program was started
extern std::string PathLog;         ///< "Log\": the run log
extern std::string PathSetup;       ///< "Setup\": language files, pictures, small state files
extern std::string PathDriver;      ///< "Driver\": driver tools of the cable
extern std::string PathDati;        ///< "Dati\": the programming files and what comes from the register
extern std::string PathHelp;        ///< "help\eng\" at first, then that of the chosen language
extern std::string PathReportDati;  ///< "Dati\Report\": report files that a newer one displaced
extern std::string PathReport;      ///< "Report\": the CSV files
extern std::string PathFW;          ///< "FW\": kept, nothing uses it
extern std::string PathModel;       ///< "Dati\ECRZ300\" or "Dati\ECRZ320\", set when a model is chosen

extern bool DebugMode;              ///< the command line is exactly DEBUG
extern std::uint8_t ComPort;        ///< serial port of all register traffic, 0 = none; written by use_port alone
extern std::uint8_t EcrModel;       ///< model_z300 or model_z320
extern std::int16_t MaxPlu;         ///< 3000 on both models, set when a model is chosen
extern std::uint8_t FwLevel;        ///< class of the linked firmware, see link/firmware.h
extern std::uint8_t DecimalPoint;   ///< decimals of amounts, 0 to 3; take_decimal_point and ProgrammingCopy write it
extern std::string ProgramVersion;  ///< "V. 1.0.0", set on the start screen

inline constexpr std::uint8_t model_z300 = 0;
inline constexpr std::uint8_t model_z320 = 1;

/// Builds the folder variables from the application folder, given with backslashes and without the last one.
void set_folders(std::string_view application_folder);

/// Takes the model: EcrModel, PathModel and MaxPlu.
void choose_model(std::uint8_t model);

/// The head of the file names of the model's default files: "ECRZ320_" for the Z320, else "ECRZ300_".
[[nodiscard]] std::string_view model_prefix();

/// Creates the folders that the program writes to where they are missing; a failure shows only later, when a file in
/// the folder cannot be opened. The folders that must come with the installation are not created.
void crea_cartelle();

/// Removes what saves of an earlier run that were cut off have left in the folders in which the program saves, and logs
/// the name of each.
void remove_unfinished_saves();

/// Everything as before the program's start, for tests.
void reset();

}  // namespace ecr::Global
