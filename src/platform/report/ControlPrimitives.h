#pragma once

#include <vector>

#include <QPoint>

#include "report/Controls.h"
#include "report/Primitive.h"

namespace report {

/// Appends what `control` draws when its section's top left corner stands at `origin`. A barcode whose text
/// cannot be encoded draws the text alone.
void appendControl(std::vector<Primitive>& primitives, const Control& control, QPoint origin);

}  // namespace report
