#include "report/PhotoStreams.h"

#include <cerrno>
#include <optional>
#include <set>

#include <QFileDevice>
#include <qpdf/Buffer.hh>
#include <qpdf/Pipeline.hh>
#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace report {
namespace {

/// Writes a photo when the PDF's writer comes to it, so that no second copy is held.
class PhotoProvider : public QPDFObjectHandle::StreamDataProvider {
 public:
  explicit PhotoProvider(QByteArray bytes) : m_bytes(std::move(bytes)) {}

  void provideStreamData(QPDFObjGen const& /*object*/, Pipeline* pipeline) override {
    pipeline->write(reinterpret_cast<const unsigned char*>(m_bytes.constData()),
                    static_cast<std::size_t>(m_bytes.size()));
    pipeline->finish();
  }

 private:
  QByteArray m_bytes;
};

class DevicePipeline : public Pipeline {
 public:
  explicit DevicePipeline(QIODevice& device) : Pipeline("device", nullptr), m_device(device) {}

  void write(const unsigned char* data, std::size_t length) override {
    const auto size = static_cast<qint64>(length);
    errno = 0;
    if (m_device.write(reinterpret_cast<const char*>(data), size) == size) return;
    // A file that is written aside forgets the system's reason.
    const QString why =
        errno == 0 ? runtime::systemWords(m_device.errorString()) : runtime::systemWords(errno);
    const auto* file = qobject_cast<const QFileDevice*>(&m_device);
    throw runtime::RuntimeError(
        runtime::ErrorNumber::FileIo,
        QStringLiteral("无法写入文件“%1”：%2").arg(file != nullptr ? file->fileName() : QString(), why));
  }
  void finish() override {}

 private:
  QIODevice& m_device;
};

bool isOnePixel(QPDFObjectHandle& object) {
  if (!object.isStream()) return false;
  QPDFObjectHandle dictionary = object.getDict();
  return dictionary.getKey("/Subtype").isNameAndEquals("/Image") && dictionary.getKey("/Width").isInteger() &&
         dictionary.getKey("/Width").getIntValue() == 1 && dictionary.getKey("/Height").isInteger() &&
         dictionary.getKey("/Height").getIntValue() == 1;
}

/// The number that the pixel's colour stands for; nothing when it is stored in another way than expected.
std::optional<std::size_t> numberOf(QPDFObjectHandle& image) {
  const auto pixel = image.getStreamData(qpdf_dl_generalized);
  if (pixel->getSize() != 3) return std::nullopt;
  const unsigned char* rgb = pixel->getBuffer();
  return static_cast<std::size_t>(rgb[0]) << 16 | static_cast<std::size_t>(rgb[1]) << 8 | rgb[2];
}

void putPhoto(QPDFObjectHandle& image, const EmbeddedPhoto& photo) {
  image.replaceStreamData(std::make_shared<PhotoProvider>(photo.bytes),
                          QPDFObjectHandle::newName("/DCTDecode"), QPDFObjectHandle::newNull());
  QPDFObjectHandle dictionary = image.getDict();
  dictionary.replaceKey("/Width", QPDFObjectHandle::newInteger(photo.size.width()));
  dictionary.replaceKey("/Height", QPDFObjectHandle::newInteger(photo.size.height()));
  dictionary.replaceKey("/BitsPerComponent", QPDFObjectHandle::newInteger(8));
  dictionary.replaceKey("/ColorSpace",
                        QPDFObjectHandle::newName(photo.components == 1 ? "/DeviceGray" : "/DeviceRGB"));
}

/// Whether every photo found exactly one placeholder, and no other single pixel came along.
bool putPhotos(QPDF& pdf, const std::vector<EmbeddedPhoto>& photos) {
  std::set<std::size_t> found;
  for (QPDFObjectHandle& object : pdf.getAllObjects()) {
    if (!isOnePixel(object)) continue;
    const std::optional<std::size_t> number = numberOf(object);
    if (!number || *number >= photos.size() || !found.insert(*number).second) return false;
    putPhoto(object, photos[*number]);
  }
  return found.size() == photos.size();
}

void write(QPDF& pdf, QIODevice& target) {
  DevicePipeline pipeline(target);
  QPDFWriter writer(pdf);
  writer.setOutputPipeline(&pipeline);
  writer.setObjectStreamMode(qpdf_o_generate);
  writer.setDecodeLevel(qpdf_dl_none);
  writer.write();
}

}  // namespace

QImage placeholderPixel(std::size_t number) {
  QImage image(1, 1, QImage::Format_RGB32);
  image.setPixel(0, 0, 0xFF000000U | static_cast<QRgb>(number));
  return image;
}

bool replacePlaceholders(const QByteArray& pdf, const std::vector<EmbeddedPhoto>& photos, QIODevice& target) {
  try {
    QPDF content;
    content.setSuppressWarnings(true);
    content.processMemoryFile("report", pdf.constData(), static_cast<std::size_t>(pdf.size()));
    if (!putPhotos(content, photos)) return false;
    write(content, target);
    return true;
  } catch (const runtime::RuntimeError&) {
    throw;
  } catch (const std::exception& error) {
    throw runtime::RuntimeError(runtime::ErrorNumber::InvalidCall,
                                QStringLiteral("无法生成 PDF：%1").arg(QString::fromUtf8(error.what())));
  }
}

}  // namespace report
