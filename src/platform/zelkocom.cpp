// Run-time loading of the link library.
#include "zelkocom.h"

#include "dossiers.h"
#include "fichiers.h"

#include <dlfcn.h>

namespace tessarel {

namespace {

using FonctionEtat = std::int32_t (*)();
using FonctionEnvoi = std::int32_t (*)(std::uint8_t*, std::int32_t*);

struct Bibliotheque {
    void* poignee = nullptr;
    FonctionEtat version = nullptr;
    FonctionEtat ouvrir = nullptr;
    FonctionEtat fermer = nullptr;
    FonctionEtat branchee = nullptr;
    FonctionEnvoi envoyer = nullptr;
    std::int32_t versionLue = 0;
    std::string origine;
    FonctionsZelkoCom remplacante; // in place of a file, where it has an Envoyer
};

Bibliotheque& Courante() {
    static Bibliotheque bibliotheque;
    return bibliotheque;
}

template <typename Fonction>
bool Trouver(void* poignee, const char* nom, Fonction& fonction) {
    fonction =
        reinterpret_cast<Fonction>(::dlsym(poignee, nom)); // NOLINT: the loader speaks of addresses only
    return fonction != nullptr;
}

bool ChargerFichier(const std::string& fichier, Bibliotheque& b) {
    b.poignee = ::dlopen(fichier.c_str(), RTLD_NOW | RTLD_LOCAL);
    const bool complete =
        b.poignee != nullptr && Trouver(b.poignee, "Zelko_Dll_Version", b.version) &&
        Trouver(b.poignee, "Zelko_Open", b.ouvrir) && Trouver(b.poignee, "Zelko_Close", b.fermer) &&
        Trouver(b.poignee, "Zelko_IsConnected", b.branchee) && Trouver(b.poignee, "Zelko_Send", b.envoyer);
    if (complete) {
        b.origine = fichier;
        b.versionLue = b.version(); // before anything else touches the library
        return true;
    }
    const char* raison = ::dlerror();
    const std::string dite = raison != nullptr ? raison : fichier;
    if (b.poignee != nullptr) ::dlclose(b.poignee);
    b = Bibliotheque{};
    b.origine = dite;
    return false;
}

bool Utilisable() {
    return EtatZelkoCom() == EtatBibliotheque::Presente;
}

} // namespace

std::vector<std::string> DossiersZelkoCom() {
    const std::string programme = DossierExecutable();
    return {programme, JoindreChemin(DossierDuChemin(programme), "lib")};
}

EtatBibliotheque ChargerZelkoCom(const std::vector<std::string>& dossiers) {
    LibererZelkoCom();
    for (const std::string& dossier : dossiers) {
        const std::string fichier = JoindreChemin(dossier, NomBibliothequeZelko);
        if (FichierExiste(fichier) && ChargerFichier(fichier, Courante())) break;
    }
    return EtatZelkoCom();
}

void LibererZelkoCom() {
    Bibliotheque& b = Courante();
    if (b.poignee != nullptr) ::dlclose(b.poignee);
    b = Bibliotheque{};
}

void RemplacerZelkoCom(FonctionsZelkoCom fonctions) {
    LibererZelkoCom();
    Bibliotheque& b = Courante();
    b.versionLue = fonctions.Version;
    b.remplacante = std::move(fonctions);
}

bool ZelkoComRemplacee() {
    return static_cast<bool>(Courante().remplacante.Envoyer);
}

EtatBibliotheque EtatZelkoCom() {
    const Bibliotheque& b = Courante();
    if (b.poignee == nullptr && !b.remplacante.Envoyer) return EtatBibliotheque::Absente;
    return b.versionLue < VersionMinimaleZelko ? EtatBibliotheque::TropVieille : EtatBibliotheque::Presente;
}

const std::string& OrigineZelkoCom() {
    return Courante().origine;
}

std::int32_t Zelko_Dll_Version() {
    return Courante().versionLue;
}

std::int32_t Zelko_Open() {
    if (Courante().remplacante.Envoyer) return ResultatZelkoSucces;
    return Utilisable() ? Courante().ouvrir() : ResultatZelkoBibliothequeAbsente;
}

std::int32_t Zelko_Close() {
    if (Courante().remplacante.Envoyer) return ResultatZelkoSucces;
    return Utilisable() ? Courante().fermer() : ResultatZelkoBibliothequeAbsente;
}

std::int32_t Zelko_IsConnected() {
    if (Courante().remplacante.Envoyer) return Utilisable() ? Courante().remplacante.EstBranchee() : 0;
    return Utilisable() ? Courante().branchee() : 0;
}

std::int32_t Zelko_Send(Tampon& tampon) {
    if (!Utilisable()) return ResultatZelkoBibliothequeAbsente;
    if (Courante().remplacante.Envoyer) return Courante().remplacante.Envoyer(tampon);
    std::int32_t reserve = 0; // asked for by the library, never read
    return Courante().envoyer(tampon.data(), &reserve);
}

} // namespace tessarel
