#include "link/error_tables.h"

#include <algorithm>

#include "link/tilbridge2.h"

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
    {TILBRIDGE_CODE_DISCONTINUED, "It was discontinued while processing it."},
    {TILBRIDGE_CODE_ILLEGAL_PARAMETER_COUNT, "The parameter number is illegal."},
    {TILBRIDGE_CODE_ILLEGAL_DIRECTION, "The UPLOAD/DOWNLOAD parameter is illegal."},
    {TILBRIDGE_CODE_RANGE_REVERSED, "The RANGE1 parameter is larger than RANGE2."},
    {TILBRIDGE_CODE_NO_TOOL_SETTINGS, "It is not in the folder that RegWire.ini is the same as RegWire.exe."},
    {TILBRIDGE_CODE_NO_SUCH_FILE_NUMBER, "Specified File number doesn't exist in the setting of RegWire.ini."},
    {TILBRIDGE_CODE_ILLEGAL_REPORT_FLAG, "The value of REPORT FLAG of RegWire.ini is illegal."},
    {TILBRIDGE_CODE_REPORT_DOWNLOAD, "The Download operation was specified for the report."},
    {TILBRIDGE_CODE_ILLEGAL_RANGE_COUNT, "The Number of range parameter is illegal."},
    {TILBRIDGE_CODE_PORT_NOT_OPENED, "The USB-COM port cannot be opened."},
    {TILBRIDGE_CODE_PORT_NOT_WRITTEN, "The writing error occurred by the communication."},
    {TILBRIDGE_CODE_FILE_NOT_OPENED, "The specified file cannot be opened."},
    {TILBRIDGE_CODE_FILE_NOT_READ, "The specified file cannot be read."},
    {TILBRIDGE_CODE_FILE_NOT_MADE, "The specified file cannot be made."},
    {TILBRIDGE_CODE_FILE_NOT_WRITTEN, "The specified file cannot be written."},
    {TILBRIDGE_CODE_BUSY, "The ECR side is in the state of BUSY."},
    {TILBRIDGE_CODE_REFUSED, "The error was returned from the ECR side."},
    {TILBRIDGE_CODE_TIMEOUT, "Timeout Error"},
}};

constexpr std::array<CodeText32, 16> RegPixError = {{
    {0, ""},
    {TILBRIDGE_LOGO_DISCONTINUED, "Quit execution before completion."},
    {TILBRIDGE_LOGO_ILLEGAL_PARAMETER_COUNT, "Invalid the numbers of parameters."},
    {TILBRIDGE_LOGO_ILLEGAL_ROTATION, "Invalid the parameter of the rotation."},
    {TILBRIDGE_LOGO_ILLEGAL_RESOLUTION_CHECK, "Invalide the parameter of 'Dot resolution check'"},
    {TILBRIDGE_LOGO_ILLEGAL_CONTINUED_LINES, "Invalid the parameter of the contnued lines."},
    {TILBRIDGE_LOGO_ILLEGAL_LINE_RATIO, "Invalid the parameter of the ratio of the continued line areas."},
    {TILBRIDGE_LOGO_ILLEGAL_AREA_RATIO, "Invalid the parameter of the ratio of all area."},
    {TILBRIDGE_LOGO_FILE_NOT_OPENED, "Impossible to open the entered file."},
    {TILBRIDGE_LOGO_FILE_NOT_READ, "Impossible to read the entered file."},
    {TILBRIDGE_LOGO_FILE_NOT_MADE, "Impossible to generate the entered file."},
    {TILBRIDGE_LOGO_FILE_NOT_WRITTEN, "Impossible to write into the entered file."},
    {TILBRIDGE_LOGO_NO_BITMAP, "The original BMP file is not a proper BMP type file."},
    {TILBRIDGE_LOGO_NOT_BLACK_AND_WHITE, "The original BMP file has not been prepared as a black-and-white data."},
    {TILBRIDGE_LOGO_UNKNOWN_TYPE, "Unknown file type."},
    {TILBRIDGE_LOGO_TOO_MANY_DOTS, "The numbers of dots in the line is over 2048 dots."},
}};

std::string_view NumToDesc_RegWire(std::int32_t code) {
  return text_of(RegWireError, code);
}
std::string_view NumToDesc_RegPix(std::int32_t code) {
  return text_of(RegPixError, code);
}

}  // namespace ecr
