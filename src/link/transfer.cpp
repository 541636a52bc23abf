#include "link/transfer.h"

#include <cstdint>
#include <string>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "core/text.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "link/error_tables.h"
#include "link/firmware.h"
#include "link/library.h"
#include "link/process.h"

namespace ecr {
namespace {

constexpr std::int32_t image_timeout = 120;
constexpr std::int32_t plu_timeout = 180;
constexpr double seconds_for_each_item = 1.4;

std::string description(std::int32_t resultCode) {
  return std::string{NumToDesc_RegWire(resultCode)};
}

/// A send to a register that does not answer is not tried: the program ends.
void check_link_or_end() {
  if (Get_Fw_Banner()) return;
  tell(BoxKind::plain, message(Key::FRM_ALL_WRONG_ECR));
  shell().end_program();
}

/// Takes over what the register counts by itself. The invoice number, SysOpt4, is the programming's own.
void merge_what_the_register_owns() {
  const std::string image = Global::PathDati + "PRG_MODE.BIN";
  // Where the name is taken the older copy stays and the upload goes over the current file.
  static_cast<void>(rename_file(image, Global::PathDati + "PRG_MODE_SAV.BIN"));
  std::int32_t resultCode = 0;
  const std::int32_t answer = util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, TILBRIDGE_FILE_IMAGE, resultCode,
                                                   image_timeout, Global::ComPort);
  if (answer == 0) {
    memo_log("Send_PrgModeToEcr: Errore nella chiamata di REGWIRE. File 0");
  } else {
    Read_PrgMode(true);
    PrgMode.SysOpt3 = PrgModeComparison.SysOpt3;
    PrgMode.SysOpt5 = PrgModeComparison.SysOpt5;
    PrgMode.SysOpt6 = PrgModeComparison.SysOpt6;
    PrgMode.SysOpt7 = PrgModeComparison.SysOpt7;
  }
  Write_PrgMode();
}

enum class Upload { done, not_run, refused };

/// One of the two uploads of read_files_from_register, with the box and the log line of its failures.
Upload read_file_from_register(std::uint8_t fileNumber, std::int32_t timeout) {
  const std::string number = std::to_string(fileNumber);
  std::int32_t resultCode = 0;
  const std::int32_t answer =
      util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, fileNumber, resultCode, timeout, Global::ComPort);
  if (answer == 0) {
    memo_log("Errore nella chiamata di REGWIRE. File " + number);
    tell(BoxKind::plain, message(Key::FRM_PRINCIPALE_ECR_REGWIRE_KO_MSG));
    return Upload::not_run;
  }
  if (resultCode != TILBRIDGE_CODE_DONE) {
    const std::string line = "REGWIRE return error: " + hex_text(resultCode) + " . File " + number;
    const std::string text{message_or(Key::FRM_PRINCIPALE_COMUNICATION_ERROR_MSG, "Comunicatione error: ")};
    // The two files are told apart by a blank and a description, on purpose.
    const bool is_plu = fileNumber == TILBRIDGE_FILE_PLU;
    memo_log(is_plu ? line + " Desc: " + description(resultCode) : line);
    tell(BoxKind::critical, text + (is_plu ? " " : "") + description(resultCode));
    if (resultCode == TILBRIDGE_CODE_TIMEOUT) Process_Kill(exchange_tool);
    return Upload::refused;
  }
  return Upload::done;
}

}  // namespace

bool Send_PrgModeToEcr(const bool& sendPlu, const bool& skipMerge) {
  check_link_or_end();
  if (!skipMerge) merge_what_the_register_owns();

  std::int32_t resultCode = 0;
  const std::int32_t answer = util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_DOWNLOAD, TILBRIDGE_FILE_IMAGE,
                                                   resultCode, image_timeout, Global::ComPort);
  if (answer != 1) {
    memo_log("Send_PrgModeToEcr error using regwire");
    return false;
  }
  if (resultCode != TILBRIDGE_CODE_DONE) {
    memo_log("Send_PrgModeToEcr error. Code: " + hex_text(resultCode) + " Desc: " + description(resultCode));
    if (resultCode == TILBRIDGE_CODE_TIMEOUT) Process_Kill(exchange_tool);
    return false;
  }
  if (sendPlu && !Send_PrgPluToEcr()) tell(BoxKind::critical, MsgProgramKo);
  return true;
}

bool Send_PrgPluToEcr() {
  check_link_or_end();
  std::int32_t resultCode = 0;
  const std::int32_t answer = util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_DOWNLOAD, TILBRIDGE_FILE_PLU, resultCode,
                                                   plu_timeout, Global::ComPort);
  if (answer != 1) {
    memo_log("Send_PrgPluToEcr error using regwire");
    return false;
  }
  if (resultCode == TILBRIDGE_CODE_DONE) {
    Aspetta(Count_PluToSend(true) * seconds_for_each_item, "The register is taking in the changed items");
    Write_PrgPlu();
    return true;
  }
  memo_log("Send_PrgPluToEcr error. Code: " + hex_text(resultCode) + " Desc: " + description(resultCode));
  // A refusal leaves the tool running here too; the image's send does not end it.
  if (resultCode == TILBRIDGE_CODE_TIMEOUT || resultCode == TILBRIDGE_CODE_REFUSED) Process_Kill(exchange_tool);
  return false;
}

void copia_def_file() {
  if (Global::FwLevel == FirmwareLevel::very_old) {
    memo_log("Selected new ecr with very old fw release");
    return;
  }
  const std::string image = Global::PathDati + "PRG_MODE.BIN";
  const std::string items = Global::PathDati + "PRG_PLU.BIN";
  const std::string defaults = Global::PathModel + std::string{Global::model_prefix()};
  const std::string* shown = nullptr;
  Fault fault;
  for (const std::string& file : {image, items}) {
    if (!fault.stands() && file_exists(file)) fault = delete_file(file);
  }
  if (!fault.stands()) {
    fault = copy_file(defaults + "PRG_MODE.BIN", image);
    shown = &MsgErrorCopyMode;
  }
  if (!fault.stands()) {
    fault = copy_file(defaults + "PRG_PLU.BIN", items);
    shown = &MsgErrorCopyPlu;
  }
  if (!fault.stands()) return;
  if (shown != nullptr) tell(BoxKind::plain, *shown);
  memo_log("copia_def_file: " + std::to_string(fault.number()) + " " + std::string{fault.description()});
}

bool read_files_from_register() {
  const BusyPointer busy;
  shell().let_screens_work();
  Upload outcome = read_file_from_register(TILBRIDGE_FILE_IMAGE, image_timeout);
  if (outcome == Upload::done) {
    const std::string items = Global::PathDati + "PRG_PLU.BIN";
    if (file_exists(items)) static_cast<void>(delete_file(items));
    outcome = read_file_from_register(TILBRIDGE_FILE_PLU, plu_timeout);
  }
  // Where the tool could not be run the result code stays 0, and that is what counts.
  return outcome != Upload::refused;
}

}  // namespace ecr
