// What the program does without a screen: files, numbers, texts, the way to the link library.

#include <benchmark/benchmark.h>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "core/amount_text.h"
#include "core/catalogue.h"
#include "core/codecs.h"
#include "core/files.h"
#include "core/global.h"
#include "core/register_text.h"
#include "image/prg_mode.h"
#include "image/prg_plu.h"
#include "installation.h"
#include "lang/language.h"
#include "link/library.h"
#include "platform/platform.h"

namespace {

using namespace ecr;

/// The one copy of the installation, with the Z320 chosen and its default programming in place.
const bench::InstallationCopy& installation() {
  static const bench::InstallationCopy copy;
  static const bool ready = [] {
    install_system(&host_system());
    Global::set_folders(backslash_path(copy.folder()));
    Global::crea_cartelle();
    Global::choose_model(Global::model_z320);
    copy.write("Dati/PRG_MODE.BIN", copy.bytes("Dati/ECRZ320/ECRZ320_PRG_MODE.BIN"));
    copy.write("Dati/PRG_PLU.BIN", copy.bytes("Dati/ECRZ320/ECRZ320_PRG_PLU.BIN"));
    return true;
  }();
  static_cast<void>(ready);
  return copy;
}

void parse_english(benchmark::State& state) {
  const std::string file = installation().bytes("Setup/FrmDescEng.txt");
  for (auto _ : state) {
    state.PauseTiming();
    reset_catalogue();
    state.ResumeTiming();
    parse_language(file);
  }
  if (message(Key::FRM_ALL_C_SALVA).empty()) state.SkipWithError("the texts were not read");
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(file.size()));
}
BENCHMARK(parse_english);

/// As the program's start does it: the file, the catalogue, a look at the flag.
void choose_english(benchmark::State& state) {
  installation();
  for (auto _ : state) selezione_lingua(0);
}
BENCHMARK(choose_english);

void read_and_check_image(benchmark::State& state) {
  installation();
  bool passed = true;
  for (auto _ : state) passed = Read_PrgMode() && passed;
  if (!passed) state.SkipWithError("the image is not that of the model");
}
BENCHMARK(read_and_check_image);

/// To the disk and back from it: the time is the disk's more than the program's.
void write_image(benchmark::State& state) {
  installation();
  Read_PrgMode();
  for (auto _ : state) Write_PrgMode();
}
BENCHMARK(write_image);

void fill_items(std::int64_t count) {
  installation();
  reset_prg_plu();
  PrgPlu.PluCount = static_cast<std::int16_t>(count);
  for (std::int64_t i = 0; i < count; ++i) {
    PluRecord& row = PrgPlu.Row[static_cast<std::size_t>(i)];
    number_to_bcds(row.Code, std::to_string(8000000000000 + i));
    row.Name.set("ITEM " + std::to_string(i));
    row.LinkDept = 1;
    number_to_bcds(row.Price1, std::to_string(100 + i));
  }
}

void read_items(benchmark::State& state) {
  fill_items(state.range(0));
  Write_PrgPlu();
  for (auto _ : state) Read_PrgPlu();
  if (PrgPlu.PluCount != state.range(0)) state.SkipWithError("the items were not read");
}
BENCHMARK(read_items)->Arg(30)->Arg(300)->Arg(3000);

void write_items(benchmark::State& state) {
  fill_items(state.range(0));
  for (auto _ : state) Write_PrgPlu();
}
BENCHMARK(write_items)->Arg(30)->Arg(300)->Arg(3000);

std::vector<std::uint8_t> field_of(std::int64_t bytes) {
  std::vector<std::uint8_t> field(static_cast<std::size_t>(bytes));
  number_to_bcds(field, std::string(static_cast<std::size_t>(2 * bytes), '7'));
  return field;
}

void field_to_text(benchmark::State& state) {
  const std::vector<std::uint8_t> field = field_of(state.range(0));
  for (auto _ : state) benchmark::DoNotOptimize(bcds_to_number(field));
}
BENCHMARK(field_to_text)->Arg(2)->Arg(4)->Arg(8);

void text_to_field(benchmark::State& state) {
  std::vector<std::uint8_t> field = field_of(state.range(0));
  const std::string text = bcds_to_number(field);
  for (auto _ : state) {
    number_to_bcds(field, text);
    benchmark::DoNotOptimize(field.data());
  }
}
BENCHMARK(text_to_field)->Arg(2)->Arg(4)->Arg(8);

void amount_text(benchmark::State& state) {
  const std::string stored = "1234567";
  for (auto _ : state) benchmark::DoNotOptimize(Amount_Text(stored, 2));
}
BENCHMARK(amount_text);

void stock_text(benchmark::State& state) {
  const std::vector<std::uint8_t> field = {0x00, 0x50, 0x12, 0x00, 0x00, 0x10};
  for (auto _ : state) benchmark::DoNotOptimize(Bcds_To_Stock(field));
}
BENCHMARK(stock_text);

void name_from_register(benchmark::State& state) {
  const std::string name = "COFFEE \xEE\xF0\xEC  ";
  for (auto _ : state) benchmark::DoNotOptimize(sostituzione_from_ecr(name));
}
BENCHMARK(name_from_register);

void name_to_register(benchmark::State& state) {
  const CodeText name = codes_of(u"COFFEE \u00E4\u00E9\u00E0");
  for (auto _ : state) benchmark::DoNotOptimize(sostituzione_to_ecr(name));
}
BENCHMARK(name_to_register);

class LinkOfNothing final : public LinkLibrary {
 public:
  std::int32_t send_cmd(std::string&, std::uint8_t, std::uint8_t, std::int32_t&, std::int32_t, std::uint8_t) override {
    return 1;
  }
  std::int32_t range_report(std::string&, std::uint8_t, std::int32_t&, std::int32_t, std::int32_t, std::int32_t,
                            std::uint8_t) override {
    return 1;
  }
  std::int32_t send_logo(std::string&, const std::string&, const std::string&, std::int32_t&, std::int32_t) override {
    return 1;
  }
};

/// What a call costs that moves nothing, on the calling thread; bench_screens has it beside the screens.
void link_call(benchmark::State& state) {
  installation();
  install_link_library(std::make_unique<LinkOfNothing>());
  std::int32_t resultCode = 0;
  for (auto _ : state) {
    benchmark::DoNotOptimize(util_send_cmd_to_ecr(Global::PathApp, TILBRIDGE_UPLOAD, 12, resultCode, 2, 4));
  }
  install_link_library(nullptr);
}
BENCHMARK(link_call);

}  // namespace

BENCHMARK_MAIN();
