#pragma once
// The register's firmware banner: fetching it, telling registers of this family from others, classing the firmware.

#include <functional>
#include <string>
#include <string_view>

namespace ecr {

/// The banner as it was last read, always 36 characters.
extern std::string FwBanner;

namespace FirmwareLevel {
inline constexpr std::uint8_t none_or_current = 0;
inline constexpr std::uint8_t very_old = 1;     ///< answers the connection test, gives no release file
inline constexpr std::uint8_t release_080 = 2;  ///< the banner of release 0.80
}  // namespace FirmwareLevel

/// Fetches the release file into PathDati; older ones are deleted first.
bool Get_Release();

/// Reads FwBanner from RELEA.BIN or, without it, RELEASE.BIN. Without both it answers false and FwBanner stays.
bool Read_release_fw();

/// Both of the above; then whoever watches the banner is told it. Answers whether the register delivered.
bool Get_Fw_Banner();

/// Classes the firmware into Global::FwLevel. A register of another family ends the program after a message.
void Read_Fw_State();

/// Whether a register answers on Global::ComPort. With `skipLog` a failure of this test stays out of the run log; what
/// others log meanwhile does not.
bool Test_Connection(bool skipLog = false);

/// Who is told the banner when it was fetched; an empty function ends it.
void watch_banner(std::function<void(std::string_view)> watcher);

void reset_firmware();

}  // namespace ecr
