// SPDX-License-Identifier: Apache-2.0
//
// Prints what the inner loops of the filter and of the conversion take a pixel, as Markdown tables:
// each beside a floor that only moves as many bytes. kernels [REPETITIONS]
#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <exception>

#include "bench/little_cms_peers.h"
#include "bench/page_conversion.h"
#include "bench/speed/conversion_loops.h"
#include "bench/speed/filter_loops.h"
#include "bench/speed/kernel_race.h"
#include "bench/table_printer.h"
#include "bench/test_pictures.h"
#include "conversion/compiled_targets.h"
#include "conversion/processor.h"
#include "model/printer_model.h"
//
#include <hwy/highway.h>

namespace {

using bench::Kernel;
using bench::Moved;
using bench::number;

constexpr int kRepetitions = 9;
constexpr int kFewestRepetitions = 3;

/// Every loop of the run; those that a table shows are remembered by their place.
class Field {
 public:
  const Kernel* add(std::string name, std::size_t pixels, std::function<void()> work) {
    return &kernels_.emplace_back(Kernel{std::move(name), pixels, std::move(work)});
  }

  void race(int repetitions) {
    std::vector<Kernel*> all;
    for (Kernel& kernel : kernels_) {
      all.push_back(&kernel);
    }
    bench::race_kernels(all, repetitions);
  }

 private:
  std::deque<Kernel> kernels_;
};

/// A loop beside its floor.
struct Pair {
  std::string name;
  std::string floorName;
  Moved moved;
  const Kernel* loop;
  const Kernel* floor;
};

std::string bytes_of(const Moved& moved) {
  return number(moved.read, 0) + " + " + number(moved.written, 0);
}

bench::Table table_of(const std::vector<Pair>& pairs, const char* what, const char* floor) {
  bench::Table table{{what, "bytes a pixel, read + written", "ns a pixel", "GB/s", floor,
                      "ns a pixel", "times the floor"},
                     {}};
  for (const Pair& pair : pairs) {
    const double taken = pair.loop->nanoseconds;
    table.rows.push_back({pair.name, bytes_of(pair.moved), number(taken, 3),
                          number(pair.moved.both() / taken, 1), pair.floorName,
                          number(pair.floor->nanoseconds, 3),
                          number(taken / pair.floor->nanoseconds, 2)});
  }
  return table;
}

std::vector<Pair> add_filter(Field& field, bench::FilterLoops& loops) {
  std::vector<Pair> pairs;
  for (const bench::FilterLoop& loop : loops.all()) {
    pairs.push_back({loop.name, loop.floorName, loop.moved,
                     field.add(loop.name, loops.pixels(), loop.work),
                     field.add(loop.floorName, loops.pixels(), loop.floor)});
  }
  return pairs;
}

std::vector<Pair> add_conversion(Field& field, bench::ConversionLoops& loops) {
  std::vector<Pair> pairs;
  for (const bench::ConversionLoop& loop : loops.all()) {
    pairs.push_back({loop.name, "the bytes moved", loop.moved,
                     field.add(loop.name, loops.pixels(), loop.work),
                     field.add("the bytes moved", loops.pixels(), loops.floor(loop.moved))});
  }
  return pairs;
}

/// A loop on each kind of processor that this one can play, best first.
struct Row {
  std::string name;
  std::vector<const Kernel*> onTargets;
};

std::string name_of(std::int64_t target) {
  return target == 0 ? "every processor" : hwy::TargetName(target);
}

std::vector<Row> add_targets(Field& field, bench::ConversionLoops& loops) {
  std::vector<Row> rows;
  for (const bench::ConversionLoop& loop : loops.all()) {
    if (!loop.hasTargets) {
      continue;
    }
    Row row{loop.name, {}};
    for (const std::int64_t target : usable_targets()) {
      const auto on_target = [target, work = loop.work] {
        const std::int64_t best = processor_target();
        use_target(target);
        work();
        use_target(best);
      };
      row.onTargets.push_back(field.add(loop.name, loops.pixels(), on_target));
    }
    rows.push_back(row);
  }
  return rows;
}

void print_targets(const std::vector<Row>& rows) {
  bench::Table table{{"ns a pixel"}, {}};
  for (const std::int64_t target : usable_targets()) {
    table.head.push_back(name_of(target));
  }
  for (const Row& row : rows) {
    std::vector<std::string> cells{row.name};
    for (const Kernel* kernel : row.onTargets) {
      cells.push_back(number(kernel->nanoseconds, 3));
    }
    table.rows.push_back(cells);
  }
  bench::print_table(table);
}

/// Whole pages, in memory that has been written before.
class Pages {
 public:
  Pages(Field& field, const bench::Picture& page)
      : page_(page),
        samples_(3 * page.pixels.size()),
        sharpened_(page, {true, bench::kSharpnessNormal, {}, true, TQR7_MODULE_FOLDER}),
        plain_(page, {true, bench::kSharpnessNone, {}, false, TQR7_MODULE_FOLDER}),
        off_(page, {false, bench::kSharpnessNone, {}, false, TQR7_MODULE_FOLDER}) {
    add(field, "ours: colour, sharpening, matte plane", {3, 7}, [this] { sharpened_.run(); });
    add(field, "ours: colour", {3, 6}, [this] { plain_.run(); });
    add(field, "ours: everything off", {3, 6}, [this] { off_.run(); });
    add(field, "Little CMS: colour by a 33-point table", {3, 6},
        [this] { table_.run(page_, samples_); });
    add(field, "Little CMS: colour by matrix and curves", {3, 6},
        [this] { curves_.run(page_, samples_); });
  }

  void print() const {
    bench::Table table{{"A whole page", "ns a pixel", "GB/s", "ms"}, {}};
    for (const auto& [kernel, moved] : rows_) {
      table.rows.push_back(
          {kernel->name, number(kernel->nanoseconds, 2),
           number(moved.both() / kernel->nanoseconds, 1),
           number(kernel->nanoseconds * static_cast<double>(kernel->pixels) / 1e6, 2)});
    }
    bench::print_table(table);
  }

 private:
  void add(Field& field, const char* name, Moved moved, std::function<void()> work) {
    rows_.emplace_back(field.add(name, page_.pixels.size(), std::move(work)), moved);
  }

  const bench::Picture& page_;
  std::vector<std::uint16_t> samples_;
  bench::PageConversion sharpened_;
  bench::PageConversion plain_;
  bench::PageConversion off_;
  bench::LittleCmsPeer table_ = bench::LittleCmsPeer::table(printer_model_profile());
  bench::LittleCmsPeer curves_ = bench::LittleCmsPeer::matrix_and_curves(printer_model_profile());
  std::vector<std::pair<const Kernel*, Moved>> rows_;
};

/// The filter's progress lines go where the scheduler is not.
void close_the_log() {
  const int nowhere = open("/dev/null", O_WRONLY | O_CLOEXEC);
  if (nowhere >= 0) {
    dup2(nowhere, STDERR_FILENO);
    close(nowhere);
  }
}

void measure(int repetitions) {
  const bench::Picture page = bench::photo(1852, 1232);
  bench::FilterLoops filter(page);
  bench::ConversionLoops conversion(page);
  Field field;
  const std::vector<Pair> filterPairs = add_filter(field, filter);
  const std::vector<Pair> conversionPairs = add_conversion(field, conversion);
  const std::vector<Row> targets = add_targets(field, conversion);
  const Pages pages(field, page);
  close_the_log();
  field.race(repetitions);

  std::printf("Medians of %d repetitions in a mixed order; a photo of %zu × %zu.\n\n", repetitions,
              page.width, page.height);
  bench::print_table(table_of(filterPairs, "The filter, on a page", "Floor"));
  bench::print_table(table_of(conversionPairs, "The conversion, on lines in cache", "Floor"));
  print_targets(targets);
  pages.print();
}

}  // namespace

int main(int argc, char** argv) {
  try {
    measure(argc > 1 ? std::max(std::atoi(argv[1]), kFewestRepetitions) : kRepetitions);
    return 0;
  } catch (const std::exception& fault) {
    std::printf("kernels: %s\n", fault.what());
    return 1;
  }
}
