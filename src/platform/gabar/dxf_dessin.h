// A DXF drawing under way: its layers and blocks, and the entities turned into pieces of path.
#pragma once

#include "dxf_entites.h"

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

namespace tessarel {

struct CalqueDxf {
    std::string_view nom;
    bool eteint = false; // colour below 0: what stands on it is not shown
    bool gele = false;   // not shown either, and hides what is inserted on it whole
    int entites = 0;     // read from it
};

struct BlocDxf {
    Point3 base;
    LecteurCodes contenu; // at the first opening pair of its entities
    bool externe = false; // a reference to another drawing: nothing in it
};

// Names in DXF compare without regard to case.
struct TableNoms {
    std::unordered_map<std::string, int> rangs;
    int Rang(std::string_view nom) const; // -1 when unknown
};

struct DessinDxf {
    const std::string* chemin = nullptr;
    Assemblage assemblage;
    double unite = 1; // mm in a drawing unit
    std::vector<CalqueDxf> calques;
    TableNoms nomsCalques;
    std::vector<BlocDxf> blocs;
    TableNoms nomsBlocs;

    // For the report.
    std::map<std::string_view, int> lus;
    std::map<std::string_view, int> ignores;
    std::map<std::string_view, int> blocsInconnus;
    int surCalquesCaches = 0;
    int invisibles = 0;
    int surPapier = 0;
    int insertions = 0; // copies of blocks laid down

    // Work done inside blocks, in pairs read again: what keeps a small file from making endless work.
    std::int64_t pairesBlocs = 0;
    std::vector<int> blocsOuverts; // being laid down, outermost first
    std::string_view dernierNomCalque;
    int dernierRangCalque = -1;
};

// Rank of a layer by its name; made when the tables have not told of it.
int RangCalque(DessinDxf& dessin, std::string_view nom);

// Where an entity stands: its placement, and the layer that "0" means inside a block (-1 outside of any).
struct Cadre {
    Transformation placement;
    int calqueHote = -1;
};

// Lays one entity down, blocks expanded; counts it in the report when it gives nothing.
void PoserEntite(DessinDxf& dessin, const EntiteDxf& entite, const Cadre& cadre);

// Turns the path of an entity that is no insertion into a piece. False when it holds no path.
bool TracerEntite(DessinDxf& dessin, const EntiteDxf& entite, const Transformation& placement);

// Lays down the copies of a block that an insertion asks for. `calque` is the layer it stands on.
void InsererBloc(DessinDxf& dessin, const EntiteDxf& entite, const Cadre& cadre, int calque);

} // namespace tessarel
