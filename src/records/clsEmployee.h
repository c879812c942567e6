#pragma once

#include <cstdint>

#include <QDateTime>
#include <QString>

#include "runtime/DefaultText.h"
#include "runtime/Random.h"
#include "runtime/RuntimeError.h"

/// One employee: a row of table Employee with the name of the department. Loading writes the photo to the
/// file named by HeadImg; the object deletes that file when it goes, whatever it is, so no path of a file
/// that somebody wants to keep may be put there.
class clsEmployee {
 public:
  /// What the loaders found.
  enum LoadResult : int { Found = 1, NotFound = 0, Failed = -1 };

  clsEmployee() = default;
  /// An employee whose barcodes come from `random`.
  explicit clsEmployee(const runtime::Random& random) : m_random(random) {}
  clsEmployee(const clsEmployee&) = delete;
  clsEmployee& operator=(const clsEmployee&) = delete;
  /// Deletes the file named by HeadImg.
  ~clsEmployee();

  [[nodiscard]] const QString& DNAME() const { return m_dname; }
  void setDNAME(const QString& name) { m_dname = name; }
  [[nodiscard]] const QString& ENUMBER() const { return m_enumber; }
  /// Stored as given, not trimmed.
  void setENUMBER(const QString& number) { m_enumber = number; }
  [[nodiscard]] const QDateTime& ENTERDATE() const { return m_enterDate; }
  void setENTERDATE(const QDateTime& date) { m_enterDate = date; }
  [[nodiscard]] const QString& HeadImg() const { return m_headImg; }
  void setHeadImg(const QString& path) { m_headImg = path; }
  [[nodiscard]] std::int16_t did() const { return m_did; }
  void setdid(std::int16_t id) { m_did = id; }
  [[nodiscard]] const QString& ENAME() const { return m_ename; }
  /// Stored without the blanks around it.
  void setENAME(const QString& name);
  [[nodiscard]] QString EBARCODE() const;
  /// Stored without the blanks around it and in upper case.
  void setEBARCODE(const QString& barcode);
  [[nodiscard]] std::int32_t ID() const { return m_id; }
  void setID(std::int32_t id) { m_id = id; }

  /// Inserts the employee, or overwrites the row with the same number; whether it was written.
  [[nodiscard]] bool Add();
  /// Loads by ENUMBER and gives a LoadResult; NotFound also when the department is not stored.
  [[nodiscard]] int LoadByENUMBER();
  /// Loads by EBARCODE, setting ENUMBER as well, and gives a LoadResult.
  [[nodiscard]] int IsExist();
  /// Deletes the employee with that number; whether a row was deleted. Presence rows stay.
  [[nodiscard]] bool Remove(const QString& number);
  [[nodiscard]] bool RemoveMe();
  /// Gives itself a new barcode that no row holds; the row is written only by Add.
  [[nodiscard]] bool UpdateEBarCode();
  /// Writes name, department, photo and date of entry to a file that EmployeeFile reads; whether it was
  /// written. The database is not changed; a file of that name stays as it was when the writing fails.
  [[nodiscard]] bool savetoXML(const QString& FileName);
  /// 15 random decimal digits.
  [[nodiscard]] QString CreateRandomCode();

  /// The error that ended the last of the operations above; empty when none did.
  [[nodiscard]] const QString& lastFailure() const { return m_lastFailure.words; }
  [[nodiscard]] runtime::FailureKind lastFailureKind() const { return m_lastFailure.kind; }

 private:
  /// What an employee is loaded by.
  enum class Key { Number, Barcode };

  void write() const;
  void writeXml(const QString& fileName) const;
  [[nodiscard]] int load(const QString& condition, Key key);
  [[nodiscard]] QString unusedCode();

  QString m_dname;
  QString m_enumber;
  QDateTime m_enterDate = runtime::zeroDateTime();
  QString m_headImg;
  std::int16_t m_did = 0;
  QString m_ename;
  QString m_ebarcode;
  std::int32_t m_id = 0;
  runtime::Failure m_lastFailure;
  runtime::Random m_random;
};
