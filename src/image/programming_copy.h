#pragma once
// The programming in memory as it stands at one moment, so that work that ends halfway can be taken back.

#include <cstdint>
#include <memory>

#include "image/prg_mode.h"
#include "image/prg_plu.h"

namespace ecr {

class ProgrammingCopy {
 public:
  /// Takes the working image, the working item table and the decimals of amounts, 140 KB in all.
  ProgrammingCopy();

  /// Makes them what they were when this copy was taken. Files are not touched.
  void put_back() const;

 private:
  PrgModeImage image_;
  std::unique_ptr<const PluTable<PluRecord>> items_;
  std::uint8_t decimals_;
};

}  // namespace ecr
