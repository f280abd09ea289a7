// The box from outside: exchanges, time, and the hands on its front.
#include "link/simulateur/boite.h"

#include "link/simulateur/octets_boite.h"
#include "platform/erreurs.h"

#include <algorithm>
#include <cmath>

namespace tessarel::simulateur {

namespace {

constexpr std::int32_t ResultatIntrouvable = -200;
constexpr std::int32_t ResultatEnvoi = -202;
constexpr std::int32_t ResultatReception = -203;
constexpr std::int32_t ResultatCoherence = -204;
constexpr double HorlogesParNanoseconde = HorlogeBoite / 1e9;

std::int32_t ResultatDe(const Reponse& reponse, bool commandePerdue) {
    switch (reponse.sort) {
    case SortReponse::Rendue:
    case SortReponse::Corrompue: // of the right size: nobody can tell it from a sound one
        return ResultatZelkoSucces;
    case SortReponse::SansBoite:
        return ResultatIntrouvable;
    case SortReponse::Perdue:
        return commandePerdue ? ResultatEnvoi : ResultatReception;
    case SortReponse::Tardive:
        return reponse.retard > DelaiReponse ? ResultatReception : ResultatZelkoSucces;
    case SortReponse::Courte:
        return ResultatCoherence;
    }
    return ResultatReception;
}

// Every byte but the first changed, that of the command for certain.
void Corrompre(Tampon& octets, std::uint64_t graine) {
    for (std::size_t i = PlaceCommande; i < octets.size(); ++i) {
        graine = graine * 6364136223846793005U + 1442695040888963407U;
        octets[i] ^= static_cast<std::uint8_t>((graine >> 56U) | 1U);
    }
}

} // namespace

BoiteZelko::BoiteZelko(std::size_t capaciteFile)
    : m_debut(Maintenant()), m_dernier(m_debut), m_file(std::max(capaciteFile, CapaciteFileMinimale)) {}

void BoiteZelko::Actualiser() {
    const Instant maintenant = Maintenant();
    const double horloges =
        static_cast<double>((maintenant - m_dernier).count()) * HorlogesParNanoseconde * m_facteur +
        m_fractionHorloge;
    m_dernier = maintenant;
    const double entieres = std::floor(horloges);
    m_fractionHorloge = horloges - entieres;
    AvancerJusqua(m_horloge + static_cast<std::uint64_t>(entieres));
    if (m_moteurs && !MoteursAllumes()) AllumerMoteurs(false);
    if (!m_pannes.empty()) SuivreTemps();
}

Reponse BoiteZelko::Traiter(const Tampon& commande) {
    const std::uint8_t code = commande[PlaceCommande];
    Actualiser();
    SuivreEchange(code);
    Reponse reponse;
    bool perdue = false;
    if (!Branchee()) {
        reponse.sort = SortReponse::SansBoite;
    } else if (FrappeEchange(Panne::CommandePerdue, code)) {
        reponse.sort = SortReponse::Perdue;
        perdue = true;
    } else {
        reponse = Executer(commande);
        if (FrappeEchange(Panne::ReponsePerdue, code)) {
            reponse.sort = SortReponse::Perdue;
        } else if (PanneProgrammee tardive; FrappeEchange(Panne::ReponseTardive, code, &tardive)) {
            reponse.sort = SortReponse::Tardive;
            reponse.retard = tardive.retard;
        } else if (FrappeEchange(Panne::ReponseCourte, code)) {
            reponse.sort = SortReponse::Courte;
        } else if (FrappeEchange(Panne::ReponseCorrompue, code)) {
            reponse.sort = SortReponse::Corrompue;
            Corrompre(reponse.octets, m_comptes.echanges);
        }
    }
    reponse.resultat = ResultatDe(reponse, perdue);
    NoterEchange(commande, reponse);
    return reponse;
}

std::int32_t BoiteZelko::Echanger(Tampon& tampon) {
    const Reponse reponse = Traiter(tampon);
    if (reponse.sort == SortReponse::Tardive && SurAttente)
        SurAttente(std::min(reponse.retard, DelaiReponse));
    if (reponse.resultat == ResultatZelkoSucces) tampon = reponse.octets;
    return reponse.resultat;
}

void BoiteZelko::FixerFacteur(double facteur) {
    if (!(facteur > 0) || !std::isfinite(facteur))
        throw FauteConversion(SelonLangue("le facteur de vitesse doit être au-dessus de 0",
                                          "the speed factor must be above 0"));
    Actualiser();
    m_facteur = facteur;
}

void BoiteZelko::FixerCapaciteFile(std::size_t capacite) {
    std::vector<SalveBoite> file(std::max({capacite, CapaciteFileMinimale, m_enFile}));
    for (std::size_t i = 0; i < m_enFile; ++i) file[i] = m_file[(m_tete + i) % m_file.size()];
    m_file = std::move(file);
    m_tete = 0;
}

void BoiteZelko::FixerMecanique(const Mecanique& mecanique) {
    Actualiser();
    m_mecanique = mecanique;
    CalculerBornes();
    if (!m_dejaBouge) m_base = PositionOrigine();
}

void BoiteZelko::ChargerEnRam(std::size_t memoire) {
    m_ram = LireTable(m_memoires.at(memoire));
    m_delaiMoteurs = m_ram.delaiMoteurs;
    CalculerBornes();
    if (!m_dejaBouge) m_base = PositionOrigine();
    RefaireChauffe(NoteChauffe::Cause::Commande); // the maximum may have changed
    if (SurTable) SurTable();
}

void BoiteZelko::PoserChariots(const PositionPas& position) {
    Actualiser();
    if (m_etatFile == EtatFile::EnMarche) return; // the motors hold them
    m_base = position;
    m_dejaBouge = true;
}

PositionPas BoiteZelko::PositionOrigine() const {
    PositionPas position = {};
    if (!m_mecanique.origineEnHaut) return position;
    for (const std::size_t a : {1U, 3U}) position[a] = std::llround(m_mecanique.courseY * m_ram.pasParMm[a]);
    return position;
}

PositionPas BoiteZelko::Position() const {
    PositionPas position = m_base;
    if (!m_enCours || m_salve.ticks == 0) return position;
    for (std::size_t a = 0; a < NombreAxes; ++a)
        position[a] += m_salve.Sens(a) *
                       std::int64_t{PasFaits(m_salve.doublePas[a], m_deroulement.Ticks(), m_salve.ticks)};
    return position;
}

void BoiteZelko::AppuyerStop() {
    Actualiser();
    SubirStop();
}

void BoiteZelko::FixerCommutateurs(const Commutateurs& commutateurs) {
    Actualiser();
    ChangerCommutateurs(commutateurs);
}

void BoiteZelko::FixerBoutonChauffe(std::uint8_t pwm) {
    Actualiser();
    m_pwmManu = pwm;
    RefaireChauffe(NoteChauffe::Cause::Commutateur);
}

void BoiteZelko::Brancher(bool branchee) {
    Actualiser();
    m_branchee = branchee;
}

void BoiteZelko::MettreSousTension(bool sousTension) {
    Actualiser();
    ChangerTension(sousTension);
}

EtatBoite BoiteZelko::Etat() const {
    EtatBoite e;
    e.file = m_etatFile;
    e.branchee = m_branchee;
    e.sousTension = m_sousTension;
    e.fin = m_fin;
    e.salvesEnFile = m_enFile;
    e.capaciteFile = m_file.size();
    e.salve = m_numero;
    e.ticks = m_salve.ticks;
    e.ticksFaits = m_deroulement.Ticks();
    e.enPause = m_enCours && m_salve.EstPause();
    e.modeOrigine = m_modeOrigine;
    e.position = Position();
    e.pwmCommande = m_pwmCommande;
    e.pwmFil = m_pwmFil;
    e.temperature = Temperature();
    e.moteurs = MoteursAllumes();
    e.origineOuverte = OrigineOuverte();
    e.finCourseOuverte = FinCourseOuverte();
    e.secondes = static_cast<double>(m_horloge) / HorlogeBoite;
    return e;
}

void BoiteZelko::EffacerTrajet() {
    m_trajetOublies += m_trajet.size();
    m_trajet.clear();
    m_histoireChauffe.clear();
}

} // namespace tessarel::simulateur
