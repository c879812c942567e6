#include "spooler/StateWords.h"

#include <array>

namespace spooler {

namespace {

struct Word {
  /// What the keyword begins with: it may end in "-error", "-warning" or "-report".
  QLatin1String keyword;
  const char16_t* meaning;
};

constexpr std::array printerWords{
    Word{QLatin1String("media-empty"), u"缺纸"},
    Word{QLatin1String("media-needed"), u"缺纸"},
    Word{QLatin1String("media-jam"), u"卡纸"},
    Word{QLatin1String("media-low"), u"纸快用完"},
    Word{QLatin1String("toner-empty"), u"墨粉用尽"},
    Word{QLatin1String("toner-low"), u"墨粉不足"},
    Word{QLatin1String("marker-supply-empty"), u"墨水用尽"},
    Word{QLatin1String("marker-supply-low"), u"墨水不足"},
    Word{QLatin1String("marker-waste-full"), u"废墨盒已满"},
    Word{QLatin1String("door-open"), u"机盖没有关好"},
    Word{QLatin1String("cover-open"), u"机盖没有关好"},
    Word{QLatin1String("interlock-open"), u"机盖没有关好"},
    Word{QLatin1String("input-tray-missing"), u"没有装纸盒"},
    Word{QLatin1String("output-area-full"), u"出纸盘已满"},
    Word{QLatin1String("offline"), u"脱机"},
    Word{QLatin1String("shutdown"), u"脱机"},
    Word{QLatin1String("timed-out"), u"没有回应"},
    Word{QLatin1String("connecting-to-device"), u"正在连接"},
    Word{QLatin1String("cups-missing-filter"), u"缺少驱动程序"},
    Word{QLatin1String("cups-insecure-filter"), u"驱动程序的权限不安全"},
};

constexpr std::array jobWords{
    Word{QLatin1String("aborted-by-system"), u"被打印服务中止"},
    Word{QLatin1String("job-canceled-by-operator"), u"被管理员取消"},
    Word{QLatin1String("job-canceled-by-user"), u"被用户取消"},
    Word{QLatin1String("job-canceled-at-device"), u"在打印机上被取消"},
    Word{QLatin1String("document-format-error"), u"打印机不认识文件格式"},
    Word{QLatin1String("unsupported-document-format"), u"打印机不认识文件格式"},
    Word{QLatin1String("job-completed-with-errors"), u"驱动程序出错"},
};

template <std::size_t count>
QString meanings(const QStringList& reasons, const std::array<Word, count>& words) {
  QStringList found;
  for (const Word& word : words) {
    const auto given = [&word](const QString& reason) { return reason.startsWith(word.keyword); };
    const QString meaning = QString::fromUtf16(word.meaning);
    if (std::any_of(reasons.begin(), reasons.end(), given) && !found.contains(meaning)) found.append(meaning);
  }
  return found.join(QStringLiteral("、"));
}

}  // namespace

QString printerComplaint(const QStringList& reasons) {
  return meanings(reasons, printerWords);
}

QString jobReason(const QStringList& reasons) {
  return meanings(reasons, jobWords);
}

QByteArray cutUtf8(const QString& text, qsizetype bytes) {
  QByteArray cut = text.toUtf8();
  if (cut.size() <= bytes) return cut;
  // Bytes within a character begin with the bits 10.
  while (bytes > 0 && (static_cast<unsigned char>(cut[bytes]) & 0xC0U) == 0x80U) --bytes;
  cut.truncate(bytes);
  return cut;
}

}  // namespace spooler
