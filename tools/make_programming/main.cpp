// Makes the register's programming files from readable sources, and prints such a file as its source.

#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <string>
#include <vector>

#include "core/files.h"
#include "make_programming/programming.h"

namespace {

int usage() {
  std::cerr << "make_programming SOURCE FILE.BIN     makes the file\n"
               "make_programming --explain FILE.BIN  prints the file as a source\n";
  return EXIT_FAILURE;
}

void make(const std::string& source, const std::string& target) {
  const std::string bytes = ecr::make_programming(ecr::read_source(source));
  std::ofstream file{target, std::ios::binary};
  file.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
  if (!file.flush()) throw std::runtime_error{target + ": cannot be written"};
}

void explain(const std::string& target) {
  std::string bytes;
  const ecr::Fault fault = ecr::read_file(target, bytes);
  if (fault.stands()) throw std::runtime_error{target + ": " + std::string{fault.description()}};
  std::cout << ecr::explain_programming(bytes);
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<std::string> arguments{argv + 1, argv + argc};
  if (arguments.size() != 2) return usage();
  try {
    if (arguments[0] == "--explain") {
      explain(arguments[1]);
    } else {
      make(arguments[0], arguments[1]);
    }
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return EXIT_FAILURE;
  }
  return EXIT_SUCCESS;
}
