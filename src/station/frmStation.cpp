#include "station/frmStation.h"

#include <QApplication>
#include <QCloseEvent>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLocale>

#include "dialogs/Dialogs.h"
#include "foundation/clsSchoolArea.h"
#include "graphics/ApplicationIcon.h"
#include "runtime/Clock.h"
#include "sound/Sound.h"
#include "station/ResultLook.h"

namespace {

using namespace std::chrono_literals;

constexpr auto answerStands = 3s;
/// The pause is waited for in two steps: keys that came while the window was kept busy are taken between
/// them.
constexpr auto pauseEnds = 10ms;
/// Long enough to take all keys that came while a busy database was waited for.
constexpr auto deafness = 50ms;
constexpr int keptScans = 10;

const QColor ground(0x10, 0x1c, 0x2b);
const QColor panelGround(0x1d, 0x35, 0x4d);
const QColor warningGround(0xff, 0xc1, 0x07);

QTimer* singleTimer(const char* name, std::chrono::milliseconds time, QObject* parent) {
  auto* timer = new QTimer(parent);
  timer->setObjectName(QLatin1String(name));
  timer->setSingleShot(true);
  timer->setTimerType(Qt::PreciseTimer);
  timer->setInterval(time);
  return timer;
}

FittingLabel* label(const char* name, Qt::Alignment alignment = Qt::AlignCenter) {
  return new FittingLabel(QLatin1String(name), alignment);
}

bool isEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool isDigit(const QKeyEvent& event) {
  return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
}

QString dateLine(const QDateTime& now) {
  return QLocale(QLocale::Chinese, QLocale::China).toString(now.date(), QStringLiteral("yyyy年M月d日 dddd"));
}

QString unitName() {
  const QString name = clsSchoolArea().SNAME();
  return name.isEmpty() ? QStringLiteral("签到") : name;
}

}  // namespace

frmStation::frmStation(StationController controller)
    : m_controller(std::move(controller)),
      m_second(new QTimer(this)),
      m_pause(singleTimer("tmrPause", ScanSplitter::longPause - pauseEnds, this)),
      m_pauseEnd(singleTimer("tmrPauseEnd", pauseEnds, this)),
      m_answer(singleTimer("tmrAnswer", answerStands, this)),
      m_deaf(singleTimer("tmrDeaf", deafness, this)),
      m_unit(label("lblUnit", Qt::AlignLeft)),
      m_date(label("lblDate")),
      m_clock(label("lblClock", Qt::AlignRight)),
      m_count(label("lblCount")),
      m_prompt(label("lblPrompt")),
      m_warning(label("lblWarning")),
      m_note(label("lblNote", Qt::AlignLeft)),
      m_panel(new AnswerPanel),
      m_stack(new QStackedWidget),
      m_scans(new QListWidget) {
  BuildWindow();
  StartTimers();
  Refresh();
}

void frmStation::BuildWindow() {
  setWindowTitle(QStringLiteral("签到"));
  setWindowIcon(graphics::applicationIcon());
  setAttribute(Qt::WA_InputMethodEnabled, false);
  setFocusPolicy(Qt::StrongFocus);
  fillWith(*this, ground);
  fillWith(*m_warning, warningGround);
  QPalette dark = m_warning->palette();
  dark.setColor(QPalette::WindowText, Qt::black);
  m_warning->setPalette(dark);
  m_warning->setText(QStringLiteral("系统时间早于最近一次签到，请校对时间"));
  m_unit->setText(unitName());

  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(24, 8, 24, 4);
  rows->addLayout(BuildHead(), 14);
  rows->addLayout(BuildMiddle(), 75);
  rows->addWidget(m_warning, 9);
  rows->addWidget(m_note, 4);
  resize(1280, 720);
}

QLayout* frmStation::BuildHead() {
  auto* head = new QHBoxLayout;
  head->setSpacing(24);
  head->addWidget(m_unit, 4);
  head->addWidget(m_date, 4);
  head->addWidget(m_clock, 4);
  return head;
}

QLayout* frmStation::BuildMiddle() {
  m_stack->setObjectName(QStringLiteral("stkAnswer"));
  m_stack->addWidget(m_prompt);
  m_stack->addWidget(m_panel);
  m_scans->setObjectName(QStringLiteral("lstScans"));
  m_scans->setFocusPolicy(Qt::NoFocus);
  m_scans->setSelectionMode(QAbstractItemView::NoSelection);
  m_scans->setFrameShape(QFrame::NoFrame);
  m_scans->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_scans->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
  m_scans->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Ignored);
  m_scans->viewport()->setAutoFillBackground(false);

  auto* side = new QVBoxLayout;
  side->addWidget(m_count, 2);
  side->addWidget(m_scans, 13);
  auto* middle = new QHBoxLayout;
  middle->setSpacing(24);
  middle->addWidget(m_stack, 17);
  middle->addLayout(side, 9);
  return middle;
}

void frmStation::StartTimers() {
  m_second->setObjectName(QStringLiteral("tmrSecond"));
  m_second->start(1s);
  connect(m_second, &QTimer::timeout, this, [this] {
    m_controller.look();
    Refresh();
  });
  connect(m_pause, &QTimer::timeout, m_pauseEnd, qOverload<>(&QTimer::start));
  connect(m_pauseEnd, &QTimer::timeout, this, [this] { Scan(m_splitter.finish()); });
  connect(m_answer, &QTimer::timeout, this, &frmStation::Refresh);
  connect(m_deaf, &QTimer::timeout, this, [this] { m_splitter.setDeaf(false); });
  // The window is to be seen before a database that is held is waited for.
  QTimer::singleShot(0ms, this, [this] {
    m_controller.look();
    Refresh();
  });
}

frmStation::State frmStation::state() const {
  if (m_answer->isActive()) return State::Answer;
  return m_controller.isDatabaseMissing() ? State::Trouble : State::Ready;
}

void frmStation::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_F11 || (event->key() == Qt::Key_Escape && isFullScreen())) {
    ToggleFullScreen();
  } else {
    TakeKey(*event);
  }
}

void frmStation::TakeKey(const QKeyEvent& event) {
  // A key that is held down types as fast as a scanner.
  if (m_held.repeats(event)) return;
  if (isEnter(event)) {
    m_pause->stop();
    m_pauseEnd->stop();
    Scan(m_splitter.enter());
    return;
  }
  QStringList codes;
  const ScanSplitter::Time time(event.timestamp());
  for (const QChar c : event.text()) {
    if (c.isPrint()) codes += m_splitter.character(c, time);
  }
  m_pauseEnd->stop();
  m_pause->start(m_splitter.pauseNow() - pauseEnds);
  Scan(codes);
}

void frmStation::Scan(const QStringList& codes) {
  for (const QString& code : codes) {
    const StationAnswer answer = m_controller.scan(code);
    ShowAnswer(answer);
    if (answer.kind != StationAnswer::Kind::Busy) continue;
    // Whoever scanned meanwhile saw no answer and reads now that the card is to be scanned again.
    m_splitter.setDeaf(true);
    m_deaf->start();
    return;
  }
}

void frmStation::ShowAnswer(const StationAnswer& answer) {
  m_answer->start();
  m_stack->setCurrentWidget(m_panel);
  m_panel->setAnswer(answer);
  m_note->setText(answer.failure);
  AddToList(answer);
  Refresh();
  sound::play(lookOf(answer.kind).signal);
}

void frmStation::AddToList(const StationAnswer& answer) {
  const QString who = answer.name.isEmpty() ? QString() : answer.name + QStringLiteral("  ");
  auto* item = new QListWidgetItem(answer.moment.toString(QStringLiteral("HH:mm:ss  ")) + who + answer.text);
  item->setForeground(lookOf(answer.kind).text);
  m_scans->insertItem(0, item);
  while (m_scans->count() > keptScans) delete m_scans->takeItem(keptScans);
}

void frmStation::Refresh() {
  const QDateTime now = runtime::now();
  m_clock->setText(now.toString(QStringLiteral("HH:mm:ss")));
  m_date->setText(dateLine(now));
  const std::optional<int> count = m_controller.figures().count();
  m_count->setText(count ? QStringLiteral("今日已签到 %1 人").arg(*count)
                         : QStringLiteral("今日已签到 — 人"));
  m_warning->setVisible(m_controller.clockIsBehind());
  if (state() == State::Answer) return;
  const bool isReady = state() == State::Ready;
  m_prompt->setText(isReady ? QStringLiteral("请刷卡") : QStringLiteral("正忙，请再刷一次"));
  fillWith(*m_prompt, isReady ? panelGround : lookOf(StationAnswer::Kind::Busy).background);
  m_stack->setCurrentWidget(m_prompt);
  m_note->setText(m_controller.trouble());
}

void frmStation::ToggleFullScreen() {
  setWindowState(windowState() ^ Qt::WindowFullScreen);
  if (isFullScreen()) {
    setCursor(Qt::BlankCursor);
  } else {
    unsetCursor();
  }
}

void frmStation::closeEvent(QCloseEvent* event) {
  qApp->installEventFilter(this);
  const dialogs::Answer answer = dialogs::MsgBox(QStringLiteral("关闭后不能刷卡签到。确定要关闭吗？"),
                                                 dialogs::Question | dialogs::YesNo, QStringLiteral("询问"));
  qApp->removeEventFilter(this);
  event->setAccepted(answer == dialogs::Answer::Yes);
}

bool frmStation::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return QWidget::eventFilter(watched, event);
  const auto& key = static_cast<QKeyEvent&>(*event);
  if (!isDigit(key) && !isEnter(key)) return QWidget::eventFilter(watched, event);
  // A scan must not press the question's button. An application's filter meets a key at the window system's
  // window before it meets it at the control.
  if (watched->isWidgetType()) TakeKey(key);
  return watched->isWidgetType();
}

void frmStation::resizeEvent(QResizeEvent*) {
  QFont rows = font();
  rows.setPixelSize(std::max(std::min(height() / 35, width() / 68), 11));
  m_scans->setFont(rows);
  m_scans->setSpacing(height() / 110);
}
