// The moves by hand: one at a time, Stop between two exchanges, and nothing else at hand meanwhile.
#include "app/texts/textes.h"
#include "link/etat_interface.h"
#include "platform/dialogue.h"
#include "ui/boites_qt.h"
#include "work2d/mouvements_2d.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_manuel.h"

#include <QMessageBox>
#include <QStackedWidget>
#include <QToolButton>

#include <algorithm>

namespace tessarel {

void frmTessarel2D::RelierManuel() {
    connect(cmdDeplacementsManuels, &QToolButton::clicked, this, &frmTessarel2D::OuvrirManuel);
    connect(m_panneauManuel, &PanneauManuel::FermetureDemandee, this, &frmTessarel2D::FermerManuel);
    connect(m_panneauManuel, &PanneauManuel::StopDemande, this,
            [this] { m_course.demandes.StopDemande = true; });
    connect(m_panneauManuel, &PanneauManuel::RetourOrigineDemande, this,
            [this] { Mouvoir(EtatRetour, [](const SuiviMarche& suivi) { RetourOrigine(suivi); }); });
    connect(m_panneauManuel, &PanneauManuel::RangementDemande, this,
            [this] { Mouvoir(EtatRangement, [](const SuiviMarche& suivi) { RangerLePortique(suivi); }); });
    connect(m_panneauManuel, &PanneauManuel::DeplacementDemande, this, &frmTessarel2D::DeplacerParFleche);
}

void frmTessarel2D::OuvrirManuel() {
    if (m_course.enCours || m_course.arretee) return;
    FermerDecoupe();
    RafraichirInterface();
    m_panneauManuel->MontrerMachine(TableINI.VitesseDecoupeParDefaut, TableINI.VmaxAvecAccXY);
    m_pages->setCurrentIndex(PageManuel);
}

void frmTessarel2D::FermerManuel() {
    if (m_course.enCours) return;
    m_pages->setCurrentIndex(PageProjet);
}

void frmTessarel2D::DeplacerParFleche(int x, int y) {
    if (m_course.enCours) return;
    if (!MouvementsActifs && VerifierLiaison() != AvantDecoupe::Permise) {
        MontrerLiaison();
        return; // its box has taken the mouse: the arrow is pressed again
    }
    // As far as it is held: the travel of the machine, or of its shorter side on a slant.
    const double course = x == 0   ? TableINI.CourseY
                          : y == 0 ? TableINI.CourseX
                                   : std::min(TableINI.CourseX, TableINI.CourseY);
    Mouvoir(EtatMouvement, [&](SuiviMarche suivi) {
        suivi.Avancer = [this](const AvanceeMarche&) {
            delete m_alerteInterface;
            if (!m_panneauManuel->FlecheTenue()) m_course.demandes.StopDemande = true;
        };
        DeplacerManuellement(TableINI, {x * course, y * course, x * course, y * course},
                             m_panneauManuel->Vitesse(), suivi);
    });
}

void frmTessarel2D::Mouvoir(int etat, const std::function<void(const SuiviMarche&)>& mouvement) {
    if (m_course.enCours || m_course.arretee) return;
    m_course.fermerEnsuite = false;
    m_course.demandes = {};
    PermettreCommandes(false);
    m_vues->setEnabled(false); // a box of the workshop would stand before Stop
    m_panneauManuel->MontrerMouvement(true, TexteAffiche(TextesEtats(etat)));
    const auto finir = [this] {
        m_course.enCours = false;
        delete m_alerteInterface;
        m_panneauManuel->MontrerMouvement(false);
        m_vues->setEnabled(true);
        PermettreCommandes(true);
    };
    m_course.enCours = true;
    try {
        SuiviMarche suivi = SuiviDeMarche(SuiviCourse());
        suivi.Avancer = [this](const AvanceeMarche&) { delete m_alerteInterface; };
        mouvement(suivi);
    } catch (...) {
        finir();
        throw;
    }
    finir();
    MontrerLiaison();
    FermerSiDemande();
}

} // namespace tessarel
