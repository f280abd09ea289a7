// The page of the moves by hand, opened before a virtual machine that a memory holds.
#pragma once

#include "fenetres/boite_des_fenetres.h"
#include "fenetres/poste_2d.h"

#include <QPushButton>
#include <QScrollBar>
#include <QToolButton>

namespace tessarel::essais {

struct Manuel {
    explicit Manuel(const char* machine = "(Defaut)", Langue langue = Langue::Francais) : poste(langue) {
        ChargerMachine(machine);
        virtuelle.Memoriser(TableINI);
        poste.OuvrirFenetre();
        poste.Cliquer<QToolButton>("cmdDeplacementsManuels");
    }
    [[nodiscard]] simulateur::PositionPas Position() const { return virtuelle.boite->Position(); }
    // Holds an arrow for so many turns of the pump.
    void Tenir(const char* nom, int tours) {
        auto& fleche = poste.Trouver<QToolButton>(nom);
        int n = 0;
        virtuelle.SurPompe = [&] {
            if (++n == tours) QTest::mouseRelease(&fleche, Qt::LeftButton);
        };
        QTest::mousePress(&fleche, Qt::LeftButton);
        virtuelle.SurPompe = {};
        if (n < tours) QTest::mouseRelease(&fleche, Qt::LeftButton);
    }
    [[nodiscard]] bool AuRepos() const {
        return !poste.fenetre->Course().enCours &&
               !poste.Trouver<QPushButton>("optAnnulerHome").isEnabled() &&
               poste.Trouver<QToolButton>("cmdOuvrirFichierTS2D").isEnabled() &&
               poste.Trouver<QToolButton>("optGoManuel_4").isEnabled() &&
               virtuelle.boite->Etat().file == simulateur::EtatFile::Repos;
    }
    Poste2D poste;
    BoiteDesFenetres virtuelle;
};

} // namespace tessarel::essais
