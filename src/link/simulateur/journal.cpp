// Notes of the virtual box into lines of text.
#include "link/simulateur/journal.h"

#include "link/octets.h"
#include "link/simulateur/octets_boite.h"
#include "link/simulateur/salve_boite.h"

#include <array>
#include <chrono>
#include <fmt/format.h>
#include <iterator>
#include <span>

namespace tessarel::simulateur {

namespace {

constexpr std::array<const char*, NombreAxes> NomsAxes = {"X1", "Y1", "X2", "Y2"};

constexpr std::array<std::string_view, static_cast<std::size_t>(Evenement::PaquetEcarte) + 1> NomsEvenements =
    {"sous-tension",
     "depart",
     "debut-salve",
     "file-vide",
     "fin",
     "chauffe",
     "moteurs-allumes",
     "moteurs-eteints",
     "panne",
     "panne-finie",
     "commande-inconnue",
     "commande-hors-de-propos",
     "memoire-inconnue",
     "table-inutilisable",
     "vitesse-impossible",
     "paquet-ecarte"};

constexpr std::array<std::string_view, NombrePannes> NomsPannes = {
    "commande-perdue", "reponse-perdue", "reponse-tardive", "reponse-corrompue", "reponse-courte",
    "salve-refusee",   "debranchement",  "coupure-courant", "origine-ouverte",   "fin-course-ouverte",
    "bouton-stop",     "chauffe-manu",   "chauffe-eteinte"};

using Sortie = std::back_insert_iterator<std::string>;

void EcrireSalve(Sortie sortie, const Tampon& commande) {
    const SalveBoite s =
        LireSalve(std::span<const std::uint8_t, TailleSalve>(commande.data() + PlaceSalve, TailleSalve));
    if (s.EstFinDeListe()) {
        fmt::format_to(sortie, "D fin-de-liste");
        return;
    }
    if (s.EstPause()) {
        fmt::format_to(sortie, "D pause NBRt={} chauffe={}", s.ticks, s.niveauDepart);
        return;
    }
    fmt::format_to(sortie, "D trame NBRt={}", s.ticks);
    for (std::size_t a = 0; a < NombreAxes; ++a) {
        const std::uint32_t pas = s.Pas(a);
        fmt::format_to(sortie, " {}={}{}", NomsAxes[a], pas == 0 ? "" : s.Sens(a) > 0 ? "+" : "-", pas);
    }
    if ((s.drapeaux & DrapeauRampe) != 0)
        fmt::format_to(sortie, " rampe={}-{} ralentit={}", s.niveauDepart, s.niveauFin,
                       static_cast<std::int32_t>(s.tickDeceleration));
}

// Words of the commands with two arguments; empty where the pair is unknown.
std::string_view MotsDe(std::uint8_t code, std::uint8_t arg1) {
    switch (code) {
    case OctetFile:
        return arg1 == 0 ? "vider" : arg1 == 1 ? "ouvrir" : arg1 == 128 ? "lancer" : "";
    case OctetStatut:
        return "statut";
    case OctetMoteurs:
        return arg1 == 0 ? "eteindre" : arg1 == 1 ? "allumer" : arg1 == 3 ? "delai" : "";
    case OctetModeOrigine:
        return arg1 == 0 ? "normal" : "origine";
    case OctetChauffe:
        return arg1 == 0 ? "eteindre" : arg1 == 1 ? "chauffe" : "";
    case OctetArret:
        return "arret";
    case OctetTable:
        switch (arg1) {
        case 1:
            return "charger";
        case 3:
            return "lire";
        case 4:
            return "ecrire-1";
        case 6:
            return "ecrire-2";
        case 7:
            return "fin-lecture";
        case 8:
            return "ecrire-3";
        default:
            return "";
        }
    default:
        return "";
    }
}

void EcrireCommande(Sortie sortie, const Tampon& commande) {
    const std::uint8_t code = commande[PlaceCommande];
    const std::uint8_t arg1 = commande[PlaceArg1];
    const std::uint8_t arg2 = commande[PlaceArg2];
    if (code == OctetSalve) {
        EcrireSalve(sortie, commande);
        return;
    }
    const std::string_view mots = MotsDe(code, arg1);
    if (mots.empty()) {
        fmt::format_to(sortie, "inconnue {} {} {}", code, arg1, arg2);
        return;
    }
    fmt::format_to(sortie, "{} {}", static_cast<char>(code), mots);
    const bool avecValeur = code == OctetTable || (code == OctetChauffe && arg1 == 1) ||
                            (code == OctetMoteurs && mots == "delai");
    if (avecValeur) fmt::format_to(sortie, " {}", arg2);
}

void EcrireStatut(Sortie sortie, const Tampon& r) {
    const unsigned numero = r[PlaceNumero] | r[PlaceNumero + 1] << 8U | r[PlaceNumero + 2] << 16U;
    fmt::format_to(sortie, "salve={} reste={} chauffe={} switchs={} fin={}", numero,
                   LireOctets32(r, PlaceTicksRestants), (r[PlaceChauffeActive] & BitChauffe) != 0 ? 1 : 0,
                   r[PlaceInterrupteurs], r[PlaceFin]);
}

void EcrireReponse(Sortie sortie, const Tampon& commande, const Tampon& r) {
    switch (commande[PlaceCommande]) {
    case OctetSalve:
        fmt::format_to(sortie, "acceptee={} ", r[PlaceArg1]);
        EcrireStatut(sortie, r);
        break;
    case OctetStatut:
        EcrireStatut(sortie, r);
        break;
    case OctetModeOrigine:
        fmt::format_to(sortie, "switchs-actifs={}", (r[PlaceArg1] & BitSwitchsActifs) != 0 ? 1 : 0);
        break;
    case OctetChauffe:
        fmt::format_to(sortie, "allumee={} valeur={}", r[PlaceArg1], r[PlaceEcho]);
        break;
    default:
        fmt::format_to(sortie, "-");
    }
}

void AjouterOctets(std::string& sortie, const Tampon& octets) {
    constexpr const char* chiffres = "0123456789abcdef";
    std::size_t fin = octets.size();
    while (fin > PlaceCommande && octets[fin - 1] == 0) --fin;
    if (fin == PlaceCommande) sortie += '-';
    for (std::size_t i = PlaceCommande; i < fin; ++i) {
        sortie += chiffres[octets[i] >> 4U];
        sortie += chiffres[octets[i] & 15U];
    }
}

// Whole microseconds as seconds: a number with decimals would take longer than the rest of the line.
void EcrireSecondes(Sortie sortie, std::uint64_t microsecondes) {
    constexpr std::uint64_t parSeconde = 1000000;
    fmt::format_to(sortie, "{}.{:06}\t", microsecondes / parSeconde, microsecondes % parSeconde);
}

void EcrireEvenement(Sortie sortie, const NoteJournal& note) {
    const bool panne = note.evenement == Evenement::PanneSurvient || note.evenement == Evenement::PanneCesse;
    if (panne) {
        fmt::format_to(sortie, "evenement\t{}\t{}", NomEvenement(note.evenement),
                       NomPanne(static_cast<Panne>(note.valeur)));
    } else {
        fmt::format_to(sortie, "evenement\t{}\t{}", NomEvenement(note.evenement), note.valeur);
    }
}

constexpr std::int32_t ResultatRendu = ResultatZelkoSucces;

} // namespace

std::string_view NomEvenement(Evenement evenement) {
    return NomsEvenements.at(static_cast<std::size_t>(evenement));
}

std::string_view NomPanne(Panne panne) {
    return NomsPannes.at(static_cast<std::size_t>(panne));
}

std::string DecrireCommande(const Tampon& commande) {
    std::string texte;
    EcrireCommande(std::back_inserter(texte), commande);
    return texte;
}

std::string DecrireReponse(const Tampon& commande, const Tampon& reponse) {
    std::string texte;
    EcrireReponse(std::back_inserter(texte), commande, reponse);
    return texte;
}

std::string EnteteJournal() {
    return "# "
           "s\ts-boite\tgenre\tnumero|nom\tresultat|valeur\tcommande\treponse\toctets-envoyes\toctets-"
           "rendus\n";
}

void AjouterLigneJournal(std::string& sortie, const NoteJournal& note) {
    const Sortie bout = std::back_inserter(sortie);
    constexpr auto horlogesParMicroseconde = static_cast<std::uint64_t>(HorlogeBoite / 1e6);
    EcrireSecondes(bout, static_cast<std::uint64_t>(
                             std::chrono::duration_cast<std::chrono::microseconds>(note.temps).count()));
    EcrireSecondes(bout, note.horloge / horlogesParMicroseconde);
    if (!note.estEchange) {
        EcrireEvenement(bout, note);
    } else {
        fmt::format_to(bout, "echange\t{}\t{}\t", note.numero, note.resultat);
        EcrireCommande(bout, note.commande);
        sortie += '\t';
        if (note.corrompue) {
            sortie += "corrompue";
        } else if (note.resultat == ResultatRendu) {
            EcrireReponse(bout, note.commande, note.reponse);
        } else {
            sortie += '-';
        }
        sortie += '\t';
        AjouterOctets(sortie, note.commande);
        sortie += '\t';
        AjouterOctets(sortie, note.reponse);
    }
    sortie += '\n';
}

std::string LigneJournal(const NoteJournal& note) {
    std::string ligne;
    AjouterLigneJournal(ligne, note);
    return ligne;
}

} // namespace tessarel::simulateur
