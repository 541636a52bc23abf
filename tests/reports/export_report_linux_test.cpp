#include <filesystem>
#include <gtest/gtest.h>

#include "report_test.h"
#include "support/unprivileged_linux.h"

namespace ecr::test {
namespace {

namespace fs = std::filesystem;

using ExportReportLinux = ReportTest;

TEST_F(ExportReportLinux, AReportThatMayNotBeReadReadsAsAnEmptyOne) {
  write("Dati/C-I-D.bin", std::string(40, '\x11'));
  for (const char* folder : {"Report", "Log", "."}) fs::permissions(host(folder), static_cast<fs::perms>(0777));
  fs::permissions(host("Dati/C-I-D.bin"), fs::perms::none);
  {
    const Unprivileged unprivileged;
    static_cast<void>(export_ReportEcr(3));
  }
  EXPECT_TRUE(bytes("Report/C-I-D.csv").ends_with("Credit2InDrawerTotal\r\n0.00;0.00;0.00;0.00;0.00\r\n"));
}

}  // namespace
}  // namespace ecr::test
