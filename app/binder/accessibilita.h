#pragma once
// Screen readers act on the program's check boxes and option buttons as on
// any others. Qt would read an option button whose group the program keeps
// itself as a check box, and its "toggle" action changes the tick without a
// click, so the form's rule would never run. Here an option button reads as
// a radio button, and the action on either is a click.

namespace schedine {

// Installs the program's accessible buttons; once, after the application is made.
void installa_accessibilita();

}  // namespace schedine
