#include "ratio_table.h"

#include <iomanip>
#include <iostream>

namespace morlek::bench {

void MedianCollector::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.aggregate_name == "median") {
      medians_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
  }
  ConsoleReporter::ReportRuns(runs);
}

bool MedianCollector::PrintTable(std::span<const Ratio> ratios) const {
  bool all_within = true;
  std::cout << '\n'
            << std::left << std::setw(58) << "ratio" << std::right << std::setw(8) << "is"
            << std::setw(10) << "at most" << '\n';
  for (const Ratio& ratio : ratios) {
    const double value = medians_.at(ratio.measured) / medians_.at(ratio.base);
    const bool within = value <= ratio.limit;
    all_within = all_within && within;
    std::cout << std::left << std::setw(58) << ratio.what << std::right << std::fixed
              << std::setprecision(2) << std::setw(8) << value << std::setw(10) << ratio.limit
              << (within ? "" : "  OVER") << '\n';
  }
  return all_within;
}

}  // namespace morlek::bench
