// The log of one whole run that the documentation shows is the one that happens: homing, heating, cutting,
// Stop, resume, end, exchange by exchange.
#include "work2d/assemblage.h"
#include "work2d/decoupe_interface.h"

#include "app/texts/textes.h"
#include "link/simulateur/journal.h"
#include "platform/fichiers.h"
#include "platform/pompe.h"

#include "outils/boites.h"
#include "outils_boite/boite_virtuelle.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <fmt/format.h>
#include <string>
#include <string_view>

using namespace tessarel;
using namespace tessarel::simulateur;
using namespace std::chrono_literals;

namespace {

constexpr std::int32_t PasParMm = 1600; // of the machine of the run
constexpr std::int32_t SegmentDuStop = 6;
constexpr double FractionDuStop = 0.45;

// Notes of the box and words of the program, one line each; requests of the status that bring nothing new are
// counted.
class Carnet {
public:
    void Echange(const NoteJournal& note) {
        const std::string commande = DecrireCommande(note.commande);
        if (commande == "I statut" && m_derniere == commande) {
            ++m_tus;
            return;
        }
        m_derniere = commande;
        std::string reponse = DecrireReponse(note.commande, note.reponse);
        // What follows in the reply to a frame says where the run is, and there is none yet.
        if (commande.starts_with("D ")) reponse = reponse.substr(0, reponse.find(" reste="));
        Ligne(note.temps, fmt::format("{:5}  {:<10}", note.numero - m_avant, commande) +
                              (reponse == "-" ? "" : "   " + reponse));
    }
    void Evenement(const NoteJournal& note) {
        const bool chiffre = note.evenement == simulateur::Evenement::DebutSalve ||
                             note.evenement == simulateur::Evenement::Fin ||
                             note.evenement == simulateur::Evenement::Chauffe;
        Dire(note.temps, "--",
             std::string(NomEvenement(note.evenement)) + (chiffre ? fmt::format(" {}", note.valeur) : ""));
    }
    // `signe`: who says it.
    void Dire(Instant temps, const char* signe, const std::string& texte) {
        m_derniere.clear();
        Ligne(temps, fmt::format("   {}  {}", signe, texte));
    }
    // Times and exchanges count from here.
    void CompterDepuis(Instant temps, std::uint64_t echanges) {
        m_debut = temps;
        m_avant = echanges;
    }
    std::string Texte() {
        RattraperTus();
        return m_texte;
    }

private:
    void Ligne(Instant temps, std::string texte) {
        RattraperTus();
        texte.erase(texte.find_last_not_of(' ') + 1);
        m_texte += fmt::format("{:8.2f} {}\n", std::chrono::duration<double>(temps - m_debut).count(), texte);
    }
    void RattraperTus() {
        if (m_tus > 0) m_texte += fmt::format("{:16}… {} more status requests\n", "", m_tus);
        m_tus = 0;
    }
    std::string m_texte;
    std::string m_derniere; // command, "" after anything else
    int m_tus = 0;
    Instant m_debut{0};
    std::uint64_t m_avant = 0;
};

// A square of 20 x 15 mm, entered and left from above, rapid outside the block.
Decoupe2D Carre(OptionsDecoupe2D& options) {
    options.BlocX = 40;
    options.BlocY = 30;
    options.TypeEntree = options.TypeSortie = 1;
    options.approcheRapide = options.retourRapide = true;
    options.chauffe = 60;
    Sequence carre;
    for (const auto& [x, y] : {std::pair{12., 5.}, {32., 5.}, {32., 20.}, {12., 20.}, {12., 5.}}) {
        PointProfil p;
        p.X = x;
        p.Y = y;
        carre.Points.push_back(p);
    }
    CalculerBornesSequence(carre);
    return AssemblerDecoupe2D({&carre, 1}, options, TableINI);
}

struct Poste {
    essais::BoitesEnregistrees boites;
    essais::BoiteVirtuelle virtuelle{"QT2d v12"};
    Carnet carnet;
    DemandesMarche demandes;
    SuiviDecoupe suivi;
    bool stop = true;     // is still to come
    bool origine = false; // homing is under way

    Poste() {
        virtuelle.PasParEchange = 250ms;
        virtuelle.boite.PoserChariots({30 * PasParMm, 240 * PasParMm, 30 * PasParMm, 240 * PasParMm});
        virtuelle.boite.SurNote = [this](const NoteJournal& note) {
            if (!origine) note.estEchange ? carnet.Echange(note) : carnet.Evenement(note);
        };
        suivi.demandes = &demandes;
        suivi.ChangerPhase = [this](PhaseDecoupe phase) {
            if (origine) carnet.CompterDepuis(virtuelle.Temps(), virtuelle.boite.Comptes().echanges);
            origine = phase == PhaseDecoupe::Origine;
            Dire(Nom(phase));
        };
        suivi.Avancer = [this](const AvanceeDecoupe& a) {
            if (!stop || a.NumSalveCourante != SegmentDuStop || a.fraction < FractionDuStop) return;
            stop = false;
            demandes.StopDemande = true;
            Dire("Stop pressed");
        };
    }
    void Dire(const std::string& texte) { carnet.Dire(virtuelle.Temps(), "==", texte); }
    static std::string Nom(PhaseDecoupe phase) {
        switch (phase) {
        case PhaseDecoupe::Origine:
            return "homing";
        case PhaseDecoupe::Chauffe:
            return "heating";
        case PhaseDecoupe::Decoupe:
            return "cutting";
        case PhaseDecoupe::Arretee:
            return "stopped";
        case PhaseDecoupe::Retour:
            return "returning";
        case PhaseDecoupe::Repos:
            break;
        }
        return "idle";
    }
};

std::string JournalDUneDecoupe() {
    ChargerMessages(Langue::English);
    Poste poste;
    OptionsDecoupe2D options;
    Decoupe2D decoupe = Carre(options);
    DecoupePreparee preparee = PreparerDecoupeTS2D(decoupe, options, TableINI, "");
    ResultatDecoupe r = LancerDecoupeTS2D(preparee, TableINI, true, poste.suivi);
    EXPECT_EQ(r.fin, FinDecoupe::Arretee);
    poste.Dire(fmt::format("{}{}; wire at X {:.2f} mm, Y {:.2f} mm", TitresMessages(172), r.NumSalveCourante,
                           MillimetresDePas(TableINI, AxeX1, r.PositionStop.pas[AxeX1]),
                           MillimetresDePas(TableINI, AxeY1, r.PositionStop.pas[AxeY1])));
    poste.Dire("Resume the cut");
    decoupe.SequenceDecoupe =
        SequenceDeReprise(decoupe.SequenceDecoupe, r.NumSalveCourante, r.PositionStop.pas,
                          VitesseEnVigueur(options, TableINI), TableINI);
    preparee = PreparerDecoupeTS2D(decoupe, options, TableINI, "", r.PositionStop.pas);
    r = LancerDecoupeTS2D(preparee, TableINI, false, poste.suivi);
    EXPECT_EQ(r.fin, FinDecoupe::Terminee);
    EXPECT_TRUE(r.chauffeCoupee);
    EXPECT_EQ(poste.boites.boites.size(), 1U);
    poste.Dire(BoiteEnUneLigne(poste.boites.boites.back()));
    ChargerMessages(Langue::Francais);
    return poste.carnet.Texte();
}

// The last block between fences of a page.
std::string DernierBloc(const std::string& page) {
    constexpr std::string_view cloture = "```\n";
    const std::size_t fin = page.rfind(cloture);
    const std::size_t debut = page.rfind(cloture, fin - 1);
    return page.substr(debut + cloture.size(), fin - debut - cloture.size());
}

} // namespace

// TESSAREL_JOURNAL names a file to write it into, for the page to be brought up to date.
TEST(JournalDecoupe, LaPageMontreCeQuiSePasse) {
    const std::string journal = JournalDUneDecoupe();
    if (const char* fichier = std::getenv("TESSAREL_JOURNAL")) EcrireFichierAtomique(fichier, journal);
    const std::string page = LireFichierEntier(std::string(TESSAREL_RACINE) + "/docs/decoupe-machine.md");
    EXPECT_EQ(DernierBloc(page), journal)
        << "TESSAREL_JOURNAL=FILE writes the new one, for the last block of the page";
}
