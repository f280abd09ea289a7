// Heat, motors, switches and power of the box, and its notes.
#include "link/simulateur/boite.h"

#include <cmath>

namespace tessarel::simulateur {

namespace {

// A wire of this kind is nearly there after three of these, s.
constexpr double InertieFil = 2.5;
constexpr double PleineChauffe = 255;

} // namespace

double BoiteZelko::Temperature() const {
    const double but = m_pwmFil / PleineChauffe;
    const double s = static_cast<double>(m_horloge - m_horlogeTemperature) / HorlogeBoite;
    return but + (m_temperature - but) * std::exp(-s / InertieFil);
}

void BoiteZelko::ChaufferA(std::uint8_t pwmCommande, NoteChauffe::Cause cause) {
    m_pwmCommande = pwmCommande;
    RefaireChauffe(cause);
}

void BoiteZelko::RefaireChauffe(NoteChauffe::Cause cause) {
    int pwm = m_commutateurs.chauffeManu ? m_pwmManu : std::min<int>(m_pwmCommande, m_ram.pwmMax);
    if (m_commutateurs.chauffeEteinte || !m_sousTension) pwm = 0;
    if (pwm == m_pwmFil) return;
    m_temperature = Temperature();
    m_horlogeTemperature = m_horloge;
    m_pwmFil = static_cast<std::uint8_t>(pwm);
    if (m_histoireChauffe.size() == HistoireMax)
        m_histoireChauffe.erase(m_histoireChauffe.begin(), m_histoireChauffe.begin() + HistoireMax / 2);
    m_histoireChauffe.push_back({cause, m_pwmFil, m_horloge, m_numero});
    if (m_etatFile == EtatFile::EnMarche) NoterPoint(PointTrajet::Genre::ChangementChauffe);
    Noter(Evenement::Chauffe, pwm);
}

bool BoiteZelko::MoteursAllumes() const {
    if (!m_moteurs || m_delaiMoteurs == 0 || m_etatFile == EtatFile::EnMarche) return m_moteurs;
    const std::uint64_t delai =
        static_cast<std::uint64_t>(m_delaiMoteurs) * static_cast<std::uint64_t>(HorlogeBoite);
    return m_horloge - m_horlogeMouvement < delai;
}

void BoiteZelko::AllumerMoteurs(bool allumes) {
    m_moteursAEteindre = false;
    m_horlogeMouvement = m_horloge;
    if (m_moteurs == allumes) return;
    m_moteurs = allumes;
    Noter(allumes ? Evenement::MoteursAllumes : Evenement::MoteursEteints);
}

void BoiteZelko::ChangerCommutateurs(const Commutateurs& commutateurs) {
    m_commutateurs = commutateurs;
    RefaireChauffe(NoteChauffe::Cause::Commutateur);
    VerifierBoucles();
}

void BoiteZelko::SubirStop() {
    if (!m_sousTension) return;
    ChaufferA(0, NoteChauffe::Cause::Stop);
    if (m_etatFile != EtatFile::Repos) Arreter(FinMouvement::BoutonStop);
}

void BoiteZelko::ChangerTension(bool sousTension) {
    if (m_sousTension == sousTension) return;
    m_sousTension = sousTension;
    if (sousTension) {
        Noter(Evenement::MiseSousTension);
        ChargerEnRam(0);
        return;
    }
    if (m_etatFile != EtatFile::Repos) Arreter(FinMouvement::Aucune);
    m_numero = 0;
    m_fin = FinMouvement::Aucune;
    m_modeOrigine = false;
    m_ram = TableRam{};
    m_delaiMoteurs = 0;
    CalculerBornes();
    AllumerMoteurs(false);
    ChaufferA(0, NoteChauffe::Cause::Coupure);
}

void BoiteZelko::Noter(Evenement evenement, std::int64_t valeur) {
    if (evenement >= PremiereAnomalie) ++m_comptes.anomalies;
    if (!SurNote) return;
    NoteJournal note;
    note.temps = m_dernier - m_debut;
    note.horloge = m_horloge;
    note.evenement = evenement;
    note.valeur = valeur;
    SurNote(note);
}

void BoiteZelko::NoterEchange(const Tampon& commande, const Reponse& reponse) {
    if (!SurNote) return;
    NoteJournal note;
    note.estEchange = true;
    note.temps = m_dernier - m_debut;
    note.horloge = m_horloge;
    note.numero = m_comptes.echanges;
    note.resultat = reponse.resultat;
    note.corrompue = reponse.sort == SortReponse::Corrompue;
    note.commande = commande;
    note.reponse = reponse.octets;
    SurNote(note);
}

void BoiteZelko::EcarterPaquet(std::size_t taille) {
    Actualiser();
    Noter(Evenement::PaquetEcarte, static_cast<std::int64_t>(taille));
}

} // namespace tessarel::simulateur
