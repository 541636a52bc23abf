#include <cstddef>
#include <cstdint>
#include <gtest/gtest.h>
#include <initializer_list>
#include <string>
#include <utility>
#include <vector>

#include "emulator/emulated_register.h"
#include "emulator/emulator_test.h"
#include "link/error_tables.h"
#include "link/report_rows.h"
#include "link/tilbridge2.h"

namespace ecr::test {
namespace {

using Bytes = std::initializer_list<std::uint8_t>;

using TransferTest = EmulatorTest;

// Uploads

TEST_F(TransferTest, AnUploadDeliversTheImageByteForByte) {
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 0); }), done);
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(1));
}

TEST_F(TransferTest, AnUploadDeliversTheItemTableByteForByte) {
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 1); }), done);
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), bytes_for_items(2, 3));
}

TEST_F(TransferTest, AnUploadDeliversTheLogoByteForByte) {
  write("register/GRAPHIC.BIN", random_bytes(9, 1000));
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 2); }), done);
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), random_bytes(9, 1000));
}

TEST_F(TransferTest, AnUploadReplacesALongerFile) {
  write("Dati/PRG_MODE.BIN", std::string(9000, 'x'));
  EXPECT_EQ(send_cmd(upload, 0), done);
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(1));
}

TEST_F(TransferTest, AnUploadDeliversWhateverStandsInTheRegister) {
  write("register/PRG_MODE.BIN", "short");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 0); }), done);
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "short");
  write("register/PRG_PLU.BIN", "");
  EXPECT_EQ(send_cmd(upload, 1), done);
  EXPECT_TRUE(exists("Dati/PRG_PLU.BIN"));
  EXPECT_EQ(bytes("Dati/PRG_PLU.BIN"), "");
}

TEST_F(TransferTest, AnUploadOfWhatTheRegisterDoesNotHoldCannotOpenTheFile) {
  write("Dati/GRAPHIC.BIN", "old");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 2); }), ends_with(2049));
  EXPECT_EQ(bytes("Dati/GRAPHIC.BIN"), "old");
  remove("register/PRG_MODE.BIN");
  make_folder("register/PRG_MODE.BIN");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(upload, 0); }), ends_with(2049));
}

TEST_F(TransferTest, AnUploadWithoutItsFolderCannotMakeTheFile) {
  remove("Dati");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(2051));
  EXPECT_EQ(send_cmd(upload, 22), ends_with(2051));
  EXPECT_EQ(send_cmd(upload, 12), ends_with(2051));
  EXPECT_FALSE(exists("Dati"));
}

TEST_F(TransferTest, AnUploadOverAFolderCannotMakeTheFile) {
  make_folder("Dati/PRG_MODE.BIN");
  EXPECT_EQ(send_cmd(upload, 0), ends_with(2051));
}

TEST_F(TransferTest, AnUploadOverABarredFileCannotWriteIt) {
  write("Dati/PRG_MODE.BIN", "old");
  const SystemThatCannotWrite system{FaultCode::permission_denied};
  EXPECT_EQ(send_cmd(upload, 0), ends_with(2052));
  EXPECT_EQ(send_cmd(upload, 1), ends_with(2051));
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), "old");
}

TEST_F(TransferTest, AnUploadToAFullDiskCannotWriteTheFile) {
  const SystemThatCannotWrite system{FaultCode::disk_full};
  EXPECT_EQ(send_cmd(upload, 0), ends_with(2052));
}

// Downloads

TEST_F(TransferTest, ADownloadIsHeldByteForByteAndComesBackSo) {
  const std::vector<std::pair<std::string, std::string>> files = {{"PRG_MODE.BIN", bytes_for_image(11)},
                                                                  {"PRG_PLU.BIN", bytes_for_items(12, 120)},
                                                                  {"GRAPHIC.BIN", random_bytes(13, 65536)}};
  for (std::uint8_t file = 0; file < 3; ++file) {
    const auto& [name, sent] = files[file];
    write("Dati/" + name, sent);
    EXPECT_EQ(send_cmd(download, file), done) << name;
    EXPECT_EQ(bytes("register/" + name), sent) << name;
    EXPECT_EQ(bytes("Dati/" + name), sent) << name;
    remove("Dati/" + name);
    EXPECT_EQ(send_cmd(upload, file), done) << name;
    EXPECT_EQ(bytes("Dati/" + name), sent) << name;
  }
}

TEST_F(TransferTest, ADownloadChangesNoOtherFileOfTheRegister) {
  auto expected = register_files();
  expected["PRG_MODE.BIN"] = bytes_for_image(11);
  write("Dati/PRG_MODE.BIN", bytes_for_image(11));
  EXPECT_EQ(send_cmd(download, 0), done);
  EXPECT_TRUE(register_files() == expected);
}

TEST_F(TransferTest, ADownloadTakesItemTablesUpToTheFullOne) {
  for (const unsigned count : {0U, 1U, 3000U}) {
    write("Dati/PRG_PLU.BIN", bytes_for_items(5, count));
    EXPECT_EQ(send_cmd(download, 1), done) << count;
    EXPECT_EQ(bytes("register/PRG_PLU.BIN"), bytes_for_items(5, count)) << count;
  }
}

TEST_F(TransferTest, ADownloadOfWrongLengthIsRefusedAndChangesNothing) {
  const std::vector<std::pair<std::uint8_t, std::string>> wrong = {{0, ""},
                                                                   {0, std::string(5655, 'x')},
                                                                   {0, std::string(5657, 'x')},
                                                                   {0, std::string(1000000, 'x')},
                                                                   {1, ""},
                                                                   {1, std::string(1, '\0')},
                                                                   {1, std::string(801, '\0')},
                                                                   {1, std::string(803, '\0')},
                                                                   {1, bytes_for_items(1, 3).substr(1)},
                                                                   {1, bytes_for_items(1, 3) + "x"},
                                                                   {1, bytes_for_items(1, 3001)},
                                                                   {1, bytes_for_items(1, 0xFFFF)},
                                                                   {2, ""},
                                                                   {2, std::string(65537, 'x')}};
  write("register/GRAPHIC.BIN", "logo");
  const std::vector<std::string> names = {"PRG_MODE.BIN", "PRG_PLU.BIN", "GRAPHIC.BIN"};
  for (const auto& [file, sent] : wrong) {
    write("Dati/" + names[file], sent);
    const std::uint8_t number = file;
    EXPECT_EQ(changing_nothing([this, number] { return send_cmd(download, number); }), ends_with(4098))
        << names[file] << " of " << sent.size() << " bytes";
    EXPECT_EQ(bytes("Dati/" + names[file]), sent);
  }
}

TEST_F(TransferTest, ADownloadOfAMissingFileCannotOpenIt) {
  for (std::uint8_t file = 0; file < 3; ++file) {
    EXPECT_EQ(changing_nothing([this, file] { return send_cmd(download, file); }), ends_with(2049));
  }
  make_folder("Dati/PRG_MODE.BIN");
  EXPECT_EQ(changing_nothing([this] { return send_cmd(download, 0); }), ends_with(2049));
}

TEST_F(TransferTest, ADownloadThatCannotBeHeldLeavesTheRegisterAsItWas) {
  write("Dati/PRG_MODE.BIN", bytes_for_image(11));
  write("Dati/GRAPHIC.BIN", "logo");
  {
    const SystemThatCannotWrite system{FaultCode::permission_denied};
    EXPECT_EQ(changing_nothing([this] { return send_cmd(download, 0); }), ends_with(2052));
    EXPECT_EQ(changing_nothing([this] { return send_cmd(download, 2); }), ends_with(2051));
  }
  remove("register");
  EXPECT_EQ(send_cmd(download, 0), ends_with(2051));
  EXPECT_FALSE(exists("register"));
}

// Numbers and directions

TEST_F(TransferTest, AReportCannotBeDownloaded) {
  for (std::uint8_t file = 3; file <= 22; ++file) {
    EXPECT_EQ(changing_nothing([this, file] { return send_cmd(download, file); }), ends_with(519)) << int{file};
  }
}

TEST_F(TransferTest, ANumberAboveTheLastDoesNotExist) {
  for (const std::uint8_t file : Bytes{23, 24, 100, 255}) {
    EXPECT_EQ(send_cmd(upload, file), ends_with(517)) << int{file};
    EXPECT_EQ(send_cmd(download, file), ends_with(517)) << int{file};
    EXPECT_EQ(range_report(file), ends_with(517)) << int{file};
  }
}

TEST_F(TransferTest, AThirdDirectionIsIllegal) {
  write("Dati/PRG_MODE.BIN", bytes_for_image(11));
  for (const std::uint8_t direction : Bytes{2, 128, 255}) {
    EXPECT_EQ(changing_nothing([this, direction] { return send_cmd(direction, 0); }), ends_with(514));
  }
  EXPECT_EQ(bytes("Dati/PRG_MODE.BIN"), bytes_for_image(11));
}

// Codes of faults

TEST(EmulatedRegisterCodes, TellReadingFromOpening) {
  EXPECT_EQ(code_of_reading({FaultCode::device_error}), 2050);
  EXPECT_EQ(code_of_reading({FaultCode::file_not_found}), 2049);
  EXPECT_EQ(code_of_reading({FaultCode::permission_denied}), 2049);
  EXPECT_EQ(code_of_reading({FaultCode::path_access}), 2049);
}

TEST(EmulatedRegisterCodes, AreAllKnownToTheProgram) {
  for (const std::int32_t code :
       {TILBRIDGE_CODE_ILLEGAL_DIRECTION, TILBRIDGE_CODE_RANGE_REVERSED, TILBRIDGE_CODE_NO_SUCH_FILE_NUMBER,
        TILBRIDGE_CODE_REPORT_DOWNLOAD, TILBRIDGE_CODE_PORT_NOT_OPENED, TILBRIDGE_CODE_FILE_NOT_OPENED,
        TILBRIDGE_CODE_FILE_NOT_READ, TILBRIDGE_CODE_FILE_NOT_MADE, TILBRIDGE_CODE_FILE_NOT_WRITTEN,
        TILBRIDGE_CODE_REFUSED, TILBRIDGE_CODE_TIMEOUT}) {
    EXPECT_NE(NumToDesc_RegWire(code), "No description") << code;
  }
  for (const std::int32_t code :
       {TILBRIDGE_LOGO_ILLEGAL_PARAMETER_COUNT, TILBRIDGE_LOGO_FILE_NOT_OPENED, TILBRIDGE_LOGO_FILE_NOT_READ,
        TILBRIDGE_LOGO_NO_BITMAP, TILBRIDGE_LOGO_UNKNOWN_TYPE, TILBRIDGE_LOGO_FILE_NOT_MADE,
        TILBRIDGE_LOGO_FILE_NOT_WRITTEN, TILBRIDGE_LOGO_NOT_BLACK_AND_WHITE, TILBRIDGE_LOGO_TOO_MANY_DOTS}) {
    EXPECT_NE(NumToDesc_RegPix(code), "No description") << code;
  }
}

}  // namespace
}  // namespace ecr::test
