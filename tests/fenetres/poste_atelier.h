// A desk whose 2D window holds a rectangle of 100 x 50 from (0, 0) and a square of 20 from (200, 10), with a
// hand on its table.
#pragma once

#include "fenetres/poste_2d.h"
#include "fenetres/souris.h"
#include "ui/canevas.h"
#include "work2d/selection.h"
#include "work2d/ui/atelier_2d.h"

#include <QStatusBar>

#include <memory>
#include <string>

namespace tessarel::essais {

// mm: a click lands within a pixel, a drag is exact to its own pixels.
inline constexpr double ToleranceMain = 0.02;

class PosteAtelier {
protected:
    void Preparer(Langue langue = Langue::Francais) {
        Ranger();
        m_poste = std::make_unique<Poste2D>(langue);
        m_poste->OuvrirFenetre();
        QVERIFY(m_poste->fenetre->OuvrirFichier(m_poste->Fichier("deux.txt", DeuxTracesTexte)));
        m_souris = std::make_unique<Souris>(Toile());
    }
    void Ranger() {
        m_souris.reset();
        m_poste.reset();
    }

    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    [[nodiscard]] const Atelier2D& Atelier() const { return m_poste->fenetre->Atelier(); }
    [[nodiscard]] const Sequence& Trace(std::size_t i) const { return Espace().TableauSequences.at(i); }
    [[nodiscard]] Canevas& Toile() const { return m_poste->Trouver<Canevas>("pctSequTS2D"); }
    [[nodiscard]] QString Etat() const { return m_poste->fenetre->statusBar()->currentMessage(); }
    // Where a handle is drawn, off the paths.
    [[nodiscard]] PointDessin Poignee(std::string_view nom) const {
        return PlacePoignee(BoiteAffichee(Atelier().BoiteSelection(), Toile().Vue().echelle), nom);
    }
    // One digit for each path: 1 where it is selected.
    [[nodiscard]] std::string Choisis() const {
        std::string choisis;
        for (const Sequence& s : Espace().TableauSequences) choisis += EstSelectionnee(s) ? '1' : '0';
        return choisis;
    }

    std::unique_ptr<Poste2D> m_poste;
    std::unique_ptr<Souris> m_souris;
};

} // namespace tessarel::essais
