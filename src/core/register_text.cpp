#include "core/register_text.h"

#include <algorithm>
#include <cstddef>
#include <cstring>

#include "core/fault.h"
#include "core/run_log.h"
#include "core/shell.h"

namespace ecr {
namespace {

struct Pair {
  std::uint8_t from;
  std::uint8_t to;
};

constexpr std::uint8_t none_in_register = 127;
constexpr std::uint8_t none_in_page = 215;

// Code of the page, code of the register.
// clang-format off
constexpr Pair to_register[] = {
    {128, 248}, {140, 234}, {156, 234}, {167, 163}, {168, 243}, {173, 45},  {180, 39},  {183, 255}, {191, 244},
    {192, 214}, {193, 138}, {194, 215}, {196, 216}, {197, 213}, {198, 233}, {199, 217}, {200, 219}, {201, 218},
    {202, 220}, {203, 221}, {205, 140}, {206, 224}, {207, 225}, {208, 152}, {209, 226}, {211, 209}, {212, 227},
    {214, 228}, {215, 127}, {216, 190}, {217, 230}, {218, 146}, {219, 231}, {220, 232}, {221, 151}, {223, 235},
    {224, 236}, {225, 139}, {226, 237}, {228, 238}, {230, 233}, {231, 217}, {232, 239}, {233, 240}, {234, 241},
    {235, 242}, {236, 185}, {237, 141}, {238, 224}, {239, 225}, {241, 136}, {242, 168}, {243, 143}, {244, 169},
    {246, 154}, {248, 190}, {249, 165}, {250, 147}, {251, 164}, {252, 148},
};

// Code of the register, code of the page. Where two codes of the page share one of the register, only one comes back.
constexpr Pair to_page[] = {
    {127, 215}, {136, 241}, {138, 193}, {139, 225}, {140, 205}, {141, 237}, {143, 243}, {146, 218}, {147, 250},
    {148, 252}, {151, 221}, {152, 208}, {154, 246}, {163, 167}, {164, 251}, {165, 249}, {168, 242}, {169, 244},
    {185, 236}, {186, 215}, {190, 216}, {209, 211}, {213, 197}, {214, 192}, {215, 194}, {216, 196}, {217, 199},
    {218, 201}, {219, 200}, {220, 202}, {221, 203}, {224, 206}, {225, 207}, {226, 209}, {227, 212}, {228, 214},
    {230, 217}, {231, 219}, {232, 220}, {233, 198}, {234, 140}, {235, 223}, {236, 224}, {237, 226}, {238, 228},
    {239, 232}, {240, 233}, {241, 234}, {242, 235}, {243, 168}, {244, 191}, {248, 128}, {255, 183},
};

// The second byte of a letter that came as two bytes, and the register's code for it.
constexpr Pair behind_lead_byte[] = {{182, 154}, {150, 228}, {133, 213}, {164, 238}, {132, 216}};
// clang-format on
constexpr char16_t lead_byte = 195;

template <std::size_t N>
constexpr std::array<std::uint8_t, 256> table(const Pair (&pairs)[N], std::uint8_t unknown) {
  std::array<std::uint8_t, 256> result{};
  for (std::size_t code = 0; code < result.size(); ++code) {
    result[code] = code <= 126 ? static_cast<std::uint8_t>(code) : unknown;
  }
  for (const Pair& pair : pairs) result[pair.from] = pair.to;
  return result;
}

void from_ecr(std::span<char> text) {
  std::transform(text.begin(), text.end(), text.begin(),
                 [](char c) { return static_cast<char>(CharFromEcr[static_cast<unsigned char>(c)]); });
}

}  // namespace

constexpr std::array<std::uint8_t, 256> CharToEcr = table(to_register, none_in_register);
constexpr std::array<std::uint8_t, 256> CharFromEcr = table(to_page, none_in_page);

std::string sostituzione_to_ecr(const CodeText& codes) {
  std::string result;
  result.reserve(codes.size());
  for (std::size_t i = 0; i < codes.size(); ++i) {
    if (codes[i] == lead_byte) {
      ++i;
      const auto* pair = std::find_if(std::begin(behind_lead_byte), std::end(behind_lead_byte),
                                      [&](const Pair& known) { return i < codes.size() && codes[i] == known.from; });
      // A hard stop on purpose: a half-understood letter must never reach the register.
      if (pair == std::end(behind_lead_byte)) shell().end_program();
      result += static_cast<char>(pair->to);
    } else if (codes[i] > 255) {
      log_fault("sostituzione_to_ecr : ", {FaultCode::out_of_range});
    } else {
      result += static_cast<char>(CharToEcr[codes[i]]);
    }
  }
  return result;
}

std::string sostituzione_to_ecr(std::string_view bytes) {
  CodeText codes(bytes.size(), u'\0');
  std::transform(bytes.begin(), bytes.end(), codes.begin(),
                 [](char c) { return static_cast<char16_t>(static_cast<unsigned char>(c)); });
  return sostituzione_to_ecr(codes);
}

std::string sostituzione_from_ecr(std::string_view register_bytes) {
  std::string result{register_bytes};
  from_ecr_in_place(result);
  return result;
}

void from_ecr_in_place(std::span<char> text) {
  // Codes up to 126 are the same on both sides: eight of them in a row stay as they are.
  constexpr std::uint64_t ones = 0x0101010101010101;
  constexpr std::uint64_t tops = 0x8080808080808080;
  std::size_t place = 0;
  for (; place + sizeof ones <= text.size(); place += sizeof ones) {
    std::uint64_t eight = 0;
    std::memcpy(&eight, text.data() + place, sizeof eight);
    if (((eight | ((eight & ~tops) + ones)) & tops) != 0) from_ecr(text.subspan(place, sizeof eight));
  }
  from_ecr(text.subspan(place));
}

}  // namespace ecr
