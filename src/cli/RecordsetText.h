#pragma once

#include <QTextStream>

#include "persisted/Reader.h"

/// The rest of a persisted recordset as text, written row after row. What is wrong with the file reaches the
/// caller as a RuntimeError, and rows before it may have been written by then. Of a binary value only its
/// length and its SHA-256 are shown.
namespace cli {

/// The columns with type and size, an empty line, and the rows below a line of headings.
void writeTable(persisted::Reader& reader, QTextStream& out);
/// An object with `columns` and `rows`. A row is an object by column name; a name that came before gets a
/// number behind it.
void writeJson(persisted::Reader& reader, QTextStream& out);

}  // namespace cli
