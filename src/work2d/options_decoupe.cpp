// The options of a cut from workspace, material and settings.
#include "work2d/options_decoupe.h"

namespace tessarel {

OptionsDecoupe2D OptionsDepuisEspace(const Espace2D& espace, CoteDecalage2D decalage,
                                     const ValeursDecoupe& valeurs, const ParametresProgramme& parametres) {
    OptionsDecoupe2D options;
    options.BlocX = espace.bloc.BlocX;
    options.BlocY = espace.bloc.BlocY;
    options.TypeEntree = espace.TypeEntree;
    options.TypeSortie = espace.TypeSortie;
    options.approcheRapide = espace.VitesseApproche == 1;
    options.retourRapide = espace.VitesseRetour == 1;
    options.decalage = decalage;
    options.modeExpert = parametres.ModeExpert();
    options.vitesseMatiere = valeurs.Vitesse;
    options.saigneeMatiere = valeurs.SaigneeVD;
    options.chauffe = valeurs.Chauffe;
    options.distNettoyage = parametres.DistNettoyage;
    return options;
}

ReglesPlacement ReglesAvecMarges(bool ajuster, bool centrerX, bool centrerY,
                                 const ParametresProgramme& parametres) {
    return {ajuster, centrerX, centrerY, parametres.MargesInterieuresBlocX,
            parametres.MargesInterieuresBlocY};
}

} // namespace tessarel
