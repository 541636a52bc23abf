// Stands in for a hanging exchange tool: it runs until somebody ends it, or a minute is over.

#include <chrono>
#include <thread>

int main() {
  std::this_thread::sleep_for(std::chrono::minutes{1});
}
