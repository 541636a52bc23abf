// Report files to CSV files, each beside the floor under it: copying the same input and writing the same output bytes
// with plain file calls.

#include <benchmark/benchmark.h>
#include <cstdint>
#include <cstdio>
#include <random>
#include <string>
#include <vector>

#include "core/files.h"
#include "core/global.h"
#include "installation.h"
#include "link/report_rows.h"
#include "platform/platform.h"
#include "reports/export_report.h"

namespace {

using namespace ecr;

const bench::InstallationCopy& installation() {
  static const bench::InstallationCopy copy;
  static const bool ready = [] {
    install_system(&host_system());
    Global::set_folders(backslash_path(copy.folder()));
    Global::crea_cartelle();
    Global::choose_model(Global::model_z320);
    Global::DecimalPoint = 2;
    return true;
  }();
  static_cast<void>(ready);
  return copy;
}

/// A packed field below 10 to the power of `digits`.
void append_packed(std::string& file, std::mt19937& random, std::size_t width, int digits) {
  std::string field(width, '\0');
  for (int i = 0; i < digits; ++i) {
    const auto digit = static_cast<unsigned>(random() % 10);
    field[static_cast<std::size_t>(i) / 2] =
        static_cast<char>(static_cast<unsigned char>(field[static_cast<std::size_t>(i) / 2]) | digit << (i % 2 * 4));
  }
  file += field;
}

/// What a busy shop's register would answer.
std::string report_file(std::uint8_t number) {
  std::mt19937 random{number};
  const ReportLayout& layout = *report_layout(number);
  std::string file;
  const std::size_t records = layout.count == RecordCount::journal ? 780'000 / layout.record_size
                              : layout.count == RecordCount::fixed ? layout.records
                                                                   : 3000;
  for (std::size_t i = 0; i < records; ++i) {
    std::string record(layout.record_size, '\0');
    for (const ReportColumn& column : layout.columns) {
      std::string field;
      switch (column.kind) {
        case ColumnKind::value:
          append_packed(field, random, column.width, column.width == 8 ? 7 : 8);
          break;
        case ColumnKind::count:
          append_packed(field, random, column.width, column.width == 8 ? 13 : 4);
          break;
        case ColumnKind::text:
          field = "ITEM OF THE SHOP";
          break;
        case ColumnKind::line:
        case ColumnKind::marked:
          field = i % 20 == 0 ? "TOTAL      255    12.550" : "COFFEE          1    2.50";
          break;
        case ColumnKind::byte:
        case ColumnKind::int32:
          append_packed(field, random, column.width, static_cast<int>(2 * column.width));
          break;
      }
      field.resize(column.width, ' ');
      record.replace(column.offset, column.width, field);
    }
    file += record;
  }
  return file;
}

std::string name_of(std::uint8_t number) {
  return std::string{report_name(number)};
}

void put_report(std::uint8_t number) {
  installation().write("Dati/" + name_of(number) + ".bin", report_file(number));
}

void remove_csv(std::uint8_t number) {
  std::remove((installation().folder() + "/Report/" + name_of(number) + ".csv").c_str());
}

void export_one(benchmark::State& state) {
  const auto number = static_cast<std::uint8_t>(state.range(0));
  put_report(number);
  for (auto _ : state) {
    state.PauseTiming();
    remove_csv(number);
    state.ResumeTiming();
    static_cast<void>(export_ReportEcr(number));
  }
  state.SetLabel(name_of(number));
}

void copy_and_write(const std::string& from, const std::string& to, const std::string& csv, const std::string& output) {
  std::FILE* in = std::fopen(from.c_str(), "rb");
  std::FILE* out = std::fopen(to.c_str(), "wb");
  std::string buffer(64 * 1024, '\0');
  for (std::size_t count = 0; (count = std::fread(buffer.data(), 1, buffer.size(), in)) > 0;) {
    std::fwrite(buffer.data(), 1, count, out);
  }
  std::fclose(in);
  std::fclose(out);
  std::FILE* text = std::fopen(csv.c_str(), "ab");
  std::fwrite(output.data(), 1, output.size(), text);
  std::fclose(text);
}

/// The input and the output file of a report, and where a copy of the input goes.
void write_floor_of(std::uint8_t number, const std::string& output) {
  const std::string folder = installation().folder();
  copy_and_write(folder + "/Dati/" + name_of(number) + ".bin", folder + "/Dati/Report/" + name_of(number) + ".bin",
                 folder + "/Report/" + name_of(number) + ".csv", output);
}

void remove_copy(std::uint8_t number) {
  remove_csv(number);
  std::remove((installation().folder() + "/Dati/Report/" + name_of(number) + ".bin").c_str());
}

std::string output_of(std::uint8_t number) {
  put_report(number);
  remove_csv(number);
  static_cast<void>(export_ReportEcr(number));
  return installation().bytes("Report/" + name_of(number) + ".csv");
}

void floor_of_one(benchmark::State& state) {
  const auto number = static_cast<std::uint8_t>(state.range(0));
  const std::string output = output_of(number);
  for (auto _ : state) {
    state.PauseTiming();
    remove_copy(number);
    state.ResumeTiming();
    write_floor_of(number, output);
  }
  state.SetLabel(name_of(number));
}

void export_all(benchmark::State& state) {
  for (const Report& report : exported_reports) put_report(report.number);
  for (auto _ : state) {
    state.PauseTiming();
    for (const Report& report : exported_reports) remove_csv(report.number);
    state.ResumeTiming();
    for (const Report& report : exported_reports) static_cast<void>(export_ReportEcr(report.number));
  }
}

void floor_of_all(benchmark::State& state) {
  std::vector<std::string> outputs;
  for (const Report& report : exported_reports) outputs.push_back(output_of(report.number));
  for (auto _ : state) {
    state.PauseTiming();
    for (const Report& report : exported_reports) remove_copy(report.number);
    state.ResumeTiming();
    for (std::size_t i = 0; i < outputs.size(); ++i) write_floor_of(exported_reports[i].number, outputs[i]);
  }
}

// All items, the full journal, a journal of the day, the stock.
BENCHMARK(export_one)->Arg(7)->Arg(16)->Arg(19)->Arg(20)->Unit(benchmark::kMicrosecond);
BENCHMARK(floor_of_one)->Arg(7)->Arg(16)->Arg(19)->Arg(20)->Unit(benchmark::kMicrosecond);
BENCHMARK(export_all)->Unit(benchmark::kMicrosecond);
BENCHMARK(floor_of_all)->Unit(benchmark::kMicrosecond);

}  // namespace

BENCHMARK_MAIN();
