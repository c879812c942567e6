#include "cli/Cell.h"

namespace cli {

QString cell(QString text) {
  for (QChar& character : text) {
    if (character.category() == QChar::Other_Control) character = u' ';
  }
  return text;
}

}  // namespace cli
