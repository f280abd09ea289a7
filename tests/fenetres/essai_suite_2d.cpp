// What follows a stop of a 2D cut: the link is asked first, and the rest heats as the user left it.
#include "fenetres/boite_des_fenetres.h"
#include "fenetres/coupe_2d.h"
