#include "core/global.h"

#include <gtest/gtest.h>
#include <string>

#include "support/installation.h"

namespace ecr::test {
namespace {

class GlobalState : public InstallationTest {};

TEST_F(GlobalState, TheFoldersHangBelowTheApplicationFolder) {
  Global::set_folders("C:\\Shop\\ECR");
  EXPECT_EQ(Global::PathApp, "C:\\Shop\\ECR\\");
  EXPECT_EQ(Global::PathLog, "C:\\Shop\\ECR\\Log\\");
  EXPECT_EQ(Global::PathSetup, "C:\\Shop\\ECR\\Setup\\");
  EXPECT_EQ(Global::PathDriver, "C:\\Shop\\ECR\\Driver\\");
  EXPECT_EQ(Global::PathDati, "C:\\Shop\\ECR\\Dati\\");
  EXPECT_EQ(Global::PathHelp, "C:\\Shop\\ECR\\help\\eng\\");
  EXPECT_EQ(Global::PathReportDati, "C:\\Shop\\ECR\\Dati\\Report\\");
  EXPECT_EQ(Global::PathReport, "C:\\Shop\\ECR\\Report\\");
  EXPECT_EQ(Global::PathFW, "C:\\Shop\\ECR\\FW\\");
}

TEST_F(GlobalState, AModelIsChosenWithItsFolderAndItsPrefix) {
  Global::set_folders("A:");
  Global::choose_model(Global::model_z300);
  EXPECT_EQ(Global::EcrModel, 0);
  EXPECT_EQ(Global::PathModel, "A:\\Dati\\ECRZ300\\");
  EXPECT_EQ(Global::model_prefix(), "ECRZ300_");
  EXPECT_EQ(Global::MaxPlu, 3000);
  Global::choose_model(Global::model_z320);
  EXPECT_EQ(Global::EcrModel, 1);
  EXPECT_EQ(Global::PathModel, "A:\\Dati\\ECRZ320\\");
  EXPECT_EQ(Global::model_prefix(), "ECRZ320_");
  EXPECT_EQ(Global::MaxPlu, 3000);
}

TEST_F(GlobalState, OnlyModel1IsTheZ320) {
  Global::EcrModel = 2;
  EXPECT_EQ(Global::model_prefix(), "ECRZ300_");
}

TEST_F(GlobalState, FiveMissingFoldersAreCreatedAndNoOther) {
  for (const char* folder : {"Log", "Dati", "Setup", "Report"}) remove(folder);
  Global::choose_model(Global::model_z320);
  Global::crea_cartelle();
  for (const char* folder : {"Log", "Dati", "Setup", "Dati/Report", "Report"}) EXPECT_TRUE(exists(folder)) << folder;
  for (const char* folder : {"Driver", "help", "FW", "Dati/ECRZ320", "Dati/ECRZ300"}) {
    EXPECT_FALSE(exists(folder)) << folder;
  }
}

TEST_F(GlobalState, FoldersThatAreThereKeepWhatTheyHold) {
  write("Dati/PRG_MODE.BIN", "kept");
  write("Log/memo_log.txt", "kept too\n");
  Global::crea_cartelle();
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "kept");
  EXPECT_EQ(bytes("Log/memo_log.txt"), "kept too\n");
}

TEST_F(GlobalState, AFolderThatCannotBeCreatedIsPassedOver) {
  for (const char* folder : {"Log", "Dati", "Setup", "Report"}) remove(folder);
  write("Dati", "a file stands where the folder should be");
  Global::crea_cartelle();
  EXPECT_EQ(bytes("Dati"), "a file stands where the folder should be");
  for (const char* folder : {"Log", "Setup", "Report"}) EXPECT_TRUE(exists(folder)) << folder;
}

TEST_F(GlobalState, WithoutAnApplicationFolderNothingIsCreatedAndNothingFails) {
  Global::set_folders(Global::PathApp + "not there");
  Global::crea_cartelle();
  EXPECT_FALSE(exists("not there"));
  Global::reset();
  Global::crea_cartelle();
}

TEST_F(GlobalState, IsAsBeforeTheStartAfterAReset) {
  Global::choose_model(Global::model_z320);
  Global::DebugMode = true;
  Global::ComPort = 4;
  Global::FwLevel = 2;
  Global::DecimalPoint = 2;
  Global::ProgramVersion = "V. 1.0.0";
  Global::reset();
  EXPECT_EQ(Global::PathApp + Global::PathLog + Global::PathSetup + Global::PathDriver + Global::PathDati, "");
  EXPECT_EQ(Global::PathHelp + Global::PathReportDati + Global::PathReport + Global::PathFW + Global::PathModel, "");
  EXPECT_EQ(Global::ProgramVersion, "");
  EXPECT_FALSE(Global::DebugMode);
  EXPECT_EQ(Global::ComPort + Global::EcrModel + Global::MaxPlu + Global::FwLevel + Global::DecimalPoint, 0);
}

}  // namespace
}  // namespace ecr::test
