#include "printing/SingleEmployeeInfoReport.h"

#include "printing/CardDesign.h"
#include "runtime/RuntimeError.h"

SingleEmployeeInfoReport::SingleEmployeeInfoReport() {
  Title = QStringLiteral("签到卡");
  PageHeader.Name = QStringLiteral("PageHeader");
  PageFooter.Name = QStringLiteral("PageFooter");
  Detail = card::design();
}

void SingleEmployeeInfoReport::SetEmployeeSet(std::shared_ptr<clsEmployeeSet> employees) {
  m_employees = std::move(employees);
  m_fetched = 0;
}

int SingleEmployeeInfoReport::expectedBands() const {
  return m_employees ? m_employees->Count() : 0;
}

void SingleEmployeeInfoReport::ActiveReport_ReportStart() {
  m_photoFailures.clear();
  report::LocalizeToolbar(Toolbar);
  ApplyCardStyles();
}

void SingleEmployeeInfoReport::ApplyCardStyles() {
  card::applyStyle(Detail, card::unitLine());
  card::applyStyle(Detail, card::memoLine());
  const card::Logo logo = card::storedLogo();
  Detail.control(QStringLiteral("logPic")).Picture = logo.picture;
  if (!logo.failure.isEmpty()) {
    m_photoFailures.append(QStringLiteral("签到卡的标志无法读取：") + logo.failure);
  }
}

void SingleEmployeeInfoReport::ActiveReport_FetchData(bool& endOfData) {
  ++m_fetched;
  endOfData = m_fetched > expectedBands();
  if (endOfData) return;
  const std::shared_ptr<clsEmployee> employee = m_employees->Item(m_fetched);
  Detail.control(QStringLiteral("lblName")).Caption = employee->ENAME();
  Detail.control(QStringLiteral("Barcode")).Caption = employee->EBARCODE();
  Detail.control(QStringLiteral("lblNumber")).Caption = employee->ENUMBER();
  Detail.control(QStringLiteral("lblDept")).Caption = employee->DNAME();
  Detail.control(QStringLiteral("ImgHead")).Picture = LoadPhoto(*employee);
}

graphics::PicturePointer SingleEmployeeInfoReport::LoadPhoto(const clsEmployee& employee) {
  try {
    return graphics::LoadPicture(employee.HeadImg());
  } catch (const runtime::RuntimeError& error) {
    m_photoFailures.append(
        QStringLiteral("编号为[%1]的员工的照片无法读取：%2").arg(employee.ENUMBER(), error.description()));
    return nullptr;
  }
}
