#pragma once
// One call of the link library and what becomes of it.
//
// Every call ends in one of three ways: the tool could not be run, it was run and failed, or it did its work. What is
// logged then, and after which codes the exchange tool is ended because it was left hanging, differs from call to call:
// link_call.cpp has a row for each.

#include <cstdint>
#include <functional>
#include <string>

namespace ecr {

/// What the program asks of the library. The order is that of the table.
enum class LinkCall : std::uint8_t {
  read_image,
  read_items,
  merge_image,  ///< a read of the image to take over what the register counts
  send_image,
  send_items,
  read_release,
  read_report,
  read_report_range,
  convert_logo,
  send_logo,
};
inline constexpr std::size_t link_call_count = static_cast<std::size_t>(LinkCall::send_logo) + 1;

enum class LinkEnd : std::uint8_t { done, not_run, failed };

struct LinkOutcome {
  LinkEnd end = LinkEnd::done;
  std::int32_t code = 0;  ///< the result code, 0 where the tool was not run

  [[nodiscard]] bool is_done() const noexcept { return end == LinkEnd::done; }
};

/// Calls the library: takes the place of the result code, returns what the library returned.
using LibraryCall = std::function<std::int32_t(std::int32_t& resultCode)>;
/// Tells the person of a call that did not do its work.
using TellOutcome = std::function<void(const LinkOutcome& outcome)>;
enum class CallLog : std::uint8_t { failures, nothing };

/// Makes the call and does what its row says. On a failure, in this order: a line in the log, `tell`, the end of the
/// exchange tool. `number` is the file number that the log names.
LinkOutcome make_link_call(LinkCall call, std::uint8_t number, const LibraryCall& library_call,
                           const TellOutcome& tell = {}, CallLog log = CallLog::failures);

/// The same for a call that moves one file, which its row names: read_image to read_release, and send_logo. The library
/// may rewrite `folder`, the application folder.
LinkOutcome move_file(LinkCall call, std::string& folder, const TellOutcome& tell = {});

}  // namespace ecr
