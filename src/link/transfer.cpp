#include "link/transfer.h"

#include <string>
#include <string_view>

#include "core/catalogue.h"
#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/shell.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "link/error_tables.h"
#include "link/firmware.h"
#include "link/link_call.h"
#include "link/process.h"

namespace ecr {
namespace {

constexpr double seconds_for_each_item = 1.4;

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
  if (move_file(LinkCall::merge_image, Global::PathApp).is_done()) {
    Read_PrgMode(true);
    PrgMode.SysOpt3 = PrgModeComparison.SysOpt3;
    PrgMode.SysOpt5 = PrgModeComparison.SysOpt5;
    PrgMode.SysOpt6 = PrgModeComparison.SysOpt6;
    PrgMode.SysOpt7 = PrgModeComparison.SysOpt7;
  }
  Write_PrgMode();
}

/// One of the two uploads of read_files_from_register, with the box of its failures. `between` parts the box's text
/// from the code's: the two files are told apart by it, on purpose.
LinkEnd read_file_from_register(LinkCall call, std::string_view between) {
  const auto tell_failure = [between](const LinkOutcome& outcome) {
    if (outcome.end == LinkEnd::not_run) {
      tell(BoxKind::plain, message(Key::FRM_PRINCIPALE_ECR_REGWIRE_KO_MSG));
      return;
    }
    std::string text{message_or(Key::FRM_PRINCIPALE_COMUNICATION_ERROR_MSG, "Comunicatione error: ")};
    text.append(between).append(NumToDesc_RegWire(outcome.code));
    tell(BoxKind::critical, text);
  };
  return move_file(call, Global::PathApp, tell_failure).end;
}

}  // namespace

bool Send_PrgModeToEcr(const bool& sendPlu, const bool& skipMerge) {
  check_link_or_end();
  if (!skipMerge) merge_what_the_register_owns();

  if (!move_file(LinkCall::send_image, Global::PathApp).is_done()) return false;
  if (sendPlu && !Send_PrgPluToEcr()) tell(BoxKind::critical, MsgProgramKo);
  return true;
}

bool Send_PrgPluToEcr() {
  check_link_or_end();
  if (!move_file(LinkCall::send_items, Global::PathApp).is_done()) return false;
  Aspetta(Count_PluToSend(true) * seconds_for_each_item, Work::taking_in_items);
  Write_PrgPlu();
  return true;
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
  LinkEnd end = read_file_from_register(LinkCall::read_image, "");
  if (end == LinkEnd::done) {
    const std::string items = Global::PathDati + "PRG_PLU.BIN";
    if (file_exists(items)) static_cast<void>(delete_file(items));
    end = read_file_from_register(LinkCall::read_items, " ");
  }
  // Where the tool could not be run the result code stays 0, and that is what counts.
  return end != LinkEnd::failed;
}

}  // namespace ecr
