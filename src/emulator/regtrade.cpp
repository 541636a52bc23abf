// Lets the emulated register of an installation trade a day:
//   regtrade FOLDER          the next day; FOLDER is the application folder
//   regtrade --last FOLDER   the day just over: its reports and journal come to a register that holds the stock and the
//                            counters with which that day ended
// Ends with 0, or with 1 and a line that says why nothing was traded.

#include <exception>
#include <iostream>
#include <string>
#include <string_view>

#include "core/files.h"
#include "core/system.h"
#include "emulator/receipt.h"
#include "emulator/settings.h"
#include "emulator/trading.h"
#include "platform/platform.h"

namespace {

std::string trade(std::string folder, ecr::trading::TradedDay day) {
  ecr::install_system(&ecr::host_system());
  folder = ecr::backslash_path(folder);
  if (!folder.ends_with('\\')) folder += '\\';
  folder += "register\\";
  std::string wrong = ecr::trading::trade(folder, ecr::RegisterSettings{folder}.seed(), day);
  static_cast<void>(ecr::draw_receipt(folder, ecr::trading::journal_in(folder)));
  return wrong;
}

}  // namespace

int main(int count, char** arguments) {
  const bool last = count == 3 && std::string_view{arguments[1]} == "--last";
  std::string wrong = "regtrade [--last] FOLDER";
  if (count == 2 || last) {
    try {
      wrong = trade(arguments[count - 1], last ? ecr::trading::TradedDay::last : ecr::trading::TradedDay::next);
    } catch (const std::exception& fault) {
      wrong = fault.what();
    }
  }
  if (wrong.empty()) return 0;
  std::cerr << wrong << '\n';
  return 1;
}
