// A profile table as its lines say it, and the order of its points found out.
#pragma once

#include "assemblage.h"

#include <cstddef>
#include <string>
#include <vector>

namespace tessarel {

struct LigneDat {
    Point2 p;
    long ligne = 0;
    int tableau = 0; // counts the lines of text before it
    int bloc = 0;    // counts the blank lines and lines of text before it
};

// What the lines of a file hold.
struct TableDat {
    std::vector<LigneDat> lignes;
    bool comptes = false; // a line of counts stood first: points of each surface
    std::size_t dessus = 0;
    std::size_t dessous = 0;
    std::size_t illisibles = 0; // lines that begin with a number and are no point
};

// Splits a text into points. FauteLecture when it is no table of two columns, or holds fewer than three
// points.
TableDat LireTableDat(const std::string& texte, const std::string& chemin);

// How a run of points goes round its profile.
enum class FormeDat {
    Aucune,      // not a profile: a curve, several outlines...
    Tour,        // round in one go: Selig, or the same begun at the leading edge
    DeuxAvants,  // two surfaces, each from the leading edge to the trailing edge: Lednicer
    DeuxArrieres // two surfaces, each from the trailing edge to the leading edge
};

struct FormeTrouvee {
    FormeDat forme = FormeDat::Aucune;
    std::size_t coupure = 0; // first point of the second surface
};

FormeTrouvee TrouverForme(const std::vector<Point2>& points, std::size_t dessusAnnonce);

// The same points in one go round the profile, upper surface first as given.
std::vector<Point2> EnTour(const std::vector<Point2>& points, const FormeTrouvee& forme);

} // namespace tessarel
