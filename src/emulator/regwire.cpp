// Stands for the exchange tool that a timed-out call left hanging: it does nothing, until somebody ends it. If nobody
// does, it is gone after two minutes.

#include <chrono>
#include <thread>

int main() {
  std::this_thread::sleep_for(std::chrono::minutes{2});
}
