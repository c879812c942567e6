#include "exchange/RosterCheck.h"

#include <set>

#include <QFileInfo>

#include "exchange/RosterJudge.h"
#include "runtime/Progress.h"
#include "runtime/RuntimeError.h"

QString RosterCounts::text() const {
  const QString people = QStringLiteral("新增 %1 名，更新 %2 名").arg(added).arg(updated);
  return departments == 0 ? people : people + QStringLiteral("，新建部门 %1 个").arg(departments);
}

RosterCheck::RosterCheck(const QString& file, const QString& photoFolder)
    : m_photos(photoFolder), m_rows(readRoster(file)) {}

bool RosterCheck::checkPhotos() {
  std::vector<RosterPhotos::Found> found;
  for (const RosterRow& row : m_rows) {
    RosterPhotos::Found photo = m_photos.find(row.number);
    try {
      if (photo.fault.isEmpty()) checkRosterPhoto(photo.path);
    } catch (const runtime::RuntimeError& error) {
      // Where the folder is everybody knows, and a line has little room.
      photo.fault = QString(error.description()).replace(photo.path, QFileInfo(photo.path).fileName());
    }
    found.push_back(photo);
    if (!runtime::goesOn(static_cast<int>(found.size()), static_cast<int>(m_rows.size()))) return false;
  }
  m_found = std::move(found);
  return true;
}

void RosterCheck::judge(bool createDepartments) {
  const RosterJudge judge(m_rows, createDepartments);
  m_lines.clear();
  for (std::size_t i = 0; i < m_rows.size(); ++i) {
    m_lines.push_back(judge.judge(m_rows[i], m_found.empty() ? RosterPhotos::Found() : m_found[i]));
  }
}

RosterCounts RosterCheck::counts() const {
  RosterCounts counts;
  std::set<QString, ado::TextOrder> departments;
  for (const RosterLine& line : m_lines) {
    if (!line.isRight()) {
      ++counts.wrong;
    } else if (line.isUpdate) {
      ++counts.updated;
    } else {
      ++counts.added;
    }
    if (line.makesDepartment()) departments.insert(line.row.department);
  }
  counts.departments = static_cast<int>(departments.size());
  return counts;
}
