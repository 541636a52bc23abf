/* The three calls of the link library, tilbridge2.dll or libtilbridge2.so, as a C interface.
 *
 * The library drives the exchange tool, which speaks with the register. All texts are 8-bit and end with a NUL. Each
 * call returns 1 when the tool could be run, and then *result_code tells the outcome: 0 = done, else a code of the
 * tables in link/error_tables.h. It returns 0 when the tool could not be run. A call may take up to `timeout` seconds
 * and is never made while another one runs.
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

/* Moves one file between the register and the folder.
 *
 * folder       the application folder with its last separator, by reference: the library may write another text there,
 *              of at most TILBRIDGE_TEXT_SIZE bytes with its NUL, or set the pointer to a text of its own that lives
 *              until the next call; the caller takes back what stands there.
 * direction    0 = upload, from the register to the PC; 1 = download, from the PC to the register.
 * file_number  0 image, 1 PLU file, 2 logo, 3 to 22 reports; see link/error_tables.h.
 * timeout      seconds.
 * port         number of the serial port, 1 to 255.
 */
typedef int32_t(TILBRIDGE_CALL* util_send_cmd_to_ecr_t)(char** folder, uint8_t direction, uint8_t file_number,
                                                        int32_t* result_code, int32_t timeout, uint8_t port);

/* Fetches a report over a range of records, both ends included. */
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
