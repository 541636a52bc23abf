#include "core/catalogue.h"

#include <array>
#include <unordered_map>
#include <utility>

namespace ecr {
namespace {

constexpr std::array<std::string_view, key_count> key_names = {
#define ECR_KEY(name) #name,
#include "core/catalogue_keys.inc"
#undef ECR_KEY
};

std::array<std::string, key_count> texts;

struct Slot {
  std::string& text;
  Key key;
  std::string_view built_in;
};

}  // namespace

std::string MsgValueTooHigh;
std::string MsgProgramKo;
std::string MsgErrorCopyMode;
std::string MsgErrorCopyPlu;
std::string MsgFileLangKo;
std::string MsgOptionNoZ300;

namespace {

const std::array<Slot, 6> slots = {{
    {MsgValueTooHigh, Key::FRM_ALL_MASSIMO_SUPERATO_MSG, "Value insert to high!"},
    {MsgProgramKo, Key::FRM_ALL_PROGRAM_KO_MSG, "Programmation sending Failed"},
    {MsgErrorCopyMode, Key::FRM_ALL_ERROR_COPY_PRG_MODE_MSG, "Error During copy PRG_MODE_FILE"},
    {MsgErrorCopyPlu, Key::FRM_ALL_ERROR_COPY_PRG_PLU_MSG, "Error During copy PRG_MODE_PLUE"},
    {MsgFileLangKo, Key::FRM_ALL_FILE_LANG_KO_MSG,
     "The file of the languagge specificated doesn't exist. The program work in english"},
    {MsgOptionNoZ300, Key::FRM_ALL_OPTION_NO_Z300_MSG, "Option not supported on ECRZ300"},
}};

// The built-in texts stand before any language file was looked for.
[[maybe_unused]] const bool built_in_texts_stand = (carica_messaggi_default(), true);

}  // namespace

const std::string& message(Key key) noexcept {
  return texts[static_cast<std::size_t>(key)];
}

void set_message(Key key, std::string text) {
  texts[static_cast<std::size_t>(key)] = std::move(text);
}

std::optional<Key> key_named(std::string_view name) {
  static const auto index = [] {
    std::unordered_map<std::string_view, Key> map;
    map.reserve(key_count);
    for (std::size_t i = 0; i < key_count; ++i) map.emplace(key_names[i], static_cast<Key>(i));
    return map;
  }();
  const auto found = index.find(name);
  return found == index.end() ? std::nullopt : std::optional{found->second};
}

std::string_view name_of(Key key) noexcept {
  return key_names[static_cast<std::size_t>(key)];
}

void carica_messaggi_default() {
  for (const Slot& slot : slots) slot.text = message_or(slot.key, slot.built_in);
}

void reset_catalogue() {
  texts = {};
  carica_messaggi_default();
}

}  // namespace ecr
