#pragma once

#include <QString>

/// What the program asks of the desktop around it.
namespace shell {

class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  /// Opens a file or an address with its associated program; whether one was found and started.
  virtual bool open(const QString& target) = 0;
};

/// Installs the host and returns the one before; the caller keeps ownership. Without a host nothing opens.
Host* installHost(Host* host);

/// Opens a document or a web address with the program that the desktop associates with it.
[[nodiscard]] bool openTarget(const QString& target);

}  // namespace shell
