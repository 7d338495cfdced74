#include "printing/qt/file_pdf.h"

#include <fcntl.h>
#include <unistd.h>

#include <cerrno>

namespace schedine {

file_pdf::~file_pdf() { file_pdf::close(); }

bool file_pdf::apri() {
  // A second try starts from nothing.
  close();
  guasto_ = 0;
  descrittore_ = ::open(percorso_.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0666);
  if (descrittore_ < 0) {
    annota(errno);
    return false;
  }
  return QIODevice::open(QIODevice::WriteOnly | QIODevice::Unbuffered);
}

qint64 file_pdf::writeData(const char* dati, qint64 quanti) {
  qint64 scritti = 0;
  while (scritti < quanti) {
    const ssize_t n = ::write(descrittore_, dati + scritti, static_cast<size_t>(quanti - scritti));
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) {
      annota(n < 0 ? errno : EIO);
      return -1;
    }
    scritti += n;
  }
  return scritti;
}

void file_pdf::close() {
  if (descrittore_ < 0) return;
  QIODevice::close();
  if (::close(descrittore_) != 0) annota(errno);
  descrittore_ = -1;
}

}  // namespace schedine
