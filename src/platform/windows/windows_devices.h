#pragma once
// The machine's devices, from the management service.

#include <optional>
#include <string>
#include <vector>

namespace ecr {

/// Asks the management service of this machine a question in its query language and answers with one property of all
/// that it finds, in its order. Objects without the property, or with one that is no text, are left out. Nothing when
/// the service cannot be reached, refuses the question, breaks off in its answer, or stays silent for twenty seconds.
/// May be called on any thread; the call blocks until all is there.
[[nodiscard]] std::optional<std::vector<std::string>> management_texts(const wchar_t* question,
                                                                       const wchar_t* property);

/// See System::device_captions.
[[nodiscard]] std::optional<std::vector<std::string>> windows_device_captions();

}  // namespace ecr
