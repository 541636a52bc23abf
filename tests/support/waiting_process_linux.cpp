// A program that does nothing until it is ended, for tests that look for processes and end them. Should its test die,
// it ends itself.

#include <unistd.h>

int main() {
  alarm(60);
  for (;;) pause();
}
