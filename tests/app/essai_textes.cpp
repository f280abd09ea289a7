// The text tables: both sets are twins, the rows are the told ones, and no French is left in the English set.
#include "app/texts/textes.h"
#include "app/texts/textes_programme.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

using namespace tessarel;

namespace {

// Loads a language and puts French back, so that the order of the cases doesn't matter.
class AvecLangue {
public:
    explicit AvecLangue(Langue langue) { ChargerMessages(langue); }
    ~AvecLangue() { ChargerMessages(Langue::Francais); }
    AvecLangue(const AvecLangue&) = delete;
    AvecLangue& operator=(const AvecLangue&) = delete;
};

// A text of a table: the table's letter (M, D, E, P), row, column.
struct Cellule {
    char table;
    int rangee;
    int colonne;
    std::string francais;
    std::string english;

    [[nodiscard]] std::string Nom() const {
        return std::string(1, table) + std::to_string(rangee) + "." + std::to_string(colonne);
    }
};

std::string LireCellule(char table, int rangee, int colonne) {
    switch (table) {
    case 'M':
        return colonne == 1 ? TextesMessages(rangee) : TitresMessages(rangee);
    case 'D':
        return TextesDoubles(rangee, colonne);
    case 'E':
        return TextesEtats(rangee);
    default:
        return Texte(static_cast<TexteProgramme>(rangee));
    }
}

std::vector<Cellule> ToutesLesCellules() {
    std::vector<Cellule> cellules;
    for (int r = 1; r <= 255; ++r) {
        for (int c = 1; c <= 2; ++c) cellules.push_back({'M', r, c, {}, {}});
    }
    for (int r = 1; r <= 64; ++r) {
        for (int c = 1; c <= 2; ++c) cellules.push_back({'D', r, c, {}, {}});
    }
    for (int r = 1; r <= 64; ++r) cellules.push_back({'E', r, 1, {}, {}});
    for (int r = 0; r < static_cast<int>(TexteProgramme::Fin); ++r) cellules.push_back({'P', r, 1, {}, {}});
    for (Cellule& c : cellules) c.francais = LireCellule(c.table, c.rangee, c.colonne);
    const AvecLangue english(Langue::English);
    for (Cellule& c : cellules) c.english = LireCellule(c.table, c.rangee, c.colonne);
    return cellules;
}

int Compter(std::string_view texte, std::string_view motif) {
    int n = 0;
    for (std::size_t p = texte.find(motif); p != std::string_view::npos; p = texte.find(motif, p + 1)) ++n;
    return n;
}

} // namespace

TEST(Textes, UneLangueInconnueDonneLeFrancais) {
    EXPECT_EQ(LangueDepuisTexte("English"), Langue::English);
    EXPECT_EQ(LangueDepuisTexte("Francais"), Langue::Francais);
    for (const char* valeur : {"", "english", "USA", "Deutsch", "ENGLISH", " English"}) {
        EXPECT_EQ(LangueDepuisTexte(valeur), Langue::Francais) << valeur;
    }
}

TEST(Textes, RemplirDesMarques) {
    EXPECT_EQ(RemplirMarques("%1 = %2 (%1)", {"a", "%1"}), "a = %1 (a)");
    EXPECT_EQ(RemplirMarques("65% - %2%", {"x", "y"}), "65% - y%");
    EXPECT_EQ(RemplirMarques("%1 et %2", {"x"}), "x et %2");
    EXPECT_EQ(RemplirMarques("%0 %", {"x"}), "%0 %");
    EXPECT_EQ(TexteRempli(TexteProgramme::ReparationTexte, {"CourseX", "300"}),
              "CourseX modifiée à 300 dans Tessarel.ini pour éviter les erreurs de calcul.");
}

TEST(Textes, LesDeuxJeuxSontJumeauxRangeeParRangee) {
    for (const Cellule& c : ToutesLesCellules()) {
        SCOPED_TRACE(c.Nom());
        EXPECT_EQ(c.francais.empty(), c.english.empty());
        EXPECT_EQ(Compter(c.francais, "\r\n"), Compter(c.english, "\r\n"));
        EXPECT_EQ(Compter(c.francais, "\n"), Compter(c.english, "\r\n"));
        EXPECT_EQ(Compter(c.francais, TESSAREL_COURRIEL_SUPPORT),
                  Compter(c.english, TESSAREL_COURRIEL_SUPPORT));
        for (const char* marque : {"%1", "%2", "%3", "%4", "%5", "%6", "%7", "%8", "%9"}) {
            EXPECT_EQ(Compter(c.francais, marque), Compter(c.english, marque)) << marque;
        }
    }
}
