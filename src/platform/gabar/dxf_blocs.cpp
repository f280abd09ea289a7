// Blocks laid down where they are inserted, and what hides an entity.
#include "dxf_dessin.h"

#include "messages.h"
#include "platform/erreurs.h"
#include "platform/fichiers.h"

#include <algorithm>
#include <fmt/format.h>

namespace tessarel {

namespace {

// Deeper nesting than this is made by no program, and costs stack.
constexpr std::size_t ImbricationMax = 200;
// Pairs of lines read again inside blocks, and what one copy of a block counts for even when it is empty:
// about a second of work.
constexpr std::int64_t PairesBlocsMax = 15'000'000;
constexpr std::int64_t PairesParCopie = 5;

constexpr std::string_view CalqueZero = "0";

[[noreturn]] void RefuserInsertion(const DessinDxf& dessin, const EntiteDxf& e, const std::string& francais,
                                   const std::string& anglais) {
    throw FauteLecture(*dessin.chemin, e.ligne, Bilingue(francais, anglais));
}

void CompterTravail(DessinDxf& dessin, const EntiteDxf& e, std::int64_t paires) {
    dessin.pairesBlocs += paires;
    if (dessin.pairesBlocs > PairesBlocsMax)
        RefuserInsertion(
            dessin, e,
            fmt::format("les insertions du bloc « {} » donnent un dessin trop grand", Citation(e.bloc)),
            fmt::format("the insertions of block \"{}\" make the drawing too large", Citation(e.bloc)));
}

// The entities of a block, one copy.
void PoserContenu(DessinDxf& dessin, const EntiteDxf& insertion, const BlocDxf& bloc, const Cadre& cadre) {
    LecteurCodes lecteur = bloc.contenu;
    EntiteDxf entite;
    while (!EstMot(lecteur, "ENDBLK") && !EstMot(lecteur, "ENDSEC")) {
        const long avant = lecteur.lignesLues;
        LireEntite(lecteur, entite);
        CompterTravail(dessin, insertion, (lecteur.lignesLues - avant) / 2);
        PoserEntite(dessin, entite, cadre);
    }
}

double FacteurInsertion(bool present, double facteur) {
    // Zero is what some programs write for "not scaled".
    return present && facteur != 0 ? facteur : 1;
}

struct Reseau {
    std::int32_t colonnes = 1;
    std::int32_t rangees = 1;
};

Reseau ReseauInsertion(const DessinDxf& dessin, const EntiteDxf& e) {
    const Reseau r{std::max(1, e.drapeaux), std::max(1, e.rangees)};
    if (static_cast<std::int64_t>(r.colonnes) * r.rangees > static_cast<std::int64_t>(PointsMaxDessin))
        RefuserInsertion(dessin, e,
                         fmt::format("INSERT : {} x {} copies du bloc « {} », c'est trop", r.colonnes,
                                     r.rangees, Citation(e.bloc)),
                         fmt::format("INSERT: {} x {} copies of block \"{}\" are too many", r.colonnes,
                                     r.rangees, Citation(e.bloc)));
    return r;
}

// A copy of the array: the first one moved along the axes of the insertion.
Transformation Decaler(Transformation premiere, const Transformation& repere, double x, double y) {
    if (x == 0 && y == 0) return premiere;
    for (int i = 0; i < 12; i += 4) premiere.a[i + 3] += repere.a[i] * x + repere.a[i + 1] * y;
    premiere.identite = false;
    return premiere;
}

void PoserReseau(DessinDxf& dessin, const EntiteDxf& e, const BlocDxf& bloc, const Cadre& hote,
                 Cadre& cadre) {
    const Transformation repere =
        Composer(hote.placement,
                 Composer(DepuisExtrusion(e.extrusion), Composer(Translation(e.p0), RotationZ(e.r50))));
    const Transformation forme =
        Composer(Echelle(FacteurInsertion(e.a41, e.r41), FacteurInsertion(e.a42, e.r42),
                         FacteurInsertion(e.a43, e.r43)),
                 Translation({-bloc.base.X, -bloc.base.Y, -bloc.base.Z}));
    const Transformation premiere = Composer(repere, forme);
    const Reseau r = ReseauInsertion(dessin, e);
    for (std::int32_t j = 0; j < r.rangees; ++j) {
        for (std::int32_t i = 0; i < r.colonnes; ++i) {
            CompterTravail(dessin, e, PairesParCopie);
            cadre.placement = Decaler(premiere, repere, i * e.r44, j * e.r45);
            PoserContenu(dessin, e, bloc, cadre);
            ++dessin.insertions;
        }
    }
}

} // namespace

int TableNoms::Rang(std::string_view nom) const {
    const auto it = rangs.find(EnMinuscules(nom));
    return it == rangs.end() ? -1 : it->second;
}

int RangCalque(DessinDxf& dessin, std::string_view nom) {
    // Entities of a layer mostly stand together.
    if (dessin.dernierRangCalque >= 0 && dessin.dernierNomCalque == nom) return dessin.dernierRangCalque;
    int rang = dessin.nomsCalques.Rang(nom);
    if (rang < 0) {
        rang = static_cast<int>(dessin.calques.size());
        dessin.calques.push_back({nom});
        dessin.nomsCalques.rangs.emplace(EnMinuscules(nom), rang);
    }
    dessin.dernierNomCalque = nom;
    dessin.dernierRangCalque = rang;
    return rang;
}

void InsererBloc(DessinDxf& dessin, const EntiteDxf& e, const Cadre& hote, int calque) {
    const int rang = dessin.nomsBlocs.Rang(e.bloc);
    if (rang < 0 || dessin.blocs[static_cast<std::size_t>(rang)].externe) {
        ++dessin.blocsInconnus[e.bloc];
        return;
    }
    if (std::find(dessin.blocsOuverts.begin(), dessin.blocsOuverts.end(), rang) != dessin.blocsOuverts.end())
        RefuserInsertion(dessin, e, fmt::format("le bloc « {} » se contient lui-même", Citation(e.bloc)),
                         fmt::format("block \"{}\" contains itself", Citation(e.bloc)));
    if (dessin.blocsOuverts.size() >= ImbricationMax)
        RefuserInsertion(dessin, e, fmt::format("plus de {} blocs imbriqués", ImbricationMax),
                         fmt::format("more than {} nested blocks", ImbricationMax));
    dessin.blocsOuverts.push_back(rang);
    Cadre cadre;
    cadre.calqueHote = calque;
    PoserReseau(dessin, e, dessin.blocs[static_cast<std::size_t>(rang)], hote, cadre);
    dessin.blocsOuverts.pop_back();
}

void PoserEntite(DessinDxf& dessin, const EntiteDxf& e, const Cadre& cadre) {
    if (e.espacePapier) {
        ++dessin.surPapier;
        return;
    }
    if (e.invisible) {
        ++dessin.invisibles;
        return;
    }
    // Inside a block layer "0" is the layer of the insertion.
    const std::string_view nom = e.calque.empty() ? CalqueZero : e.calque;
    const int rang = cadre.calqueHote >= 0 && nom == CalqueZero ? cadre.calqueHote : RangCalque(dessin, nom);
    const CalqueDxf& calque = dessin.calques[static_cast<std::size_t>(rang)];
    const bool insertion = e.genre == GenreEntite::Insertion;
    // An insertion on a layer that is off still shows what stands on other layers in it.
    if (calque.gele || (calque.eteint && !insertion)) {
        ++dessin.surCalquesCaches;
        return;
    }
    if (insertion) {
        InsererBloc(dessin, e, cadre, rang);
    } else if (TracerEntite(dessin, e, cadre.placement)) {
        ++dessin.lus[e.type];
        ++dessin.calques[static_cast<std::size_t>(rang)].entites;
    } else if (!EgalSansCasse(e.type, "SEQEND")) {
        ++dessin.ignores[e.type];
    }
}

} // namespace tessarel
