// Sending, guarding and telling of the one exchange.
#include "echange.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "link/sortie.h"
#include "platform/dialogue.h"

namespace tessarel {

Tampon TamponEchange{};

namespace {

constexpr std::uint8_t MoteursEnMarche = 1;
constexpr std::uint8_t ChauffeEnMarche = 1;
constexpr std::uint8_t ChauffeCoupee = 0;
constexpr int RangeeProbleme = 6; // of TextesDoubles

bool chauffePeutEtreActive = false;
bool filAllumeIci = false;

// Before the sending, for a command that gets lost on its way back has been heard all the same.
void NoterChauffePossible(const Tampon& commande) {
    const bool chauffe = commande[1] == CommandeChauffe && commande[2] == ChauffeEnMarche && commande[3] != 0;
    const bool lance = commande[1] == CommandeFile && commande[2] == FileLancer;
    if (!chauffe && !lance) return;
    chauffePeutEtreActive = true;
    if (chauffe) filAllumeIci = true;
    VeillerALaSortie();
}

void NoterChauffeCoupee(const Tampon& commande, const Tampon& reponse) {
    if (commande[1] == CommandeChauffe && commande[2] == ChauffeCoupee && ConfirmeCoupure(reponse))
        chauffePeutEtreActive = filAllumeIci = CoupureEnSuspens = false;
}

// What a reply that never came reads as.
void RemplirRefus(const Tampon& commande) {
    const std::uint8_t code = commande[1];
    const std::uint8_t valeur = commande[3];
    TamponEchange.fill(0);
    if (code != CommandeChauffe) return;
    constexpr std::uint8_t nonConfirme = 255;
    TamponEchange[2] = nonConfirme;
    TamponEchange[4] = commande[2] == ChauffeCoupee ? nonConfirme : static_cast<std::uint8_t>(~valeur);
}

} // namespace

bool RienNePart() {
    return DernierResultatZelko == ResultatMouvementsInactifs ||
           DernierResultatZelko == ResultatZelkoBibliothequeAbsente;
}

bool ConfirmeCoupure(const Tampon& reponse) {
    return reponse[2] == 0 && reponse[4] == 0;
}

void EffacerTampon() {
    TamponEchange.fill(0);
}

bool EstCommandeDeMouvement(const Tampon& tampon) {
    switch (tampon[1]) {
    case CommandeSalve:
        return true;
    case CommandeFile:
        return tampon[2] == FileLancer;
    case CommandeChauffe:
        return tampon[2] != ChauffeCoupee;
    case CommandeMoteurs:
        return tampon[2] == MoteursEnMarche;
    default:
        return false;
    }
}

bool Echanger() {
    const Tampon commande = TamponEchange;
    if (!MouvementsActifs && EstCommandeDeMouvement(commande)) {
        DernierResultatZelko = ResultatMouvementsInactifs;
    } else {
        NoterChauffePossible(commande);
        DernierResultatZelko = Zelko_Send(TamponEchange);
    }
    if (DernierResultatZelko != ResultatZelkoSucces) {
        RemplirRefus(commande);
        return false;
    }
    NoterChauffeCoupee(commande, TamponEchange);
    return true;
}

void EnvoiBytes(std::uint8_t code, std::uint8_t arg1, std::uint8_t arg2) {
    EffacerTampon();
    TamponEchange[1] = code;
    TamponEchange[2] = arg1;
    TamponEchange[3] = arg2;
    if (!Echanger() && DernierResultatZelko != ResultatMouvementsInactifs)
        SignalerErreurInterface("EnvoiBytes");
}

std::string TexteErreurInterface(std::int32_t code) {
    switch (code) {
    case -101:
        return "Erreur -101 : can't lock the table.";
    case -102:
        return "Erreur -102 : table is too small.";
    case -200:
        return "Erreur -200 : l'interpolateur n'a pas été trouvé.";
    case -201:
        return "Erreur -201 : impossible d'ouvrir le canal.";
    case -202:
        return "Erreur -202 : une erreur s'est produite durant l'envoi des données à l'interpolateur.";
    case -203:
        return "Erreur -203 : une erreur s'est produite lors de la réception de la réponse de "
               "l'interpolateur.";
    case ResultatZelkoIncoherent:
        return "Erreur -204 : problème de cohérence entre les informations envoyées à l'interpolateur et la "
               "réponse reçue.";
    case ResultatZelkoBibliothequeAbsente:
        return "Le fichier ZelkoCom.dll n'a pas été trouvé,\r\nveuillez l'installer sur votre ordinateur, à "
               "la "
               "bonne place.";
    default:
        return "Erreur non répertoriée.";
    }
}

void SignalerErreurInterface(std::string_view procedure, std::int32_t resultat) {
    AfficherInformation(TexteErreurInterface(resultat) + "\r\n" + TextesDoubles(RangeeProbleme, 1) + "\r\n" +
                            TexteRempli(TexteProgramme::ProcedureErreur, {std::string(procedure)}),
                        TextesDoubles(RangeeProbleme, 2));
}

bool ChauffePeutEtreActive() {
    return chauffePeutEtreActive;
}

void SupposerFilChaud() {
    chauffePeutEtreActive = true;
}

bool FilAllumeIci() {
    return filAllumeIci;
}

bool NoterEchange(EchecsConsecutifs& echecs, bool reussi) {
    if (reussi) {
        echecs.Nombre = 0;
        return false;
    }
    if (echecs.Nombre < EchecsAvantAvertissement)
        ++echecs.Nombre;
    else
        return false;
    return echecs.Nombre == EchecsAvantAvertissement;
}

} // namespace tessarel
