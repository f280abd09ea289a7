// Settings files: any bytes parse, what is kept is the text itself, and a value written is read back.
#include "platform/fichiers.h"
#include "platform/profil_prive.h"

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* octets, std::size_t taille) {
    using namespace tessarel;
    const std::string texte = EnUtf8(std::string(reinterpret_cast<const char*>(octets), taille));
    Profil profil(texte);
    if (profil.Texte() != texte) std::abort();
    for (const std::string& section : profil.Sections()) {
        for (const auto& [cle, valeur] : profil.Cles(section)) {
            const std::string* lue = profil.Chercher(section, cle);
            if (lue == nullptr || *lue != valeur) std::abort();
            if (profil.Ecrire(section, cle, "1") && *profil.Chercher(section, cle) != "1") std::abort();
        }
        profil.Effacer(section);
        if (!profil.Cles(section).empty()) std::abort();
    }
    profil.SupprimerLignes("[");
    if (!profil.Sections().empty()) std::abort();
    return 0;
}
