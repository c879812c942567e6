// Reads whatever the fuzzer makes of the seeds as a persisted recordset. Only the platform's error may come
// out.

#include <cstddef>
#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

#include <QString>

#include "persisted/Reader.h"
#include "runtime/RuntimeError.h"

namespace {

/// A file in memory that lives as long as the program.
class MemoryFile {
 public:
  MemoryFile() : m_file(::memfd_create("fuzz", 0)) {}
  [[nodiscard]] QString path() const { return QStringLiteral("/proc/self/fd/%1").arg(m_file); }
  [[nodiscard]] bool fill(const std::uint8_t* data, std::size_t size) const {
    return ::ftruncate(m_file, 0) == 0 && ::pwrite(m_file, data, size, 0) == static_cast<ssize_t>(size);
  }

 private:
  int m_file;
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const MemoryFile file;
  if (!file.fill(data, size)) return -1;
  try {
    persisted::Reader reader(file.path());
    std::vector<QVariant> values;
    while (reader.next(values)) {
      if (values.size() != reader.columns().size()) __builtin_trap();
    }
  } catch (const runtime::RuntimeError&) {
    return 0;
  }
  return 0;
}
