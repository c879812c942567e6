#pragma once

#include <QString>

#include "graphics/Picture.h"

/// Picture files that become the card's logo. They are copied into the program directory under their own
/// names.
namespace logo {

/// Whether a file of that name belongs to the program itself, so that no logo may have it.
[[nodiscard]] bool isProgramFile(const QString& name);
/// Whether the program deletes a file of that name by and by: the photo of an import or of an employee.
[[nodiscard]] bool isDeletedLater(const QString& name);
/// The decoded head and body of the picture; throws runtime::RuntimeError naming the file when it cannot be
/// read, the body included.
[[nodiscard]] graphics::PicturePointer read(const QString& path);
/// Whether the file is the one of that name in the program directory, however the path is written.
[[nodiscard]] bool isInPlace(const QString& path);
/// Writes the picture's bytes into the program directory as `name` and returns the path. A file of that name
/// is replaced when the new one is complete. Throws runtime::RuntimeError.
[[nodiscard]] QString keep(const graphics::Picture& picture, const QString& name);

}  // namespace logo
