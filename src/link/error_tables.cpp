#include "link/error_tables.h"

#include <algorithm>

namespace ecr {
namespace {

template <std::size_t N>
std::string_view text_of(const std::array<CodeText32, N>& rows, std::int32_t code) {
  const auto* row = std::find_if(rows.begin() + 1, rows.end(), [code](const CodeText32& r) { return r.code == code; });
  return row == rows.end() ? "No description" : row->text;
}

}  // namespace

constexpr std::array<CodeText32, 19> RegWireError = {{
    {0, ""},
    {1, "It was discontinued while processing it."},
    {513, "The parameter number is illegal."},
    {514, "The UPLOAD/DOWNLOAD parameter is illegal."},
    {515, "The RANGE1 parameter is larger than RANGE2."},
    {516, "It is not in the folder that RegWire.ini is the same as RegWire.exe."},
    {517, "Specified File number doesn't exist in the setting of RegWire.ini."},
    {518, "The value of REPORT FLAG of RegWire.ini is illegal."},
    {519, "The Download operation was specified for the report."},
    {520, "The Number of range parameter is illegal."},
    {1025, "The USB-COM port cannot be opened."},
    {1026, "The writing error occurred by the communication."},
    {2049, "The specified file cannot be opened."},
    {2050, "The specified file cannot be read."},
    {2051, "The specified file cannot be made."},
    {2052, "The specified file cannot be written."},
    {4097, "The ECR side is in the state of BUSY."},
    {4098, "The error was returned from the ECR side."},
    {9999, "Timeout Error"},
}};

constexpr std::array<CodeText32, 16> RegPixError = {{
    {0, ""},
    {0x02010000, "Quit execution before completion."},
    {0x04010000, "Invalid the numbers of parameters."},
    {0x04020000, "Invalid the parameter of the rotation."},
    {0x04030000, "Invalide the parameter of 'Dot resolution check'"},
    {0x04040000, "Invalid the parameter of the contnued lines."},
    {0x04050000, "Invalid the parameter of the ratio of the continued line areas."},
    {0x04060000, "Invalid the parameter of the ratio of all area."},
    {0x08010000, "Impossible to open the entered file."},
    {0x08020000, "Impossible to read the entered file."},
    {0x08030000, "Impossible to generate the entered file."},
    {0x08040000, "Impossible to write into the entered file."},
    {0x10010000, "The original BMP file is not a proper BMP type file."},
    {0x10020000, "The original BMP file has not been prepared as a black-and-white data."},
    {0x10030000, "Unknown file type."},
    {0x10040000, "The numbers of dots in the line is over 2048 dots."},
}};

std::string_view NumToDesc_RegWire(std::int32_t code) {
  return text_of(RegWireError, code);
}
std::string_view NumToDesc_RegPix(std::int32_t code) {
  return text_of(RegPixError, code);
}

}  // namespace ecr
