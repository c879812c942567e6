#include "preview/PrintDialog.h"

#include <algorithm>

#include <QFormLayout>
#include <QHBoxLayout>

#include "dialogs/Dialogs.h"
#include "graphics/WaitCursor.h"
#include "preview/PaperFit.h"
#include "runtime/RuntimeError.h"

namespace preview {

namespace {

constexpr int most = 999;
/// Long names of printers are cut instead of widening the window.
constexpr int charactersShown = 36;

template <typename Control>
Control* named(const char* name, Control* control) {
  control->setObjectName(QLatin1String(name));
  return control;
}

QLabel* makeHint(const char* name, int lines) {
  auto* hint = named(name, new QLabel);
  hint->setWordWrap(true);
  hint->setTextFormat(Qt::PlainText);
  hint->setMinimumHeight(lines * hint->fontMetrics().lineSpacing());
  hint->setAlignment(Qt::AlignLeft | Qt::AlignTop);
  return hint;
}

QComboBox* makeChoice(const char* name, const QStringList& texts = {}) {
  auto* box = named(name, new QComboBox);
  box->addItems(texts);
  box->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  box->setMinimumContentsLength(charactersShown);
  return box;
}

QString printerText(const spooler::Queue& queue) {
  const bool plain = queue.description.isEmpty() || queue.description == queue.name;
  return plain ? queue.name : queue.name + QStringLiteral("（") + queue.description + QStringLiteral("）");
}

QString stateText(const spooler::Details& details) {
  QStringList words;
  if (!details.accepting) words.append(QStringLiteral("不接受打印任务"));
  if (details.stopped) words.append(QStringLiteral("已停止"));
  if (!details.complaint.isEmpty()) words.append(details.complaint);
  return words.isEmpty() ? QStringLiteral("就绪") : words.join(QStringLiteral("，"));
}

}  // namespace

PrintDialog::PrintDialog(const std::vector<spooler::Queue>& queues, const report::Document& document,
                         int currentPage, QWidget* parent)
    : QDialog(parent),
      m_title(document.title()),
      m_page(paperSizeOf(document.paperSize())),
      m_pages(new PageChoice(document.pageCount(), currentPage)) {
  setWindowTitle(QStringLiteral("打印"));
  makeControls(queues);
  arrange();
  connect(m_printer, &QComboBox::currentIndexChanged, this, [this] { showPrinter(); });
  connect(m_paper, &QComboBox::currentIndexChanged, this, [this] { showPaper(); });
  connect(m_copies, &QSpinBox::valueChanged, m_collate,
          [this](int copies) { m_collate->setEnabled(copies > 1); });
  connect(m_print, &QPushButton::clicked, this, &PrintDialog::accept);
  connect(m_cancel, &QPushButton::clicked, this, &PrintDialog::reject);
  showPrinter();
  m_printer->setFocus();
}

void PrintDialog::makeControls(const std::vector<spooler::Queue>& queues) {
  m_printer = makeChoice("cmbPrinter");
  for (const spooler::Queue& queue : queues) m_printer->addItem(printerText(queue), queue.name);
  const auto usual =
      std::find_if(queues.begin(), queues.end(), [](const auto& queue) { return queue.isDefault; });
  m_printer->setCurrentIndex(usual != queues.end() ? static_cast<int>(usual - queues.begin()) : 0);
  m_state = makeHint("lblState", 1);
  m_paper = makeChoice("cmbPaper");
  m_paperHint = makeHint("lblPaper", 2);
  m_copies = named("spnCopies", new QSpinBox);
  m_collate = named("chkCollate", new QCheckBox(QStringLiteral("逐份打印(&O)")));
  m_collate->setChecked(true);
  m_collate->setEnabled(false);
  m_sides = makeChoice("cmbSides", {QStringLiteral("单面"), QStringLiteral("双面，沿长边翻页"),
                                    QStringLiteral("双面，沿短边翻页")});
  m_color = makeChoice("cmbColor", {QStringLiteral("彩色"), QStringLiteral("黑白")});
  m_print = named("btnPrint", new QPushButton(QStringLiteral("打印")));
  m_print->setDefault(true);
  m_cancel = named("btnCancel", new QPushButton(QStringLiteral("取消")));
}

void PrintDialog::arrange() {
  auto* copies = new QHBoxLayout;
  copies->addWidget(m_copies);
  copies->addWidget(m_collate);
  copies->addStretch();
  auto* copiesLabel = new QLabel(QStringLiteral("份数(&N)："));
  copiesLabel->setBuddy(m_copies);
  auto* form = new QFormLayout(this);
  form->addRow(QStringLiteral("打印机(&P)："), m_printer);
  form->addRow(QStringLiteral("状态："), m_state);
  form->addRow(QStringLiteral("纸张(&S)："), m_paper);
  form->addRow(QString(), m_paperHint);
  form->addRow(m_pages);
  form->addRow(copiesLabel, copies);
  form->addRow(QStringLiteral("双面(&D)："), m_sides);
  form->addRow(QStringLiteral("颜色(&L)："), m_color);
  auto* buttons = new QHBoxLayout;
  buttons->addStretch();
  buttons->addWidget(m_print);
  buttons->addWidget(m_cancel);
  form->addRow(buttons);
}

void PrintDialog::showPrinter() {
  bool known = true;
  try {
    const graphics::WaitCursor wait;
    m_details = spooler::details(m_printer->currentData().toString());
    m_state->setText(stateText(m_details));
  } catch (const runtime::RuntimeError& error) {
    m_details = {};
    m_state->setText(error.description());
    known = false;
  }
  m_print->setEnabled(known);
  showAbilities();
}

void PrintDialog::showAbilities() {
  m_paper->clear();
  for (const spooler::Paper& each : m_details.papers) m_paper->addItem(paperText(each));
  m_paper->setCurrentIndex(bestPaper(m_details, m_page));
  m_paper->setEnabled(!m_details.papers.empty());
  showPaper();
  m_copies->setRange(1, std::min(m_details.maximumCopies, most));
  m_sides->setEnabled(m_details.twoSided);
  m_sides->setCurrentIndex(static_cast<int>(m_details.sides));
  m_color->setEnabled(m_details.choosesColor);
  m_color->setCurrentIndex(m_details.color ? 0 : 1);
}

const spooler::Paper* PrintDialog::paper() const {
  const int index = m_paper->currentIndex();
  return index < 0 ? nullptr : &m_details.papers.at(static_cast<std::size_t>(index));
}

bool PrintDialog::pageIsCut() const {
  return paper() != nullptr && !fitsPaper(m_page, paper()->size);
}

void PrintDialog::showPaper() {
  const QString page = QStringLiteral("页面是 ") + sizeText(m_page);
  if (paper() == nullptr) {
    m_paperHint->setText(page + QStringLiteral("，请装上这样的纸。"));
  } else if (pageIsCut()) {
    m_paperHint->setText(page + QStringLiteral("，比这种纸大：不会缩小，超出的部分印不出来。"));
  } else if (!isSamePaper(m_page, paper()->size)) {
    m_paperHint->setText(page + QStringLiteral("，按实际大小印在这种纸上。"));
  } else {
    m_paperHint->clear();
  }
}

QString PrintDialog::catches() const {
  QStringList lines;
  const QString printer =
      QStringLiteral("打印机“") + m_printer->currentData().toString() + QStringLiteral("”");
  if (m_details.stopped) lines.append(printer + QStringLiteral("已停止，恢复后才会打印。"));
  if (pageIsCut()) {
    lines.append(QStringLiteral("页面（%1）比所选的纸 %2 大，超出的部分印不出来。")
                     .arg(sizeText(m_page), paperText(*paper())));
  }
  if (!lines.isEmpty()) lines.append(QStringLiteral("仍要打印吗？"));
  return lines.join(QLatin1Char('\n'));
}

void PrintDialog::accept() {
  const auto pages = m_pages->pages();
  if (!pages || pages->empty()) {
    const QString wrong =
        pages ? QStringLiteral("所选范围内没有页。") : QStringLiteral("看不懂页码。请写成 1-3,5 这样。");
    dialogs::MsgBox(wrong, dialogs::Exclamation, QStringLiteral("警告"));
    return m_pages->askAgain();
  }
  const QString question = catches();
  if (!question.isEmpty() && dialogs::MsgBox(question, dialogs::Question | dialogs::YesNo,
                                             QStringLiteral("询问")) != dialogs::Answer::Yes) {
    return;
  }
  QDialog::accept();
}

PrintChoice PrintDialog::choice() const {
  PrintChoice choice;
  choice.job.queue = m_printer->currentData().toString();
  choice.job.title = m_title;
  if (paper() != nullptr) choice.job.media = paper()->media;
  choice.job.copies = m_copies->value();
  choice.job.collated = m_collate->isChecked();
  choice.job.sides = static_cast<spooler::Sides>(m_sides->currentIndex());
  if (m_details.choosesColor) choice.job.color = m_color->currentIndex() == 0;
  choice.pages = m_pages->pages().value_or(std::vector<int>());
  return choice;
}

}  // namespace preview
