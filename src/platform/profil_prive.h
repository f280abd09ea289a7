// Settings files of the private-profile kind: sections in brackets, lines Key=Value, parsed once and kept.
//
// Keys and sections are matched without regard to case; of two equal sections, or of two equal keys of one,
// the first counts. A value loses its surrounding blanks, one pair of quotes around the whole of it, what
// follows a NUL and what lies past 255 characters. Lines that are none of these (comments, blank ones) are
// kept as they stand. Files are read as UTF-8, else as Windows-1252, and written as UTF-8.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <unordered_map>
#include <utility>
#include <vector>

namespace tessarel {

// Highest number of characters that a read gives back.
inline constexpr std::size_t LongueurValeurProfil = 255;

// The rules of one line, for readers that go over a large file on their own. All give views into the text.
// What stands after '=' as it is read, but for the cut at 255 characters.
std::string_view ValeurNettoyee(std::string_view brute);
// The first `nombre` characters of a UTF-8 text; a character of several bytes is never cut.
std::string_view PremiersCaracteres(std::string_view texte, std::size_t nombre);
// Sets the name and returns true when the line is the header of a section.
bool NomDeSection(std::string_view ligne, std::string_view& nom);
// Names that differ by case alone give the same text.
std::string PlierNom(std::string_view nom);

// The text of one settings file and the index into it.
class Profil {
public:
    Profil() = default;
    explicit Profil(std::string_view texteUtf8);

    // The value of a key, or nullptr when section or key is absent. Valid until the next change.
    [[nodiscard]] const std::string* Chercher(std::string_view section, std::string_view cle) const;
    // Sets a key, making section and key where absent. A value is held on one line: line ends and NULs in it
    // become blanks. False, and nothing done, for a name that a file can't hold (empty, "=" in a key, a line
    // end).
    bool Ecrire(std::string_view section, std::string_view cle, std::string_view valeur);
    // Empties all sections of that name; their headers stay.
    void Effacer(std::string_view section);
    // Removes all lines that hold the text anywhere, case counting; an empty text removes none.
    void SupprimerLignes(std::string_view texte);

    // Names of the sections in file order, a name met again left out.
    [[nodiscard]] std::vector<std::string> Sections() const;
    // Keys and values of a section in file order, a key met again left out.
    [[nodiscard]] std::vector<std::pair<std::string, std::string>> Cles(std::string_view section) const;
    // The lines without their ends.
    [[nodiscard]] std::vector<std::string> Lignes() const;
    // The whole text, as it goes into the file.
    [[nodiscard]] std::string Texte() const;

private:
    struct Ligne {
        std::string texte; // with its line end
        std::string cle;   // empty when the line is no key
        std::string valeur;
    };
    struct Bloc {
        std::string entete; // header line with its end; empty for what stands before the first header
        std::string nom;
        std::vector<Ligne> lignes;
        std::unordered_map<std::string, std::size_t> index; // folded key -> first line
    };

    void AjouterLigne(std::string_view texte);
    static void Indexer(Bloc& bloc);
    void Charger(std::string_view texteUtf8);

    std::vector<Bloc> m_blocs;
    std::unordered_map<std::string, std::size_t> m_index; // folded name -> first block
};

// The same on a file, through a store that keeps what was parsed. Each call looks at the file's time and size
// and parses again when they changed. An absent file reads as an empty one; so does an unreadable one, and a
// change to it is refused.
std::string LireProfil(const std::string& fichier, std::string_view section, std::string_view cle,
                       std::string_view defaut);
// These give false when the file can't be written; it is then as it was.
bool EcrireProfil(const std::string& fichier, std::string_view section, std::string_view cle,
                  std::string_view valeur);
bool EffacerSectionProfil(const std::string& fichier, std::string_view section);
bool SupprimerLignesProfil(const std::string& fichier, std::string_view texte);

std::vector<std::string> SectionsProfil(const std::string& fichier);
std::vector<std::pair<std::string, std::string>> ClesProfil(const std::string& fichier,
                                                            std::string_view section);
std::vector<std::string> LignesProfil(const std::string& fichier);

// Changes made to a file while this lives reach the disk in one step, when it ends or at Valider().
class EcrituresGroupees {
public:
    explicit EcrituresGroupees(std::string fichier);
    ~EcrituresGroupees();
    EcrituresGroupees(const EcrituresGroupees&) = delete;
    EcrituresGroupees& operator=(const EcrituresGroupees&) = delete;

    // False when the file can't be written: the changes are then dropped.
    bool Valider();

private:
    std::string m_fichier;
    bool m_ouvert = true;
};

} // namespace tessarel
