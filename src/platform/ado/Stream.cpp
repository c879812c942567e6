#include "ado/Stream.h"

#include <cerrno>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QFileInfo>

#include "ado/AdoError.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace ado {

namespace {

using runtime::ErrorNumber;
using runtime::RuntimeError;

constexpr mode_t newFileMode = 0666;

[[noreturn]] void cannotWrite(ErrorNumber number, const QString& fileName, const QString& why) {
  throw RuntimeError(number, QStringLiteral("无法写入文件“%1”：%2").arg(fileName, why));
}

/// The superuser would be let through: the permission bits are looked at.
bool anybodyMayWrite(const struct stat& facts) {
  return (facts.st_mode & (S_IWUSR | S_IWGRP | S_IWOTH)) != 0;
}

void requireWritable(const QString& fileName, const QByteArray& path) {
  struct stat facts {};
  if (::stat(path.constData(), &facts) == 0) {
    if (!anybodyMayWrite(facts)) {
      cannotWrite(ErrorNumber::FileAccess, fileName, QStringLiteral("文件是只读的"));
    }
    return;
  }
  const qsizetype name = path.lastIndexOf('/') + 1;
  const QByteArray directory = name == 0 ? QByteArray(".") : path.left(name);
  if (::stat(directory.constData(), &facts) == 0 && !anybodyMayWrite(facts)) {
    cannotWrite(ErrorNumber::FileAccess, fileName, QStringLiteral("目录是只读的"));
  }
}

bool writeAll(int handle, const QByteArray& bytes) {
  qsizetype written = 0;
  while (written < bytes.size()) {
    const ssize_t now =
        ::write(handle, bytes.constData() + written, static_cast<std::size_t>(bytes.size() - written));
    if (now < 0 && errno == EINTR) continue;
    if (now < 0) return false;
    written += now;
  }
  return true;
}

int openForWriting(const QString& fileName, SaveOptions options) {
  if (fileName.contains(QChar(u'\0'))) {
    cannotWrite(ErrorNumber::FileAccess, fileName, QStringLiteral("文件名含有空字符"));
  }
  const QByteArray path = QFile::encodeName(fileName);
  requireWritable(fileName, path);
  const int mode = options == SaveOptions::CreateOverWrite ? O_TRUNC : O_EXCL;
  const int handle = ::open(path.constData(), O_WRONLY | O_CREAT | O_CLOEXEC | mode, newFileMode);
  if (handle < 0) {
    cannotWrite(errno == EEXIST ? ErrorNumber::FileIo : ErrorNumber::FileAccess, fileName,
                runtime::systemWords(errno));
  }
  return handle;
}

}  // namespace

void Stream::requireOpen() const {
  if (m_state != ObjectState::Open) {
    throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("流没有打开"));
  }
}

void Stream::Open() {
  if (m_state == ObjectState::Open) {
    throw AdoError(AdoErrorNumber::OperationNotAllowed, QStringLiteral("流已经打开"));
  }
  m_state = ObjectState::Open;
}

void Stream::Close() {
  requireOpen();
  m_state = ObjectState::Closed;
  m_bytes.clear();
  m_position = 0;
}

qint64 Stream::Size() const {
  requireOpen();
  return m_bytes.size();
}

void Stream::LoadFromFile(const QString& fileName) {
  requireOpen();
  if (!QFileInfo(fileName).isFile()) {
    throw RuntimeError(ErrorNumber::FileNotFound, QStringLiteral("找不到文件“%1”").arg(fileName));
  }
  QFile file(fileName);
  const bool opened = file.open(QIODevice::ReadOnly | QIODevice::Unbuffered);
  QByteArray bytes = opened ? file.readAll() : QByteArray();
  if (!opened || file.error() != QFileDevice::NoError) {
    throw RuntimeError(
        ErrorNumber::FileIo,
        QStringLiteral("无法读取文件“%1”：%2").arg(fileName, runtime::systemWords(file.errorString())));
  }
  m_bytes = std::move(bytes);
  m_position = 0;
}

void Stream::SaveToFile(const QString& fileName, SaveOptions options) const {
  requireOpen();
  const int handle = openForWriting(fileName, options);
  const bool written = writeAll(handle, m_bytes);
  const QString why = written ? QString() : runtime::systemWords(errno);
  // Some file systems tell only now that the disk is full.
  const bool closed = ::close(handle) == 0;
  if (written && closed) return;
  const QString closeWords = why.isEmpty() ? runtime::systemWords(errno) : why;
  if (QFileInfo(fileName).isFile()) QFile::remove(fileName);
  cannotWrite(ErrorNumber::FileIo, fileName, closeWords);
}

void Stream::Write(const QVariant& value) {
  requireOpen();
  if (!value.isValid()) throw RuntimeError(ErrorNumber::InvalidUseOfNull, QStringLiteral("无效使用 Null"));
  if (value.typeId() != QMetaType::QByteArray) {
    throw RuntimeError(ErrorNumber::TypeMismatch, QStringLiteral("类型不匹配：只能写入二进制数据"));
  }
  const QByteArray bytes = value.toByteArray();
  if (m_bytes.isEmpty()) {
    m_bytes = bytes;
  } else {
    m_bytes.replace(m_position, bytes.size(), bytes);
  }
  m_position += bytes.size();
}

QByteArray Stream::Read(qint64 count) {
  requireOpen();
  const qint64 left = m_bytes.size() - m_position;
  const qint64 taken = count < 0 || count > left ? left : count;
  QByteArray bytes = taken == m_bytes.size() ? m_bytes : m_bytes.mid(m_position, taken);
  m_position += taken;
  return bytes;
}

}  // namespace ado
