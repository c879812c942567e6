#pragma once

#include <QString>

/// Opens a file or a web address with its associated program; whether one was found. Callers may ignore that.
bool OpenDocument(const QString& target);
/// The address of the maker's web site.
[[nodiscard]] QString homePage();
