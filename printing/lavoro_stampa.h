#pragma once
// The fixed openings and endings of a print job, shared by every reader and
// test sheet, and the way to the run's printer.

namespace schedine {

class dispositivo_stampa;
struct stato;

// The run's printing device. Throws errore_runtime (object not set) when the
// state has no platform, rather than touching a null pointer.
dispositivo_stampa& stampante(stato& s);

// Opens a job: millimetre scale, thin pen, solid black fill, and the dot at
// the origin that puts that state in force on the first page.
void prepara_lavoro(dispositivo_stampa& dispositivo);

// The same for the Lotto slip and its test sheet, which first set the upright
// page mode.
void prepara_lavoro_lotto(dispositivo_stampa& dispositivo);

// Ends a job: fill off, then the job goes to the printer.
void termina_lavoro(dispositivo_stampa& dispositivo);

// Ends a job of the panel slips, which also turn bold off before the fill.
void termina_lavoro_senza_grassetto(dispositivo_stampa& dispositivo);

}  // namespace schedine
