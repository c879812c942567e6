#include "cli/TemporaryPhoto.h"

#include "runtime/ProgramDirectory.h"
#include "runtime/RuntimeError.h"
#include "runtime/SystemWords.h"

namespace cli {

TemporaryPhoto::TemporaryPhoto(const QByteArray& bytes)
    : m_file(runtime::appFile(QStringLiteral("photo-XXXXXX.jpg"))) {
  if (m_file.open() && m_file.write(bytes) == bytes.size() && m_file.flush()) {
    m_file.close();
    return;
  }
  throw runtime::RuntimeError(runtime::ErrorNumber::FileIo,
                              QStringLiteral("无法在目录“%1”中写入临时照片：%2")
                                  .arg(runtime::AppPath(), runtime::systemWords(m_file.errorString())));
}

}  // namespace cli
