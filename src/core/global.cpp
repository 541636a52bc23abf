#include "core/global.h"

#include <array>

#include "core/files.h"
#include "core/model.h"
#include "core/run_log.h"

namespace ecr::Global {

std::string PathApp;
std::string PathLog;
std::string PathSetup;
std::string PathDriver;
std::string PathDati;
std::string PathHelp;
std::string PathReportDati;
std::string PathReport;
std::string PathFW;
std::string PathModel;

bool DebugMode = false;
std::uint8_t ComPort = 0;
std::uint8_t EcrModel = model_z300;
std::int16_t MaxPlu = 0;
std::uint8_t FwLevel = 0;
std::uint8_t DecimalPoint = 0;
std::string ProgramVersion;

void set_folders(std::string_view application_folder) {
  PathApp = std::string{application_folder} + "\\";
  PathLog = PathApp + "Log\\";
  PathSetup = PathApp + "Setup\\";
  PathDriver = PathApp + "Driver\\";
  PathDati = PathApp + "Dati\\";
  PathHelp = PathApp + "help\\eng\\";
  PathReportDati = PathDati + "Report\\";
  PathReport = PathApp + "Report\\";
  PathFW = PathApp + "FW\\";
}

void choose_model(std::uint8_t model) {
  EcrModel = model;
  PathModel = PathDati + std::string{chosen_model().name} + "\\";
  MaxPlu = 3000;
}

std::string_view model_prefix() {
  return chosen_model().file_prefix;
}

void crea_cartelle() {
  for (const std::string* folder : std::array{&PathLog, &PathDati, &PathSetup, &PathReportDati, &PathReport}) {
    const std::string name = folder->substr(0, folder->empty() ? 0 : folder->size() - 1);
    if (!folder_exists(name)) static_cast<void>(make_folder(name));
  }
}

void remove_unfinished_saves() {
  if (PathApp.empty()) return;
  // The emulated register saves as well, in a folder of its own.
  for (const std::string& folder : {PathApp, PathSetup, PathDati, PathReportDati, PathApp + "register\\"}) {
    for (const std::string& name : ecr::remove_unfinished_saves(folder)) {
      memo_log("Removed what a save that was cut off had left: " + name);
    }
  }
}

void reset() {
  for (std::string* text : {&PathApp, &PathLog, &PathSetup, &PathDriver, &PathDati, &PathHelp, &PathReportDati,
                            &PathReport, &PathFW, &PathModel, &ProgramVersion}) {
    text->clear();
  }
  DebugMode = false;
  ComPort = 0;
  EcrModel = model_z300;
  MaxPlu = 0;
  FwLevel = 0;
  DecimalPoint = 0;
}

}  // namespace ecr::Global
