// Synchronisation of the two profiles: sections, and the walk along both sides of one.
#include "synchronisation.h"

#include "nettoyage.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"
#include "platform/nombres.h"

#include <algorithm>
#include <cmath>

namespace tessarel {

namespace {

constexpr int MessagesPasDeProfil = 6;
constexpr int MessagesMarquesInegales = 29;
constexpr int MessagesSynchroFaite = 30;
constexpr int MessagesNettoyageApres = 91;
constexpr int MessagesSynchroImpossible = 92;

// Vertices closer than this along the path, on the root's scale, are met together, mm.
constexpr float EcartMemeInstant = 0.001F;

using Profil = std::vector<PointProfil>;

// Length of the segment that ends at each point, mm; 0 at the first. Kept apart, they come out of one
// straight pass and the walk, which turns at every vertex, doesn't wait for a root each time.
std::vector<float> LongueursSegments(const Profil& points) {
    std::vector<float> longueurs(points.size(), 0.0F);
    for (std::size_t i = 1; i < points.size(); ++i) {
        const double dx = points[i].X - points[i - 1].X;
        const double dy = points[i].Y - points[i - 1].Y;
        longueurs[i] = EnSimple(std::sqrt(dx * dx + dy * dy));
    }
    return longueurs;
}

struct CoteSection {
    std::size_t debut = 0;
    std::size_t fin = 0;
    float total = 0;       // length as the walk uses it
    double totalExact = 0; // the same without the rounding at each addition
};

// The section of one side from `debut` to the next synchronisation point, which there is.
CoteSection MesurerSection(const Profil& points, const std::vector<float>& longueurs, std::size_t debut) {
    CoteSection cote;
    cote.debut = debut;
    cote.fin = debut;
    do {
        ++cote.fin;
        cote.total += longueurs[cote.fin];
        cote.totalExact += longueurs[cote.fin];
    } while ((points[cote.fin].Drapeaux & DrapeauSynchro) == 0);
    return cote;
}

void AjouterSommet(Profil& nouveaux, const PointProfil& sommet) {
    PointProfil& p = nouveaux.emplace_back();
    p.X = sommet.X;
    p.Y = sommet.Y;
    p.Drapeaux = sommet.Drapeaux;
}

// A point on the way from the last one made to the vertex under way: the weight counts from there, so that
// several on one long segment stay on it and in order.
void AjouterInterpole(Profil& nouveaux, const PointProfil& vers, float part, float reste) {
    const PointProfil dernier = nouveaux.back();
    PointProfil& p = nouveaux.emplace_back();
    p.X = EnSimple(dernier.X + (vers.X - dernier.X) * part / reste);
    p.Y = EnSimple(dernier.Y + (vers.Y - dernier.Y) * part / reste);
}

// One side of the walk: the profile, its section, the vertex under way and what remains up to it.
struct Cote {
    const Profil& points;
    const std::vector<float>& longueurs;
    Profil& nouveaux;
    CoteSection section;
    std::size_t i = 0;
    float reste = 0;

    [[nodiscard]] bool AuBout() const { return i == section.fin; }
};

enum class Pas { Avance, Arrive, Impossible };

// What becomes of the difference between two vertices that are met together.
enum class Reste { Oublie, Reporte };

// Walks one section on both sides.
class MarcheSection {
public:
    MarcheSection(const Cote& e, const Cote& s, Reste mode) : m_e(e), m_s(s), m_mode(mode) {}

    // False when the section has no length on the tip, or when both sides don't end together.
    bool Parcourir() {
        if (m_s.section.total == 0) return false;
        m_e.i = m_e.section.debut + 1;
        m_s.i = m_s.section.debut + 1;
        MesurerE();
        MesurerS();
        Pas pas = Pas::Avance;
        while (pas == Pas::Avance) {
            pas = FaireUnPas();
            if (pas == Pas::Avance && AuBout()) pas = Pas::Arrive;
        }
        if (pas == Pas::Impossible) return false;
        AjouterSommet(m_e.nouveaux, m_e.points[m_e.i]);
        AjouterSommet(m_s.nouveaux, m_s.points[m_s.i]);
        return true;
    }

private:
    [[nodiscard]] bool AuBout() const { return m_e.AuBout() && m_s.AuBout(); }
    void MesurerE() { m_e.reste = m_e.longueurs[m_e.i]; }
    // The tip's lengths are brought to the root's scale, on which the section is as long on both sides.
    void MesurerS() {
        m_s.reste =
            EnSimple(static_cast<double>(m_s.longueurs[m_s.i]) * m_e.section.total / m_s.section.total);
    }

    Pas FaireUnPas() {
        const float ecart = EnSimple(std::fabs(static_cast<double>(m_e.reste) - m_s.reste));
        if (ecart < EcartMemeInstant) return SommetsEnsemble();
        return m_e.reste < m_s.reste ? SommetEmplanture() : SommetSaumon();
    }

    Pas SommetEmplanture() {
        if (m_s.reste == 0) return Pas::Impossible;
        AjouterSommet(m_e.nouveaux, m_e.points[m_e.i]);
        AjouterInterpole(m_s.nouveaux, m_s.points[m_s.i], m_e.reste, m_s.reste);
        if (m_e.AuBout()) return m_s.AuBout() ? Pas::Arrive : Pas::Impossible;
        ++m_e.i;
        m_s.reste -= m_e.reste;
        MesurerE();
        return Pas::Avance;
    }

    Pas SommetSaumon() {
        if (m_e.reste == 0) return Pas::Impossible;
        AjouterInterpole(m_e.nouveaux, m_e.points[m_e.i], m_s.reste, m_e.reste);
        AjouterSommet(m_s.nouveaux, m_s.points[m_s.i]);
        if (m_s.AuBout()) return m_e.AuBout() ? Pas::Arrive : Pas::Impossible;
        ++m_s.i;
        m_e.reste -= m_s.reste;
        MesurerS();
        return Pas::Avance;
    }

    Pas SommetsEnsemble() {
        if (AuBout()) return Pas::Arrive;
        if (m_e.AuBout() || m_s.AuBout()) return Pas::Impossible;
        AjouterSommet(m_e.nouveaux, m_e.points[m_e.i]);
        AjouterSommet(m_s.nouveaux, m_s.points[m_s.i]);
        const float retard = m_s.reste - m_e.reste;
        ++m_e.i;
        ++m_s.i;
        MesurerE();
        MesurerS();
        if (m_mode == Reste::Reporte) (retard > 0 ? m_s.reste : m_e.reste) += std::fabs(retard);
        return Pas::Avance;
    }

    Cote m_e;
    Cote m_s;
    Reste m_mode;
};

// One profile and what is built from it.
struct Travail {
    explicit Travail(const Profil& profil) : points(profil), longueurs(LongueursSegments(profil)) {}

    const Profil& points;
    std::vector<float> longueurs;
    Profil nouveaux;
};

// The walk forgets up to a thousandth at each pair of vertices that it meets together, and a sum in 32 bits
// over many segments is off by more than the length of one: on dense profiles both sides may not end
// together. Only then the section is walked again, with exact sums and nothing forgotten.
bool FaireSection(Travail& e, CoteSection sectionE, Travail& s, CoteSection sectionS) {
    const std::size_t faits = e.nouveaux.size();
    const auto marcher = [&](Reste mode) {
        return MarcheSection({e.points, e.longueurs, e.nouveaux, sectionE},
                             {s.points, s.longueurs, s.nouveaux, sectionS}, mode)
            .Parcourir();
    };
    if (marcher(Reste::Oublie)) return true;
    sectionE.total = EnSimple(sectionE.totalExact);
    sectionS.total = EnSimple(sectionS.totalExact);
    e.nouveaux.resize(faits);
    s.nouveaux.resize(faits);
    return marcher(Reste::Reporte);
}

void MarquerBouts(Profil& points) {
    if (points.empty()) return;
    points.front().Drapeaux |= DrapeauSynchro;
    points.back().Drapeaux |= DrapeauSynchro;
}

std::ptrdiff_t CompterMarques(const Profil& points) {
    return std::count_if(points.begin(), points.end(),
                         [](const PointProfil& p) { return (p.Drapeaux & DrapeauSynchro) != 0; });
}

} // namespace

EtatSynchro SynchroniserProfils(ProjetCPX& projet) {
    if (projet.E.Points.empty() && projet.S.Points.empty()) return EtatSynchro::ProfilsAbsents;
    MarquerBouts(projet.E.Points);
    MarquerBouts(projet.S.Points);
    const std::ptrdiff_t marques = CompterMarques(projet.E.Points);
    if (marques != CompterMarques(projet.S.Points)) return EtatSynchro::MarquesInegales;

    Travail e(projet.E.Points);
    Travail s(projet.S.Points);
    for (Travail* cote : {&e, &s}) {
        cote->nouveaux.reserve(e.points.size() + s.points.size());
        AjouterSommet(cote->nouveaux, cote->points.front());
    }
    CoteSection sectionE;
    CoteSection sectionS;
    for (std::ptrdiff_t n = 1; n < marques; ++n) {
        sectionE = MesurerSection(e.points, e.longueurs, sectionE.fin);
        sectionS = MesurerSection(s.points, s.longueurs, sectionS.fin);
        if (!FaireSection(e, sectionE, s, sectionS)) return EtatSynchro::PointsConfondus;
    }
    projet.E.Points = std::move(e.nouveaux);
    projet.S.Points = std::move(s.nouveaux);
    return EtatSynchro::Faite;
}

bool cmdSynchroOptimale(ProjetCPX& projet) {
    const bool nettoyer =
        DemanderOuiNon(TextesMessages(MessagesNettoyageApres), TitresMessages(MessagesNettoyageApres));
    projet.Options.optSelection = {false, false, true};
    const auto refuser = [](int rangee) {
        AfficherCritique(TextesMessages(rangee), TitresMessages(rangee));
        return false;
    };
    switch (SynchroniserProfils(projet)) {
    case EtatSynchro::ProfilsAbsents:
        return refuser(MessagesPasDeProfil);
    case EtatSynchro::MarquesInegales:
        return refuser(MessagesMarquesInegales);
    case EtatSynchro::PointsConfondus:
        return refuser(MessagesSynchroImpossible);
    case EtatSynchro::Faite:
        break;
    }
    CalculerExtremesCPX(projet);
    if (nettoyer) {
        NettoyageSynchrone(projet);
        CalculerExtremesCPX(projet);
    }
    AfficherInformation(TextesMessages(MessagesSynchroFaite), TitresMessages(MessagesSynchroFaite));
    return true;
}

} // namespace tessarel
