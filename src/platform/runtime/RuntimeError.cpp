#include "runtime/RuntimeError.h"

namespace runtime {

RuntimeError::RuntimeError(int number, const QString& description)
    : m_number(number), m_description(description), m_what(description.toUtf8()) {}

RuntimeError::RuntimeError(ErrorNumber number, const QString& description)
    : RuntimeError(static_cast<int>(number), description) {}

}  // namespace runtime
