// Stands in for the register's trading: leaves a file in the installation that it is given.

#include <fstream>
#include <string>

int main(int count, char** arguments) {
  if (count != 2) return 1;
  std::ofstream file{std::string{arguments[1]} + "/register/traded.txt"};
  file << "one day";
  return file ? 0 : 1;
}
