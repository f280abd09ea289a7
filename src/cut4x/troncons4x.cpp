// Sections of a cut, their frames and their durations.
#include "cut4x/troncons4x.h"
#include "cut4x/controle4x.h"

#include "app/texts/textes.h"
#include "link/liste_salves.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <span>
#include <string>

namespace tessarel {

namespace {

PointPasD4X EnPas(const PointProfil& p, const TableMachine& table, Axe x, Axe y) {
    PointPasD4X pas;
    pas.X = PasDeMillimetres(table, x, p.X);
    pas.Y = PasDeMillimetres(table, y, p.Y);
    return pas;
}

// Both carriages get one speed, one flag and one duration: the greater speed, the flag of the E list, the
// duration of the S list.
void AjouterPoint(TronconD4X& troncon, const PointProfil& p1, const PointProfil& p2,
                  const TableMachine& table) {
    PointPasD4X a = EnPas(p1, table, AxeX1, AxeY1);
    PointPasD4X b = EnPas(p2, table, AxeX2, AxeY2);
    a.Vitesse = b.Vitesse = std::max(p1.Vitesse, p2.Vitesse);
    a.Rapide = b.Rapide = p2.Rapide;
    a.Duree = b.Duree = p1.Duree;
    troncon.PointsChariot1.push_back(a);
    troncon.PointsChariot2.push_back(b);
}

TronconD4X ConstruireTroncon(const PaireD4X& chariots, const EtendueTroncon& etendue,
                             const TableMachine& table) {
    TronconD4X troncon;
    const std::size_t nombre = etendue.dernier - etendue.premier + 1;
    troncon.PremierPoint = etendue.premier;
    troncon.PointsChariot1.reserve(nombre);
    troncon.PointsChariot2.reserve(nombre);
    for (std::size_t p = etendue.premier; p <= etendue.dernier; ++p)
        AjouterPoint(troncon, chariots.S[p], chariots.E[p], table);
    return troncon;
}

// FauteDepassement where a way does not fit 32 bits.
std::int32_t Difference(std::int32_t de, std::int32_t a) {
    return ArrondiLong(static_cast<double>(a) - de);
}

Salve SalveDuSegment(const TronconD4X& troncon, std::size_t j, const ParametresSalve& parametres,
                     const TableMachine& table) {
    const PointPasD4X& a1 = troncon.PointsChariot1[j];
    const PointPasD4X& a2 = troncon.PointsChariot2[j];
    const PointPasD4X& b1 = troncon.PointsChariot1[j + 1];
    const PointPasD4X& b2 = troncon.PointsChariot2[j + 1];
    const PasAxes pas = {Difference(a1.X, b1.X), Difference(a1.Y, b1.Y), Difference(a2.X, b2.X),
                         Difference(a2.Y, b2.Y)};
    // No ramp at cutting speed: a segment keeps its own speed to its end, unlike in 2D.
    if (!a1.Rapide) return ConstruireSalve(parametres, a1.Vitesse, a1.Vitesse, a1.Vitesse, pas);
    const float bout = std::min(table.VitesseRapide, table.VmaxSansAccXY);
    return ConstruireSalve(parametres, bout, table.VitesseRapide, bout, pas);
}

// Texts of the tables with and without a blank before the number that follows.
std::string AvecNombre(const std::string& texte, std::size_t nombre) {
    return texte + (texte.ends_with(' ') ? "" : " ") + std::to_string(nombre);
}

void DireSalveRefusee(int statut, std::size_t point) {
    std::string texte = TextesMessages(160) + " " + std::to_string(statut);
    texte += AvecNombre(TitresMessages(160), point) + TextesMessages(161);
    AfficherCritique(texte, TitresMessages(188));
}

// Fills the frames of a stretch and its own duration; false after the box of one that can't be built. The
// pause counts once, as the heating that it is.
bool ConstruireSalvesDuTroncon(TronconD4X& troncon, const ContexteD4X& contexte,
                               const ParametresSalve& parametres) {
    const std::size_t nombre = troncon.PointsChariot1.size();
    const std::int16_t tempo = contexte.Table.TempoChauffe;
    troncon.TableauSalves.reserve(nombre + 1);
    troncon.TableauSalves.push_back(ConstruireSalveTempo(parametres, tempo, contexte.Matiere.Chauffe));
    troncon.TableauSalves.front().Duree = tempo;
    troncon.DureeCumulee = tempo;
    for (std::size_t j = 0; j + 1 < nombre; ++j) {
        troncon.TableauSalves.push_back(SalveDuSegment(troncon, j, parametres, contexte.Table));
        const Salve& salve = troncon.TableauSalves.back();
        if (salve.Statut != StatutSucces) {
            DireSalveRefusee(salve.Statut, troncon.PremierPoint + j + 1);
            return false;
        }
        troncon.DureeCumulee = EnSimple(double{troncon.DureeCumulee} + salve.Duree);
    }
    troncon.TableauSalves.push_back(ConstruireSalveFin());
    return true;
}

// The durations become running totals, a whole number of seconds at the end of each stretch.
int CumulerDurees(std::vector<TronconD4X>& troncons) {
    std::int32_t total = 0;
    for (TronconD4X& troncon : troncons) {
        total = ArrondiLong(double{troncon.DureeCumulee} + total);
        troncon.DureeCumulee = static_cast<float>(total);
    }
    return total;
}

bool ConfirmerLancement(const ResumeGcode& resume) {
    return AfficherBoite({TexteResumeGcode(resume), TitresMessages(166), IconeBoite::Question,
                          BoutonsBoite::OkAnnuler}) == ReponseBoite::Ok;
}

} // namespace

std::vector<EtendueTroncon> EtenduesTroncons(const PaireD4X& chariots) {
    std::vector<EtendueTroncon> etendues;
    const std::size_t nombre = chariots.E.size();
    if (nombre == 0) return etendues;
    std::size_t premier = 0;
    for (std::size_t p = 1; p + 1 < nombre; ++p) {
        if ((chariots.E[p].Drapeaux & DrapeauArret) == 0) continue;
        etendues.push_back({premier, p});
        premier = p;
    }
    etendues.push_back({premier, nombre - 1});
    return etendues;
}

PreparationD4X PreparerSalvesD4X(const ContexteD4X& contexte, const DecoupeD4X& decoupe, bool Export) {
    const ParametresDecoupe4axes& parametres = contexte.Parametres;
    const PaireD4X& chariots = decoupe.PaireChariots;
    PreparationD4X preparation;
    const bool outil = parametres.chkDresser || parametres.chkGuillotine;
    // A tool without a project may have left nothing to run.
    if ((!decoupe.DecoupePossible && !outil) || chariots.E.empty()) {
        preparation.Resultat = PreparationSansDecoupe;
        return preparation;
    }
    preparation.controle = ControlerDecoupeD4X(contexte, decoupe);
    if (preparation.controle != ControleBon) {
        preparation.Resultat = PreparationRefusee;
        return preparation;
    }
    const ParametresSalve salves = ParametresDeSalve(contexte.Table);
    for (const EtendueTroncon& etendue : EtenduesTroncons(chariots)) {
        preparation.TronconsD4X.push_back(ConstruireTroncon(chariots, etendue, contexte.Table));
        if (!ConstruireSalvesDuTroncon(preparation.TronconsD4X.back(), contexte, salves)) return preparation;
    }
    preparation.NombreSegmentsTotal = static_cast<std::int32_t>(chariots.E.size());
    preparation.resume = {CumulerDurees(preparation.TronconsD4X), contexte.Matiere.Vitesse,
                          contexte.Matiere.Chauffe};
    const bool lancer = Export || ConfirmerLancement(preparation.resume);
    preparation.Resultat = lancer ? PreparationBonne : PreparationAnnulee;
    return preparation;
}

} // namespace tessarel
