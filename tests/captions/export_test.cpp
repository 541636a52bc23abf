#include <cstring>
#include <gtest/gtest.h>

#include "captions/text_files.h"
#include "core/register_text.h"
#include "core/text.h"
#include "image/prg_mode.h"
#include "support/fake_system.h"
#include "support/installation.h"
#include "support/random.h"

namespace ecr::test {
namespace {

struct Section {
  std::size_t at;
  std::size_t count;
  std::size_t width;
};
// Where the exported texts lie in the image, in the order of the export.
constexpr Section sections[] = {{3137, 10, 12}, {3257, 10, 24}, {3497, 10, 24}, {3737, 5, 42},
                                {3947, 7, 24},  {4115, 5, 24},  {4235, 78, 10}, {5015, 23, 24}};

class ExportTest : public InstallationTest {
 protected:
  ExportTest() {
    Random random{7};
    std::string bytes = random.bytes(sizeof PrgMode);
    // No byte that ends a line of the file.
    for (char& c : bytes) {
      if (c == '\r' || c == '\n') c = 'x';
    }
    std::memcpy(&PrgMode, bytes.data(), sizeof PrgMode);
  }

  static std::vector<std::string> expected_lines(std::string_view image) {
    std::vector<std::string> lines;
    for (const Section& section : sections) {
      for (std::size_t i = 0; i < section.count; ++i) {
        lines.push_back(sostituzione_from_ecr(image.substr(section.at + i * section.width, section.width)));
      }
    }
    return lines;
  }
  [[nodiscard]] std::vector<std::string> exported() const {
    std::vector<std::string> lines;
    const std::string file = bytes("Setup/caption.txt");
    for (const std::string_view line : lines_of(file)) lines.emplace_back(line);
    return lines;
  }
};

TEST_F(ExportTest, OneLineForEachText148InAll) {
  const std::string before{bytes_of_image(PrgMode)};
  EXPECT_TRUE(Export_Caption());
  EXPECT_EQ(exported(), expected_lines(before));
  EXPECT_EQ(exported().size(), 148U);
}

TEST_F(ExportTest, LinesKeepTheirFullWidth) {
  PrgMode.DeptGroupName[0].set("FOOD");
  EXPECT_TRUE(Export_Caption());
  EXPECT_TRUE(bytes("Setup/caption.txt").starts_with("FOOD        \r\n"));
}

TEST_F(ExportTest, ASecondExportAddsToTheFirst) {
  write("Setup/caption.txt", "what stood before\r\n");
  EXPECT_TRUE(Export_Caption());
  EXPECT_TRUE(Export_Caption());
  EXPECT_EQ(exported().size(), 1U + 2 * 148U);
  EXPECT_EQ(exported().front(), "what stood before");
}

TEST_F(ExportTest, TheImageTakesTheTextsAsTheyWereWritten) {
  const std::string before{bytes_of_image(PrgMode)};
  EXPECT_TRUE(Export_Caption());
  std::string expected = before;
  for (const Section& section : sections) {
    const std::string shown =
        sostituzione_from_ecr(std::string_view{before}.substr(section.at, section.count * section.width));
    expected.replace(section.at, shown.size(), shown);
  }
  EXPECT_EQ(bytes_of_image(PrgMode), expected) << "these sections and nothing else";
}

TEST_F(ExportTest, ASecondExportConvertsTwice) {
  PrgMode.ReceiptHeader[0].set("\xF0");  // of the register: e with an acute accent
  EXPECT_TRUE(Export_Caption());
  EXPECT_TRUE(Export_Caption());
  EXPECT_EQ(exported()[10].front(), '\xE9');
  // Code 233 is another letter of the register.
  EXPECT_EQ(exported()[148 + 10].front(), '\xC6');
}

TEST_F(ExportTest, TheImagesFileIsNotWritten) {
  EXPECT_TRUE(Export_Caption());
  EXPECT_FALSE(exists("Dati/PRG_MODE.BIN"));
}

TEST_F(ExportTest, AFileThatCannotBeWrittenLeavesTheImageAsItWas) {
  make_folder("Setup/caption.txt");
  const std::string before{bytes_of_image(PrgMode)};
  EXPECT_FALSE(Export_Caption());
  EXPECT_EQ(bytes_of_image(PrgMode), before);
  EXPECT_EQ(log(), std::vector<std::string>{"Export_Caption: Path or file access error"});
}

TEST_F(ExportTest, AFullDiskLeavesTheImageAsItWas) {
  const std::string before{bytes_of_image(PrgMode)};
  {
    FakeSystem system;
    system.on_append = [](const std::string& path, std::string_view bytes) {
      if (path.ends_with("caption.txt")) return Fault{FaultCode::disk_full};
      return host_system().append_file(path, bytes);
    };
    EXPECT_FALSE(Export_Caption());
  }
  EXPECT_EQ(bytes_of_image(PrgMode), before);
  EXPECT_EQ(log(), std::vector<std::string>{"Export_Caption: Disk full"});
}

}  // namespace
}  // namespace ecr::test
