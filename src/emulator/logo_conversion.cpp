#include "emulator/logo_conversion.h"

#include "core/files.h"
#include "emulator/bitmap.h"
#include "emulator/emulated_register.h"
#include "emulator/graphic.h"
#include "emulator/memory.h"
#include "emulator/tool_codes.h"

namespace ecr {

std::int32_t convert_logo(const std::string& folder, std::string_view name) {
  std::string bytes;
  const Fault not_read = read_file(folder + std::string{name}, bytes, longest_bitmap);
  if (not_read.stands()) {
    return code_of_reading(not_read) == ToolCode::file_not_read ? PictureCode::not_read : PictureCode::not_opened;
  }
  DotPicture picture;
  if (const std::int32_t code = read_bitmap(bytes, picture); code != PictureCode::done) return code;
  const std::string target = folder + std::string{RegisterMemory::file_name(ToolFile::logo)};
  const bool there_before = file_exists(target);
  const Fault not_written = save_file(target, graphic_of(picture));
  if (not_written.stands()) {
    const bool not_made = code_of_writing(not_written, there_before) == ToolCode::file_not_made;
    return not_made ? PictureCode::not_made : PictureCode::not_written;
  }
  return code_of_fullness(picture);
}

bool says_converted(std::int32_t code) {
  return code >= PictureCode::converted && code <= PictureCode::converted_most;
}

}  // namespace ecr
