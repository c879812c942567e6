#pragma once

#include <QString>

/// What the program asks of the desktop and the machine around it.
namespace shell {

/// Where the registry's keys begin.
enum class RootKey { LocalMachine };

class Host {
 public:
  Host() = default;
  Host(const Host&) = delete;
  Host& operator=(const Host&) = delete;
  virtual ~Host() = default;

  /// Opens a file or an address with its associated program; whether one was found and started.
  virtual bool open(const QString& target) = 0;
  /// Starts the program with that full path in a window of its own, without waiting for it; whether it
  /// started.
  virtual bool start(const QString& program) = 0;
  /// The file that holds the registry's values below `root`; it need not be there.
  [[nodiscard]] virtual QString registryFile(RootKey root) const = 0;
};

/// Installs the host and returns the one before; the caller keeps ownership. Without a host nothing opens,
/// nothing starts and the registry is empty.
Host* installHost(Host* host);

/// Opens a document or a web address with the program that the desktop associates with it.
[[nodiscard]] bool openTarget(const QString& target);
/// Starts a program by its full path and returns at once; whether it started.
[[nodiscard]] bool startProgram(const QString& program);
/// The host's file of the registry's values; empty without a host.
[[nodiscard]] QString registryFile(RootKey root);

}  // namespace shell
