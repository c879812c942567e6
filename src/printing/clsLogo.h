#pragma once

#include <QString>

#include "foundation/clsConfiguration.h"

/// The path of the card's logo, kept in the settings.
class clsLogo {
 public:
  clsLogo();

  [[nodiscard]] bool SetPath(const QString& path);
  /// Empty when there is no logo.
  [[nodiscard]] QString GetPath() const;

 private:
  clsConfiguration m_configuration;
};
