#include "emulator/memory.h"

#include <array>
#include <cstddef>

#include "core/files.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "link/tilbridge2.h"

namespace ecr {
namespace {

constexpr std::size_t longest_logo = 65536;

bool item_table_fits(std::string_view bytes) {
  if (bytes.size() < plu_head_size) return false;
  const std::size_t count = static_cast<unsigned char>(bytes[0]) + 256U * static_cast<unsigned char>(bytes[1]);
  return count <= plu_records_max && bytes.size() == plu_head_size + count * sizeof(PluRecord);
}

}  // namespace

std::string_view RegisterMemory::file_name(std::uint8_t file) {
  constexpr std::array<std::string_view, 3> names = {"PRG_MODE.BIN", "PRG_PLU.BIN", "GRAPHIC.BIN"};
  return names.at(file);
}

std::size_t RegisterMemory::longest(std::uint8_t file) {
  if (file == TILBRIDGE_FILE_IMAGE) return prg_mode_size;
  return file == TILBRIDGE_FILE_PLU ? plu_head_size + plu_records_max * sizeof(PluRecord) : longest_logo;
}

bool RegisterMemory::fits(std::uint8_t file, std::string_view bytes) {
  if (file == TILBRIDGE_FILE_IMAGE) return bytes.size() == prg_mode_size;
  if (file == TILBRIDGE_FILE_PLU) return item_table_fits(bytes);
  return !bytes.empty() && bytes.size() <= longest_logo;
}

Fault RegisterMemory::fetch(std::uint8_t file, std::string& bytes) const {
  return read_file(folder_ + std::string{file_name(file)}, bytes);
}

Fault RegisterMemory::hold(std::uint8_t file, std::string_view bytes) const {
  return save_file(folder_ + std::string{file_name(file)}, bytes);
}

}  // namespace ecr
