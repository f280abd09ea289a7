// The text of a settings file: lines in blocks of one section each, and an index of first keys.
#include "profil_prive.h"

#include "fichiers.h"

#include <algorithm>
#include <unordered_set>

namespace tessarel {

namespace {

constexpr std::string_view FinDeLigne = "\r\n";

std::string ValeurLue(std::string_view brute) {
    return std::string(PremiersCaracteres(ValeurNettoyee(brute), LongueurValeurProfil));
}

bool TientSurUneLigne(std::string_view nom) {
    return !nom.empty() && nom.find_first_of(std::string_view("\r\n\0", 3)) == std::string_view::npos;
}

std::string SurUneLigne(std::string_view valeur) {
    std::string ligne(valeur);
    std::replace_if(
        ligne.begin(), ligne.end(), [](char c) { return c == '\r' || c == '\n' || c == '\0'; }, ' ');
    return ligne;
}

void TerminerLigne(std::string& texte) {
    if (!texte.empty() && texte.back() != '\n') texte += FinDeLigne;
}

std::string SansFin(std::string_view ligne) {
    if (ligne.ends_with('\n')) ligne.remove_suffix(1);
    if (ligne.ends_with('\r')) ligne.remove_suffix(1);
    return std::string(ligne);
}

} // namespace

std::string_view ValeurNettoyee(std::string_view brute) {
    const std::string_view valeur = Rogner(brute.substr(0, brute.find('\0')));
    const bool entoure = valeur.size() >= 2 && valeur.front() == valeur.back() &&
                         (valeur.front() == '"' || valeur.front() == '\'');
    return entoure ? valeur.substr(1, valeur.size() - 2) : valeur;
}

std::string_view PremiersCaracteres(std::string_view texte, std::size_t nombre) {
    if (texte.size() <= nombre) return texte;
    std::size_t caracteres = 0;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        const bool debut = (static_cast<unsigned char>(texte[i]) & 0xC0U) != 0x80U;
        if (debut && ++caracteres > nombre) return texte.substr(0, i);
    }
    return texte;
}

bool NomDeSection(std::string_view ligne, std::string_view& nom) {
    const std::string_view propre = Rogner(ligne);
    if (propre.empty() || propre.front() != '[') return false;
    const auto fin = propre.rfind(']'); // the last one: a name may hold brackets
    if (fin == std::string_view::npos) return false;
    nom = propre.substr(1, fin - 1);
    return true;
}

// Folds ASCII letters and the accented ones of Latin-1 (U+00C0 to U+00DE), which names of materials hold.
std::string PlierNom(std::string_view nom) {
    std::string plie = EnMinuscules(nom);
    for (std::size_t i = 0; i + 1 < plie.size(); ++i) {
        if (static_cast<unsigned char>(plie[i]) != 0xC3) continue;
        const auto suite = static_cast<unsigned char>(plie[i + 1]);
        if (suite >= 0x80 && suite <= 0x9E && suite != 0x97) plie[i + 1] = static_cast<char>(suite + 0x20);
    }
    return plie;
}

Profil::Profil(std::string_view texteUtf8) {
    Charger(texteUtf8);
}

void Profil::Charger(std::string_view texteUtf8) {
    m_blocs.assign(1, Bloc{});
    m_index.clear();
    while (!texteUtf8.empty()) {
        const auto fin = texteUtf8.find('\n');
        const std::size_t longueur = fin == std::string_view::npos ? texteUtf8.size() : fin + 1;
        AjouterLigne(texteUtf8.substr(0, longueur));
        texteUtf8.remove_prefix(longueur);
    }
    for (std::size_t i = 0; i < m_blocs.size(); ++i) {
        Indexer(m_blocs[i]);
        if (i > 0) m_index.emplace(PlierNom(m_blocs[i].nom), i);
    }
}

void Profil::AjouterLigne(std::string_view texte) {
    std::string_view nom;
    if (NomDeSection(texte, nom)) {
        m_blocs.push_back(Bloc{std::string(texte), std::string(nom), {}, {}});
        return;
    }
    Ligne ligne{std::string(texte), {}, {}};
    const std::string_view propre = Rogner(texte);
    const auto egal = propre.find('=');
    if (egal != std::string_view::npos && propre.front() != ';') {
        ligne.cle = std::string(Rogner(propre.substr(0, egal)));
        ligne.valeur = ValeurLue(propre.substr(egal + 1));
    }
    m_blocs.back().lignes.push_back(std::move(ligne));
}

void Profil::Indexer(Bloc& bloc) {
    bloc.index.clear();
    bloc.index.reserve(bloc.lignes.size());
    for (std::size_t i = 0; i < bloc.lignes.size(); ++i)
        if (!bloc.lignes[i].cle.empty()) bloc.index.emplace(PlierNom(bloc.lignes[i].cle), i);
}

const std::string* Profil::Chercher(std::string_view section, std::string_view cle) const {
    const auto bloc = m_index.find(PlierNom(section));
    if (bloc == m_index.end()) return nullptr;
    const Bloc& trouve = m_blocs[bloc->second];
    const auto ligne = trouve.index.find(PlierNom(Rogner(cle)));
    return ligne == trouve.index.end() ? nullptr : &trouve.lignes[ligne->second].valeur;
}

bool Profil::Ecrire(std::string_view section, std::string_view cle, std::string_view valeur) {
    cle = Rogner(cle);
    if (!TientSurUneLigne(section) || !TientSurUneLigne(cle)) return false;
    if (cle.find('=') != std::string_view::npos || cle.front() == ';' || cle.front() == '[') return false;
    if (m_blocs.empty()) m_blocs.emplace_back();
    const std::string uneLigne = SurUneLigne(valeur);
    const auto [place, nouveau] = m_index.try_emplace(PlierNom(section), m_blocs.size());
    if (nouveau) {
        Bloc& dernier = m_blocs.back();
        TerminerLigne(dernier.lignes.empty() ? dernier.entete : dernier.lignes.back().texte);
        const std::string nom(section);
        m_blocs.push_back(Bloc{"[" + nom + "]\r\n", nom, {}, {}});
    }
    Bloc& bloc = m_blocs[place->second];
    const std::string clePliee = PlierNom(cle);
    if (const auto ligne = bloc.index.find(clePliee); ligne != bloc.index.end()) {
        Ligne& ancienne = bloc.lignes[ligne->second];
        const bool derniere = ancienne.texte.empty() || ancienne.texte.back() != '\n';
        ancienne.texte = ancienne.cle + "=" + uneLigne;
        if (!derniere) ancienne.texte += FinDeLigne;
        ancienne.valeur = ValeurLue(uneLigne);
        return true;
    }
    // After the last line that says something, so that the blank lines between two sections stay between
    // them.
    std::size_t ou = bloc.lignes.size();
    while (ou > 0 && Rogner(bloc.lignes[ou - 1].texte).empty()) --ou;
    TerminerLigne(ou == 0 ? bloc.entete : bloc.lignes[ou - 1].texte);
    const std::string nom(cle);
    bloc.lignes.insert(bloc.lignes.begin() + static_cast<std::ptrdiff_t>(ou),
                       Ligne{nom + "=" + uneLigne + std::string(FinDeLigne), nom, ValeurLue(uneLigne)});
    bloc.index.emplace(clePliee, ou);
    return true;
}

void Profil::Effacer(std::string_view section) {
    const std::string nom = PlierNom(section);
    for (std::size_t i = 1; i < m_blocs.size(); ++i) {
        if (PlierNom(m_blocs[i].nom) != nom) continue;
        m_blocs[i].lignes.clear();
        m_blocs[i].index.clear();
    }
}

void Profil::SupprimerLignes(std::string_view texte) {
    if (texte.empty()) return; // every line holds it
    std::string reste;
    const auto garder = [&](const std::string& ligne) {
        if (SansFin(ligne).find(texte) == std::string::npos) reste += ligne;
    };
    for (std::size_t i = 0; i < m_blocs.size(); ++i) {
        if (i > 0) garder(m_blocs[i].entete);
        for (const Ligne& ligne : m_blocs[i].lignes) garder(ligne.texte);
    }
    Charger(reste);
}

std::vector<std::string> Profil::Sections() const {
    std::vector<std::string> noms;
    for (std::size_t i = 1; i < m_blocs.size(); ++i)
        if (const auto premier = m_index.find(PlierNom(m_blocs[i].nom)); premier->second == i)
            noms.push_back(m_blocs[i].nom);
    return noms;
}

std::vector<std::pair<std::string, std::string>> Profil::Cles(std::string_view section) const {
    std::vector<std::pair<std::string, std::string>> cles;
    const auto bloc = m_index.find(PlierNom(section));
    if (bloc == m_index.end()) return cles;
    std::unordered_set<std::string> vues;
    for (const Ligne& ligne : m_blocs[bloc->second].lignes)
        if (!ligne.cle.empty() && vues.insert(PlierNom(ligne.cle)).second)
            cles.emplace_back(ligne.cle, ligne.valeur);
    return cles;
}

std::vector<std::string> Profil::Lignes() const {
    std::vector<std::string> lignes;
    for (std::size_t i = 0; i < m_blocs.size(); ++i) {
        if (i > 0) lignes.push_back(SansFin(m_blocs[i].entete));
        for (const Ligne& ligne : m_blocs[i].lignes) lignes.push_back(SansFin(ligne.texte));
    }
    return lignes;
}

std::string Profil::Texte() const {
    std::string texte;
    for (const Bloc& bloc : m_blocs) {
        texte += bloc.entete;
        for (const Ligne& ligne : bloc.lignes) texte += ligne.texte;
    }
    return texte;
}

} // namespace tessarel
