// Finding and running Python.
#include "outils/python.h"

#include <array>
#include <cstdio>
#include <cstdlib>

namespace tessarel::essais {

std::string PythonAvecEzdxf() {
    // The system's own first: another one on the path may not see the system's packages.
    for (const char* nom : {"/usr/bin/python3", "python3"})
        if (std::system((std::string(nom) + " -c 'import ezdxf' >/dev/null 2>&1").c_str()) == 0) return nom;
    return "";
}

std::string SortieDe(const std::string& commande) {
    std::FILE* tuyau = popen(commande.c_str(), "r");
    if (tuyau == nullptr) return "";
    std::string texte;
    std::array<char, 4096> tampon;
    while (const std::size_t n = std::fread(tampon.data(), 1, tampon.size(), tuyau))
        texte.append(tampon.data(), n);
    pclose(tuyau);
    return texte;
}

} // namespace tessarel::essais
