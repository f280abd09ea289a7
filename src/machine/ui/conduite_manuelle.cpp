// Moves, heat and motors by hand.
#include "machine/ui/conduite_manuelle.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/commandes.h"
#include "link/echange.h"
#include "link/etat_interface.h"
#include "link/mouvement_essai.h"
#include "link/recherche_origine.h"
#include "platform/dialogue.h"
#include "platform/drapeau.h"
#include "ui/alerte.h"
#include "ui/garde_entrees.h"

#include <QEvent>
#include <QMessageBox>
#include <QWidget>
#include <utility>

namespace tessarel {

namespace {

// Rows of TextesMessages.
constexpr int RangeeInterrupteurOff = 106;
constexpr int RangeeInterrupteurManu = 107;
constexpr int RangeePasDInterface = 108;

constexpr int PeriodeVeille = 500; // ms: twice a second, as the page of the 2D moves looks

void Refuser(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

// The switches of the box, with their boxes.
bool InterrupteursPermettent() {
    const StatutZelko statut = DemanderStatut();
    if (!statut.Recu) {
        Refuser(RangeePasDInterface);
        return false;
    }
    if (statut.ChauffeSurOff)
        Refuser(RangeeInterrupteurOff);
    else if (statut.ChauffeSurManu)
        Refuser(RangeeInterrupteurManu);
    return !statut.ChauffeSurOff && !statut.ChauffeSurManu;
}

} // namespace

TexteProgramme MotDeFin(FinMarche fin, CauseFin cause) {
    if (fin == FinMarche::Abandonnee) return TexteProgramme::EssaiSansConfirmation; // it may be moving
    if (cause == CauseFin::FinDeListe) return TexteProgramme::EssaiTermine;
    if (fin == FinMarche::Impossible || fin == FinMarche::SansDuree) return TexteProgramme::EssaiImpossible;
    return TexteProgramme::EssaiArrete;
}

ConduiteManuelle::ConduiteManuelle(QWidget* fenetre) : QObject(fenetre), m_fenetre(fenetre) {
    TimerVeille.setObjectName(QStringLiteral("TimerVeille"));
    TimerVeille.setInterval(PeriodeVeille);
    connect(&TimerVeille, &QTimer::timeout, this, &ConduiteManuelle::Veiller);
}

void ConduiteManuelle::PermettreToujours(std::vector<const QWidget*> controles) {
    m_permis = std::move(controles);
}

// The move itself. A fault of a handler goes on once the wire stands and is cold.
ResultatMouvement ConduiteManuelle::FaireEtSuivre(const PasAxes& pas, const VitessesSalve& vitesses) {
    SuiviMarche suivi;
    suivi.demandes = &m_demandes;
    suivi.Avancer = [this](const AvanceeMarche& avancee) { emit Avance(avancee.Fraction); };
    suivi.Prevenir = [this] {
        Prevenir(TexteProgramme::EssaiSansReponse, [this] { m_demandes.StopDemande = true; });
    };
    try {
        const ResultatMouvement mouvement = FaireMouvement(TableINI, pas, vitesses, suivi);
        delete m_alerte;
        return mouvement;
    } catch (...) {
        SecourirFil(m_fil, SuiviFil());
        m_enMouvement = false; // what is shown must not wait for the end of this
        emit FinMouvement();
        throw;
    }
}

ConduiteManuelle::Resultat ConduiteManuelle::Mouvoir(const PasAxes& pas, const VitessesSalve& vitesses) {
    if (m_enMouvement || m_fil.occupee) return {};
    m_demandes = {};
    ResultatMouvement mouvement;
    bool moteursOff = false;
    bool coupureVoulue = false;
    {
        const Drapeau enMouvement(m_enMouvement);
        const FilEnMarche marche(m_fil, m_demandes);
        const GardeEntrees garde(m_permis, [this] { DemanderArret(); });
        emit DebutMouvement();
        mouvement = FaireEtSuivre(pas, vitesses);
        coupureVoulue = m_fil.coupureVoulue;
        moteursOff = m_demandes.MoteursOffDemande;
    }
    if (moteursOff) CouperMoteurs();
    // A wire that stands must not go on melting, whoever stopped it.
    if (coupureVoulue || mouvement.cause != CauseFin::FinDeListe)
        CouperSiChaud();
    else if (m_demandes.ChauffeModifiee)
        ChangerChauffe(m_fil.voulue); // it came too late for the move
    if (!AnnoncerCause(mouvement.cause)) AnnoncerMarcheAnormale(mouvement.marche.fin);
    emit FinMouvement();
    return {mouvement.marche.fin, mouvement.cause, PasFaits(mouvement, pas)};
}

void ConduiteManuelle::DemanderArret() {
    m_demandes.StopDemande = true;
    if (!m_enMouvement && m_fil.occupee) Couper();
}

void ConduiteManuelle::CouperLesMoteurs() {
    if (m_enMouvement) {
        m_demandes.MoteursOffDemande = true;
        m_demandes.StopDemande = true;
    } else if (!m_fil.occupee) {
        CouperMoteurs();
    }
}

bool ConduiteManuelle::TensionPermanente(bool permanente) {
    if (m_fil.occupee || m_enMouvement) return false;
    DesactiverDelaiMoteurs(permanente, TableINI);
    return true;
}

void ConduiteManuelle::Prevenir(TexteProgramme texte, std::function<void()> abandonner) {
    delete m_alerte;
    m_alerte = OuvrirAlerte(m_fenetre, Texte(texte), std::move(abandonner));
}

SuiviChauffeManuelle ConduiteManuelle::SuiviFil() {
    SuiviChauffeManuelle suivi;
    suivi.Permise = InterrupteursPermettent;
    suivi.Prevenir = [this](std::function<void()> abandonner) {
        Prevenir(TexteProgramme::ChauffeEssaiCoupure, std::move(abandonner));
    };
    suivi.FinPrevenir = [this] { delete m_alerte; };
    suivi.Garder = [this] { return GarderFil(); };
    suivi.Changee = [this](bool chaude) {
        if (!PeutEtreChaude())
            TimerVeille.stop();
        else if (!TimerVeille.isActive())
            TimerVeille.start();
        emit ChauffeChangee(chaude);
    };
    return suivi;
}

std::unique_ptr<GardeEntrees> ConduiteManuelle::GarderFil() {
    if (m_enMouvement || m_fil.occupee) return nullptr;
    // A heat that is asked for is given up; a heat-off only by the button of its warning.
    return std::make_unique<GardeEntrees>(m_permis, [this] {
        if (m_fil.occupee) EteindreFil(m_fil, SuiviFil());
    });
}

bool ConduiteManuelle::Chauffer(double pourcent) {
    const auto garde = GarderFil();
    m_fenetre->window()->installEventFilter(this);
    emit ChauffeDemandee(true);
    const auto finir = [this](void*) { emit ChauffeDemandee(false); };
    const std::unique_ptr<void, decltype(finir)> fin(this, finir);
    return AllumerFil(m_fil, pourcent, SuiviFil());
}

void ConduiteManuelle::ChangerChauffe(double pourcent) {
    const auto garde = GarderFil();
    if (!ChangerChauffeFil(m_fil, pourcent, SuiviFil()))
        emit CoupeeSansDemande(TexteProgramme::ChauffeManuelleCoupeeParMachine);
}

bool ConduiteManuelle::eventFilter(QObject* objet, QEvent* evenement) {
    if (evenement->type() == QEvent::WindowBlocked && m_fil.chaude && !m_enMouvement && !m_fil.occupee)
        CouperSiChaud();
    return QObject::eventFilter(objet, evenement);
}

bool ConduiteManuelle::Couper() {
    return EteindreFil(m_fil, SuiviFil());
}

// A move looks by itself. A window that is closed leaves the box to what comes after it.
void ConduiteManuelle::Veiller() {
    if (m_enMouvement || !m_fenetre->window()->isVisible()) return;
    const bool etaitIncertain = m_fil.incertaine;
    const VeilleFil vue = VeillerSurFil(m_fil, SuiviFil());
    if (vue == VeilleFil::Coupee)
        emit CoupeeSansDemande(etaitIncertain ? TexteProgramme::ChauffeManuelleCoupeeEnfin
                                              : TexteProgramme::ChauffeManuelleCoupeeParMachine);
    // While the wire may be hot what puts it out stays at hand.
    if (vue != VeilleFil::Calme && !MouvementsActifs && !PeutEtreChaude()) emit LiaisonPerdue();
}

bool ConduiteManuelle::CouperSiChaud() {
    return !m_fil.chaude && !ChauffePeutEtreActive() ? true : Couper();
}

} // namespace tessarel
