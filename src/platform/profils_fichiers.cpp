// The store of parsed settings files: what was read is kept until the file changes under us.
#include "erreurs.h"
#include "fichiers.h"
#include "profil_prive.h"

#include <cerrno>
#include <memory>
#include <optional>
#include <sys/stat.h>

namespace tessarel {

namespace {

// What tells one state of a file from another. The file number too: an atomic write always changes it.
struct Empreinte {
    long long secondes = 0;
    long nanosecondes = 0;
    long long taille = -1; // -1: absent
    unsigned long long numero = 0;
    friend bool operator==(const Empreinte&, const Empreinte&) = default;
};

Empreinte EmpreinteDe(const std::string& fichier) {
    struct stat infos {};
    if (::stat(fichier.c_str(), &infos) != 0) return {};
    return {static_cast<long long>(infos.st_mtim.tv_sec), infos.st_mtim.tv_nsec,
            static_cast<long long>(infos.st_size), static_cast<unsigned long long>(infos.st_ino)};
}

struct ProfilGarde {
    Profil profil;
    std::optional<Empreinte> empreinte; // nothing: to be read again
    bool lisible = true;
    int groupes = 0;      // open EcrituresGroupees
    bool modifie = false; // changed in memory only
};

ProfilGarde& Place(const std::string& fichier) {
    static std::unordered_map<std::string, std::unique_ptr<ProfilGarde>> gardes;
    std::unique_ptr<ProfilGarde>& place = gardes[fichier];
    if (!place) place = std::make_unique<ProfilGarde>();
    return *place;
}

ProfilGarde& ProfilAJour(const std::string& fichier) {
    ProfilGarde& garde = Place(fichier);
    if (garde.modifie) return garde;
    const Empreinte actuelle = EmpreinteDe(fichier);
    if (garde.empreinte == actuelle) return garde;
    garde.profil = Profil();
    garde.lisible = true;
    try {
        garde.profil = Profil(EnUtf8(LireFichierEntier(fichier)));
    } catch (const FauteFichier& faute) {
        garde.lisible = faute.Numero() == NumeroErreur::FichierIntrouvable;
    }
    garde.empreinte = actuelle;
    return garde;
}

bool MettreSurDisque(const std::string& fichier, ProfilGarde& garde) {
    garde.modifie = false;
    try {
        EcrireFichierAtomique(fichier, garde.profil.Texte());
    } catch (const FauteFichier&) {
        garde.empreinte.reset();
        return false;
    }
    garde.empreinte = EmpreinteDe(fichier);
    return true;
}

template <typename Changement>
bool Changer(const std::string& fichier, Changement changement) {
    ProfilGarde& garde = ProfilAJour(fichier);
    if (!garde.lisible) return false;
    if (!changement(garde.profil)) return false;
    if (garde.groupes > 0) {
        garde.modifie = true;
        return true;
    }
    return MettreSurDisque(fichier, garde);
}

bool Present(const std::string& fichier) {
    return FichierExiste(fichier) || Place(fichier).modifie;
}

} // namespace

std::string LireProfil(const std::string& fichier, std::string_view section, std::string_view cle,
                       std::string_view defaut) {
    const std::string* valeur = ProfilAJour(fichier).profil.Chercher(section, cle);
    return valeur != nullptr ? *valeur : std::string(defaut);
}

bool EcrireProfil(const std::string& fichier, std::string_view section, std::string_view cle,
                  std::string_view valeur) {
    // A value that stands there already costs no write.
    const std::string* actuelle = ProfilAJour(fichier).profil.Chercher(section, cle);
    if (actuelle != nullptr && *actuelle == valeur && valeur.size() < LongueurValeurProfil) return true;
    return Changer(fichier, [&](Profil& profil) { return profil.Ecrire(section, cle, valeur); });
}

bool EffacerSectionProfil(const std::string& fichier, std::string_view section) {
    if (!Present(fichier)) return true;
    return Changer(fichier, [&](Profil& profil) {
        profil.Effacer(section);
        return true;
    });
}

bool SupprimerLignesProfil(const std::string& fichier, std::string_view texte) {
    if (!Present(fichier)) return true;
    return Changer(fichier, [&](Profil& profil) {
        profil.SupprimerLignes(texte);
        return true;
    });
}

std::vector<std::string> SectionsProfil(const std::string& fichier) {
    return ProfilAJour(fichier).profil.Sections();
}

std::vector<std::pair<std::string, std::string>> ClesProfil(const std::string& fichier,
                                                            std::string_view section) {
    return ProfilAJour(fichier).profil.Cles(section);
}

std::vector<std::string> LignesProfil(const std::string& fichier) {
    return ProfilAJour(fichier).profil.Lignes();
}

EcrituresGroupees::EcrituresGroupees(std::string fichier) : m_fichier(std::move(fichier)) {
    ++Place(m_fichier).groupes;
}

EcrituresGroupees::~EcrituresGroupees() {
    Valider();
}

bool EcrituresGroupees::Valider() {
    if (!m_ouvert) return true;
    m_ouvert = false;
    ProfilGarde& garde = Place(m_fichier);
    if (--garde.groupes > 0 || !garde.modifie) return true;
    return MettreSurDisque(m_fichier, garde);
}

} // namespace tessarel
