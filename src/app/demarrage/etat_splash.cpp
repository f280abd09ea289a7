// The test of the interface at start-up and its texts.
#include "etat_splash.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/etat_interface.h"
#include "link/machine_trouvee.h"
#include "link/memoires.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

// Rows of TextesMessages: each holds two of the labels, one as text and one as title.
constexpr int RangeePasDInterface = 247;
constexpr int RangeeDetectee = 248;
constexpr int RangeeCorrespondance = 249;

LibelleEtat Libelle(const std::string& texte, CouleurLibelle couleur) {
    return {texte, couleur, true};
}

// "(Zelko)" first: the row holds the two lines the other way round.
std::string TexteDetectee() {
    const std::string& rangee = TextesMessages(RangeeDetectee);
    const auto fin = rangee.find("\r\n");
    return fin == std::string::npos ? rangee : rangee.substr(fin + 2) + "\r\n" + rangee.substr(0, fin);
}

// A memory of the machine's name: true when the search is over.
bool ExaminerMemoire(int memoire, const TableMachine& lue, const AccesMemoires& acces, EtatSplash& etat) {
    MemoireAffichee& affichee = etat.Memoires[static_cast<std::size_t>(memoire)];
    affichee.Cochee = true;
    if (!ComparerMachineEtZelko(TableINI, lue)) {
        affichee.Differente = true;
        etat.Correspondance = Libelle(TitresMessages(RangeeDetectee), CouleurLibelle::Rouge);
        return false;
    }
    etat.Mouvements = true;
    TableINI.NumeroMemoire = static_cast<std::uint8_t>(memoire);
    DernierResultatZelko = acces.ChargerEnRam(memoire);
    if (DernierResultatZelko == ResultatZelkoSucces) return true;
    etat.Mouvements = false;
    etat.Correspondance = Libelle(TitresMessages(RangeePasDInterface), CouleurLibelle::Rouge);
    AfficherCritique(TexteRempli(TexteProgramme::ErreurChargementRam, {std::to_string(DernierResultatZelko)}),
                     Texte(TexteProgramme::TitreErreur));
    return true;
}

void ComparerMemoires(const AccesMemoires& acces, EtatSplash& etat) {
    std::array<TableMachine, NombreMemoiresZelko> memoires;
    for (int i = 0; acces.Lire && i < NombreMemoiresZelko; ++i) {
        const auto indice = static_cast<std::size_t>(i);
        acces.Lire(i, memoires[indice]);
        etat.Memoires[indice].Nom = memoires[indice].Nom;
        etat.Memoires[indice].Visible = true;
    }
    bool nomTrouve = false;
    for (int i = 0; acces.Lire && i < NombreMemoiresZelko; ++i) {
        const TableMachine& lue = memoires[static_cast<std::size_t>(i)];
        if (lue.Nom != TableINI.Nom) continue;
        nomTrouve = true;
        if (ExaminerMemoire(i, lue, acces, etat)) break;
    }
    if (!nomTrouve)
        etat.Correspondance = Libelle(TextesMessages(RangeeCorrespondance), CouleurLibelle::Rouge);
    if (etat.Mouvements)
        etat.Correspondance = Libelle(TitresMessages(RangeeCorrespondance), CouleurLibelle::Verte);
}

} // namespace

AccesMemoires MemoiresDuLien() {
    return {[](int memoire, TableMachine& table) {
                TableMachine& gardee = MemoiresZelko[static_cast<std::size_t>(memoire)];
                LireMemoireZelko(gardee, memoire);
                table = gardee;
            },
            [](int memoire) {
                ChargerMemoireEnRam(memoire);
                return DernierResultatZelko;
            }};
}

EtatSplash AffichageSplashEtTestsZelko(const AccesMemoires& acces) {
    EtatSplash etat;
    ReinitialiserEtatInterface();
    etat.NomMachine = TableINI.Nom;
    if (!TesterInterface()) {
        etat.Detection = Libelle(TextesMessages(RangeePasDInterface), CouleurLibelle::Rouge);
        etat.Correspondance = Libelle(TitresMessages(RangeePasDInterface), CouleurLibelle::Rouge);
        return etat;
    }
    etat.Detection = Libelle(TexteDetectee(), CouleurLibelle::Verte);
    if (ControlerMachine(QuestionMachine::Posee) == MachineTrouvee::Laissee) {
        etat.Correspondance = Libelle(Texte(TexteProgramme::LaisseeSansMouvements), CouleurLibelle::Rouge);
        return etat;
    }
    etat.NomsVisibles = true;
    ComparerMemoires(acces, etat);
    return etat;
}

} // namespace tessarel
