// The moves by hand: one at a time, Stop between two exchanges, and nothing else at hand meanwhile.
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "link/marche.h"
#include "platform/dialogue.h"
#include "ui/alerte.h"
#include "ui/boites_qt.h"
#include "ui/garde_entrees.h"
#include "work2d/mouvements_2d.h"
#include "work2d/ui/frmTessarel2D.h"
#include "work2d/ui/panneau_chauffe.h"
#include "work2d/ui/panneau_manuel.h"

#include <QMessageBox>
#include <QStackedWidget>
#include <QStatusBar>
#include <QToolButton>

#include <algorithm>
#include <optional>
#include <utility>

namespace tessarel {

void frmTessarel2D::RelierManuel() {
    connect(cmdDeplacementsManuels, &QToolButton::clicked, this, &frmTessarel2D::OuvrirManuel);
    connect(m_panneauManuel, &PanneauManuel::FermetureDemandee, this, &frmTessarel2D::FermerManuel);
    connect(m_panneauManuel, &PanneauManuel::FlecheLachee, this,
            [this] { m_course.demandes.StopDemande = true; });
    connect(m_panneauManuel, &PanneauManuel::StopDemande, this, &frmTessarel2D::ArreterManuel);
    connect(m_panneauManuel, &PanneauManuel::DeplacementDemande, this, &frmTessarel2D::DeplacerParFleche);
    const auto froid = [this] { return EteindreFilManuel(); };
    connect(m_panneauManuel, &PanneauManuel::RetourOrigineDemande, this, [this, froid] {
        Mouvoir(EtatRetour, [&](const SuiviMarche& suivi) { return RetourOrigine(suivi, froid); });
    });
    connect(m_panneauManuel, &PanneauManuel::RangementDemande, this, [this, froid] {
        Mouvoir(EtatRangement, [&](const SuiviMarche& suivi) { return RangerLePortique(suivi, froid); });
    });
    connect(m_panneauManuel, &PanneauManuel::OrigineXDemandee, this, [this, froid] {
        Mouvoir(EtatOrigine,
                [&](const SuiviMarche& suivi) { return OrigineDUnAxe(AxesOrigine::X, suivi, froid); });
    });
    connect(m_panneauManuel, &PanneauManuel::OrigineYDemandee, this, [this, froid] {
        Mouvoir(EtatOrigine,
                [&](const SuiviMarche& suivi) { return OrigineDUnAxe(AxesOrigine::Y, suivi, froid); });
    });
    RelierChauffe();
}

void frmTessarel2D::OuvrirManuel() {
    if (CourseOuverte() || ManuelOuvert()) return;
    FermerApercu(); // Escape is for Stop
    FermerDecoupe();
    RafraichirInterface();
    MontrerMachineManuel();
    m_panneauManuel->MontrerEtat({});
    m_pages->setCurrentIndex(PageManuel);
    statusBar()->showMessage(TexteAffiche(Texte(TexteProgramme::ManuelConseil)));
}

bool frmTessarel2D::ManuelOuvert() const {
    return m_pages->currentIndex() == PageManuel;
}

void frmTessarel2D::MontrerMachineManuel() {
    m_panneauManuel->MontrerMachine(TableINI.VitesseDecoupeParDefaut, TableINI.VmaxAvecAccXY);
    m_panneauManuel->Chauffe().MontrerMachine(static_cast<double>(DecoupeCourante.Chauffe),
                                              static_cast<double>(TableINI.ChauffeMaxiSur100));
}

void frmTessarel2D::FermerManuel() {
    if (m_course.enCours) return;
    m_pages->setCurrentIndex(PageProjet); // and so the wire is put out
    statusBar()->clearMessage();
}

void frmTessarel2D::ArreterManuel() {
    m_stopManuel = true;
    if (m_course.enCours)
        m_course.demandes.StopDemande = true;
    else
        EteindreFilManuel();
}

void frmTessarel2D::DeplacerParFleche(int x, int y) {
    if (Occupee()) return;
    if (!MouvementsActifs) {
        LiaisonPermet(); // its boxes took the mouse, and the arrow's release with it: it is pressed again
        return;
    }
    // As far as it is held: the travel of the machine, or of its shorter side on a slant.
    const double course = x == 0   ? TableINI.CourseY
                          : y == 0 ? TableINI.CourseX
                                   : std::min(TableINI.CourseX, TableINI.CourseY);
    Mouvoir(EtatMouvement, [&](SuiviMarche suivi) {
        suivi.Avancer = [this, montrer = suivi.Avancer](const AvanceeMarche& avancee) {
            montrer(avancee);
            if (!m_panneauManuel->FlecheTenue()) m_course.demandes.StopDemande = true;
        };
        std::optional<FilEnMarche> marche(std::in_place, m_fil, m_course.demandes);
        const auto froid = [&] {
            marche.reset();
            return EteindreFilManuel();
        };
        const FinProcedure fin =
            DeplacerManuellement(TableINI, {x * course, y * course, x * course, y * course},
                                 m_panneauManuel->Vitesse(), suivi, froid);
        // An arrow that is let go leaves the wire as hot as it was; Stop does not.
        const bool eteindre = m_stopManuel || m_course.fermerEnsuite || m_fil.coupureVoulue;
        marche.reset();
        if (eteindre)
            EteindreFilManuel();
        else
            EnvoyerChauffeVoulue(m_panneauManuel->Chauffe().Pourcent());
        return fin;
    });
}

void frmTessarel2D::EnvoyerChauffeVoulue(double pourcent) {
    if (!ChangerChauffeFil(m_fil, pourcent, SuiviFil()))
        m_panneauManuel->MontrerEtat(TexteAffiche(Texte(TexteProgramme::ChauffeManuelleCoupeeParMachine)));
}

void frmTessarel2D::Mouvoir(int etat, const std::function<FinProcedure(const SuiviMarche&)>& mouvement) {
    if (Occupee() || m_course.arretee) return;
    const TableMachine machine = TableINI;
    m_course.fermerEnsuite = false;
    m_course.demandes = {};
    m_stopManuel = false;
    PermettreCommandes(false);
    std::optional<GardeEntrees> garde(std::in_place, std::vector<const QWidget*>{m_panneauManuel},
                                      [this] { ArreterManuel(); });
    m_vues->setEnabled(false);               // a box of the workshop would stand before Stop
    m_panneauManuel->MontrerMouvement(true); // without a word: it may be refused, or declined
    const auto finir = [this, &garde] {
        m_course.enCours = false;
        garde.reset();
        m_panneauManuel->MontrerMouvement(false);
        m_vues->setEnabled(true);
        PermettreCommandes(true);
    };
    m_course.enCours = true;
    FinProcedure fin = FinProcedure::Echouee;
    try {
        const FinAlerte alerte(m_alerteInterface);
        SuiviMarche suivi = SuiviDeMarche(SuiviCourse());
        suivi.Avancer = [this, mots = TexteAffiche(TextesEtats(etat)),
                         bouge = false](const AvanceeMarche&) mutable {
            delete m_alerteInterface; // it answers
            if (!std::exchange(bouge, true)) m_panneauManuel->MontrerEtat(mots);
        };
        fin = mouvement(suivi);
    } catch (...) {
        SecourirFil(m_fil, SuiviFil());
        finir();
        throw;
    }
    finir();
    MontrerLiaison();
    if (!MemesValeurs(TableINI, machine)) ActualiserMachine();
    if (fin == FinProcedure::OuvrirParametrage && !m_course.fermerEnsuite)
        OuvrirReglages(&frmTessarel2D::ParametrerMachine);
    FermerSiDemande();
}

} // namespace tessarel
