/* The three calls of the link library, tilbridge2.dll or libtilbridge2.so, as a C interface.
 *
 * The library drives the exchange tool, which speaks with the register. All texts are 8-bit and end with a NUL. Each
 * call returns 1 when the tool could be run, and then *result_code tells the outcome, a code of TilbridgeResult or, for
 * the conversion of a logo, of TilbridgeConversion. It returns 0 when the tool could not be run. A call may take up to
 * `timeout` seconds and is never made while another one runs.
 */
#ifndef LINK_TILBRIDGE2_H
#define LINK_TILBRIDGE2_H

#include <stdint.h>

#if defined(_WIN32)
#define TILBRIDGE_CALL __stdcall
#else
#define TILBRIDGE_CALL
#endif

#ifdef __cplusplus
extern "C" {
#endif

/* Which way a file goes. */
enum TilbridgeDirection {
  TILBRIDGE_UPLOAD = 0,  /* from the register to the PC */
  TILBRIDGE_DOWNLOAD = 1 /* from the PC to the register */
};

/* What a call moves. The first three are the files PRG_MODE.BIN, PRG_PLU.BIN and GRAPHIC.BIN in the folder Dati of the
 * application folder and go both ways; all others are uploads only. A report comes as a file of Dati whose name begins
 * with that of the report, see link/report_rows.h.
 */
enum TilbridgeFile {
  TILBRIDGE_FILE_IMAGE = 0,
  TILBRIDGE_FILE_PLU = 1,
  TILBRIDGE_FILE_LOGO = 2,
  TILBRIDGE_FILE_CASH_IN_DRAWER = 3,
  TILBRIDGE_FILE_FINANCIAL = 4,
  TILBRIDGE_FILE_DEPARTMENTS = 5,
  TILBRIDGE_FILE_DEPARTMENT_GROUP = 6,
  TILBRIDGE_FILE_ALL_PLU = 7,
  TILBRIDGE_FILE_PLU_RANGE = 8,
  TILBRIDGE_FILE_CLERKS = 9,
  TILBRIDGE_FILE_TRAINING_CLERKS = 10,
  TILBRIDGE_FILE_BOTH_CLERKS = 11,
  TILBRIDGE_FILE_TIME = 12, /* the cheapest report, which serves as the link test too */
  TILBRIDGE_FILE_TRAINING = 13,
  TILBRIDGE_FILE_FINANCIAL2 = 14,
  TILBRIDGE_FILE_OPEN_TABLES = 15,
  TILBRIDGE_FILE_FULL_JOURNAL = 16,
  TILBRIDGE_FILE_OLDEST_JOURNAL = 17,
  TILBRIDGE_FILE_LATEST_JOURNAL = 18,
  TILBRIDGE_FILE_DAILY_JOURNAL = 19,
  TILBRIDGE_FILE_ALL_STOCK = 20,
  TILBRIDGE_FILE_STOCK_RANGE = 21,
  TILBRIDGE_FILE_RELEASE = 22 /* the firmware's banner, as RELEASE.BIN or, of an older firmware, RELEA.BIN */
};

/* Result codes of the two calls that reach the register. */
enum TilbridgeResult {
  TILBRIDGE_CODE_DONE = 0,
  TILBRIDGE_CODE_DISCONTINUED = 1,
  TILBRIDGE_CODE_ILLEGAL_PARAMETER_COUNT = 513,
  TILBRIDGE_CODE_ILLEGAL_DIRECTION = 514,
  TILBRIDGE_CODE_RANGE_REVERSED = 515,
  TILBRIDGE_CODE_NO_TOOL_SETTINGS = 516,
  TILBRIDGE_CODE_NO_SUCH_FILE_NUMBER = 517,
  TILBRIDGE_CODE_ILLEGAL_REPORT_FLAG = 518,
  TILBRIDGE_CODE_REPORT_DOWNLOAD = 519,
  TILBRIDGE_CODE_ILLEGAL_RANGE_COUNT = 520,
  TILBRIDGE_CODE_PORT_NOT_OPENED = 1025,
  TILBRIDGE_CODE_PORT_NOT_WRITTEN = 1026,
  TILBRIDGE_CODE_FILE_NOT_OPENED = 2049,
  TILBRIDGE_CODE_FILE_NOT_READ = 2050,
  TILBRIDGE_CODE_FILE_NOT_MADE = 2051,
  TILBRIDGE_CODE_FILE_NOT_WRITTEN = 2052,
  TILBRIDGE_CODE_BUSY = 4097,
  TILBRIDGE_CODE_REFUSED = 4098, /* by the register itself */
  TILBRIDGE_CODE_TIMEOUT = 9999  /* the exchange tool is left running */
};

/* Result codes of the conversion of a logo. It went well with any code from the first to the last of the first two, and
 * never with 0.
 */
enum TilbridgeConversion {
  TILBRIDGE_LOGO_CONVERTED_FIRST = 0x01000000,
  TILBRIDGE_LOGO_CONVERTED_LAST = 0x01006464,
  TILBRIDGE_LOGO_DISCONTINUED = 0x02010000,
  TILBRIDGE_LOGO_ILLEGAL_PARAMETER_COUNT = 0x04010000,
  TILBRIDGE_LOGO_ILLEGAL_ROTATION = 0x04020000,
  TILBRIDGE_LOGO_ILLEGAL_RESOLUTION_CHECK = 0x04030000,
  TILBRIDGE_LOGO_ILLEGAL_CONTINUED_LINES = 0x04040000,
  TILBRIDGE_LOGO_ILLEGAL_LINE_RATIO = 0x04050000,
  TILBRIDGE_LOGO_ILLEGAL_AREA_RATIO = 0x04060000,
  TILBRIDGE_LOGO_FILE_NOT_OPENED = 0x08010000,
  TILBRIDGE_LOGO_FILE_NOT_READ = 0x08020000,
  TILBRIDGE_LOGO_FILE_NOT_MADE = 0x08030000,
  TILBRIDGE_LOGO_FILE_NOT_WRITTEN = 0x08040000,
  TILBRIDGE_LOGO_NO_BITMAP = 0x10010000,
  TILBRIDGE_LOGO_NOT_BLACK_AND_WHITE = 0x10020000,
  TILBRIDGE_LOGO_UNKNOWN_TYPE = 0x10030000,
  TILBRIDGE_LOGO_TOO_MANY_DOTS = 0x10040000
};

/* Moves one file between the register and the folder.
 *
 * folder       the application folder with its last separator, by reference: the library may write another text there,
 *              of at most TILBRIDGE_TEXT_SIZE bytes with its NUL, or set the pointer to a text of its own that lives
 *              until the next call; the caller takes back what stands there.
 * direction    one of TilbridgeDirection.
 * file_number  one of TilbridgeFile.
 * timeout      seconds.
 * port         number of the serial port, 1 to 255.
 */
typedef int32_t(TILBRIDGE_CALL* util_send_cmd_to_ecr_t)(char** folder, uint8_t direction, uint8_t file_number,
                                                        int32_t* result_code, int32_t timeout, uint8_t port);

/* Fetches a report over a range of records, both ends included. `file_number` is one of TilbridgeFile. */
typedef int32_t(TILBRIDGE_CALL* util_get_range_report_t)(char** folder, uint8_t file_number, int32_t* result_code,
                                                         int32_t timeout, int32_t range_from, int32_t range_to,
                                                         uint8_t port);

/* Converts a black-and-white bitmap into the register's form: GRAPHIC.BIN is made in the bitmap's folder.
 *
 * source   the application folder, by reference as above
 * target1  the bitmap's folder with its last separator
 * target2  the bitmap's file name
 */
typedef int32_t(TILBRIDGE_CALL* util_send_logo_to_ecr_t)(char** source, const char* target1, const char* target2,
                                                         int32_t* result_code, int32_t timeout);

#define TILBRIDGE_TEXT_SIZE 4096

#ifdef __cplusplus
}
#endif

#endif
