#pragma once
// How saved systems are named on disk. The host suite saves each system of a
// sorte in the sorte's folder under the program folder, as files whose names
// are the system's base name followed at once by a suffix that tells the
// sorte and the kind: the head file (whose name goes into sistema_scelto) and
// the column file. The catalogue finds systems by other files again, the list
// files, searched by pattern. All of it is held here as tables, so the
// catalogue, the slip forms and the readers share one scheme.

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace schedine {

// ---------------------------------------------------------------- sorti

// A value of tipo_gioco, the folder of its systems and how many numbers make
// a column there.
struct sorte_sistema {
  std::string_view tipo_gioco;
  std::string_view cartella;  // folder name under the program folder
  int numeri_min;             // numbers in a column; sestine-decine files
  int numeri_max;             // hold 6 to 10, the same in every column
};

// The row of a tipo_gioco, crossword values ("terno_c", ...) included;
// nullptr for a value no folder belongs to.
const sorte_sistema* cerca_sorte(std::string_view tipo_gioco);

// The folder of a system as readers use it: the program folder, the folder
// name and the platform separator at its end.
std::string cartella_sistema_di(const std::string& cartella_programma, std::string_view cartella);
// The same for the folder of a tipo_gioco; nothing for a value with no folder.
std::optional<std::string> cartella_sorte(const std::string& cartella_programma, std::string_view tipo_gioco);

// ---------------------------------------------------------------- kinds

// The kind of a system as far as its files go. A "ridotto" system comes in
// two forms: one file that is both head and columns, or (in SuperEnalotto,
// 10eLotto and Win for Life only) a head with its columns in a file apart.
enum class genere { casuale, condizionato, autoridotto, ridotto_un_file, ridotto_due_file };

// The tipo_sistema text of a kind: both ridotto forms are "ridotto".
std::string_view testo_tipo_sistema(genere g);

// The two file suffixes of one kind in one sorte; an empty suffix means that
// the sorte has no such file.
struct suffissi_sistema {
  std::string_view testata;  // head file, the end of sistema_scelto
  std::string_view colonne;  // column file
  int taglio;                // characters a reader cuts from sistema_scelto
                             // to reach the base name (0 where there is no head)
  bool testata_in_colonne;   // the column file opens with the three head fields
};

// Suffixes of a kind in a sorte; nothing for a tipo_gioco outside the scheme
// (crossword values included).
std::optional<suffissi_sistema> suffissi(std::string_view tipo_gioco, genere g);

// The kind of the chosen system: tipo_sistema with, for "ridotto", the form
// told by the end of sistema_scelto (see e_ridotto_due_file). Nothing for
// "cruciverba" or an unknown text.
std::optional<genere> genere_scelto(std::string_view tipo_sistema, std::string_view tipo_gioco,
                                    std::string_view sistema_scelto);

// The test of the readers and of the panel forms: the ridotto system is in
// the two-file form when sistema_scelto ends, exactly, in the two-file head
// suffix of the sorte ("rifae.txt", "rifa10.txt"). Always false in the sorti
// that know only the one-file form.
bool e_ridotto_due_file(std::string_view tipo_gioco, std::string_view sistema_scelto);

// The test of the catalogue when it turns a "ridotto" entry into a file name:
// the two-file form is the one whose marker file (base name with "nufe.txt"
// or "nuf10.txt") exists in the sorte's folder. nome is the trimmed base name.
genere genere_ridotto_su_disco(const std::string& cartella_programma, std::string_view tipo_gioco,
                               std::string_view nome);

// The base name a reader works with: taglio characters cut from the end of
// the untrimmed sistema_scelto, then the blanks trimmed from both ends. The
// cut does not look at what it removes. A cut longer than the text is the
// run-time error "Chiamata di routine o argomento non validi".
std::string nome_base(std::string_view sistema_scelto, int taglio);

// Blanks (and only blanks) trimmed from both ends.
std::string_view togli_blank(std::string_view testo);

// ---------------------------------------------------------------- crossword

// Crossword systems carry whole names with an extension instead of a suffix.
// The Lotto ones are "name.sel" (head) and "name.lot" (columns); the
// SuperEnalotto ones are " name.col" in sistema_scelto, with the head "name.sen".
struct cruciverba_sistema {
  std::string_view tipo_gioco;  // "cruciverba", "terno_c", "quaterna_c", "cinquina_c"
  int numeri;                   // numbers in a column
  int taglio;                   // characters a reader cuts from sistema_scelto
  std::string_view colonne;     // what follows the base name in the column file
};

const cruciverba_sistema* cerca_cruciverba(std::string_view tipo_gioco);

// sistema_scelto with its last three characters replaced, as the panel
// forms reach the head (".sen", ".s10") and column (".col") files of a
// crossword: " nome.col" with "sen" gives " nome.sen".
std::string cambia_estensione(std::string_view sistema_scelto, std::string_view estensione);

// ---------------------------------------------------------------- list files

// The runs of the catalogue, each searching one family of list files.
enum class famiglia_elenco {
  condizionato,
  casuale,
  autoridotto,
  ridotto,
  ridotto_seconda_famiglia,
  cruciverba_enalotto,
  cruciverba_lotto,
};

// A pattern searched in the sorte's folder, and the characters cut from the
// end of each name found to leave the base name.
struct schema_elenco {
  std::string_view schema;
  int taglio;
};

// The search of a run in a sorte; nothing when the run has no search there.
std::optional<schema_elenco> schema_di(famiglia_elenco famiglia, std::string_view tipo_gioco);

// A file of the base name with this ending, in the sorte's folder, hides a
// conditioned system from the list.
inline constexpr std::string_view marcatore_nascosto = ".nn";

}  // namespace schedine
