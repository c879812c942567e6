#pragma once

#include <QFrame>
#include <QGridLayout>

#include "station/FittingLabel.h"
#include "station/PhotoView.h"
#include "station/StationAnswer.h"

/// The answer to a scan: photo, name, department, time and what happened, on the colour of the result.
class AnswerPanel : public QFrame {
 public:
  AnswerPanel();

  void setAnswer(const StationAnswer& answer);

 private:
  void buildLayout();
  void showHolder(bool isSomebody);

  QGridLayout* m_grid = nullptr;
  PhotoView* m_photo;
  FittingLabel* m_name;
  FittingLabel* m_department;
  FittingLabel* m_time;
  FittingLabel* m_result;
};

/// Fills `widget` with `colour`, with white text on it.
void fillWith(QWidget& widget, const QColor& colour);
