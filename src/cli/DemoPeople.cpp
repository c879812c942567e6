#include "cli/DemoPeople.h"

#include <QSet>

#include "cli/DemoRandom.h"

namespace cli {

namespace {

constexpr int barcodeDigits = 15;
constexpr int daysOfService = 3 * 365;

QString surnames() {
  return QStringLiteral(
      "王李张刘陈杨黄赵吴周徐孙马朱胡郭何林高罗郑梁谢宋唐许韩冯邓曹彭曾肖田董潘袁蔡蒋余于杜叶程魏苏吕丁任卢姚"
      "沈钟姜崔谭陆范汪廖石");
}

QString givenOfWomen() {
  return QStringLiteral(
      "芳娜敏静秀丽艳娟霞燕玲桂洁梅琳雪婷慧莹倩欣怡佳颖萍红玉兰英华珍琴云莉琪雯悦瑶蕾岚妍珂玥");
}

QString givenOfMen() {
  return QStringLiteral(
      "伟强磊军洋勇杰涛明超刚平辉鹏飞波斌宇浩凯健俊帆帅旭宁龙林阳建国志文博浩然子轩睿晨喆堃峰毅");
}

QString nameOf(DemoRandom& random, bool woman) {
  const QString families = surnames();
  const QString given = woman ? givenOfWomen() : givenOfMen();
  QString name = families.at(random.below(static_cast<int>(families.size())));
  const int characters = random.percent(65) ? 2 : 1;
  for (int i = 0; i < characters; ++i) name += given.at(random.below(static_cast<int>(given.size())));
  return name;
}

QString barcodeOf(DemoRandom& random, QSet<QString>& taken) {
  QString code;
  do {
    code.clear();
    while (code.size() < barcodeDigits) code += QChar(u'0' + random.below(10));
  } while (taken.contains(code));
  taken.insert(code);
  return code;
}

}  // namespace

QStringList demoDepartments() {
  return {QStringLiteral("校长室"), QStringLiteral("教务处"), QStringLiteral("语文组"),
          QStringLiteral("数学组"), QStringLiteral("外语组"), QStringLiteral("理化组"),
          QStringLiteral("艺体组"), QStringLiteral("总务处")};
}

std::vector<DemoPerson> demoPeople(int count, const QDate& today) {
  const int departments = static_cast<int>(demoDepartments().size());
  std::vector<DemoPerson> people;
  people.reserve(static_cast<std::size_t>(count));
  QSet<QString> barcodes;
  for (int i = 1; i <= count; ++i) {
    DemoRandom random(static_cast<std::uint64_t>(i) * 7919);
    DemoPerson person;
    person.number = QStringLiteral("A%1").arg(i, 4, 10, QLatin1Char('0'));
    person.face = Face::drawn(random);
    person.name = nameOf(random, person.face.woman);
    person.department = random.between(1, departments);
    person.barcode = barcodeOf(random, barcodes);
    person.entered = today.addDays(-random.between(1, daysOfService));
    people.push_back(person);
  }
  return people;
}

}  // namespace cli
