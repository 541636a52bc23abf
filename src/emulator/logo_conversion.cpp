#include "emulator/logo_conversion.h"

#include "core/files.h"
#include "emulator/bitmap.h"
#include "emulator/emulated_register.h"
#include "emulator/graphic.h"
#include "emulator/memory.h"
#include "link/tilbridge2.h"

namespace ecr {

std::int32_t convert_logo(const std::string& folder, std::string_view name) {
  std::string bytes;
  const Fault not_read = read_file(folder + std::string{name}, bytes, longest_bitmap);
  if (not_read.stands()) {
    return code_of_reading(not_read) == TILBRIDGE_CODE_FILE_NOT_READ ? TILBRIDGE_LOGO_FILE_NOT_READ
                                                                     : TILBRIDGE_LOGO_FILE_NOT_OPENED;
  }
  DotPicture picture;
  if (const std::int32_t code = read_bitmap(bytes, picture); code != bitmap_was_read) return code;
  const std::string target = folder + std::string{RegisterMemory::file_name(TILBRIDGE_FILE_LOGO)};
  const bool there_before = file_exists(target);
  const Fault not_written = save_file(target, graphic_of(picture));
  if (not_written.stands()) {
    const bool not_made = code_of_writing(not_written, there_before) == TILBRIDGE_CODE_FILE_NOT_MADE;
    return not_made ? TILBRIDGE_LOGO_FILE_NOT_MADE : TILBRIDGE_LOGO_FILE_NOT_WRITTEN;
  }
  return code_of_fullness(picture);
}

bool says_converted(std::int32_t code) {
  return code >= TILBRIDGE_LOGO_CONVERTED_FIRST && code <= TILBRIDGE_LOGO_CONVERTED_LAST;
}

}  // namespace ecr
