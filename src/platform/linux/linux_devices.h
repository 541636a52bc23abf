#pragma once
// Serial devices of a Linux machine, as captions of the form "NAME (COMn)".

#include <string>
#include <vector>

namespace ecr {

/// Lists the serial devices below `class_folder`, which is /sys/class/tty on a running system. Devices on USB come
/// first, then built-in ones that have a port; each group by the letters and then by the number of its names. They are
/// numbered from 1 in that order: "ttyUSB0 (COM1)".
[[nodiscard]] std::vector<std::string> linux_serial_captions(const std::string& class_folder);

}  // namespace ecr
