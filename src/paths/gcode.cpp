// The dialect of the exported cut: head, timed moves on four axes, closing lines.
//
// The heat is S in tenths of a percent, F the inverse of a move's time in minutes (G93). There are no rapid
// moves: approach and return are G01 like all others, with a feed that tells their speed.
#include "paths/gcode.h"

#include "app/texts/textes.h"
#include "paths/durees.h"

#include <array>

namespace tessarel {

namespace {

constexpr Masque MasqueCoordonnee = "###0.0000";
constexpr Masque MasqueAvance = "######0.000000";
constexpr Masque MasqueS = "##0";
constexpr Masque MasqueTempo = "######0.0";
constexpr Masque MasqueVitesse = "##0.0";
constexpr Masque MasqueChauffe = "##0.0";
constexpr const char* FinLigne = "\r\n";
constexpr double SParPourcent = 10;

// Room of a move line with coordinates of up to six digits and a sign, letters not counted.
constexpr std::size_t TailleMouvement = 80;
// "S" scale said to whoever reads the file.
constexpr const char* EchelleChauffe = " {S0;S5;S10;S15;...;S995;S1000}<=>{0%;0.5%;1%;...;99.5%;100%} ";

// A line end inside a name or a path must not start a line of its own: it would be read as a command.
std::string Commentaire(std::string_view texte) {
    std::string ligne = "(";
    for (const char c : texte) ligne += c == '\r' || c == '\n' ? ' ' : c;
    ligne += ')';
    return ligne;
}

std::string TexteCorde(const std::string& titre, float corde, const std::optional<Masque>& masque) {
    return Commentaire(titre + (masque ? FormaterNombre(corde, *masque) : FormaterSimple(corde)) + "mm");
}

std::string VersionProgramme() {
    return std::to_string(TESSAREL_VERSION_MAJEURE) + "." + std::to_string(TESSAREL_VERSION_MINEURE) + "." +
           std::to_string(TESSAREL_VERSION_REVISION);
}

// The row of the tables says where the zeros stand; each takes the letter of its axis.
std::string PointDeDepart(const LettresAxes& lettres) {
    constexpr std::string_view zeros = "0 0 0 0";
    std::string texte = TextesMessages(184);
    if (const auto place = texte.find(zeros); place != std::string::npos)
        texte.replace(place, zeros.size(),
                      lettres.X1 + "0 " + lettres.Y1 + "0 " + lettres.X2 + "0 " + lettres.Y2 + "0");
    return texte;
}

std::string AssemblerResume(const ResumeGcode& resume, const std::string& titreDuree,
                            const char* separateur) {
    std::string texte = titreDuree + TexteDureeGcode(resume.dureeSecondes);
    texte += separateur;
    texte += TextesMessages(165) + FormaterNombre(resume.vitesse, MasqueVitesse) + " mm/s";
    texte += separateur;
    texte += TitresMessages(165) + FormaterNombre(resume.chauffe, MasqueChauffe) + " %";
    return texte;
}

} // namespace

std::string LigneResumeGcode(const ResumeGcode& resume) {
    return Commentaire(AssemblerResume(resume, TitresMessages(164), ", "));
}

std::string TexteResumeGcode(const ResumeGcode& resume) {
    return AssemblerResume(resume, TextesMessages(162), FinLigne);
}

void FichierGcode::EcrireEntete(const EnteteGcode& entete) {
    m_lettres = entete.lettres;
    const auto avant = [this](const std::string& ligne) { m_avant += ligne + FinLigne; };
    m_avant.clear();
    avant(Commentaire(TextesMessages(176)));
    avant(Commentaire(TitresMessages(176) + " v" + VersionProgramme() + " : " + TESSAREL_SITE_SUPPORT));
    avant(Commentaire(entete.cheminProjet.empty() ? TitresMessages(177)
                                                  : TextesMessages(177) + entete.cheminProjet));
    avant(Commentaire(TextesMessages(178) + entete.nomMachine));
    avant(TexteCorde(TitresMessages(178), entete.corde1, entete.masqueCordes));
    avant(TexteCorde(TextesMessages(179), entete.corde2, entete.masqueCordes));
    for (const std::string& ligne : entete.lignesProjet) avant(ligne);

    m_apres.clear();
    AjouterLigne("(********* Gcode *********)");
    AjouterLigne(Commentaire(TitresMessages(180)));
    AjouterLigne("G21");
    AjouterLigne(Commentaire(TextesMessages(181)));
    AjouterLigne("G93");
    AjouterLigne(Commentaire(TitresMessages(181) + EchelleChauffe));
    AjouterLigne("M3 S" + FormaterNombre(entete.chauffe * SParPourcent, MasqueS));
    AjouterLigne(Commentaire(TextesMessages(182)));
    AjouterLigne("G4 P" + FormaterNombre(static_cast<double>(entete.tempoChauffe), MasqueTempo));
    AjouterLigne(Commentaire(TitresMessages(182)));
    AjouterLigne(Commentaire(TextesMessages(183)));
    AjouterLigne(Commentaire(TitresMessages(183)));
    AjouterLigne("G90");
    AjouterLigne(Commentaire(PointDeDepart(entete.lettres)));
}

void FichierGcode::Reserver(std::size_t mouvements) {
    const std::size_t lettres =
        m_lettres.X1.size() + m_lettres.Y1.size() + m_lettres.X2.size() + m_lettres.Y2.size();
    m_apres.reserve(m_apres.size() + mouvements * (TailleMouvement + lettres));
}

void FichierGcode::AjouterMouvement(double x1, double y1, double x2, double y2, double f) {
    const auto valeur = [this](double v, Masque masque) {
        std::array<char, TailleNombre> tampon;
        m_apres.append(tampon.data(), EcrireNombre(tampon.data(), v, masque));
    };
    m_apres += "G01 ";
    m_apres += m_lettres.X1;
    valeur(x1, MasqueCoordonnee);
    m_apres += ' ';
    m_apres += m_lettres.Y1;
    valeur(y1, MasqueCoordonnee);
    m_apres += ' ';
    m_apres += m_lettres.X2;
    valeur(x2, MasqueCoordonnee);
    m_apres += ' ';
    m_apres += m_lettres.Y2;
    valeur(y2, MasqueCoordonnee);
    m_apres += " F";
    valeur(f, MasqueAvance);
    m_apres += FinLigne;
}

void FichierGcode::AjouterLigne(std::string_view ligne) {
    m_apres += ligne;
    m_apres += FinLigne;
}

void FichierGcode::Terminer() {
    AjouterLigne(Commentaire(TextesMessages(167)));
    AjouterLigne("M5");
    AjouterLigne(Commentaire(TitresMessages(167)));
    AjouterLigne("M2");
}

std::string FichierGcode::Texte(const std::string& resume) const {
    std::string fichier;
    fichier.reserve(m_avant.size() + resume.size() + m_apres.size() + 2);
    fichier += m_avant;
    fichier += resume;
    fichier += FinLigne;
    fichier += m_apres;
    return fichier;
}

} // namespace tessarel
