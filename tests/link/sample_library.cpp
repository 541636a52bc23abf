// A link library for the tests of the loader: it records what crosses and answers as it was told. Each of the three
// calls can be left out when it is built.

#include <cstdio>
#include <cstring>
#include <functional>
#include <string>
#include <thread>

#include "link/tilbridge2.h"

#if defined(_WIN32)
#define SAMPLE_EXPORT extern "C" __declspec(dllexport)
#else
#define SAMPLE_EXPORT extern "C" __attribute__((visibility("default")))
#endif

namespace {

std::string calls;
std::size_t thread_of_call = 0;
int what_happens_to_the_folder = 0;
std::int32_t returned = 1;
std::int32_t result_code = 0;

void note(const std::string& line) {
  calls += line + "\n";
  thread_of_call = std::hash<std::thread::id>{}(std::this_thread::get_id());
}

std::int32_t answer(char** folder, std::int32_t* code) {
  static char own_text[] = "/a/text/of/its/own/";
  switch (what_happens_to_the_folder) {
    case 1:
      std::strcpy(*folder, "/written/over/");
      break;
    case 2:
      *folder = own_text;
      break;
    case 3:
      *folder = nullptr;
      break;
    case 4:
      std::memset(*folder, 'f', TILBRIDGE_TEXT_SIZE);
      break;
    case 5:
      **folder = '\0';
      break;
    default:
      break;
  }
  if (result_code != 0) *code = result_code;
  return returned;
}

std::string number(std::int32_t value) {
  return " " + std::to_string(value);
}

}  // namespace

SAMPLE_EXPORT const char* sample_calls() {
  return calls.c_str();
}
SAMPLE_EXPORT std::size_t sample_thread() {
  return thread_of_call;
}
SAMPLE_EXPORT void sample_answer(int folder, std::int32_t with, std::int32_t code) {
  what_happens_to_the_folder = folder;
  returned = with;
  result_code = code;
}

#ifndef WITHOUT_SEND_CMD
SAMPLE_EXPORT std::int32_t TILBRIDGE_CALL util_send_cmd_to_ecr(char** folder, std::uint8_t direction,
                                                               std::uint8_t file_number, std::int32_t* code,
                                                               std::int32_t timeout, std::uint8_t port) {
  note(std::string{"send_cmd "} + *folder + number(direction) + number(file_number) + number(*code) + number(timeout) +
       number(port));
  return answer(folder, code);
}
#endif

#ifndef WITHOUT_RANGE_REPORT
SAMPLE_EXPORT std::int32_t TILBRIDGE_CALL util_get_range_report(char** folder, std::uint8_t file_number,
                                                                std::int32_t* code, std::int32_t timeout,
                                                                std::int32_t range_from, std::int32_t range_to,
                                                                std::uint8_t port) {
  note(std::string{"range_report "} + *folder + number(file_number) + number(*code) + number(timeout) +
       number(range_from) + number(range_to) + number(port));
  return answer(folder, code);
}
#endif

#ifndef WITHOUT_SEND_LOGO
SAMPLE_EXPORT std::int32_t TILBRIDGE_CALL util_send_logo_to_ecr(char** source, const char* target1, const char* target2,
                                                                std::int32_t* code, std::int32_t timeout) {
  note(std::string{"send_logo "} + *source + " " + target1 + " " + target2 + number(*code) + number(timeout));
  return answer(source, code);
}
#endif
