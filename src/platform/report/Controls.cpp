#include "report/Controls.h"

#include <algorithm>

#include "runtime/RuntimeError.h"

namespace report {

Control& Section::control(const QString& name) {
  const auto found = std::find_if(Controls.begin(), Controls.end(),
                                  [&name](const Control& control) { return control.Name == name; });
  if (found == Controls.end()) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                                QStringLiteral("报表中没有控件“%1”").arg(name));
  }
  return *found;
}

}  // namespace report
