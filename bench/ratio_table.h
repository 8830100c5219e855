#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <span>
#include <string>
#include <vector>

namespace morlek::bench {

/// One line of the table: how many times the base a measured benchmark may take.
struct Ratio {
  const char* what;
  const char* measured;
  const char* base;
  double limit;
};

/// Collects the medians of a run, so that all ratios come from the same minutes of one machine.
class MedianCollector : public benchmark::ConsoleReporter {
 public:
  void ReportRuns(const std::vector<Run>& runs) override;

  /// Prints a line a ratio and tells whether all are within their limits.
  [[nodiscard]] bool PrintTable(std::span<const Ratio> ratios) const;

 private:
  std::map<std::string, double> medians_;
};

}  // namespace morlek::bench
