// Files of every kind dropped on the 2D window, in either case of letters.
#include "fenetres/poste_2d.h"
#include "paths/fichier_projet.h"
#include "paths/import.h"

#include <QLabel>
#include <QStandardPaths>

using namespace tessarel;
using essais::Poste2D;
using essais::RectangleTexte;

namespace {

// A square of 10 mm in each kind.
constexpr const char* Dxf =
    "0\nSECTION\n2\nENTITIES\n0\nLWPOLYLINE\n8\n0\n90\n4\n70\n1\n10\n0\n20\n0\n10\n10\n20\n0\n"
    "10\n10\n20\n10\n10\n0\n20\n10\n0\nENDSEC\n0\nEOF\n";
constexpr const char* Dat = "Profil\n1.0 0.0\n0.5 0.08\n0.0 0.0\n0.5 -0.04\n1.0 0.0\n";
constexpr const char* Plt = "IN;SP1;PA0,0;PD400,0,400,400,0,400,0,0;PU;";
constexpr const char* Eps = "%!PS-Adobe-3.0 EPSF-3.0\n%%BoundingBox: 0 0 30 30\n"
                            "0 0 moveto 28 0 lineto 28 28 lineto 0 28 lineto closepath stroke\nshowpage\n";

constexpr const char* Cpx = "[Emplanture]\n0;0\n100;10\n60;-4\n0;0\n[Saumon]\n0;0\n50;5\n30;-2\n0;0\n";
constexpr const char* Fc = "[Emplanture]\nCommentaire=aile\n0;0\n100;10\n60;-4\n0;0\n"
                           "[Saumon]\n0;0\n50;5\n30;-2\n0;0\n";

} // namespace

class EssaiDepots : public QObject {
    Q_OBJECT
private slots:
    void init() {
        m_poste = std::make_unique<Poste2D>();
        m_poste->OuvrirFenetre();
    }
    void cleanup() { m_poste.reset(); }

    void UnDessinDeposeEntreDansLeProjet_data() {
        QTest::addColumn<QString>("nom");
        QTest::addColumn<QString>("contenu");
        QTest::addColumn<int>("traces");
        const auto ajouter = [](const char* nom, const char* contenu, int traces = 1) {
            QTest::addRow("%s", nom) << QString::fromLatin1(nom) << QString::fromLatin1(contenu) << traces;
        };
        ajouter("carre.dxf", Dxf);
        ajouter("CARRE.DXF", Dxf);
        ajouter("profil.dat", Dat);
        ajouter("PROFIL.DAT", Dat);
        ajouter("carre.plt", Plt);
        ajouter("carre.eps", Eps);
        ajouter("aile.cpx", Cpx, 2);
        ajouter("aile.fc", Fc, 2);
        ajouter("rectangle.txt", RectangleTexte);
        ajouter("rectangle.TXT", RectangleTexte);
    }
    void UnDessinDeposeEntreDansLeProjet() {
        QFETCH(QString, nom);
        QFETCH(QString, contenu);
        QFETCH(int, traces);
        const std::string chemin = m_poste->Fichier(nom.toStdString(), contenu.toStdString());
        const bool lisible = !nom.endsWith(QStringLiteral(".eps")) ||
                             !QStandardPaths::findExecutable(QStringLiteral("gs")).isEmpty();
        if (!lisible) QSKIP("Ghostscript is not installed");
        m_poste->Deposer({chemin});
        QTRY_COMPARE(Espace().TableauSequences.size(), static_cast<std::size_t>(traces));
        QVERIFY(Espace().TableauSequences[0].Points.size() >= 4);
        QVERIFY(Espace().modifie);
        QVERIFY(m_poste->boites.boites.empty());
        QVERIFY(m_poste->Trouver<QLabel>("lblTypeFichierTS2D").text().startsWith(nom));
    }

    void UnProjetDeposeSOuvre() {
        Projet2D projet;
        projet.BlocX = 120;
        projet.BlocY = 60;
        projet.TableauSequences = LireCoordonneesTexte(m_poste->Fichier("r.txt", RectangleTexte));
        const std::string chemin = m_poste->dossier.Fichier("projet.tsr");
        EcrireProjet2D(chemin, projet);
        m_poste->Deposer({chemin});
        QCOMPARE(Espace().TableauSequences.size(), std::size_t{1});
        QCOMPARE(Espace().cheminProjet, chemin);
        QCOMPARE(Espace().bloc.BlocX, 120.0F);
        m_poste->Deposer({std::string(TESSAREL_RACINE) + "/tests/paths/donnees/carre.qnt"});
        QCOMPARE(Espace().bloc.BlocX, 100.0F);
        QCOMPARE(m_poste->Trouver<QLabel>("lblTypeFichierTS2D").text(), QStringLiteral("qnt"));
        QCOMPARE(Espace().cheminProjet, std::string());
    }

    void CeQuiNEstPasUnDessinEstRefuseEtNeChangeRien_data() {
        QTest::addColumn<QString>("nom");
        for (const std::string& extension : ExtensionsConnues())
            QTest::addRow("%s", extension.c_str()) << QString::fromStdString("mauvais." + extension);
    }
    void CeQuiNEstPasUnDessinEstRefuseEtNeChangeRien() {
        QFETCH(QString, nom);
        m_poste->Deposer({m_poste->Fichier(nom.toStdString(), std::string("\x01\x00\xFF\x7F", 4))});
        QTRY_COMPARE(m_poste->boites.boites.size(), std::size_t{1});
        QCOMPARE(m_poste->boites.boites[0].titre, std::string("Erreur de lecture de fichier"));
        QVERIFY(Espace().TableauSequences.empty());
        QVERIFY(!Espace().modifie);
    }

private:
    [[nodiscard]] const Espace2D& Espace() const { return m_poste->fenetre->Espace(); }
    std::unique_ptr<Poste2D> m_poste;
};

QTEST_MAIN(EssaiDepots)
#include "essai_depots.moc"
