#include "station/AnswerPanel.h"

#include <array>

#include "station/ResultLook.h"

AnswerPanel::AnswerPanel()
    : m_photo(new PhotoView(QStringLiteral("imgPhoto"))),
      m_name(new FittingLabel(QStringLiteral("lblName"))),
      m_department(new FittingLabel(QStringLiteral("lblDept"))),
      m_time(new FittingLabel(QStringLiteral("lblTime"))),
      m_result(new FittingLabel(QStringLiteral("lblResult"))) {
  buildLayout();
}

void AnswerPanel::buildLayout() {
  auto* grid = new QGridLayout(this);
  grid->setContentsMargins(24, 24, 24, 16);
  grid->setHorizontalSpacing(24);
  grid->addWidget(m_photo, 0, 0, 3, 1);
  grid->addWidget(m_name, 0, 1);
  grid->addWidget(m_department, 1, 1);
  grid->addWidget(m_time, 2, 1);
  grid->addWidget(m_result, 3, 0, 1, 2);
  grid->setColumnStretch(0, 2);
  grid->setColumnStretch(1, 3);
  m_grid = grid;
}

void AnswerPanel::showHolder(bool isSomebody) {
  for (QWidget* part : std::initializer_list<QWidget*>{m_photo, m_name, m_department})
    part->setVisible(isSomebody);
  // Without a person what happened stands in the middle, the time above it.
  using Heights = std::array<int, 5>;
  const Heights heights = isSomebody ? Heights{5, 3, 3, 4, 0} : Heights{3, 0, 3, 5, 4};
  for (int row = 0; row < 5; ++row) m_grid->setRowStretch(row, heights.at(static_cast<std::size_t>(row)));
  m_grid->addWidget(m_time, 2, isSomebody ? 1 : 0, 1, isSomebody ? 1 : 2);
}

void AnswerPanel::setAnswer(const StationAnswer& answer) {
  fillWith(*this, lookOf(answer.kind).background);
  showHolder(!answer.name.isEmpty());
  m_name->setText(answer.name);
  m_department->setText(answer.department);
  m_time->setText(answer.moment.toString(QStringLiteral("HH:mm:ss")));
  m_result->setText(answer.text);
  // Before it knows its room, the photo would be decoded in full.
  m_grid->activate();
  m_photo->setPhoto(answer.photo);
}

void fillWith(QWidget& widget, const QColor& colour) {
  QPalette palette = widget.palette();
  palette.setColor(QPalette::Window, colour);
  palette.setColor(QPalette::WindowText, Qt::white);
  widget.setPalette(palette);
  widget.setAutoFillBackground(true);
}
