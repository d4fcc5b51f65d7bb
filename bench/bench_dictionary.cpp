// DicText against a bare prepared statement in an open read transaction, on the dictionary that the build
// made. The last line is the ratio of the two medians of this run.
#include <benchmark/benchmark.h>
#include <sqlite3.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <string>
#include <vector>

#include "frame/program_end.h"
#include "frame/sqlite_dictionary.h"

namespace korvin {
namespace {

constexpr const char* path = KORVIN_BIN "/korvin.mdb";
constexpr std::array<std::int16_t, 8> numbers = {500, 1017, 2044, 3003, 3081, 5502, 6011, 7020};

class Abort : public ProgramEnd {
 public:
  [[noreturn]] void end(const std::string& systemText, long number) override {
    std::fprintf(stderr, "%s %ld\n", systemText.c_str(), number);
    std::exit(1);
  }
};

void bare(benchmark::State& state) {
  sqlite3* database = nullptr;
  sqlite3_stmt* statement = nullptr;
  sqlite3_open_v2(path, &database, SQLITE_OPEN_READONLY | SQLITE_OPEN_NOMUTEX, nullptr);
  sqlite3_exec(database, "BEGIN; SELECT IDNr FROM DIC LIMIT 1", nullptr, nullptr, nullptr);
  sqlite3_prepare_v2(database, "SELECT Englisch FROM DIC WHERE IDNr = ?", -1, &statement, nullptr);
  std::size_t i = 0;
  for (auto each : state) {
    static_cast<void>(each);
    sqlite3_bind_int(statement, 1, numbers.at(i++ % numbers.size()));
    if (sqlite3_step(statement) != SQLITE_ROW) state.SkipWithError("no row");
    std::string text(reinterpret_cast<const char*>(sqlite3_column_text(statement, 0)),
                     static_cast<std::size_t>(sqlite3_column_bytes(statement, 0)));
    benchmark::DoNotOptimize(text);
    sqlite3_reset(statement);
  }
  sqlite3_finalize(statement);
  sqlite3_close(database);
}

void dicText(benchmark::State& state) {
  const std::string spalte = "Englisch";
  Abort abort;
  SqliteDictionary dictionary(spalte, abort);
  dictionary.DicOeffnen(path);
  std::size_t i = 0;
  for (auto each : state) {
    static_cast<void>(each);
    std::string text = dictionary.DicText(numbers.at(i++ % numbers.size()));
    benchmark::DoNotOptimize(text);
  }
}

/// Keeps the medians while it prints.
class RatioReporter : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override {
    benchmark::ConsoleReporter::ReportRuns(runs);
    for (const Run& run : runs) {
      if (run.aggregate_name == "median") medians[run.run_name.function_name] = run.GetAdjustedCPUTime();
    }
  }
  std::map<std::string, double> medians;
};

}  // namespace
}  // namespace korvin

int main(int count, char** arguments) {
  // Interleaved, and in processor time: what else the machine does meets both alike.
  std::string interleaved = "--benchmark_enable_random_interleaving=true";
  std::vector<char*> all = {arguments[0], interleaved.data()};
  for (int i = 1; i < count; ++i) all.push_back(arguments[i]);
  count = static_cast<int>(all.size());
  benchmark::Initialize(&count, all.data());
  for (auto* each : {benchmark::RegisterBenchmark("bare", korvin::bare),
                     benchmark::RegisterBenchmark("DicText", korvin::dicText)}) {
    each->Repetitions(15)->ReportAggregatesOnly();
  }
  korvin::RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
  std::printf("DicText / bare prepared statement: %.2f (aim: at most 1.3)\n",
              reporter.medians["DicText"] / reporter.medians["bare"]);
  return 0;
}
