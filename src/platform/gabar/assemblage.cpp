// Joining of the pieces of a drawing, in time linear in its points.
#include "assemblage.h"

#include "messages.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cmath>
#include <fmt/format.h>

namespace tessarel {

namespace {

bool Touche(Point2 a, Point2 b) {
    const double dx = a.X - b.X;
    const double dy = a.Y - b.Y;
    return dx * dx + dy * dy <= ToleranceJonction * ToleranceJonction;
}

bool MemePoint(const PointSimple& a, const PointSimple& b) {
    return a.X == b.X && a.Y == b.Y;
}

[[noreturn]] void RefuserPoint(const Assemblage& a, double x, double y) {
    throw FauteLecture(
        *a.chemin, a.ligne,
        Bilingue(fmt::format("{} : coordonnée hors limites ({:.10g} ; {:.10g}), le maximum est de {:g} mm",
                             Citation(a.entite), x, y, CoordonneeMax),
                 fmt::format("{}: coordinate out of range ({:.10g} ; {:.10g}), the limit is {:g} mm",
                             Citation(a.entite), x, y, CoordonneeMax)));
}

[[noreturn]] void RefuserNombre(const Assemblage& a) {
    throw FauteLecture(*a.chemin, a.ligne,
                       Bilingue(fmt::format("le dessin donne plus de {} points", PointsMaxDessin),
                                fmt::format("the drawing has more than {} points", PointsMaxDessin)));
}

// Puts the points kept before the chain in their place; the piece behind it moves along.
void PoserAvant(Assemblage& a) {
    if (a.avant.empty()) return;
    a.points.insert(a.points.begin() + a.debuts.back(), a.avant.rbegin(), a.avant.rend());
    a.debutPiece += a.avant.size();
    a.avant.clear();
}

void Retourner(Assemblage& a) {
    std::reverse(a.points.begin() + static_cast<std::ptrdiff_t>(a.debutPiece), a.points.end());
    std::swap(a.premierPiece, a.dernierPiece);
    ++a.retournes;
}

void OuvrirChaine(Assemblage& a, bool ouverte) {
    PoserAvant(a);
    a.debuts.push_back(static_cast<std::uint32_t>(a.debutPiece));
    a.chaineOuverte = ouverte;
    a.piecesChaine = 1;
    a.premierChaine = a.premierPiece;
    a.dernierChaine = a.dernierPiece;
}

// A chain of one spot gives way to the piece that touches it.
void RemplacerChaine(Assemblage& a) {
    a.points.erase(a.points.begin() + a.debuts.back(),
                   a.points.begin() + static_cast<std::ptrdiff_t>(a.debutPiece));
    a.premierChaine = a.premierPiece;
    a.dernierChaine = a.dernierPiece;
}

void JoindreDerriere(Assemblage& a) {
    a.points.erase(a.points.begin() + static_cast<std::ptrdiff_t>(a.debutPiece));
    // A piece of one spot adds nothing.
    if (a.points.size() == a.debutPiece + 1 && MemePoint(a.points.back(), a.points[a.debutPiece - 1]))
        a.points.pop_back();
    a.dernierChaine = a.dernierPiece;
}

// The piece ends where the chain begins.
void JoindreDevant(Assemblage& a) {
    const bool sansLongueur =
        a.points.size() == a.debutPiece + 2 && MemePoint(a.points.back(), a.points[a.debutPiece]);
    if (!sansLongueur)
        for (std::size_t i = a.points.size() - 1; i-- > a.debutPiece;) a.avant.push_back(a.points[i]);
    a.points.resize(a.debutPiece);
    a.premierChaine = a.premierPiece;
}

// Turns the only piece of the chain round, so that the new one can follow it in file order.
void RetournerChaine(Assemblage& a) {
    std::reverse(a.points.begin() + a.debuts.back(),
                 a.points.begin() + static_cast<std::ptrdiff_t>(a.debutPiece));
    std::swap(a.premierChaine, a.dernierChaine);
    ++a.retournes;
}

// Joins the piece to the chain where an end of one touches an end of the other.
bool JoindrePiece(Assemblage& a) {
    const bool finDebut = Touche(a.dernierChaine, a.premierPiece);
    const bool finFin = !finDebut && Touche(a.dernierChaine, a.dernierPiece);
    const bool debutFin = !finDebut && !finFin && Touche(a.premierChaine, a.dernierPiece);
    const bool debutDebut = !finDebut && !finFin && !debutFin && Touche(a.premierChaine, a.premierPiece);
    if (!finDebut && !finFin && !debutFin && !debutDebut) return false;
    const std::size_t debutChaine = a.debuts.back();
    if (a.avant.empty() && a.debutPiece - debutChaine == 2 &&
        MemePoint(a.points[debutChaine], a.points[debutChaine + 1])) {
        RemplacerChaine(a);
    } else if (finDebut) {
        JoindreDerriere(a);
    } else if (finFin) {
        Retourner(a);
        JoindreDerriere(a);
    } else if (debutFin) {
        JoindreDevant(a);
    } else if (a.piecesChaine == 1) {
        RetournerChaine(a);
        JoindreDerriere(a);
    } else {
        Retourner(a);
        JoindreDevant(a);
    }
    ++a.joints;
    ++a.piecesChaine;
    return true;
}

// A chain whose ends meet is closed: its last vertex repeats its first.
void FermerChaine(Assemblage& a) {
    const std::size_t debut = a.debuts.back();
    if (a.points.size() - debut + a.avant.size() < 3 || !Touche(a.premierChaine, a.dernierChaine)) return;
    const PointSimple premier = a.avant.empty() ? a.points[debut] : a.avant.back();
    a.points.back() = premier;
    a.chaineOuverte = false;
}

} // namespace

void CommencerPiece(Assemblage& a) {
    a.debutPiece = a.points.size();
    a.doublon = false;
}

void AjouterPoint(Assemblage& a, double x, double y) {
    // Written so that a value that is no number fails as well.
    if (!(std::abs(x) <= CoordonneeMax && std::abs(y) <= CoordonneeMax)) RefuserPoint(a, x, y);
    PointSimple p;
    p.X = static_cast<float>(x);
    p.Y = static_cast<float>(y);
    a.dernierPiece = {x, y};
    if (a.points.size() == a.debutPiece) {
        a.premierPiece = {x, y};
    } else if (MemePoint(a.points.back(), p)) {
        a.doublon = true;
        return;
    }
    if (a.points.size() >= PointsMaxDessin) RefuserNombre(a);
    a.points.push_back(p);
}

bool FinirPiece(Assemblage& a, bool fermer) {
    const std::size_t nombre = a.points.size() - a.debutPiece;
    if (nombre == 0 || (nombre == 1 && !a.doublon)) {
        a.points.resize(a.debutPiece);
        return false;
    }
    if (nombre == 1) a.points.push_back(a.points.back()); // a piece of no length stays a path of two points
    bool ferme = false;
    if (nombre >= 3 && Touche(a.premierPiece, a.dernierPiece)) {
        a.points.back() = a.points[a.debutPiece];
        ferme = true;
    } else if (fermer && nombre >= 2) {
        const PointSimple premier = a.points[a.debutPiece];
        a.points.push_back(premier);
        ferme = true;
    }
    if (ferme) {
        OuvrirChaine(a, false);
        return true;
    }
    if (a.chaineOuverte && JoindrePiece(a)) {
        FermerChaine(a);
    } else {
        OuvrirChaine(a, true);
    }
    return true;
}

void TerminerAssemblage(Assemblage& a) {
    if (a.debuts.empty()) return;
    a.debutPiece = a.points.size();
    PoserAvant(a);
    for (std::size_t i = 0; i < a.debuts.size(); ++i) {
        const auto code = CodePolyligne(i, a.debuts.size());
        const std::size_t fin = i + 1 < a.debuts.size() ? a.debuts[i + 1] : a.points.size();
        for (std::size_t k = a.debuts[i]; k < fin; ++k) a.points[k].CodeSequence = code;
    }
}

} // namespace tessarel
