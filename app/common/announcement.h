// Telling whoever listens to the window that something has happened.
#pragma once

#include <QString>

namespace odmiennik::app {

// Lets a screen reader say a sentence, once what is being done is over; sentences of one doing are
// said together, in their order: announce("Zapisano czasownik finir."). Nothing is shown.
void announce(const QString& sentence);

}  // namespace odmiennik::app
