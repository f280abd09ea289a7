// State of the commands of the 4-axis cut window.
#include "cut4x/etat_fenetre4x.h"

#include "app/texts/textes.h"
#include "platform/dialogue.h"

namespace tessarel {

namespace {

bool OutilActif(const ParametresDecoupe4axes& parametres) {
    return parametres.chkDresser || parametres.chkGuillotine;
}

bool PermisSansOutil(const ParametresDecoupe4axes& parametres, int rangee) {
    if (!OutilActif(parametres)) return true;
    AfficherExclamation(TextesMessages(rangee), TitresMessages(rangee));
    return false;
}

} // namespace

EtatCommandesD4X TableDesCommandes(bool DecoupePossible, const ParametresDecoupe4axes& parametres,
                                   bool decoupeEnCours) {
    EtatCommandesD4X etat;
    if (decoupeEnCours) return etat;
    const bool profil = DecoupePossible && !OutilActif(parametres);
    // Squaring comes and goes by the same ways as a profile and needs its block; the guillotine needs
    // neither.
    const bool bloc = DecoupePossible && !parametres.chkGuillotine;
    etat.entree = etat.sortie = etat.position = etat.alignementZ = bloc;
    etat.approche = bloc && parametres.TypeEntree == TypeEntreeD4X::BordDeFuite;
    etat.retour = bloc && parametres.TypeSortie == TypeEntreeD4X::BordDeFuite;
    etat.saisieZ = bloc && parametres.TypePositionZ == AlignementZ::Saisi;
    etat.sortieIntermediaire = etat.cote = etat.decalage = etat.blocDresse = profil;
    etat.dressage = DecoupePossible;
    etat.guillotine = true;
    etat.matiere = true;
    etat.parcours = etat.decouper = DecoupePossible || parametres.chkGuillotine;
    return etat;
}

void CocherDressage(bool coche, ParametresDecoupe4axes& parametres) {
    parametres.chkDresser = coche;
    if (coche) parametres.chkGuillotine = false;
}

void CocherGuillotine(bool coche, ParametresDecoupe4axes& parametres) {
    parametres.chkGuillotine = coche;
    if (coche) parametres.chkDresser = false;
}

const std::string& LegendeOutil(bool coche) {
    return TextesMessages(coche ? 157 : 158);
}

const std::string& TexteOutilActif(const ParametresDecoupe4axes& parametres) {
    static const std::string aucun;
    if (parametres.chkGuillotine) return TitresMessages(158);
    return parametres.chkDresser ? TitresMessages(157) : aucun;
}

bool QuitterOngletDecoupe(ParametresDecoupe4axes& parametres) {
    const bool replacer = parametres.symetrie;
    parametres.chkDresser = parametres.chkGuillotine = parametres.symetrie = false;
    return replacer;
}

bool SauvegardePermise(const ParametresDecoupe4axes& parametres) {
    return PermisSansOutil(parametres, 150);
}

bool AccesParametresPermis(const ParametresDecoupe4axes& parametres) {
    return PermisSansOutil(parametres, 155);
}

} // namespace tessarel
