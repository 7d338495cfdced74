#pragma once
// Files of the program folder, as the platform of the system finds them:
// names are matched without regard to case, and a search by pattern gives
// the names in case-insensitive order.

#include <string>
#include <string_view>
#include <vector>

namespace schedine {

// The file of the program folder with the given name; the name may name a
// subfolder ("ambo/x.txt"). The separator is the platform's.
std::string nel_programma(const std::string& cartella, std::string_view nome);

// The skin folder: the program folder with a separator added if it has none
// at its end, then "skin" and a separator.
std::string cartella_skin(const std::string& cartella);

// The path of an existing file whose name differs only in case, or the path
// as given when there is none.
std::string risolvi_percorso(const std::string& percorso);

bool esiste_file(const std::string& percorso);
// Deletes a file; a missing file is the run-time error "Impossibile trovare il file".
void elimina_file(const std::string& percorso);
// Creates the file empty, or empties it.
void crea_vuoto(const std::string& percorso);

// True when the name matches the pattern: "*" any run of characters, "?" any
// one character, letters without regard to case.
bool corrisponde_schema(std::string_view nome, std::string_view schema);

// The names (without folder) of the plain files of the folder of the path
// that match its last part, in case-insensitive order. A folder that doesn't
// exist gives no names.
std::vector<std::string> cerca_file(const std::string& percorso_con_schema);

}  // namespace schedine
