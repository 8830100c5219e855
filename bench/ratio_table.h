#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <span>
#include <string>
#include <vector>

namespace morlek::bench {

/// Prints one row of the table and returns whether the value is within its limit.
bool PrintRow(const char* what, double value, double limit);

/// The median of one value or more.
[[nodiscard]] double Median(std::vector<double> values);

/// The median of the ratios of the values to those beside them.
[[nodiscard]] double MedianRatio(std::vector<double> values, const std::vector<double>& others);

/// A ratio of the table: how many times the base a measured benchmark may take.
struct Ratio {
  const char* what;
  const char* measured;
  const char* base;
  double limit;
};

/// Collects the least times of a run, whose benchmarks alternate: other work on the machine only
/// adds to them.
class LeastCollector : public benchmark::BenchmarkReporter {
 public:
  bool ReportContext(const Context& /*context*/) override { return true; }
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Prints one row for each ratio and returns whether all are within their limits.
  [[nodiscard]] bool PrintRows(std::span<const Ratio> ratios) const;

 private:
  std::map<std::string, double> least_;
};

}  // namespace morlek::bench
