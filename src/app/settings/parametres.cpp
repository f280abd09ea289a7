#include "parametres.h"

namespace tessarel {

ParametresProgramme Parametres;

} // namespace tessarel
