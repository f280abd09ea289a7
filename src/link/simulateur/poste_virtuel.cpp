// The virtual box put together from engine, socket, memories and log.
#include "link/simulateur/poste_virtuel.h"

#include "link/simulateur/journal.h"
#include "link/simulateur/memoires_machine.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"
#include "platform/memoires_zelko.h"

#include <algorithm>
#include <cerrno>
#include <fmt/format.h>
#include <utility>

namespace tessarel::simulateur {

namespace {

constexpr const char* MachineDuNouveauVenu = "(Defaut)";
// The log is on disk this late at most, while the box lives.
constexpr Instant DelaiVidage = std::chrono::milliseconds(200);
constexpr std::size_t LignesMax = 1U << 20U; // bytes that wait
constexpr std::size_t TailleCoupee = 40;     // of a packet cut short

OctetsMemoires EnOctets(const MemoiresBoite& memoires) {
    OctetsMemoires octets;
    for (std::size_t i = 0; i < octets.size(); ++i) octets[i] = memoires[i].parties;
    return octets;
}

MemoiresBoite DepuisOctets(const OctetsMemoires& octets) {
    MemoiresBoite memoires;
    for (std::size_t i = 0; i < octets.size(); ++i) memoires[i].parties = octets[i];
    return memoires;
}

} // namespace

PosteVirtuel::PosteVirtuel(OptionsPoste options)
    : m_options(std::move(options)), m_boite(m_options.capaciteFile), m_journal(nullptr, std::fclose) {
    OuvrirJournal();
    m_boite.FixerFacteur(m_options.facteur);
    PreparerMemoires();
    m_boite.SurMemoires = [this] { SauverMemoires(); };
    m_boite.SurTable = [this] { SuivreTable(); };
    m_boite.SurNote = [this](const NoteJournal& note) { NoterJournal(note); };
    m_boite.ChargerEnRam(0);
    for (const PanneProgrammee& panne : m_options.pannes) m_boite.Programmer(panne);
    m_prise = std::make_unique<PriseZelko>(
        m_options.prise, [this](const Tampon& commande) { return Traiter(commande); },
        [this](std::size_t taille) { m_boite.EcarterPaquet(taille); });
}

PosteVirtuel::~PosteVirtuel() {
    m_prise.reset();
    ViderJournal();
}

ReponsePrise PosteVirtuel::Traiter(const Tampon& commande) {
    const Reponse r = m_boite.Traiter(commande);
    ReponsePrise p;
    p.octets = r.octets;
    switch (r.sort) {
    case SortReponse::Rendue:
    case SortReponse::Corrompue:
        break;
    case SortReponse::Tardive:
        p.retard = r.retard;
        break;
    case SortReponse::Perdue:
        p.sort = ReponsePrise::Sort::Rien;
        break;
    case SortReponse::Courte:
        p.taille = TailleCoupee;
        break;
    case SortReponse::SansBoite:
        p.sort = ReponsePrise::Sort::Raccroche;
        break;
    }
    return p;
}

bool PosteVirtuel::Servir(std::chrono::milliseconds attente) {
    const bool servi = m_prise->Servir(attente);
    m_boite.Actualiser();
    SuivreBranchement();
    if (m_lignes.size() > LignesMax || Maintenant() - m_dernierVidage > DelaiVidage) ViderJournal();
    return servi;
}

void PosteVirtuel::SuivreBranchement() {
    if (m_prise->Branchee() == m_boite.Branchee()) return;
    try {
        m_prise->Brancher(m_boite.Branchee());
        m_priseRefusee = false;
    } catch (const FauteFichier& faute) {
        if (!m_priseRefusee && m_options.avertir) m_options.avertir(faute.what());
        m_priseRefusee = true; // and tried again
    }
}

void PosteVirtuel::PreparerMemoires() {
    const bool fichier = !m_options.fichierMemoires.empty() && FichierExiste(m_options.fichierMemoires);
    if (fichier) m_boite.EcrireMemoires(DepuisOctets(LireMemoiresZelko(m_options.fichierMemoires)));
    if (!m_options.machine.empty()) {
        AjouterMachine(m_options.machine);
    } else if (!fichier) {
        AjouterMachine(MachineDuNouveauVenu);
    }
}

// Into the first blank memory, unless one of this name is there already.
void PosteVirtuel::AjouterMachine(const std::string& nom) {
    TableMachine table;
    if (!m_options.chercherMachine || !m_options.chercherMachine(nom, table))
        throw FauteConversion(nom + SelonLangue(" : machine inconnue", ": unknown machine"));
    MemoiresBoite memoires = m_boite.Memoires();
    const MemoireBoite voulue = MemoireDeMachine(table);
    const auto deja = std::ranges::find_if(
        memoires, [&](const MemoireBoite& m) { return NomMemoire(m) == NomMemoire(voulue); });
    if (deja != memoires.end()) return;
    const auto libre = std::ranges::find_if(memoires, EstVierge);
    if (libre == memoires.end()) {
        if (m_options.avertir)
            m_options.avertir(nom + SelonLangue(" : aucune mémoire libre, la table n'y est pas mise",
                                                ": no memory is free, the table was not put there"));
        return;
    }
    *libre = voulue;
    m_boite.EcrireMemoires(memoires);
}

void PosteVirtuel::SauverMemoires() {
    if (m_options.fichierMemoires.empty()) return;
    try {
        const std::string dossier = DossierDuChemin(m_options.fichierMemoires);
        if (!dossier.empty()) CreerDossier(dossier);
        EcrireMemoiresZelko(m_options.fichierMemoires, EnOctets(m_boite.Memoires()));
    } catch (const FauteFichier& faute) {
        if (m_options.avertir) m_options.avertir(faute.what());
    }
}

// The machine on the desk is the one named, else the one whose table runs; what was told of its travel wins.
void PosteVirtuel::SuivreTable() {
    Mecanique m = m_boite.MecaniqueEnPlace();
    TableMachine table;
    const std::string& nom = m_options.machine.empty() ? m_boite.Ram().nom : m_options.machine;
    if (m_options.chercherMachine && m_options.chercherMachine(nom, table)) m = MecaniqueDeMachine(table);
    if (m_options.courseX) m.courseX = *m_options.courseX;
    if (m_options.courseY) m.courseY = *m_options.courseY;
    m_boite.FixerMecanique(m);
}

void PosteVirtuel::OuvrirJournal() {
    if (m_options.fichierJournal.empty()) return;
    m_journal.reset(std::fopen(m_options.fichierJournal.c_str(), "we"));
    if (!m_journal)
        throw FauteFichier(NumeroErreur::EcritureImpossible, m_options.fichierJournal, RaisonSysteme(errno));
    m_lignes = EnteteJournal();
    ViderJournal();
}

void PosteVirtuel::NoterJournal(const NoteJournal& note) {
    if (m_journal) AjouterLigneJournal(m_lignes, note);
    if (SurNote) SurNote(note);
}

void PosteVirtuel::ViderJournal() {
    m_dernierVidage = Maintenant();
    if (!m_journal || m_lignes.empty()) return;
    const bool ecrit = std::fwrite(m_lignes.data(), 1, m_lignes.size(), m_journal.get()) == m_lignes.size() &&
                       std::fflush(m_journal.get()) == 0;
    m_lignes.clear();
    if (ecrit) return;
    // A full disk must not stop a cut.
    if (m_options.avertir)
        m_options.avertir(m_options.fichierJournal + SelonLangue(" : ", ": ") + RaisonSysteme(errno));
    m_journal.reset();
}

std::string PosteVirtuel::PhrasePrete() const {
    std::string noms;
    for (const MemoireBoite& m : m_boite.Memoires()) {
        const std::string nom = NomMemoire(m);
        noms += (noms.empty() ? "" : ", ") + (nom.empty() ? std::string("-") : nom);
    }
    return fmt::format(fmt::runtime(SelonLangue("prêt sur {} ; facteur {:g} ; mémoires : {}",
                                                "ready on {}; factor {:g}; memories: {}")),
                       m_prise->Chemin(), m_boite.Facteur(), noms);
}

} // namespace tessarel::simulateur
