// The commands of the wire, one by one, and the status block.
#include "link/simulateur/boite.h"
#include "link/simulateur/octets_boite.h"

#include "link/octets.h"

#include <algorithm>
#include <span>

namespace tessarel::simulateur {

namespace {

constexpr std::uint8_t FileVider = 0;
constexpr std::uint8_t FileOuvrir = 1;
constexpr std::uint8_t FileLancer = 128;
constexpr std::uint8_t MoteursEteindre = 0;
constexpr std::uint8_t MoteursAllumer = 1;
constexpr std::uint8_t MoteursDelai = 3;
constexpr std::uint8_t TableCharger = 1;
constexpr std::uint8_t TableLire = 3;
constexpr std::uint8_t TableFinLecture = 7;

// The part that a sub-code of T writes, or -1.
int PartieEcrite(std::uint8_t action) {
    constexpr std::array<std::uint8_t, 3> codes = {4, 6, 8};
    const auto it = std::ranges::find(codes, action);
    return it == codes.end() ? -1 : static_cast<int>(it - codes.begin());
}

} // namespace

Reponse BoiteZelko::Executer(const Tampon& commande) {
    Reponse reponse;
    const std::uint8_t code = commande[PlaceCommande];
    const std::uint8_t arg1 = commande[PlaceArg1];
    const std::uint8_t arg2 = commande[PlaceArg2];
    Tampon& octets = reponse.octets;
    octets[PlaceCommande] = code;
    octets[PlaceArg1] = arg1;
    octets[PlaceArg2] = arg2;
    switch (code) {
    case OctetFile:
        CommanderFile(arg1);
        break;
    case OctetSalve:
        RecevoirSalve(commande, octets);
        break;
    case OctetStatut:
        EcrireStatut(octets);
        break;
    case OctetMoteurs:
        CommanderMoteurs(arg1, arg2);
        break;
    case OctetModeOrigine:
        m_modeOrigine = arg1 != 0;
        VerifierBoucles();
        octets[PlaceArg1] = m_ram.switchs ? BitSwitchsActifs : 0;
        break;
    case OctetChauffe:
        CommanderChauffe(arg1, arg2, octets);
        break;
    case OctetArret:
        if (m_etatFile != EtatFile::Repos) Arreter(FinMouvement::Commande);
        break;
    case OctetTable:
        CommanderTable(commande, octets);
        break;
    default:
        Noter(Evenement::CommandeInconnue, code);
    }
    return reponse;
}

void BoiteZelko::CommanderFile(std::uint8_t action) {
    switch (action) {
    case FileVider:
    case FileOuvrir:
        if (action == FileOuvrir && m_etatFile == EtatFile::EnMarche)
            Noter(Evenement::CommandeHorsDePropos, OctetFile);
        if (m_etatFile != EtatFile::Repos) Arreter(FinMouvement::Aucune);
        m_etatFile = action == FileOuvrir ? EtatFile::Remplissage : EtatFile::Repos;
        m_fin = FinMouvement::Aucune;
        m_finRecue = false;
        m_famine = false;
        m_numero = 0;
        m_salve = SalveBoite{};
        m_deroulement = DeroulementSalve{};
        break;
    case FileLancer:
        if (m_etatFile != EtatFile::Remplissage) {
            Noter(Evenement::CommandeHorsDePropos, OctetFile);
        } else if (m_ram.frequence == 0) {
            Noter(Evenement::TableInutilisable);
            Arreter(FinMouvement::Aucune);
        } else {
            m_etatFile = EtatFile::EnMarche;
            AllumerMoteurs(true);
            NoterPoint(PointTrajet::Genre::Depart);
            Noter(Evenement::Depart);
            Enchainer();
        }
        break;
    default:
        Noter(Evenement::CommandeInconnue, OctetFile);
    }
}

void BoiteZelko::RecevoirSalve(const Tampon& commande, Tampon& reponse) {
    const SalveBoite salve =
        LireSalve(std::span<const std::uint8_t, TailleSalve>(commande.data() + PlaceSalve, TailleSalve));
    const bool ouverte = m_etatFile != EtatFile::Repos && !m_finRecue;
    bool acceptee = ouverte && m_enFile < m_file.size() && !FrappeEchange(Panne::SalveRefusee, OctetSalve);
    // A list that has just ended is no fault of the program: it could not know.
    if (!ouverte && m_fin == FinMouvement::Aucune) Noter(Evenement::CommandeHorsDePropos, OctetSalve);
    if (acceptee) {
        m_file[(m_tete + m_enFile) % m_file.size()] = salve;
        ++m_enFile;
        m_finRecue = salve.EstFinDeListe();
        if (!m_finRecue) ++m_comptes.salvesAcceptees;
        Enchainer();
    } else {
        ++m_comptes.salvesRefusees;
    }
    EcrireStatut(reponse);
    reponse[PlaceArg1] = acceptee ? SalveAcceptee : 0;
    reponse[PlaceArg2] = 0;
}

void BoiteZelko::CommanderMoteurs(std::uint8_t action, std::uint8_t delai) {
    switch (action) {
    case MoteursEteindre:
        if (m_etatFile == EtatFile::EnMarche) {
            m_moteursAEteindre = true;
        } else {
            AllumerMoteurs(false);
        }
        break;
    case MoteursAllumer:
        AllumerMoteurs(true);
        break;
    case MoteursDelai:
        m_delaiMoteurs = delai;
        break;
    default:
        Noter(Evenement::CommandeInconnue, OctetMoteurs);
    }
}

// The reply tells what was asked for, also where the table's maximum or the switches keep the wire below it:
// a program repeats the command until it hears its own value.
void BoiteZelko::CommanderChauffe(std::uint8_t action, std::uint8_t valeur, Tampon& reponse) {
    if (action > 1) {
        Noter(Evenement::CommandeInconnue, OctetChauffe);
        return;
    }
    ChaufferA(action == 1 ? valeur : 0, NoteChauffe::Cause::Commande);
    reponse[PlaceArg1] = action;
    reponse[PlaceEcho] = m_pwmCommande;
}

void BoiteZelko::CommanderTable(const Tampon& commande, Tampon& reponse) {
    const std::uint8_t action = commande[PlaceArg1];
    const std::size_t memoire = commande[PlaceArg2];
    const int ecrite = PartieEcrite(action);
    if (action != TableCharger && action != TableLire && action != TableFinLecture && ecrite < 0) {
        Noter(Evenement::CommandeInconnue, OctetTable);
        return;
    }
    if (memoire >= NombreMemoires) {
        Noter(Evenement::MemoireInconnue, static_cast<std::int64_t>(memoire));
        return;
    }
    if (action == TableCharger) {
        if (m_etatFile == EtatFile::EnMarche) {
            Noter(Evenement::CommandeHorsDePropos, OctetTable);
        } else {
            ChargerEnRam(memoire);
        }
    } else if (action == TableLire) {
        std::ranges::copy(m_memoires[memoire].parties[0], reponse.begin() + DebutPartie);
    } else if (ecrite >= 0) {
        Partie& partie = m_memoires[memoire].parties[static_cast<std::size_t>(ecrite)];
        std::copy_n(commande.begin() + DebutPartie, TaillePartie, partie.begin());
        if (SurMemoires) SurMemoires();
    }
}

void BoiteZelko::EcrireStatut(Tampon& reponse) const {
    for (std::size_t i = 0; i < 3; ++i)
        reponse[PlaceNumero + i] = static_cast<std::uint8_t>(m_numero >> (8 * i));
    reponse[PlaceChauffeActive] = m_pwmFil > 0 ? BitChauffe : 0;
    unsigned interrupteurs = 0;
    if (m_commutateurs.chauffeManu) interrupteurs |= BitManu;
    if (m_commutateurs.chauffeEteinte) interrupteurs |= BitChauffeEteinte;
    if (OrigineOuverte()) interrupteurs |= BitOrigineOuverte;
    if (FinCourseOuverte()) interrupteurs |= BitFinCourseOuverte;
    reponse[PlaceInterrupteurs] = static_cast<std::uint8_t>(interrupteurs);
    if (m_etatFile == EtatFile::Repos)
        reponse[PlaceFin] = static_cast<std::uint8_t>(BitTerminee | static_cast<unsigned>(m_fin));
    const std::uint32_t faits = m_deroulement.Ticks();
    EcrireOctets32(reponse, PlaceTicksRestants, faits < m_salve.ticks ? m_salve.ticks - 1 - faits : 0);
}

} // namespace tessarel::simulateur
