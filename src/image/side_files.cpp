#include "image/side_files.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <string>

#include "core/files.h"
#include "core/global.h"
#include "core/model.h"

namespace ecr {
namespace {

std::string language_file() {
  return Global::PathSetup + "Language.ini";
}
std::string export_option_file() {
  return Global::PathSetup + "ExportOption.ini";
}
std::string key_default_file() {
  return Global::PathDati + std::string{chosen_model().keyboard_file};
}

/// The head of the file into the bytes; a missing file is created empty.
void read_into(const std::string& file, std::span<std::uint8_t> bytes) {
  std::string content;
  static_cast<void>(read_or_create_file(file, content, bytes.size()));
  std::memcpy(bytes.data(), content.data(), content.size());
}

/// The bytes over the head of the file.
void write_from(const std::string& file, std::span<const std::uint8_t> bytes) {
  static_cast<void>(overwrite_file(file, {reinterpret_cast<const char*>(bytes.data()), bytes.size()}));
}

}  // namespace

std::uint8_t LanguageNumber = 0;
std::array<std::uint8_t, 24> ExportOption{};
std::array<std::uint8_t, 89> KeyDefault{};
EjFile Ej;

void Read_Language() {
  if (!file_exists(language_file())) {
    LanguageNumber = 0;
    Write_Language();
    return;
  }
  read_into(language_file(), {&LanguageNumber, 1});
}

void Write_Language() {
  write_from(language_file(), {&LanguageNumber, 1});
}

void Read_ExportOption() {
  read_into(export_option_file(), ExportOption);
}
void Write_ExportOption() {
  write_from(export_option_file(), ExportOption);
}

void Write_rs232_fw(std::uint8_t port) {
  write_from(Global::PathApp + "port.ini", {&port, 1});
}

void Read_Key_Default() {
  read_into(key_default_file(), KeyDefault);
}

void Write_Key_Default() {
  KeyDefault = PrgMode.KeyLayout;
  write_from(key_default_file(), KeyDefault);
}

void Read_EJ(std::string_view fileName) {
  std::string bytes;
  static_cast<void>(read_or_create_file(fileName, bytes));
  constexpr std::size_t piece = sizeof(EjRecord);
  std::memcpy(Ej.Head.data(), bytes.data(), std::min(bytes.size(), piece));
  Ej.Records.clear();
  if (bytes.size() <= piece) return;
  const std::size_t length = bytes.size() - piece;
  // Rounded to the nearest, halves to the even neighbour.
  const auto count = static_cast<std::size_t>(std::nearbyint(static_cast<double>(length) / piece));
  Ej.Records.resize(count);
  if (count > 0)
    std::memcpy(static_cast<void*>(Ej.Records.data()), bytes.data() + piece, std::min(length, count * piece));
}

void reset_side_files() {
  LanguageNumber = 0;
  ExportOption = {};
  KeyDefault = {};
  Ej = {};
}

}  // namespace ecr
