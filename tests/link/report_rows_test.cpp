#include "link/report_rows.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <string>
#include <vector>

#include "core/global.h"

namespace ecr::test {
namespace {

using Numbers = std::vector<int>;

template <typename Which>
Numbers numbers_of(const Which& which) {
  Numbers numbers;
  for (const Report& report : report_rows) {
    if (which(report)) numbers.push_back(report.number);
  }
  return numbers;
}

TEST(Reports, AreNamedByTheirFileNumbers) {
  const std::vector<std::string_view> names = {"",
                                               "",
                                               "",
                                               "C-I-D",
                                               "FINANCIAL",
                                               "RANGE DEPT",
                                               "DEPT GROUP",
                                               "ALL PLU",
                                               "RANGE PLU",
                                               "ALL CLERK",
                                               "ALL T-CLERK",
                                               "NT-CLERK",
                                               "TIME",
                                               "TRAINING",
                                               "FINANCIAL2",
                                               "OPEN TBL",
                                               "FULL EJ",
                                               "OLD EJ",
                                               "LATE EJ",
                                               "DAILY EJ",
                                               "ASK",
                                               "MSK",
                                               "RELEASE",
                                               "",
                                               ""};
  ASSERT_EQ(names.size(), 25U);
  for (std::size_t number = 0; number < names.size(); ++number) {
    EXPECT_EQ(report_name(static_cast<std::uint8_t>(number)), names[number]) << number;
  }
}

TEST(Reports, AreFoundByTheirNumbersAlone) {
  for (int number = 0; number < 256; ++number) {
    const Report* report = report_numbered(static_cast<std::uint8_t>(number));
    EXPECT_EQ(report == nullptr ? -1 : report->number, number >= 3 && number <= 22 ? number : -1);
    const ReportKind kind = report == nullptr ? ReportKind::none : report->kind;
    EXPECT_EQ(report_kind(static_cast<std::uint8_t>(number)), kind) << number;
  }
}

TEST(Reports, AreExportedButForTheRelease) {
  ASSERT_EQ(exported_reports.size(), 19U);
  EXPECT_EQ(exported_reports.front().number, 3);
  EXPECT_EQ(exported_reports.back().number, 21);
}

TEST(Reports, HaveTheirTimeouts) {
  const auto taking = [](std::int32_t seconds) {
    return numbers_of([seconds](const Report& report) { return report.timeout == seconds; });
  };
  EXPECT_EQ(taking(2), Numbers{12});
  EXPECT_EQ(taking(60), (Numbers{3, 4, 6, 8, 9, 10, 11, 13, 14, 15, 18, 20, 22}));
  EXPECT_EQ(taking(120), (Numbers{5, 21}));
  EXPECT_EQ(taking(180), Numbers{7});
  EXPECT_EQ(taking(360), (Numbers{16, 17, 19}));
}

TEST(Reports, AreAskedForByRangeInTwoCases) {
  EXPECT_EQ(numbers_of([](const Report& report) { return report.range.has_value(); }), (Numbers{5, 21}));
  const RecordRange departments = report_numbered(5)->range.value();
  EXPECT_EQ(departments.first, 1);
  EXPECT_EQ(departments.last, 99);
  EXPECT_FALSE(departments.first_is_typed);
  const RecordRange stock = report_numbered(21)->range.value();
  EXPECT_EQ(stock.first, 0);
  EXPECT_EQ(stock.last, 9999);
  EXPECT_TRUE(stock.first_is_typed);
}

TEST(Reports, HaveTheirKinds) {
  const auto of = [](ReportKind kind) {
    return numbers_of([kind](const Report& report) { return report.kind == kind; });
  };
  EXPECT_EQ(of(ReportKind::drawer), Numbers{3});
  EXPECT_EQ(of(ReportKind::financial), (Numbers{4, 13, 14}));
  EXPECT_EQ(of(ReportKind::departments), Numbers{5});
  EXPECT_EQ(of(ReportKind::department_group), Numbers{6});
  EXPECT_EQ(of(ReportKind::items), Numbers{7});
  EXPECT_EQ(of(ReportKind::item_range), Numbers{8});
  EXPECT_EQ(of(ReportKind::clerks), (Numbers{9, 10, 11}));
  EXPECT_EQ(of(ReportKind::hours), Numbers{12});
  EXPECT_EQ(of(ReportKind::open_tables), Numbers{15});
  EXPECT_EQ(of(ReportKind::journal), (Numbers{16, 17, 18, 19}));
  EXPECT_EQ(of(ReportKind::stock), (Numbers{20, 21}));
  EXPECT_EQ(of(ReportKind::release), Numbers{22});
  for (int number = 0; number < 256; ++number) {
    EXPECT_EQ(is_journal(static_cast<std::uint8_t>(number)), number >= 16 && number <= 19) << number;
  }
}

TEST(Reports, AreOnBothModelsButForTheOpenTables) {
  EXPECT_EQ(numbers_of([](const Report& report) { return !is_on(report.models, Global::model_z300); }), Numbers{15});
  EXPECT_EQ(numbers_of([](const Report& report) { return !is_on(report.models, Global::model_z320); }), Numbers{});
}

TEST(Reports, WithoutACaptionKeyHaveABoxThatIsNeverShown) {
  EXPECT_EQ(numbers_of([](const Report& report) { return !report.caption_key; }),
            (Numbers{6, 8, 11, 15, 17, 18, 19, 22}));
  for (const Report& report : report_rows) {
    if (!report.caption_key) continue;
    EXPECT_EQ(name_of(*report.caption_key), "FRM_REPORT_EXPORT_CHK_REPORT_" + std::to_string(report.number));
  }
}

TEST(Reports, HaveACaptionEachButForTheRelease) {
  for (const Report& report : exported_reports) {
    EXPECT_TRUE(std::string{report.caption}.find("Report") != std::string::npos) << int{report.number};
  }
  EXPECT_STREQ(report_rows.back().caption, "");
}

}  // namespace
}  // namespace ecr::test
