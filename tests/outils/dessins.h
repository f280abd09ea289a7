// Small drawings written as text for a test, and what a reading of them gives.
#pragma once

#include "platform/gabar/gabar.h"

#include <initializer_list>
#include <string>
#include <string_view>
#include <vector>

namespace tessarel::essais {

// "0 LINE|10 1.5|20 2" as pairs of lines: pairs parted by '|', code and value by the first blank.
std::string Paires(std::string_view paires);

// The same inside an ENTITIES section with its end, behind the sections that `avant` holds already as pairs.
std::string DxfAvecEntites(std::string_view entites, std::string_view avant = "");

// A reading of a text written to a file of its own.
struct DessinLu {
    std::vector<std::vector<PointSimple>> polylignes;
    Etendue etendue;
    RapportLecture rapport;
    long ligne = 0;    // to blame, 0 for none
    std::string refus; // sentence of the fault without the path; empty when the file was read
};
DessinLu LireTexte(const std::string& texte, const std::string& extension = "dxf");

// "x,y x,y ..." of a polyline, for comparisons with a literal.
std::string EnTexte(const std::vector<PointSimple>& polyligne);

} // namespace tessarel::essais
