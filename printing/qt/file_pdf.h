#pragma once
// The file a PDF is written into, through the system's own file calls. Qt's
// PDF writer goes on silently past a write that failed, so the file keeps
// the cause of its first failure (a full disk, no permission), and the device
// can tell a file written whole from one that is not.

#include <QIODevice>
#include <string>

namespace schedine {

class file_pdf : public QIODevice {
 public:
  explicit file_pdf(std::string percorso) : percorso_(std::move(percorso)) {}
  ~file_pdf() override;

  // Creates the file, or empties the one there; false when it can't, with the cause kept.
  bool apri();
  void close() override;
  bool isSequential() const override { return true; }

  const std::string& percorso() const { return percorso_; }
  // The C library's error (errno) of the first operation that failed; 0 while none did.
  int guasto() const { return guasto_; }

 protected:
  qint64 readData(char*, qint64) override { return -1; }
  qint64 writeData(const char* dati, qint64 quanti) override;

 private:
  void annota(int numero_errno) {
    if (guasto_ == 0) guasto_ = numero_errno;
  }

  std::string percorso_;
  int descrittore_ = -1;
  int guasto_ = 0;
};

}  // namespace schedine
