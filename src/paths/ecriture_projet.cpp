// Project files written: section after section, line after line, each line ended by CR LF.
#include "paths/cles_projet.h"
#include "paths/fichier_projet.h"
#include "platform/fichiers.h"
#include "platform/nombres.h"

#include <charconv>
#include <cstring>
#include <string_view>
#include <vector>

namespace tessarel {

namespace {

constexpr Masque MasqueReel = MasqueProjet;
constexpr std::string_view FinDeLigne = "\r\n";
// Room that the line of a point needs at most.
constexpr std::size_t TailleLignePoint = 2 * TailleNombre + 64;
// Filled to within a line it holds as much as the file's own buffer, which then takes no second copy.
constexpr std::size_t TailleTampon = (std::size_t{1} << 18U) + TailleLignePoint;

// Lines on their way into a file.
class LignesProjet {
public:
    explicit LignesProjet(const std::string& chemin) : m_ecriture(chemin), m_tampon(TailleTampon) {}

    void Section(std::string_view nom) { Ajouter({"[", nom, "]"}); }
    void Texte(std::string_view cle, std::string_view valeur) { Ajouter({cle, "=", valeur}); }
    void Entier(std::string_view cle, std::int64_t valeur) { Texte(cle, std::to_string(valeur)); }
    template <typename Nombre>
    void Reel(std::string_view cle, Nombre valeur) {
        Texte(cle, FormaterNombre(valeur, MasqueReel));
    }

    void Points(const std::vector<PointProfil>& points) {
        std::size_t numero = 0;
        for (const PointProfil& p : points) {
            if (m_tampon.size() - m_taille < TailleLignePoint) Vider();
            char* c = m_tampon.data() + m_taille;
            c = std::to_chars(c, c + 20, ++numero).ptr;
            *c++ = '=';
            c = EcrireNombre(c, p.X, MasqueReel);
            *c++ = ':';
            c = EcrireNombre(c, p.Y, MasqueReel);
            *c++ = ':';
            c = std::to_chars(c, c + 20, p.Drapeaux).ptr;
            c = static_cast<char*>(std::memcpy(c, FinDeLigne.data(), FinDeLigne.size())) + FinDeLigne.size();
            m_taille = static_cast<std::size_t>(c - m_tampon.data());
        }
    }

    void Terminer() {
        Vider();
        m_ecriture.Valider();
    }

private:
    void Ajouter(std::initializer_list<std::string_view> morceaux) {
        for (const std::string_view m : morceaux) Copier(m);
        Copier(FinDeLigne);
    }
    void Copier(std::string_view morceau) {
        if (m_tampon.size() - m_taille < morceau.size()) Vider();
        if (morceau.size() > m_tampon.size()) {
            m_ecriture.Ecrire(morceau);
            return;
        }
        std::memcpy(m_tampon.data() + m_taille, morceau.data(), morceau.size());
        m_taille += morceau.size();
    }
    void Vider() {
        m_ecriture.Ecrire({m_tampon.data(), m_taille});
        m_taille = 0;
    }

    EcritureAtomique m_ecriture;
    std::vector<char> m_tampon;
    std::size_t m_taille = 0;
};

void EcrireSequence(LignesProjet& lignes, const Sequence& sequence) {
    lignes.Entier(CleNombrePoints, static_cast<std::int64_t>(sequence.Points.size()));
    lignes.Points(sequence.Points);
}

void EcrireVersion(LignesProjet& lignes) {
    lignes.Section(SectionParametresFichier);
    for (const CleVersion& version : ClesVersion) lignes.Entier(version.cle, version.numero);
}

// The lines of a text joined by `lien`: a line end inside a value would end it and forge a line of the file.
std::string SurUneLigne(std::string_view texte, char lien) {
    std::string ligne;
    for (std::size_t i = 0; i < texte.size(); ++i) {
        if (texte[i] == '\r' && i + 1 < texte.size() && texte[i + 1] == '\n') continue;
        ligne += texte[i] == '\r' || texte[i] == '\n' ? lien : texte[i];
    }
    return ligne;
}

// An empty comment is "0"; deliberate, so a comment of "0" comes back as none.
std::string ValeurCommentaire(const std::string& commentaire) {
    return commentaire.empty() ? "0" : SurUneLigne(commentaire, ';');
}

void EcrireCle(LignesProjet& lignes, const Projet4axes& projet, const Cle4axes& c) {
    switch (c.genre) {
    case GenreCle::Reel:
        lignes.Reel(c.cle, projet.*std::get<double Projet4axes::*>(c.membre));
        break;
    case GenreCle::Angle:
        lignes.Reel(c.cle, static_cast<double>(projet.*std::get<int Projet4axes::*>(c.membre)));
        break;
    case GenreCle::Entier:
    case GenreCle::Choix:
        lignes.Entier(c.cle, projet.*std::get<int Projet4axes::*>(c.membre));
        break;
    case GenreCle::Commentaire:
        lignes.Texte(c.cle, ValeurCommentaire(projet.*std::get<std::string Projet4axes::*>(c.membre)));
        break;
    }
}

} // namespace

void EcrireProjet2D(const std::string& chemin, const Projet2D& projet) {
    LignesProjet lignes(chemin);
    const std::string prefixe = PrefixeDecoupe2D;
    lignes.Section(SectionTypeProjet);
    lignes.Texte(CleOnglet, TS2D);
    lignes.Section(prefixe + NomParametresSequences);
    lignes.Entier(CleNombreSequences, static_cast<std::int64_t>(projet.TableauSequences.size()));
    std::size_t n = 0;
    for (const Sequence& sequence : projet.TableauSequences) {
        lignes.Section(prefixe + NomSequence + std::to_string(++n));
        EcrireSequence(lignes, sequence);
    }
    lignes.Section(prefixe + NomBloc);
    lignes.Reel("BlocX", projet.BlocX);
    lignes.Reel("BlocY", projet.BlocY);
    lignes.Section(prefixe + NomDecoupe);
    for (const CleOption2D& option : OptionsProjet2D)
        if (const std::optional<int>& choix = projet.*option.membre) lignes.Entier(option.cle, *choix);
    EcrireVersion(lignes);
    lignes.Terminer();
}

void EcrireProjet4axes(const std::string& chemin, const Projet4axes& projet) {
    LignesProjet lignes(chemin);
    lignes.Section(SectionTypeProjet);
    lignes.Texte(CleOnglet, projet.Onglet);
    for (const SectionProfil& profil : ProfilsProjet4axes) {
        lignes.Section(profil.section);
        lignes.Texte(CleNomFichier, SurUneLigne((projet.*profil.membre).NomFichier, ' '));
        EcrireSequence(lignes, (projet.*profil.membre).sequence);
    }
    std::string_view ouverte;
    for (const Cle4axes& c : ClesProjet4axes) {
        if (c.section != ouverte) lignes.Section(c.section);
        ouverte = c.section;
        EcrireCle(lignes, projet, c);
    }
    EcrireVersion(lignes);
    lignes.Terminer();
}

} // namespace tessarel
