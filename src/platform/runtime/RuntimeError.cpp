#include "runtime/RuntimeError.h"

namespace runtime {

RuntimeError::RuntimeError(int number, const QString& description, FailureKind kind)
    : m_number(number), m_kind(kind), m_description(description), m_what(description.toUtf8()) {}

RuntimeError::RuntimeError(ErrorNumber number, const QString& description, FailureKind kind)
    : RuntimeError(static_cast<int>(number), description, kind) {}

RuntimeError RuntimeError::reworded(const QString& description) const {
  return {m_number, description, m_kind};
}

}  // namespace runtime
