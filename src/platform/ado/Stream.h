#pragma once

#include <QByteArray>
#include <QString>
#include <QVariant>

#include "ado/Connection.h"

namespace ado {

enum class StreamType { Binary = 1 };
enum class ConnectMode { Unknown = 0, ReadWrite = 3 };
enum class SaveOptions { CreateNotExist = 1, CreateOverWrite = 2 };
enum class StreamRead { All = -1 };

/// Bytes in memory, on their way between a field and a file. Failures are runtime::RuntimeError:
/// FileNotFound, FileAccess or FileIo naming the file, InvalidUseOfNull, TypeMismatch for what is no bytes,
/// AdoError when the stream is not open.
class Stream {
 public:
  StreamType Type = StreamType::Binary;
  ConnectMode Mode = ConnectMode::Unknown;

  void Open();
  void Close();
  [[nodiscard]] ObjectState State() const { return m_state; }
  [[nodiscard]] qint64 Size() const;

  /// Replaces the content by the file's and stands at its beginning.
  void LoadFromFile(const QString& fileName);
  /// Writes the whole content. A file that could not be written in full (a full disk) is removed again.
  void SaveToFile(const QString& fileName, SaveOptions options = SaveOptions::CreateNotExist) const;
  /// Appends the bytes of `value` at the position. A Null fails.
  void Write(const QVariant& value);
  /// Reads `count` bytes from the position, all that is left for StreamRead::All.
  [[nodiscard]] QByteArray Read(qint64 count = static_cast<qint64>(StreamRead::All));

 private:
  void requireOpen() const;

  ObjectState m_state = ObjectState::Closed;
  QByteArray m_bytes;
  qint64 m_position = 0;
};

}  // namespace ado
