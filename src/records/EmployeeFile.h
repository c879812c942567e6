#pragma once

#include <cstdint>
#include <optional>

#include <QByteArray>
#include <QString>

/// A file with one employee, as clsEmployee::savetoXML writes it: who is to be taken in, without a number and
/// a barcode.
class EmployeeFile {
 public:
  enum LoadResult : int { Loaded = 1, Failed = 0, Missing = -1, NoRow = -2 };

  /// Reads the first row of the file and gives a LoadResult. The values are read in the order of the
  /// functions below; when one fails, those before it are there.
  [[nodiscard]] int Load(const QString& path);

  /// A value is absent as long as it has not been read.
  [[nodiscard]] const std::optional<QString>& name() const { return m_name; }
  /// A department's number, which no department need have.
  [[nodiscard]] std::optional<std::int16_t> department() const { return m_department; }
  /// The day of entry in the default text of a date.
  [[nodiscard]] const std::optional<QString>& enterDate() const { return m_enterDate; }
  /// Any bytes: whether they are a picture is not looked at.
  [[nodiscard]] const std::optional<QByteArray>& photo() const { return m_photo; }

  /// Why Load gave anything but Loaded: names the file, and the value that cannot be used.
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure; }

 private:
  [[nodiscard]] int read(const QString& path);

  std::optional<QString> m_name;
  std::optional<std::int16_t> m_department;
  std::optional<QString> m_enterDate;
  std::optional<QByteArray> m_photo;
  QString m_lastFailure;
};
