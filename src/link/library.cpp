#include "link/library.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <functional>
#include <utility>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "core/run_log.h"
#include "core/system.h"
#include "link/report_rows.h"

namespace ecr {
namespace {

/// A text that a library may overwrite or replace: its buffer, and the pointer that crosses.
class TextByReference {
 public:
  explicit TextByReference(std::string& text)
      : text_{text}, buffer_(std::max<std::size_t>(TILBRIDGE_TEXT_SIZE, text.size() + 1)) {
    std::copy(text.begin(), text.end(), buffer_.begin());
  }
  TextByReference(const TextByReference&) = delete;
  TextByReference& operator=(const TextByReference&) = delete;
  ~TextByReference() {
    if (pointer_ == nullptr) {
      text_.clear();
    } else if (pointer_ == buffer_.data()) {
      text_.assign(buffer_.begin(), std::find(buffer_.begin(), buffer_.end(), '\0'));
    } else {
      text_.assign(pointer_);
    }
  }
  char** reference() { return &pointer_; }

 private:
  std::string& text_;
  std::vector<char> buffer_;
  char* pointer_ = buffer_.data();
};

class LoadedLibrary final : public LinkLibrary {
 public:
  /// The library of the application folder; nullptr, with a line in the log, if it cannot serve.
  static std::unique_ptr<LoadedLibrary> load() {
    const std::string name{system_layer().link_library_name()};
    std::string why;
    auto library = system_layer().load_library(host_path(Global::PathApp + name), why);
    if (library == nullptr) {
      memo_log("Link library " + name + " not loaded: " + why);
      return nullptr;
    }
    auto loaded = std::unique_ptr<LoadedLibrary>{new LoadedLibrary{std::move(library)}};
    const std::array<std::pair<const char*, bool>, 3> calls = {
        {{"util_send_cmd_to_ecr", loaded->send_cmd_ != nullptr},
         {"util_get_range_report", loaded->range_report_ != nullptr},
         {"util_send_logo_to_ecr", loaded->send_logo_ != nullptr}}};
    for (const auto& [call, found] : calls) {
      if (found) continue;
      memo_log("Link library " + name + " not used: it lacks the call " + call);
      return nullptr;
    }
    return loaded;
  }

  std::int32_t send_cmd(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber, std::int32_t& resultCode,
                        std::int32_t timeout, std::uint8_t port) override {
    TextByReference text{folder};
    return send_cmd_(text.reference(), direction, fileNumber, &resultCode, timeout, port);
  }
  std::int32_t range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                            std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                            std::uint8_t port) override {
    TextByReference text{folder};
    return range_report_(text.reference(), fileNumber, &resultCode, timeout, rangeFrom, rangeTo, port);
  }
  std::int32_t send_logo(std::string& source, const std::string& target1, const std::string& target2,
                         std::int32_t& resultCode, std::int32_t timeout) override {
    TextByReference text{source};
    return send_logo_(text.reference(), target1.c_str(), target2.c_str(), &resultCode, timeout);
  }

 private:
  explicit LoadedLibrary(std::unique_ptr<Library> library)
      : library_{std::move(library)},
        send_cmd_{reinterpret_cast<util_send_cmd_to_ecr_t>(library_->symbol("util_send_cmd_to_ecr"))},
        range_report_{reinterpret_cast<util_get_range_report_t>(library_->symbol("util_get_range_report"))},
        send_logo_{reinterpret_cast<util_send_logo_to_ecr_t>(library_->symbol("util_send_logo_to_ecr"))} {}

  std::unique_ptr<Library> library_;
  util_send_cmd_to_ecr_t send_cmd_;
  util_get_range_report_t range_report_;
  util_send_logo_to_ecr_t send_logo_;
};

std::unique_ptr<LinkLibrary> library_in_use;
bool looked_for = false;
std::atomic<bool> in_flight = false;
Waiting waiting = Waiting::modal;

LinkLibrary* library() {
  if (!looked_for) {
    looked_for = true;
    library_in_use = LoadedLibrary::load();
  }
  return library_in_use.get();
}

/// Makes one call beside the screen thread, after any that is still on its way. `folder` crosses in the host's form.
/// A handler that the screens run during one call may come here with another: the first is over when its job is, not
/// when its own run_beside returns, which stands below the handler and cannot return before it.
std::int32_t call_beside(const WorkInHand& what, std::string& folder, std::int32_t& resultCode,
                         const std::function<std::int32_t(LinkLibrary&, std::string&)>& call) {
  while (in_flight) shell().let_screens_work();
  resultCode = 0;
  LinkLibrary* target = library();
  if (target == nullptr) return 0;
  std::string host_folder = host_path(folder);
  std::int32_t answer = 0;
  in_flight = true;
  shell().run_beside(what, waiting, [&] {
    answer = call(*target, host_folder);
    in_flight = false;
  });
  folder = backslash_path(host_folder);
  return answer;
}

WorkInHand work_of(std::uint8_t direction, std::uint8_t fileNumber) {
  const bool up = direction == TILBRIDGE_UPLOAD;
  switch (fileNumber) {
    case TILBRIDGE_FILE_IMAGE:
      return {up ? Work::reading_programming : Work::sending_programming};
    case TILBRIDGE_FILE_PLU:
      return {up ? Work::reading_items : Work::sending_items};
    case TILBRIDGE_FILE_LOGO:
      return {Work::sending_logo};
    case TILBRIDGE_FILE_TIME:
      return {Work::looking_for_register};
    case TILBRIDGE_FILE_RELEASE:
      return {Work::asking_release};
    default:
      return {Work::reading_report, report_name(fileNumber)};
  }
}

}  // namespace

std::int32_t util_send_cmd_to_ecr(std::string& folder, std::uint8_t direction, std::uint8_t fileNumber,
                                  std::int32_t& resultCode, std::int32_t timeout, std::uint8_t port) {
  return call_beside(work_of(direction, fileNumber), folder, resultCode, [&](LinkLibrary& link, std::string& host) {
    return link.send_cmd(host, direction, fileNumber, resultCode, timeout, port);
  });
}

std::int32_t util_get_range_report(std::string& folder, std::uint8_t fileNumber, std::int32_t& resultCode,
                                   std::int32_t timeout, std::int32_t rangeFrom, std::int32_t rangeTo,
                                   std::uint8_t port) {
  return call_beside(work_of(TILBRIDGE_UPLOAD, fileNumber), folder, resultCode,
                     [&](LinkLibrary& link, std::string& host) {
                       return link.range_report(host, fileNumber, resultCode, timeout, rangeFrom, rangeTo, port);
                     });
}

std::int32_t util_send_logo_to_ecr(std::string& source, const std::string& target1, const std::string& target2,
                                   std::int32_t& resultCode, std::int32_t timeout) {
  return call_beside({Work::converting_logo}, source, resultCode, [&](LinkLibrary& link, std::string& host) {
    return link.send_logo(host, host_path(target1), target2, resultCode, timeout);
  });
}

bool link_call_in_flight() noexcept {
  return in_flight;
}

BackgroundCalls::BackgroundCalls() noexcept : before_{std::exchange(waiting, Waiting::background)} {}
BackgroundCalls::~BackgroundCalls() {
  waiting = before_;
}

void install_link_library(std::unique_ptr<LinkLibrary> library) {
  looked_for = library != nullptr;
  library_in_use = std::move(library);
}

}  // namespace ecr
