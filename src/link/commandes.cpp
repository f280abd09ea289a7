// The commands, and the loops of the heat.
#include "commandes.h"

#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"
#include "echange.h"
#include "platform/dialogue.h"
#include "platform/horloge.h"
#include "platform/nombres.h"
#include "platform/pompe.h"

#include <algorithm>

namespace tessarel {

namespace {

constexpr int RangeeChauffeNonCoupee = 40; // of TextesDoubles

bool Envoyer(std::uint8_t code, std::uint8_t arg1, std::uint8_t arg2 = 0) {
    EnvoiBytes(code, arg1, arg2);
    return DernierResultatZelko == ResultatZelkoSucces;
}

// One try, without a box.
void EssayerChauffe(std::uint8_t marche, std::uint8_t valeur) {
    EffacerTampon();
    TamponEchange[1] = CommandeChauffe;
    TamponEchange[2] = marche;
    TamponEchange[3] = valeur;
    Echanger();
}

bool EstInterrompu(const SuiviChauffe& suivi) {
    return suivi.Interrompre && suivi.Interrompre();
}

FinChauffe Repeter(std::uint8_t marche, std::uint8_t valeur, bool (*confirmee)(std::uint8_t),
                   const SuiviChauffe& suivi, const char* procedure) {
    EchecsConsecutifs echecs;
    for (;;) {
        EssayerChauffe(marche, valeur);
        if (confirmee(valeur)) return FinChauffe::Confirmee;
        if (RienNePart()) return FinChauffe::Impossible;
        if (NoterEchange(echecs, false)) {
            if (suivi.Prevenir)
                suivi.Prevenir();
            else
                SignalerErreurInterface(procedure);
        }
        LaisserPasserEvenements();
        if (EstInterrompu(suivi)) return FinChauffe::Interrompue;
        Patienter(EntreDeuxEssais);
    }
}

} // namespace

bool ViderFile() {
    return Envoyer(CommandeFile, FileVider);
}

bool FinDeListe() {
    return Envoyer(CommandeSalve, 128);
}

bool ArreterMouvement() {
    return Envoyer(CommandeArret, 0);
}

bool ModeNormal() {
    constexpr unsigned interrupteursActifs = 2;
    return Envoyer(CommandeOrigine, 0) && (TamponEchange[2] & interrupteursActifs) != 0;
}

bool CouperMoteurs() {
    return Envoyer(CommandeMoteurs, 0);
}

bool AllumerMoteurs() {
    return Envoyer(CommandeMoteurs, 1);
}

bool ReglerDelaiMoteurs(std::uint8_t delai) {
    return Envoyer(CommandeMoteurs, 3, delai);
}

StatutZelko DemanderStatut() {
    EffacerTampon();
    TamponEchange[1] = CommandeStatut;
    return Echanger() ? LireStatut(TamponEchange) : StatutZelko{};
}

std::uint8_t ValeurPWM(double pourcent) {
    return static_cast<std::uint8_t>(std::clamp(Arrondi(pourcent * 2.55), 0.0, 255.0));
}

FinChauffe EnvoyerChauffe(std::uint8_t valeur, const SuiviChauffe& suivi) {
    const auto echo = [](std::uint8_t v) { return TamponEchange[4] == v; };
    return Repeter(1, valeur, echo, suivi, "EnvoyerChauffe");
}

FinChauffe CouperChauffe(const SuiviChauffe& suivi) {
    const auto coupee = [](std::uint8_t) { return ConfirmeCoupure(TamponEchange); };
    const FinChauffe fin = Repeter(0, 0, coupee, suivi, "CouperChauffe");
    if (fin == FinChauffe::Interrompue) SignalerChauffeNonCoupee();
    return fin;
}

bool EssayerCoupure() {
    EffacerTampon();
    TamponEchange[1] = CommandeArret;
    Echanger();
    EssayerChauffe(0, 0);
    return ConfirmeCoupure(TamponEchange);
}

void SignalerChauffeNonCoupee() {
    CoupureEnSuspens = true;
    AfficherCritique(TextesDoubles(RangeeChauffeNonCoupee, 1) + "\r\n" +
                         Texte(TexteProgramme::FilPeutEtreChaud),
                     TextesDoubles(RangeeChauffeNonCoupee, 2));
}

std::optional<bool> BoutonChauffeLeFil() {
    std::optional<bool> vu;
    for (int essai = 0; essai < EchecsAvantAvertissement; ++essai) {
        const StatutZelko statut = DemanderStatut();
        if (!statut.Recu) continue;
        const bool chaud = statut.ChauffeSurManu && statut.ChauffeActive;
        if (vu == chaud) return chaud;
        vu = chaud;
    }
    return vu;
}

bool SignalerFilChaudSurManu() {
    if (!BoutonChauffeLeFil().value_or(false)) return false;
    AfficherCritique(Texte(TexteProgramme::FilChaudSurManu), Texte(TexteProgramme::FilChaudSurManuTitre));
    return true;
}

void CouperChauffeAvantDeQuitter() {
    if (!ChauffePeutEtreActive()) return;
    const Instant fin = Maintenant() + std::chrono::seconds(5);
    // The critical box at the end says all there is to say.
    CouperChauffe({[fin] { return Maintenant() >= fin; }, [] {}});
}

} // namespace tessarel
