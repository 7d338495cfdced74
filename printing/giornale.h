#pragma once
// The journal of a run: one line per event, in the order the events happen.
// Device operations write "name arg arg ..."; the runner adds its own lines
// for message boxes, clicks that could not happen, programs started and the
// error that ends a run. Numbers are written as the shortest text that reads
// back as the same 32-bit float; texts in double quotes, a quote doubled,
// line ends, tabs, other control characters and the backslash escaped.

#include <cstdint>
#include <iosfwd>
#include <string>
#include <string_view>

namespace schedine {

// A float as the shortest decimal text that reads back as the same float,
// with a point: 5.72, 12.6, -0.4375, 0.
std::string numero_giornale(float valore);

// A text in double quotes, with each quote inside it doubled; a line feed is
// written \n, a carriage return \r, a tab \t, any other character below
// U+0020 \xNN (two lower-case hex digits) and a backslash \\.
std::string testo_giornale(std::string_view testo);

// One journal line, built word by word after the event's name.
class riga_giornale {
 public:
  explicit riga_giornale(std::string_view nome);

  riga_giornale& numero(float valore);
  riga_giornale& intero(int64_t valore);
  riga_giornale& testo(std::string_view valore);
  // A bare word, such as a setting's name or a control.
  riga_giornale& parola(std::string_view valore);

  const std::string& str() const { return riga_; }

 private:
  std::string riga_;
};

class giornale {
 public:
  // The stream must outlive the journal.
  explicit giornale(std::ostream& uscita);
  ~giornale();
  giornale(const giornale&) = delete;
  giornale& operator=(const giornale&) = delete;

  void scrivi(const riga_giornale& riga);

  // messaggio "TEXT": a message box, answered with its default button.
  void messaggio(std::string_view testo);
  // ignorato CONTROL: a click on a control that could not take it.
  void ignorato(std::string_view controllo);
  // avvia "NAME": a sibling program the system would start.
  void avvia(std::string_view nome);
  // errore "TEXT": the run-time error that ends the program.
  void errore(std::string_view testo);

  // Pushes what is written to the stream's destination.
  void svuota();

 private:
  std::ostream& uscita_;
};

}  // namespace schedine
