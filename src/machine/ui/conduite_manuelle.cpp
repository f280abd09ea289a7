// Moves, heat and motors by hand.
#include "machine/ui/conduite_manuelle.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/echange.h"
#include "link/mouvement_essai.h"
#include "link/recherche_origine.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"
#include "ui/boites_qt.h"

#include <QMessageBox>
#include <QPushButton>

namespace tessarel {

namespace {

// Rows of TextesMessages.
constexpr int RangeeInterrupteurOff = 106;
constexpr int RangeeInterrupteurManu = 107;
constexpr int RangeePasDInterface = 108;
// Row of TextesDoubles: the heat is not off.
constexpr int RangeeChauffeNonCoupee = 40;

void Refuser(int rangee) {
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
}

// A flag that is up while something runs, whatever way it ends.
class Drapeau {
public:
    explicit Drapeau(bool& drapeau) : m_drapeau(drapeau) { m_drapeau = true; }
    ~Drapeau() { m_drapeau = false; }
    Drapeau(const Drapeau&) = delete;
    Drapeau& operator=(const Drapeau&) = delete;

private:
    bool& m_drapeau;
};

} // namespace

TexteProgramme MotDeFin(FinMarche fin, CauseFin cause) {
    if (fin == FinMarche::Abandonnee) return TexteProgramme::EssaiSansConfirmation; // it may be moving
    if (cause == CauseFin::FinDeListe) return TexteProgramme::EssaiTermine;
    if (fin == FinMarche::Impossible || fin == FinMarche::SansDuree) return TexteProgramme::EssaiImpossible;
    return TexteProgramme::EssaiArrete;
}

ConduiteManuelle::ConduiteManuelle(QWidget* fenetre) : QObject(fenetre), m_fenetre(fenetre) {}

ConduiteManuelle::Resultat ConduiteManuelle::Mouvoir(const PasAxes& pas, const VitessesSalve& vitesses) {
    if (m_enMouvement || m_occupee) return {};
    m_demandes = {};
    ResultatMouvement mouvement;
    bool moteursOff = false;
    {
        const Drapeau enMouvement(m_enMouvement);
        emit DebutMouvement();
        QPointer<QMessageBox> alerte;
        SuiviMarche suivi;
        suivi.demandes = &m_demandes;
        suivi.Avancer = [this](const AvanceeMarche& avancee) { emit Avance(avancee.Fraction); };
        suivi.Prevenir = [this, &alerte] {
            Prevenir(alerte, Texte(TexteProgramme::EssaiSansReponse),
                     [this] { m_demandes.StopDemande = true; });
        };
        mouvement = FaireMouvement(TableINI, pas, vitesses, suivi);
        moteursOff = m_demandes.MoteursOffDemande;
        delete alerte;
    }
    if (moteursOff) CouperMoteurs();
    // A wire that stands must not go on melting, whoever stopped it.
    if (m_coupureVoulue || mouvement.cause != CauseFin::FinDeListe) CouperSiChaud();
    m_coupureVoulue = false;
    if (!AnnoncerCause(mouvement.cause)) AnnoncerMarcheAnormale(mouvement.marche.fin);
    emit FinMouvement();
    return {mouvement.marche.fin, mouvement.cause, PasFaits(mouvement, pas)};
}

void ConduiteManuelle::DemanderArret() {
    m_demandes.StopDemande = true;
}

void ConduiteManuelle::CouperLesMoteurs() {
    if (m_enMouvement) {
        m_demandes.MoteursOffDemande = true;
        m_demandes.StopDemande = true;
    } else if (!m_occupee) {
        CouperMoteurs();
    }
}

bool ConduiteManuelle::TensionPermanente(bool permanente) {
    if (m_occupee || m_enMouvement) return false;
    DesactiverDelaiMoteurs(permanente, TableINI);
    return true;
}

void ConduiteManuelle::Prevenir(QPointer<QMessageBox>& alerte, const std::string& texte,
                                std::function<void()> abandonner) {
    alerte = new QMessageBox(m_fenetre);
    PreparerBoite(*alerte,
                  {texte, TextesDoubles(RangeeChauffeNonCoupee, 2), IconeBoite::Critique, BoutonsBoite::Ok});
    alerte->setObjectName(QStringLiteral("alerteInterface"));
    alerte->button(QMessageBox::Ok)->setText(TexteAffiche(Texte(TexteProgramme::BoutonAbandonner)));
    connect(alerte, &QMessageBox::buttonClicked, this,
            [abandonner = std::move(abandonner)] { abandonner(); });
    alerte->open();
}

bool ConduiteManuelle::InterrupteursPermettent() {
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

bool ConduiteManuelle::Chauffer(double pourcent) {
    if (m_enMouvement && m_coupureVoulue && m_chaude) {
        m_coupureVoulue = false;
        ChangerChauffe(pourcent);
        return true;
    }
    const bool sEteint = m_coupureVoulue || (m_occupee && m_abandon);
    if (m_chaude && !sEteint) return true;
    if (m_occupee || m_enMouvement || !MouvementsActifs || !InterrupteursPermettent()) return false;
    m_chauffeVoulue = pourcent;
    if (!EnvoyerChauffeVoulue()) return false;
    NoterChauffe(true);
    return true;
}

void ConduiteManuelle::ChangerChauffe(double pourcent) {
    if (m_coupureVoulue || (!m_chaude && !m_occupee)) return;
    m_chauffeVoulue = pourcent;
    if (m_enMouvement) {
        m_demandes.ChauffeVoulue = EnSimple(pourcent);
        m_demandes.ChauffeModifiee = true;
    } else if (!m_occupee) {
        EnvoyerChauffeVoulue();
    }
}

// Sends what is wanted, again when the user moved on meanwhile. A heat that the box does not answer for is
// given up and switched off: the wire must not be left to chance. The user hears why once it is cold.
bool ConduiteManuelle::EnvoyerChauffeVoulue() {
    FinChauffe fin = FinChauffe::Impossible;
    bool sansEcho = false;
    {
        const Drapeau occupe(m_occupee);
        double envoyee = 0;
        do {
            m_abandon = false;
            SuiviChauffe suivi;
            suivi.Interrompre = [this] { return m_abandon; };
            suivi.Prevenir = [this, &sansEcho] { m_abandon = sansEcho = true; };
            envoyee = m_chauffeVoulue;
            fin = EnvoyerChauffe(ValeurPWM(envoyee), suivi);
        } while (fin == FinChauffe::Confirmee && envoyee != m_chauffeVoulue);
    }
    if (fin == FinChauffe::Confirmee) return true;
    // An exchange that succeeded without the echo is a reply that doesn't fit.
    const std::int32_t resultat =
        DernierResultatZelko == ResultatZelkoSucces ? ResultatZelkoIncoherent : DernierResultatZelko;
    if (Couper() && sansEcho) SignalerErreurInterface("EnvoyerChauffe", resultat);
    return false;
}

bool ConduiteManuelle::Couper() {
    if (m_occupee) {
        m_abandon = true; // a heat that is still being asked for ends in a heat-off
        return false;
    }
    if (m_enMouvement) {
        m_demandes.ChauffeVoulue = 0;
        m_demandes.ChauffeModifiee = true;
        m_coupureVoulue = true;
        return false;
    }
    bool coupee = false;
    {
        const Drapeau occupe(m_occupee);
        const Drapeau coupure(m_coupureVoulue);
        DemandesMarche demandes;
        QPointer<QMessageBox> alerte;
        SuiviMarche suivi;
        suivi.demandes = &demandes;
        // Shown beside the loop, not instead of it: the command goes on being sent while the user reads.
        suivi.Prevenir = [this, &alerte, &demandes] {
            Prevenir(alerte, Texte(TexteProgramme::ChauffeEssaiCoupure),
                     [&demandes] { demandes.StopDemande = true; });
        };
        coupee = RefroidirFil(suivi);
        delete alerte;
    }
    NoterChauffe(false);
    return coupee || !ChauffePeutEtreActive();
}

bool ConduiteManuelle::CouperSiChaud() {
    return !m_chaude && !ChauffePeutEtreActive() ? true : Couper();
}

void ConduiteManuelle::NoterChauffe(bool chaude) {
    m_chaude = chaude;
    emit ChauffeChangee(chaude);
}

} // namespace tessarel
