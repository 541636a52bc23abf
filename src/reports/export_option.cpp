#include "reports/export_option.h"

#include <string>

#include "core/global.h"
#include "core/small_files.h"

namespace ecr {
namespace {

std::string export_option_file() {
  return Global::PathSetup + "ExportOption.ini";
}

}  // namespace

std::array<std::uint8_t, 24> ExportOption{};

void Read_ExportOption() {
  read_small_file(export_option_file(), ExportOption);
}

void Write_ExportOption() {
  write_small_file(export_option_file(), ExportOption);
}

void reset_export_option() {
  ExportOption = {};
}

}  // namespace ecr
