#pragma once
// Permission bits stop everybody but root, and tests may run as root: while such an object lives, this process is
// somebody else.

#include <gtest/gtest.h>
#include <unistd.h>

namespace ecr::test {

class Unprivileged {
 public:
  Unprivileged() {
    constexpr uid_t nobody = 65534;
    // The saved user stays, so that there is a way back.
    if (root_) {
      EXPECT_EQ(::setresuid(nobody, nobody, 0), 0);
    }
  }
  Unprivileged(const Unprivileged&) = delete;
  Unprivileged& operator=(const Unprivileged&) = delete;
  ~Unprivileged() {
    if (root_) {
      EXPECT_EQ(::setresuid(0, 0, 0), 0);
    }
  }

 private:
  const bool root_ = ::geteuid() == 0;
};

}  // namespace ecr::test
