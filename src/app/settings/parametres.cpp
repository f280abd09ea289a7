// The program's one record of general parameters.
#include "parametres.h"

namespace tessarel {

ParametresProgramme Parametres;

} // namespace tessarel
