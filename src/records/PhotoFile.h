#pragma once

#include <QString>
#include <QVariant>

/// Path of the photo file of the employee with that number, in the program directory. Throws
/// runtime::RuntimeError naming the employee when the number is no plain file name.
[[nodiscard]] QString photoFile(const QString& number);

/// Writes `image`, the value of a photo column, over the file at `path`. Throws runtime::RuntimeError when it
/// is Null or the file cannot be written in full.
void savePhoto(const QVariant& image, const QString& path);

/// Writes `image`, the value of an employee's photo column, over the employee's photo file and returns its
/// path. Throws runtime::RuntimeError naming the employee: a number that is no plain file name, no photo
/// (Null), a file that cannot be written in full; the last leaves no half-written file.
QString writePhotoFile(const QString& number, const QVariant& image);

/// Whether `name` is that of an employee's photo file, which goes when the employee's object does. False when
/// the database cannot tell.
[[nodiscard]] bool isPhotoOfSomebody(const QString& name);
