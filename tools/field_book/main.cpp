// field_book ENGLISH PAGE: writes the page of all fields, with the words of the English language source data/lang.

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "field_book/page.h"

int main(int count, char** arguments) {
  if (count != 3) {
    std::fputs("field_book data/lang/FrmDescEng.txt docs/fields.md\n", stderr);
    return 2;
  }
  std::ifstream english{arguments[1], std::ios::binary};
  if (!english) {
    std::fprintf(stderr, "%s cannot be read\n", arguments[1]);
    return 1;
  }
  const std::string words{std::istreambuf_iterator<char>{english}, {}};
  std::ofstream page{arguments[2], std::ios::binary};
  page << ecr::field_book_page(words);
  page.close();
  if (!page) std::fprintf(stderr, "%s cannot be written\n", arguments[2]);
  return page ? 0 : 1;
}
