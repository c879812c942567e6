#pragma once

#include <memory>

#include <QString>

#include "records/clsEmployee.h"
#include "runtime/RuntimeError.h"

/// Whose card it is.
struct CardHolder {
  /// Empty for a card that is nobody's, or when `failure` says why it is not known.
  std::shared_ptr<clsEmployee> employee{};
  runtime::Failure failure{};
  /// Why the employee's photo file was not written; empty when it was.
  QString photoFailure{};
};

/// Looks up the employee with that barcode. A photo that cannot be read or written does not hinder.
[[nodiscard]] CardHolder findCardHolder(const QString& barcode);
