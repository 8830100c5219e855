#pragma once

#include <stdexcept>

namespace morlek {

/// A failure that ends a whole operation: a load, an import, an export, a later opening.
/// Its text describes in plain words what could not be done. Failures after which an operation goes
/// on are values (`bool`, `std::optional`) instead.
class OperationFailed : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

}  // namespace morlek
