#include "exchange/RosterImport.h"

#include <algorithm>
#include <cerrno>

#include <QFile>
#include <QTemporaryDir>

#include "ado/Transaction.h"
#include "foundation/clsDbConn.h"
#include "records/clsDept.h"
#include "runtime/Progress.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace {

[[noreturn]] void fail(const QString& what, const QString& why) {
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo, what + QStringLiteral("：") + why);
}

void saveCopy(const QString& path, const QByteArray& bytes) {
  QFile file(path);
  errno = 0;
  const bool written =
      file.open(QIODevice::WriteOnly | QIODevice::Unbuffered) && file.write(bytes) == bytes.size();
  if (!written) fail(QStringLiteral("照片的副本无法写入“%1”").arg(path), runtime::systemWords(errno));
}

std::int16_t makeDepartment(const QString& name, int& made) {
  clsDept dept;
  dept.setDNAME(name);
  // A line before it may have made it.
  if (dept.ID() > 0) return dept.ID();
  ++made;
  if (!dept.AppendToDb()) fail(QStringLiteral("部门“%1”未能新建").arg(name), dept.lastFailure());
  if (!dept.LoadByName() || dept.ID() < 1) {
    fail(QStringLiteral("新建的部门“%1”无法使用").arg(name), dept.lastFailure());
  }
  return dept.ID();
}

}  // namespace

bool RosterImport::run(const RosterOptions& options) {
  judge(options);
  // Employee objects delete the file that they are given, so they get copies; what is left of these goes with
  // the folder.
  const QTemporaryDir folder;
  if (!folder.isValid()) {
    fail(QStringLiteral("临时文件夹无法建立"), runtime::systemWords(folder.errorString()));
  }
  if (!prepare(folder.path())) return false;

  ado::Transaction transaction(ado::required(clsDbConn().GetDbConn()));
  // Other programs may have written since; now they cannot.
  judge(options);
  if (!write()) return false;
  transaction.commit();
  return true;
}

void RosterImport::judge(const RosterOptions& options) {
  m_check.judge(options.createDepartments);
  const int wrong = m_check.counts().wrong;
  if (options.skipBad || wrong == 0) return;
  const auto& lines = m_check.lines();
  const auto first =
      std::find_if(lines.begin(), lines.end(), [](const RosterLine& line) { return !line.isRight(); });
  throw runtime::RuntimeError(
      runtime::ErrorNumber::InvalidCall,
      QStringLiteral("有 %1 行有错，没有导入：%2").arg(wrong).arg(first->faultText()));
}

bool RosterImport::prepare(const QString& folder) {
  const auto& lines = m_check.lines();
  const int count = static_cast<int>(lines.size());
  m_copies.clear();
  for (const RosterLine& line : lines) {
    QString copy;
    if (line.isRight()) {
      copy = folder + u'/' + QString::number(m_copies.size());
      saveCopy(copy, loadRosterPhoto(line.photo));
    }
    m_copies.append(copy);
    if (!runtime::goesOn(static_cast<int>(m_copies.size()), 2 * count)) return false;
  }
  return true;
}

bool RosterImport::write() {
  const auto& lines = m_check.lines();
  const int count = static_cast<int>(lines.size());
  m_written = {};
  m_takenBarcodes.clear();
  for (const RosterLine& line : lines) m_takenBarcodes.insert(line.barcode);
  for (int i = 0; i < count; ++i) {
    const RosterLine& line = lines[static_cast<std::size_t>(i)];
    if (line.isRight() && !m_copies[i].isEmpty()) {
      writeLine(line, m_copies[i]);
    } else {
      ++m_written.wrong;
    }
    if (!runtime::goesOn(count + i + 1, 2 * count)) return false;
  }
  return true;
}

void RosterImport::writeLine(const RosterLine& line, const QString& photo) {
  clsEmployee employee;
  employee.setENUMBER(line.row.number);
  employee.setENAME(line.row.name);
  employee.setdid(line.department > 0 ? line.department
                                      : makeDepartment(line.row.department, m_written.departments));
  employee.setENTERDATE(line.entered);
  employee.setEBARCODE(line.barcode.isEmpty() ? newBarcode() : line.barcode);
  employee.setHeadImg(photo);
  if (!employee.Add()) {
    fail(line.row.place() + QStringLiteral("的员工“%1”未能写入").arg(line.row.number),
         employee.lastFailure());
  }
  ++(line.isUpdate ? m_written.updated : m_written.added);
}

QString RosterImport::newBarcode() {
  // The database knows the lines that are written, not those that are still to come.
  do {
    if (!m_barcodes.UpdateEBarCode()) {
      fail(QStringLiteral("签到条码未能生成"), m_barcodes.lastFailure());
    }
  } while (!m_takenBarcodes.insert(m_barcodes.EBARCODE()).second);
  return m_barcodes.EBARCODE();
}
