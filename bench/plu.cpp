// The item editor with 30, 300 and 3000 items: opening, saving, walking, the exchange with a text file, and beside it
// what a plain sort and a plain write cost. Time is what passes, CPU is the processor time of the whole process.

#include <algorithm>
#include <benchmark/benchmark.h>
#include <fstream>
#include <functional>
#include <string>
#include <vector>
#if defined(__GLIBC__)
#include <malloc.h>
#endif

#include <QAbstractScrollArea>
#include <QKeyEvent>

#include "core/codecs.h"
#include "core/files.h"
#include "core/global.h"
#include "editors/program/plu_grid.h"
#include "image/plu_csv.h"
#include "image/plu_order.h"
#include "image/prg_plu.h"
#include "program.h"
#include "widgets/choice_list.h"
#include "widgets/field.h"

namespace {

using namespace ecr;
using bench::click;
using bench::PaintWatch;
using bench::Program;
using bench::settle;

constexpr std::int64_t first_code = 8'000'000'000'000;

enum class Order { rising, falling };

void fill_items(std::int64_t count, Order order = Order::rising) {
  reset_prg_plu();
  PrgPlu.PluCount = static_cast<std::int16_t>(count);
  for (PluRecord& row : PrgPlu.Row) row.Name.set({});
  for (std::int64_t i = 0; i < count; ++i) {
    PluRecord& row = PrgPlu.Row[static_cast<std::size_t>(i)];
    number_to_bcds(row.Code, std::to_string(first_code + 10 * (order == Order::rising ? i : count - i)));
    row.Name.set("ITEM " + std::to_string(i));
    row.Flags1 = 0xC2;
    row.LinkDept = 0x12;
    row.Tax = 2;
    row.TakeOutTax = 1;
    number_to_bcds(row.Price1, std::to_string(100 + i));
    number_to_bcds(row.Price2, std::to_string(90 + i));
    number_to_bcds(row.Stock, std::to_string(10000 * i + 5000));
  }
}

/// The editor over the program menu, with a table of so many items.
class Editor {
 public:
  Editor(Program& program, std::int64_t count, Order order = Order::rising) : program_{program} {
    Program::load(Global::model_z320);
    fill_items(count, order);
    program_.stand_on(QStringLiteral("FrmProgramMode"));
    open();
  }
  Editor(const Editor&) = delete;
  Editor& operator=(const Editor&) = delete;
  ~Editor() { close(); }

  void open() { bench::open_by(program_, program_.button(QStringLiteral("C_PluProgram"))); }
  void close() {
    program_.stage.top()->unload();
    settle();
  }
  void save() {
    acted([this] { click(program_.button(QStringLiteral("C_Salva"))); });
  }

  /// Does something and waits until the grid is painted.
  void acted(const std::function<void()>& action) {
    PaintWatch painted{*control<QAbstractScrollArea>("Fg_Plu").viewport()};
    action();
    painted.wait();
  }

  template <typename Control>
  [[nodiscard]] Control& control(const char* name) const {
    auto* found = program_.stage.top()->findChild<Control*>(QString::fromLatin1(name));
    if (found == nullptr) qFatal("there is no %s", name);
    return *found;
  }

 private:
  Program& program_;
};

void open_editor(benchmark::State& state, Program& program) {
  Editor editor{program, state.range(0)};
  editor.close();
  for (auto _ : state) {
    editor.open();
    state.PauseTiming();
    editor.close();
    state.ResumeTiming();
  }
  editor.open();
}

/// The save goes on to the next item each time.
void save_in_place(benchmark::State& state, Program& program) {
  Editor editor{program, state.range(0)};
  for (auto _ : state) editor.save();
}

/// The first item becomes the last one: all rows move up by one.
void save_moves_the_table(benchmark::State& state, Program& program) {
  Editor editor{program, state.range(0)};
  std::int64_t code = first_code + 10 * state.range(0);
  for (auto _ : state) {
    state.PauseTiming();
    editor.control<Field>("E_FreeCode").show_text(QString::number(++code));
    settle();
    state.ResumeTiming();
    editor.save();
    state.PauseTiming();
    if (editor.control<NumberList>("Cmb_PluNumber").number() != 1) state.SkipWithError("the item did not move down");
    state.ResumeTiming();
  }
}

void save_sorts_all(benchmark::State& state, Program& program) {
  for (auto _ : state) {
    state.PauseTiming();
    {
      Editor editor{program, state.range(0), Order::falling};
      state.ResumeTiming();
      editor.save();
      state.PauseTiming();
    }
    const std::vector<PluRecord> rows(PrgPlu.Row.begin(), PrgPlu.Row.begin() + state.range(0));
    const auto number = [](const PluRecord& row) { return code_number(bcds_to_number(row.Code)); };
    if (!std::is_sorted(rows.begin(), rows.end(), [&](auto& a, auto& b) { return number(a) < number(b); })) {
      state.SkipWithError("the table is not sorted");
    }
    state.ResumeTiming();
  }
}

/// One key in the number list, on and off: "1" and "12", "123" and so on, then back.
void type_number(benchmark::State& state, Program& program) {
  Editor editor{program, state.range(0)};
  auto& numbers = editor.control<NumberList>("Cmb_PluNumber");
  const auto press = [&numbers](int key, const QString& text) {
    QKeyEvent down{QEvent::KeyPress, key, Qt::NoModifier, text};
    QApplication::sendEvent(&numbers, &down);
    QKeyEvent up{QEvent::KeyRelease, key, Qt::NoModifier, text};
    QApplication::sendEvent(&numbers, &up);
  };
  press(Qt::Key_End, {});
  bool appends = true;
  for (auto _ : state) {
    editor.acted([&] {
      if (appends) {
        press(Qt::Key_7, QStringLiteral("7"));
      } else {
        press(Qt::Key_Backspace, QStringLiteral("\b"));
      }
    });
    appends = !appends;
  }
}

void memory_of_saves(benchmark::State& state, Program& program) {
  Editor editor{program, state.range(0)};
  for (int i = 0; i < 20; ++i) editor.save();
#if defined(__GLIBC__)
  const std::size_t before = mallinfo2().uordblks;
#endif
  for (auto _ : state) editor.save();
#if defined(__GLIBC__)
  state.counters["bytes_grown"] = static_cast<double>(mallinfo2().uordblks) - static_cast<double>(before);
#endif
}

void import_text(benchmark::State& state) {
  fill_items(state.range(0));
  const std::string file = Global::PathDati + "items.csv";
  static_cast<void>(save_file(file, plu_csv_text()));
  for (auto _ : state) {
    std::string text;
    static_cast<void>(read_file(file, text, plu_csv_limit));
    import_plu_csv(text);
  }
  if (PrgPlu.PluCount != state.range(0)) state.SkipWithError("not all lines were read");
}

/// What an import adds to that on the screen: every row of the grid anew.
void fill_grid(benchmark::State& state) {
  fill_items(state.range(0));
  RecordGrid view{QStringLiteral("Fg_Plu"), nullptr};
  for (auto _ : state) {
    PluGrid grid{view};
    grid.begin({}, {QStringLiteral("0. OPEN"), QStringLiteral("1. NORMAL"), QStringLiteral("2. PRESET")},
               {QStringLiteral("0. NON TAXABLE"), QStringLiteral("1. TAX1"), QStringLiteral("2. TAX2")});
    grid.fill();
  }
}

void export_text(benchmark::State& state) {
  fill_items(state.range(0));
  const std::string file = Global::PathDati + "items.csv";
  for (auto _ : state) static_cast<void>(save_file(file, plu_csv_text()));
}

void sort_reversed(benchmark::State& state) {
  std::vector<std::uint64_t> codes(static_cast<std::size_t>(Global::MaxPlu));
  for (std::int64_t i = 0; i < state.range(0); ++i) {
    codes[static_cast<std::size_t>(i)] = static_cast<std::uint64_t>(first_code + state.range(0) - i);
  }
  fill_items(state.range(0), Order::falling);
  for (auto _ : state) Ordina_Plu(codes, 0);
}

/// The floor: the records in a plain standard sort, and a plain write of the file.
void plain_sort_and_write(benchmark::State& state) {
  fill_items(state.range(0), Order::falling);
  const std::vector<PluRecord> falling(PrgPlu.Row.begin(), PrgPlu.Row.begin() + state.range(0));
  const std::string file = host_path(Global::PathDati + "plain.bin");
  const auto before = [](const PluRecord& one, const PluRecord& other) {
    return std::lexicographical_compare(one.Code.bytes.rbegin(), one.Code.bytes.rend(), other.Code.bytes.rbegin(),
                                        other.Code.bytes.rend());
  };
  for (auto _ : state) {
    std::vector<PluRecord> records = falling;
    std::sort(records.begin(), records.end(), before);
    std::ofstream out{file, std::ios::binary};
    out.write(reinterpret_cast<const char*>(&PrgPlu), plu_head_size);
    out.write(reinterpret_cast<const char*>(records.data()),
              static_cast<std::streamsize>(records.size() * sizeof(PluRecord)));
  }
}

benchmark::internal::Benchmark* measure(const char* name, const std::function<void(benchmark::State&)>& function) {
  return benchmark::RegisterBenchmark(name, function)
      ->Arg(30)
      ->Arg(300)
      ->Arg(3000)
      ->MeasureProcessCPUTime()
      ->UseRealTime()
      ->Unit(benchmark::kMillisecond);
}

void measure_all(Program& program) {
  const auto on_screen = [&program](void (*function)(benchmark::State&, Program&)) {
    return [&program, function](benchmark::State& state) { function(state, program); };
  };
  measure("open the item editor", on_screen(open_editor));
  measure("save an item", on_screen(save_in_place));
  measure("save an item that moves all others", on_screen(save_moves_the_table));
  measure("save that sorts a table in reverse order", on_screen(save_sorts_all))->Iterations(20);
  measure("type a digit of the number", on_screen(type_number));
  measure("1000 saves", on_screen(memory_of_saves))->Iterations(1000);
  measure("import", import_text);
  measure("fill the grid anew", fill_grid);
  measure("export", export_text);
  measure("sort alone, reverse order", sort_reversed);
  measure("floor: plain sort and plain write", plain_sort_and_write);
}

}  // namespace

int main(int argc, char** argv) {
  return bench::run(argc, argv, measure_all);
}
