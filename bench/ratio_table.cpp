#include "ratio_table.h"

#include <algorithm>
#include <functional>
#include <iomanip>
#include <iostream>

namespace morlek::bench {

bool PrintRow(const char* what, double value, double limit) {
  const bool within = value <= limit;
  std::cout << std::left << std::setw(58) << what << std::right << std::fixed
            << std::setprecision(2) << std::setw(8) << value << std::setw(10) << limit
            << (within ? "" : "  OVER") << '\n';
  return within;
}

double Median(std::vector<double> values) {
  const auto middle = values.begin() + static_cast<std::ptrdiff_t>(values.size() / 2);
  std::ranges::nth_element(values, middle);
  return *middle;
}

double MedianRatio(std::vector<double> values, const std::vector<double>& others) {
  std::ranges::transform(values, others, values.begin(), std::divides());
  return Median(std::move(values));
}

void LeastCollector::ReportRuns(const std::vector<Run>& runs) {
  for (const Run& run : runs) {
    if (run.aggregate_name == "least") {
      least_[run.run_name.function_name] = run.GetAdjustedRealTime();
    }
  }
}

bool LeastCollector::PrintRows(std::span<const Ratio> ratios) const {
  bool all_within = true;
  for (const Ratio& ratio : ratios) {
    all_within &=
        PrintRow(ratio.what, least_.at(ratio.measured) / least_.at(ratio.base), ratio.limit);
  }
  return all_within;
}

}  // namespace morlek::bench
