#include "CupsServer.h"

#include <gtest/gtest.h>

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTest>

#include "support/Files.h"

namespace {

struct PaperModel {
  const char* name;
  int width;
  int height;
};

constexpr PaperModel models[] = {{"A4", 595, 842}, {"A5", 420, 595}, {"Letter", 612, 792}};

/// Services stand where a user's path does not lead.
QString program(const QString& name) {
  const QString found = QStandardPaths::findExecutable(name);
  return !found.isEmpty() ? found : QStandardPaths::findExecutable(name, {QStringLiteral("/usr/sbin")});
}

QByteArray choices(const char* keyword, const QStringList& papers, const QByteArray& usual) {
  const QByteArray key(keyword);
  QByteArray text = "*OpenUI *" + key + ": PickOne\n*OrderDependency: 10 AnySetup *" + key + "\n*Default" +
                    key + ": " + usual + "\n";
  for (const QString& paper : papers) text += "*" + key + " " + paper.toLatin1() + ": \"\"\n";
  return text + "*CloseUI: *" + key + "\n";
}

/// The description of a printer that takes PDF as it comes out of the service's own filters.
QByteArray description(const QStringList& papers) {
  const QByteArray usual = papers.first().toLatin1();
  QByteArray text =
      "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*FileVersion: \"1.0\"\n*LanguageVersion: English\n"
      "*LanguageEncoding: ISOLatin1\n*PCFileName: \"TEST.PPD\"\n*Manufacturer: \"Test\"\n*Product: "
      "\"(Test)\"\n"
      "*ModelName: \"Test\"\n*ShortNickName: \"Test\"\n*NickName: \"Test\"\n*PSVersion: \"(3010.000) 0\"\n"
      "*LanguageLevel: \"3\"\n*ColorDevice: True\n*DefaultColorSpace: RGB\n*cupsManualCopies: True\n"
      "*cupsFilter2: \"application/vnd.cups-pdf application/pdf 0 -\"\n";
  text += choices("PageSize", papers, usual) + choices("PageRegion", papers, usual);
  text += choices("Duplex",
                  {QStringLiteral("None"), QStringLiteral("DuplexNoTumble"), QStringLiteral("DuplexTumble")},
                  "None");
  text += "*DefaultImageableArea: " + usual + "\n*DefaultPaperDimension: " + usual + "\n";
  for (const PaperModel& model : models) {
    if (!papers.contains(QLatin1String(model.name))) continue;
    const QByteArray size = QByteArray::number(model.width) + " " + QByteArray::number(model.height);
    text += QByteArray("*PaperDimension ") + model.name + ": \"" + size + "\"\n";
    text += QByteArray("*ImageableArea ") + model.name + ": \"12 12 " + QByteArray::number(model.width - 12) +
            " " + QByteArray::number(model.height - 12) + "\"\n";
  }
  return text;
}

}  // namespace

CupsServer::CupsServer() {
  configure();
  m_service.start(
      program(QStringLiteral("cupsd")),
      {QStringLiteral("-f"), QStringLiteral("-c"), m_directory.filePath(QStringLiteral("cupsd.conf")),
       QStringLiteral("-s"), m_directory.filePath(QStringLiteral("cups-files.conf"))});
  const auto answers = [this] {
    return output(QStringLiteral("lpstat"), {QStringLiteral("-r")}).contains("is running");
  };
  const bool started = QTest::qWaitFor(answers, 10'000);
  EXPECT_TRUE(started) << support::contentOf(m_directory.filePath(QStringLiteral("error_log"))).toStdString();
}

CupsServer::~CupsServer() {
  m_service.terminate();
  if (!m_service.waitForFinished(5000)) kill();
}

bool CupsServer::isInstalled() {
  const QStringList needed{QStringLiteral("cupsd"), QStringLiteral("lpadmin"), QStringLiteral("lpstat")};
  return std::none_of(needed.begin(), needed.end(),
                      [](const QString& tool) { return program(tool).isEmpty(); });
}

void CupsServer::configure() const {
  // The service's filters are another user's, who must be able to pass.
  QFile::setPermissions(m_directory.path(), QFile::Permissions(0x7011));
  const QDir directory(m_directory.path());
  for (const auto& name : {QStringLiteral("root/ppd"), QStringLiteral("cache"), QStringLiteral("spool"),
                           QStringLiteral("temporary")}) {
    EXPECT_TRUE(directory.mkpath(name));
  }
  const QByteArray path = m_directory.path().toUtf8();
  support::writeFile(directory.filePath(QStringLiteral("cupsd.conf")),
                     "Listen " + socket().toUtf8() +
                         "\nBrowsing Off\nDefaultAuthType None\nWebInterface No\nLogLevel info\n"
                         "<Location />\nAllow all\n</Location>\n"
                         "<Policy default>\n<Limit All>\nOrder allow,deny\nAllow all\n</Limit>\n</Policy>\n");
  support::writeFile(directory.filePath(QStringLiteral("cups-files.conf")),
                     "ServerRoot " + path + "/root\nStateDir " + path + "/root\nCacheDir " + path +
                         "/cache\nRequestRoot " + path + "/spool\nTempDir " + path + "/temporary\nErrorLog " +
                         path + "/error_log\nAccessLog " + path + "/access_log\nPageLog " + path +
                         "/page_log\nFileDevice Yes\nSandboxing relaxed\n");
}

QByteArray CupsServer::output(const QString& tool, const QStringList& arguments) const {
  QProcess process;
  QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
  environment.insert(QStringLiteral("CUPS_SERVER"), socket());
  environment.insert(QStringLiteral("LC_ALL"), QStringLiteral("C.UTF-8"));
  process.setProcessEnvironment(environment);
  process.start(program(tool), arguments);
  process.waitForFinished();
  return process.readAllStandardOutput() + process.readAllStandardError();
}

void CupsServer::run(const QString& tool, const QStringList& arguments) {
  const QByteArray said = output(tool, arguments);
  // It has an opinion on printers with a description.
  EXPECT_TRUE(said.isEmpty() || said.contains("deprecated")) << said.toStdString();
}

void CupsServer::addQueue(const QString& name, const QStringList& papers) {
  const QString file = m_directory.filePath(name + QStringLiteral(".ppd"));
  support::writeFile(file, description(papers));
  run(QStringLiteral("lpadmin"), {QStringLiteral("-p"), name, QStringLiteral("-E"), QStringLiteral("-v"),
                                  QStringLiteral("file://") + printed(name), QStringLiteral("-P"), file});
}

void CupsServer::kill() {
  m_service.kill();
  m_service.waitForFinished();
}

QString CupsServer::printed(const QString& queue) const {
  return m_directory.filePath(queue + QStringLiteral(".pdf"));
}

bool CupsServer::isDone(const QString& queue) {
  return QTest::qWaitFor(
      [this, &queue] {
        return output(QStringLiteral("lpstat"), {QStringLiteral("-o"), queue}).isEmpty();
      },
      10'000);
}
